#include "light/palette/light_list.h"

#include "light/palette/light_list_dialog.h"
#include "light/palette/listed_light.h"
#include "light/palette/show_light_list.h"
#include "light/res/ui_resources.h"
#include "sdk/db/light.h"
#include "sdk/db/object_class.h"
#include "sdk/ed/selection_sets.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/dpi.h"
#include "sdk/ui/image_list.h"
#include "sdk/ui/menu.h"
#include "sdk/ui/resource_templates.h"
#include "sdk/ui/ui_service.h"
#include "sdk/ui/window_ref.h"

#include <bit>
#include <new>
#include <utility>

using quor::light::isListedLight;

namespace {

constexpr const wchar_t* toolId = L"{60826FDB-D95C-4FBB-BF89-F9D6FE0FB50C}";
constexpr CRect initialPlace = {6, 181, 214, 619};
constexpr CSize minimumSize = {200, 250};

// The palette's icon, and the resources of the host that have it.
constexpr unsigned iconId = 58013;
constexpr int interfaceResources = 1;
constexpr std::size_t pendingStep = 8;

// The lights of the pick-first selection, in its order.
std::vector<ZrDbObjectId> selectedLights(const ZdsName& set) {
    std::vector<ZrDbObjectId> lights;
    long length = 0;
    zredSSLength(set, length);
    for (long index = 0; index < length; ++index) {
        ZdsName name;
        ZrDbObjectId id;
        if (zredSSName(set, index, name) != RTNORM || zrdbGetObjectId(id, name) != Quor::eOk)
            continue;
        if (zrdbObjectClass(id) == ZrDbLight::desc()) // not of a derived class
            lights.push_back(id);
    }
    return lights;
}

} // namespace

CZrLightList* quor::light::lightListPalette = nullptr;

CZrLightList::CZrLightList() {
    pendingLightIds_.reserve(pendingStep);
    SetToolID(toolId);
    SetInitialFloatingRect({ZkUiGetCtrlDPISize(initialPlace.left), ZkUiGetCtrlDPISize(initialPlace.top),
                            ZkUiGetCtrlDPISize(initialPlace.right), ZkUiGetCtrlDPISize(initialPlace.bottom)});
    SetMinSize({ZkUiGetCtrlDPISize(minimumSize.cx), ZkUiGetCtrlDPISize(minimumSize.cy)});
}

CZrLightList::~CZrLightList() {
    // Taken down while all of it is still there: the dialog is told like any other child.
    DestroyWindow();
    if (quor::light::lightListPalette == this)
        quor::light::lightListPalette = nullptr;
}

bool CZrLightList::OnCreate() {
    if (!CZrRxPaletteSet::OnCreate() || !createDialog())
        return false;
    setIcon();
    return true;
}

bool CZrLightList::createDialog() {
    listDialog_.reset(new (std::nothrow) CZrlightListDlg);
    if (listDialog_ == nullptr)
        return false;
    const ZwResourceScope resources(&quor::light::uiResources());
    if (!listDialog_->Create(quor::light::kListDialog, *this)) {
        listDialog_.reset();
        return false;
    }
    listDialog_->ShowWindow(true);
    return true;
}

void CZrLightList::setIcon() {
    const ZrRxUiEvent* const events = zrrxUiEvent();
    const ZwResourceInstance instance = events != nullptr ? events->GetResourceModule(interfaceResources) : nullptr;
    CIcon icon;
    if (instance != nullptr && icon.LoadIcon(instance, iconId))
        SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<std::intptr_t>(&icon));
}

void CZrLightList::OnRButtonUp(unsigned flags, CPoint point) {
    const quor::ui::WindowRef self(this);
    showMenu();
    if (self)
        CZrRxPaletteSet::OnRButtonUp(flags, point);
}

void CZrLightList::showMenu() {
    const ZwResourceScope resources(&quor::light::uiResources());
    const CPoint cursor = GetCursorPos();
    CMenu menu;
    if (!menu.LoadMenu(quor::light::kPaletteMenu) || listDialog_ == nullptr)
        return;
    menu.CheckMenuItem(quor::light::kShowTips, tipsVisible());
    if (const CMenu* const popup = menu.GetSubMenu(0))
        popup->TrackPopupMenu(cursor, *this);
}

bool CZrLightList::OnCommand(unsigned id) {
    switch (id) {
    case quor::light::kClosePalette:
    case quor::ui::kCloseCommand:
        hide();
        return true;
    case quor::light::kShowTips:
        toggleTips();
        return true;
    default:
        return CZrRxPaletteSet::OnCommand(id);
    }
}

void CZrLightList::hide() {
    try {
        quor::light::showInFrame(*this, false);
    } catch (...) {
        // The person closed it; whatever went wrong on the way is nothing they could act on.
    }
}

std::intptr_t CZrLightList::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) {
    switch (message) {
    case quor::ui::kTipsMessage:
        if (wParam == 0)
            toggleTips();
        else if (wParam == 1 && lParam != 0)
            *std::bit_cast<unsigned char*>(lParam) = tipsVisible() ? 1 : 0;
        return 0;
    case quor::ui::kIconMessage:
        setIcon();
        return 0;
    default:
        return CZrRxPaletteSet::OnMessage(message, wParam, lParam);
    }
}

void CZrLightList::toggleTips() {
    if (listDialog_ != nullptr)
        listDialog_->toggleTips();
}

bool CZrLightList::tipsVisible() const { return listDialog_ != nullptr && listDialog_->tipsVisible(); }

void CZrLightList::layOut(const CRect& client) {
    if (listDialog_ != nullptr && listDialog_->IsWindow())
        listDialog_->MoveWindow(client);
}

void CZrLightList::impliedSelectionChanged() {
    if (listDialog_ == nullptr)
        return;
    std::vector<ZrDbObjectId> lights;
    ZdsName selection;
    if (zredSSGet(L"I", selection) == RTNORM)
        lights = selectedLights(selection);
    zredSSFree(selection);
    listDialog_->selectLights(lights);
}

void CZrLightList::lightAppended(const ZrDbDatabase* /*database*/, const ZrDbObject* object) {
    if (object == nullptr || !object->isModified() || !isListedLight(object) || object->isErased())
        return;
    pendingLightId_ = object->objectId();
    pendingLightIds_.push_back(pendingLightId_);
}

void CZrLightList::lightChangedNow(const ZrDbDatabase* /*database*/, const ZrDbObject* object) {
    if (listDialog_ != nullptr && isListedLight(object))
        listDialog_->updateLightRow(static_cast<const ZrDbLight&>(*object));
}

void CZrLightList::lightTouched(const ZrDbDatabase* /*database*/, const ZrDbObject* object) {
    if (isListedLight(object) && !object->isErased())
        pendingLightId_ = object->objectId();
}

void CZrLightList::lightTouchedByUndo(const ZrDbDatabase* /*database*/, const ZrDbObject* object) {
    if (isListedLight(object))
        pendingLightId_ = object->objectId();
}

void CZrLightList::lightTouchedByRedo(const ZrDbDatabase* /*database*/, const ZrDbObject* object) {
    if (isListedLight(object))
        pendingLightId_ = object->objectId();
}

void CZrLightList::documentBecameCurrent(ZrApDocument* document) {
    CZrRxPaletteSet::documentBecameCurrent(document);
    forgetPending(); // their drawing may be about to go
    if (listDialog_ == nullptr)
        return;
    if (IsVisible())
        listDialog_->refreshList();
    else
        listDialog_->clearList();
}

void CZrLightList::commandStarting() { forgetPending(); }

void CZrLightList::forgetPending() {
    pendingLightIds_.clear();
    pendingLightId_ = {};
}

// Many new lights, or the one that was touched last: of a command that did both, the new ones are enough.
void CZrLightList::commandFinished() {
    if (listDialog_ == nullptr)
        return;
    if (pendingLightIds_.empty())
        return updateRow(std::exchange(pendingLightId_, {}));
    std::vector<ZrDbObjectId> appended;
    appended.reserve(pendingStep);
    appended.swap(pendingLightIds_); // others may come while the rows are shown
    for (const ZrDbObjectId id : appended)
        updateRow(id);
}

void CZrLightList::updateRow(ZrDbObjectId id) {
    if (const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForRead); light)
        listDialog_->updateLightRow(*light);
}

void CZrLightList::paletteShownChanged(bool shown) { zwutads::setVar(L"LIGHTLISTSTATE", shown ? 1 : 0, true); }
