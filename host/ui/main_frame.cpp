#include "sdk/ui/main_frame.h"

#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/ui/user_interface.h"

#include <algorithm>
#include <utility>

void CZrMainFrame::ShowControlBar(CControlBar* bar, bool show, bool delay) {
    if (bar == nullptr || (!bar->IsWindow() && (!show || !bar->createWindow(*this))))
        return;
    known(*bar).broughtToView = show;
    // Who is told of it may show and hide bars too, and take this one away.
    const quor::ui::WindowRef window(bar);
    if (show && !delay)
        place(*bar);
    if (window && bar->ShowWindow(show) != show && window)
        bar->visibilityChanged(show);
    quor::Session& session = quor::Session::current();
    if (!session.processor().isRunning())
        session.ui().settle();
}

void CZrMainFrame::RecalcLayout() {
    for (std::size_t i = 0; i < bars_.size(); ++i)
        if (bars_[i].exists() && bars_[i].bar->IsVisible())
            place(*bars_[i].bar);
}

CControlBar* CZrMainFrame::takeBroughtToView() {
    for (Bar& each : bars_)
        if (std::exchange(each.broughtToView, false) && each.exists() && each.bar->IsVisible())
            return each.bar;
    return nullptr;
}

CZrMainFrame::Bar& CZrMainFrame::known(CControlBar& bar) {
    std::erase_if(bars_, [](const Bar& each) { return !each.exists(); });
    const auto at = std::find_if(bars_.begin(), bars_.end(), [&](const Bar& each) { return each.bar == &bar; });
    return at != bars_.end() ? *at : bars_.emplace_back(Bar{&bar, quor::ui::WindowRef(&bar)});
}

void CZrMainFrame::place(CControlBar& bar) {
    auto* const dockable = dynamic_cast<CZkUiDockControlBar*>(&bar);
    if (dockable == nullptr)
        return;
    const quor::ui::WindowRef window(dockable);
    dockable->MoveWindow(dockable->place());
    if (window)
        dockable->layOut(dockable->GetClientRect());
}

CZrMainFrame* zredGetQuorFrame() {
    quor::ui::UserInterface* const ui = quor::ui::UserInterface::existing();
    return ui != nullptr ? &ui->frame() : nullptr;
}
