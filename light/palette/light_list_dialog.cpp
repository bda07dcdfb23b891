#include "light/palette/light_list_dialog.h"

#include "light/palette/dialog_layout.h"
#include "light/palette/drawing_selection.h"
#include "light/palette/glyph_display.h"
#include "light/palette/row_menu.h"
#include "light/palette/theme_color.h"
#include "light/res/load_text.h"
#include "light/res/ui_resources.h"
#include "sdk/db/light.h"
#include "sdk/ed/macro.h"
#include "sdk/ui/dpi.h"
#include "sdk/ui/menu.h"
#include "sdk/ui/window_ref.h"

#include <algorithm>

using quor::light::LoadedText;
using quor::light::texts;
using quor::light::themeColor;

namespace {

constexpr int imageSize = 21;
constexpr int imageGrowth = 2;
constexpr unsigned imageBitmaps[] = {quor::light::kDistantLightPicture, quor::light::kPointLightPicture,
                                     quor::light::kSpotLightPicture, quor::light::kWebLightPicture};

constexpr int nameColumn = 1;
constexpr int columnWidths[] = {50, 120};

constexpr std::size_t longestTooltip = 1024;

constexpr std::intptr_t refused = 1;

void runMacro(const wchar_t* macro) { zredMenuMacro(macro, false, true); }
void eraseSelected() { runMacro(L"_.ERASE"); }
void showProperties() { runMacro(L"_properties"); }

} // namespace

CZrlightListDlg::~CZrlightListDlg() { DestroyWindow(); }

void CZrlightListDlg::OnInitDialog() {
    SubclassDlgItem(quor::light::kLightListControl, list_);
    SubclassDlgItem(quor::light::kTipsControl, tips_);
    SubclassDlgItem(quor::light::kLabelControl, label_);
    addImages();
    addColumns();
    addTips();
    layOutControls();
}

void CZrlightListDlg::addImages() {
    images_.Create(imageSize, imageSize, ILC_COLOR8 | ILC_MASK, 0, imageGrowth);
    for (const unsigned id : imageBitmaps) {
        CBitmap bitmap;
        bitmap.LoadBitmap(id);
        images_.Add(bitmap);
    }
}

void CZrlightListDlg::addColumns() {
    const quor::light::Text* const titles[] = {&texts.paletteTypeColumn, &texts.paletteNameColumn};
    list_.SetExtendedStyle(list_.GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    list_.SetImageList(&images_, LVSIL_SMALL);
    for (int column = 0; column <= nameColumn; ++column) {
        const int width = ZkUiGetCtrlDPISize(columnWidths[column]);
        list_.InsertColumn(column, LoadedText(*titles[column]).str(), HDF_LEFT, width);
        list_.SetColumnWidth(column, width);
    }
}

void CZrlightListDlg::addTips() {
    const ZrString select = LoadedText(texts.paletteTipSelect).str();
    const ZrString noGlyph = LoadedText(texts.paletteTipDistant).str();
    tips_.SetWindowText(select + L"\n" + noGlyph);
    tooltip_.Create({.parent = this});
    tooltip_.AddTool(tips_, select + noGlyph);
    tooltip_.AddTool(list_, L"");
}

void CZrlightListDlg::OnSize(int width, int height) {
    CZrUiDialog::OnSize(width, height);
    layOutControls();
}

void CZrlightListDlg::layOutControls() {
    if (!label_.IsWindow())
        return;
    const quor::light::DialogLayout layout = quor::light::layOutDialog(ScreenToClient(GetWindowRect()), tipsShown_);
    label_.MoveWindow(layout.label);
    if (ZkUiGetDisplayScale() > 1.0)
        label_.SetWindowText(LoadedText(texts.paletteLabel).str());
    list_.MoveWindow(layout.list);
    tips_.MoveWindow(layout.tips);
}

void CZrlightListDlg::refreshList() {
    if (!rows_.refresh())
        return;
    quor::light::rowOrder = {.column = nameColumn, .ascending = {false, false}};
    list_.notifyParent({.code = quor::ui::Notification::Code::ColumnClick, .column = nameColumn});
}

void CZrlightListDlg::clearList() { rows_.clear(); }

void CZrlightListDlg::updateLightRow(const ZrDbLight& light) { rows_.update(light); }

void CZrlightListDlg::selectLights(const std::vector<ZrDbObjectId>& ids) { rows_.select(ids); }

void CZrlightListDlg::toggleTips() {
    tipsShown_ = !tipsVisible();
    tips_.ShowWindow(tipsShown_);
    layOutControls();
}

bool CZrlightListDlg::OnEraseBkgnd(CDC& dc) {
    dc.FillSolidRect(GetClientRect(), themeColor(kThemeDialogBackground));
    list_.SetBkColor(themeColor(kThemeListBackground));
    list_.SetTextColor(themeColor(kThemePanelText));
    return true;
}

std::intptr_t CZrlightListDlg::OnNotify(unsigned id, const quor::ui::Notification& notification) {
    using Code = quor::ui::Notification::Code;
    if (id != quor::light::kLightListControl)
        return CZrUiDialog::OnNotify(id, notification);
    const bool onRow = notification.index >= 0;
    switch (notification.code) {
    case Code::Click:
        if (onRow)
            selectRowsInDrawing();
        return 0;
    case Code::RightClick:
        if (onRow)
            showRowMenu(notification.index);
        return 0;
    case Code::DoubleClick:
        if (onRow)
            showProperties();
        return 0;
    case Code::ColumnClick:
        rows_.sortByClick(notification.column);
        return 0;
    case Code::BeginLabelEdit:
    case Code::BeginMarquee:
        return refused;
    case Code::EndLabelEdit:
        break;
    }
    return CZrUiDialog::OnNotify(id, notification);
}

bool CZrlightListDlg::OnCommand(unsigned id) {
    if (id == quor::light::kDeleteLights)
        eraseSelected();
    else if (id == quor::light::kShowProperties)
        showProperties();
    else if (id == quor::light::kShowTipsInList)
        toggleTips();
    else if (const auto display = quor::light::glyphDisplayOf(id))
        quor::light::setGlyphDisplay([this] { return markedLight(); }, *display);
    else
        return CZrUiDialog::OnCommand(id);
    return true;
}

void CZrlightListDlg::OnRButtonUp(unsigned flags, CPoint point) {
    const quor::ui::WindowRef self(this);
    if (!tips_.IsWindowVisible() || !tips_.GetWindowRect().PtInRect(GetCursorPos()))
        showDialogMenu();
    if (self)
        CZrUiDialog::OnRButtonUp(flags, point);
}

void CZrlightListDlg::showDialogMenu() {
    const ZwResourceScope resources(&quor::light::uiResources());
    CMenu menu;
    if (!menu.LoadMenu(quor::light::kListMenu))
        return;
    menu.CheckMenuItem(quor::light::kShowTipsInList, tipsVisible());
    if (const CMenu* const popup = menu.GetSubMenu(0))
        popup->TrackPopupMenu(GetCursorPos(), *this);
}

void CZrlightListDlg::showRowMenu(int row) {
    const ZwResourceScope resources(&quor::light::uiResources());
    list_.SetSelectionMark(row);
    CMenu menu;
    const bool loaded = quor::light::loadRowMenu(menu, markedLight(), list_.GetSelectedCount());
    std::vector<ZrDbObjectId> lights = selectedLights();
    std::reverse(lights.begin(), lights.end());
    const quor::ui::WindowRef self(this);
    quor::light::selectInDrawing(lights);
    if (const CMenu* const popup = loaded && self ? menu.GetSubMenu(0) : nullptr)
        popup->TrackPopupMenu(GetCursorPos(), *this);
}

void CZrlightListDlg::selectRowsInDrawing() { quor::light::selectInDrawing(selectedLights()); }

// In the order of the list.
std::vector<ZrDbObjectId> CZrlightListDlg::selectedLights() const {
    std::vector<ZrDbObjectId> lights;
    lights.reserve(static_cast<std::size_t>(list_.GetSelectedCount()));
    for (int row = list_.GetNextItem(-1, LVNI_SELECTED); row >= 0; row = list_.GetNextItem(row, LVNI_SELECTED))
        lights.push_back(rows_.lightAt(row));
    return lights;
}

ZrDbObjectId CZrlightListDlg::markedLight() const { return rows_.lightAt(list_.GetSelectionMark()); }

// Delete erases what is selected in the drawing; the other keys would close the palette, or move the selection away
// from that of the drawing.
bool CZrlightListDlg::PreTranslateMessage(const InputMessage& message) {
    if (message.kind != InputMessage::Kind::KeyDown) {
        tellTooltip(message);
        return CZrUiDialog::PreTranslateMessage(message);
    }
    switch (message.key) {
    case VK_DELETE:
        eraseSelected();
        return true;
    case VK_ESCAPE:
    case VK_RETURN:
    case VK_UP:
    case VK_DOWN:
        return true;
    default:
        return CZrUiDialog::PreTranslateMessage(message);
    }
}

void CZrlightListDlg::tellTooltip(const InputMessage& message) {
    using Kind = InputMessage::Kind;
    if (message.kind == Kind::MouseMove && (message.window == &list_ || message.window == list_.GetHeaderCtrl())) {
        const int row = message.window == &list_ ? list_.HitTest(message.point) : -1;
        const ZrString name = list_.GetItemText(row, nameColumn).substr(0, longestTooltip);
        if (name != tooltip_.GetText(list_)) {
            tooltip_.Pop();
            tooltip_.UpdateTipText(name, list_);
        }
    }
    if (message.kind == Kind::MouseMove || message.kind == Kind::LeftDown || message.kind == Kind::LeftUp)
        tooltip_.RelayEvent(message);
}
