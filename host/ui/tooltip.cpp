#include "sdk/ui/tooltip.h"

#include <algorithm>

bool CToolTipCtrl::AddTool(CWnd& window, const ZrString& text) {
    if (!window.IsWindow())
        return false;
    std::erase_if(tools_, [](const Tool& tool) { return !tool.window; });
    if (find(window) == nullptr)
        tools_.push_back({quor::ui::WindowRef(&window), {}});
    UpdateTipText(text, window);
    return true;
}

void CToolTipCtrl::UpdateTipText(const ZrString& text, CWnd& window) {
    Tool* const tool = find(window);
    if (tool == nullptr || tool->text == text)
        return;
    tool->text = text;
    if (shown() != &window)
        return;
    if (text.empty())
        Pop();
    else
        contentChanged();
}

const ZrString& CToolTipCtrl::GetText(CWnd& window) const {
    static const ZrString none;
    const auto found = std::ranges::find(tools_, &window, [](const Tool& tool) { return tool.window.get(); });
    return found == tools_.end() ? none : found->text;
}

void CToolTipCtrl::RelayEvent(const InputMessage& message) {
    using Kind = InputMessage::Kind;
    const Tool* const tool = message.window == nullptr ? nullptr : find(*message.window);
    if (tool == nullptr)
        return;
    if (message.kind == Kind::MouseMove)
        show(tool->text.empty() ? nullptr : message.window);
    if (message.kind == Kind::LeftDown || message.kind == Kind::LeftDouble || message.kind == Kind::RightDown)
        Pop();
}

void CToolTipCtrl::Pop() { show(nullptr); }

void CToolTipCtrl::show(CWnd* window) {
    if (window == shown())
        return;
    shown_ = quor::ui::WindowRef(window);
    contentChanged();
}

CToolTipCtrl::Tool* CToolTipCtrl::find(const CWnd& window) {
    const auto found = std::ranges::find(tools_, &window, [](const Tool& tool) { return tool.window.get(); });
    return found == tools_.end() ? nullptr : &*found;
}
