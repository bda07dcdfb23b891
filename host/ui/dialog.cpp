#include "sdk/ui/dialog.h"

#include "host/ui/resource_lookup.h"
#include "sdk/sys/system.h"
#include "sdk/ui/controls.h"
#include "sdk/ui/dpi.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/ui_service.h"

#include <algorithm>

using quor::ui::ControlKind;
using quor::ui::ControlTemplate;
using quor::ui::DialogTemplate;

namespace {

std::unique_ptr<CWnd> newControl(ControlKind kind) {
    switch (kind) {
    case ControlKind::Static:
        return std::make_unique<CStatic>();
    case ControlKind::Button:
        return std::make_unique<CButton>();
    case ControlKind::List:
        return std::make_unique<CListCtrl>();
    }
    return nullptr;
}

CRect onScreen(const CRect& rect) {
    return {ZkUiGetCtrlDPISize(rect.left), ZkUiGetCtrlDPISize(rect.top), ZkUiGetCtrlDPISize(rect.right),
            ZkUiGetCtrlDPISize(rect.bottom)};
}

CWnd::Creation creationOf(const ControlTemplate& control, CWnd& dialog) {
    return {.parent = &dialog,
            .id = control.id,
            .style = control.style | WS_VISIBLE,
            .rect = onScreen(control.rect),
            .text = zwResourceText(control.text)};
}

} // namespace

CDialog::~CDialog() = default;

bool CDialog::Create(unsigned templateId, CWnd& parent) {
    const DialogTemplate* const found = quor::ui::findDialog(templateId);
    if (found == nullptr || !parent.IsWindow())
        return false;
    if (!CWnd::Create({.parent = &parent, .rect = onScreen({0, 0, found->size.cx, found->size.cy})}))
        return false;
    templateControls_.clear();
    for (const ControlTemplate& control : found->controls)
        templateControls_.emplace_back(newControl(control.kind))->Create(creationOf(control, *this));
    OnInitDialog();
    return IsWindow();
}

bool CDialog::SubclassDlgItem(unsigned id, CWnd& control) {
    const auto found = std::ranges::find_if(templateControls_, [id](const std::unique_ptr<CWnd>& placeholder) {
        return placeholder->GetDlgCtrlID() == id;
    });
    if (found == templateControls_.end() || !control.SubclassWindow(**found))
        return false;
    templateControls_.erase(found);
    return true;
}

bool CDialog::PreTranslateMessage(const InputMessage& message) {
    if (message.kind != InputMessage::Kind::KeyDown)
        return false;
    if (message.key == VK_RETURN)
        OnOK();
    else if (message.key == VK_ESCAPE)
        OnCancel();
    else
        return false;
    return true;
}

bool CZkUiBaseDialog::OnEraseBkgnd(CDC& dc) {
    dc.FillSolidRect(GetClientRect(), CZwSystem::instance().ui().theme().color(kThemeDialogBackground));
    return true;
}
