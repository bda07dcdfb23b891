#include "fuzz/support/palette_person.h"

#include "fuzz/support/failure.h"
#include "fuzz/support/onlooker.h"
#include "fuzz/support/palette_check.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/ui/input.h"
#include "host/ui/painting.h"
#include "host/ui/recording_device.h"
#include "host/ui/user_interface.h"
#include "sdk/ed/selection.h"
#include "sdk/sys/ads.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/palette_set.h"

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>

namespace quor::fuzz {

namespace {

constexpr const wchar_t* kModule = L"light";

struct Target {
    CWnd* window = nullptr;
    CPoint point;
};

// A point of a row that is seen, from its left edge on; nowhere without one.
Target rowAt(const CZkUiPaletteSet& palette, unsigned choice) {
    constexpr unsigned kRows = 32;
    constexpr std::array<int, 8> kAcross{0, 3, 10, 40, 55, 100, 169, 170};
    CListCtrl* const list = listIn(palette);
    const int seen = std::min(list->GetItemCount() - list->GetTopIndex(), list->GetCountPerPage() + 1);
    if (seen <= 0)
        return {};
    const int row = list->GetTopIndex() + static_cast<int>(choice % kRows % static_cast<unsigned>(seen));
    const CRect place = list->GetItemRect(row, LVIR_BOUNDS);
    return {list, {place.left + kAcross[choice / kRows % kAcross.size()], place.top + 1}};
}

// One of 16 times 16 points, the palette's edges and just beside it included, in the window that is meant there.
Target pointAt(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr unsigned kSteps = 16;
    const CRect client = palette.GetClientRect();
    const auto along = [](int length, unsigned step) {
        return step == 0 ? -1 : length * static_cast<int>(step - 1) / static_cast<int>(kSteps - 2);
    };
    const CPoint point{along(client.Width(), choice % kSteps), along(client.Height(), choice / kSteps % kSteps)};
    CWnd* const window = ui::windowAt(palette, point);
    if (window == nullptr)
        return {&palette, point};
    return {window, window->ScreenToClient(palette.ClientToScreen(point))};
}

// What is drawn in a child stands between an enter and a leave of its own.
void checkCalls(const std::vector<ui::DrawingCall>& calls) {
    int depth = 0;
    for (const ui::DrawingCall& call : calls) {
        depth += call.kind == ui::DrawingCall::Kind::Enter ? 1 : call.kind == ui::DrawingCall::Kind::Leave ? -1 : 0;
        require(depth >= 0, "a window is left that was not entered");
    }
    require(depth == 0, "a window is entered and not left");
}

} // namespace

// What stands several times comes so many times as often.
const PalettePerson::Act PalettePerson::kActs[] = {
    &PalettePerson::clickRow,
    &PalettePerson::clickRow,
    &PalettePerson::clickRow,
    &PalettePerson::doubleClickRow,
    &PalettePerson::rightClickRow,
    &PalettePerson::rightClickRow,
    &PalettePerson::rightClickRow,
    &PalettePerson::moveOverRow,
    &PalettePerson::clickAnywhere,
    &PalettePerson::doubleClickAnywhere,
    &PalettePerson::rightClickAnywhere,
    &PalettePerson::moveAnywhere,
    &PalettePerson::clickHeading,
    &PalettePerson::pressKey,
    &PalettePerson::pressKey,
    &PalettePerson::turnWheel,
    &PalettePerson::sendCommand,
    &PalettePerson::sendMessage,
    &PalettePerson::resize,
    &PalettePerson::paint,
    &PalettePerson::paintWhatAsked,
    &PalettePerson::paintWhatAsked,
    &PalettePerson::paintWhatAsked,
    &PalettePerson::paintWhatAsked,
};

const PalettePerson::HostAct PalettePerson::kHostActs[] = {
    &PalettePerson::chooseTheme,   &PalettePerson::showOrHide,   &PalettePerson::selectInDrawing,
    &PalettePerson::chooseDrawing, &PalettePerson::unloadOrLoad,
};

void PalettePerson::act(unsigned what, unsigned choice, unsigned held) {
    flags_ = ((held & 1) != 0 ? MK_SHIFT : 0U) | ((held & 2) != 0 ? MK_CONTROL : 0U);
    const unsigned kind = what % static_cast<unsigned>(std::size(kActs) + std::size(kHostActs));
    if (kind >= std::size(kActs)) {
        (this->*kHostActs[kind - std::size(kActs)])(choice);
    } else if (CZkUiPaletteSet* const palette = openPalette(session_);
               palette != nullptr && palette->IsWindowVisible()) {
        watch(*palette);
        (this->*kActs[kind])(*palette, choice);
    }
    checkListState(session_);
    if (const CZkUiPaletteSet* const palette = openPalette(session_))
        checkRows(*palette);
}

void PalettePerson::pressRow(CZkUiPaletteSet& palette, unsigned choice, Press press) {
    const Target target = rowAt(palette, choice);
    if (target.window == nullptr)
        return;
    const bool isHit = listIn(palette)->HitTest(target.point) >= 0;
    press(*target.window, target.point, flags_);
    if (isHit)
        checkSelectionIsShared(session_);
}

void PalettePerson::clickRow(CZkUiPaletteSet& palette, unsigned choice) { pressRow(palette, choice, ui::click); }

void PalettePerson::rightClickRow(CZkUiPaletteSet& palette, unsigned choice) {
    pressRow(palette, choice, ui::rightClick);
}

void PalettePerson::doubleClickRow(CZkUiPaletteSet& palette, unsigned choice) {
    if (const Target target = rowAt(palette, choice); target.window != nullptr)
        ui::doubleClick(*target.window, target.point, flags_);
}

void PalettePerson::moveOverRow(CZkUiPaletteSet& palette, unsigned choice) {
    if (const Target target = rowAt(palette, choice); target.window != nullptr)
        ui::moveMouse(*target.window, target.point, flags_);
}

void PalettePerson::clickAnywhere(CZkUiPaletteSet& palette, unsigned choice) {
    const Target target = pointAt(palette, choice);
    ui::click(*target.window, target.point, flags_);
}

void PalettePerson::doubleClickAnywhere(CZkUiPaletteSet& palette, unsigned choice) {
    const Target target = pointAt(palette, choice);
    ui::doubleClick(*target.window, target.point, flags_);
}

void PalettePerson::rightClickAnywhere(CZkUiPaletteSet& palette, unsigned choice) {
    const Target target = pointAt(palette, choice);
    ui::rightClick(*target.window, target.point, flags_);
}

void PalettePerson::moveAnywhere(CZkUiPaletteSet& palette, unsigned choice) {
    const Target target = pointAt(palette, choice);
    ui::moveMouse(*target.window, target.point, flags_);
}

void PalettePerson::clickHeading(CZkUiPaletteSet& palette, unsigned choice) {
    CHeaderCtrl& header = *listIn(palette)->GetHeaderCtrl();
    const CRect heading = header.GetItemRect(static_cast<int>(choice) % header.GetItemCount());
    const CPoint middle{heading.left + heading.Width() / 2, heading.top + heading.Height() / 2};
    if (choice % 8 < 6)
        ui::click(header, middle, flags_);
    else
        ui::rightClick(header, middle, flags_);
}

void PalettePerson::pressKey(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr std::array<unsigned, 16> kKeys{VK_DELETE, VK_ESCAPE, VK_RETURN, VK_UP,    VK_DOWN, VK_HOME,
                                             VK_END,    VK_PRIOR,  VK_NEXT,   VK_SPACE, VK_F2,   'A',
                                             'B',       0,         0xFFFF,    VK_DELETE};
    const unsigned key = kKeys[choice % kKeys.size()];
    CListCtrl& list = *listIn(palette);
    if (choice / kKeys.size() % 2 == 0)
        list.SetFocus();
    if (CWnd::GetFocus() != nullptr)
        ui::pressKey(key, flags_);
    else if (choice / kKeys.size() % 4 == 1)
        ui::pressKey(palette, key, flags_);
}

void PalettePerson::turnWheel(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr std::array<int, 8> kLines{1, 3, -1, -3, 0, 1000, -1000, 20};
    const Target target = pointAt(palette, choice);
    ui::turnWheel(*target.window, target.point, kLines[choice % kLines.size()], flags_);
}

void PalettePerson::sendCommand(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr std::array<unsigned, 4> kCommands{ui::kCloseCommand, 0, 1, 65535};
    palette.SendMessage(WM_COMMAND, kCommands[choice % kCommands.size()]);
}

void PalettePerson::sendMessage(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr unsigned char kUntouched = 7;
    unsigned char shown = kUntouched;
    const auto place = std::bit_cast<std::intptr_t>(&shown);
    if (choice % 4 == 0) {
        palette.SendMessage(ui::kTipsMessage, 0);
    } else if (choice % 4 == 1) {
        palette.SendMessage(ui::kTipsMessage, 1, place);
        require(shown <= 1, "nothing is said about the tips");
    } else if (choice % 4 == 2) {
        palette.SendMessage(ui::kTipsMessage, 2, place);
        require(shown == kUntouched, "another message is taken for that of the tips");
    } else {
        palette.SendMessage(choice % 8 == 3 ? ui::kIconMessage : WM_APP + choice);
    }
}

void PalettePerson::resize(CZkUiPaletteSet& palette, unsigned choice) {
    constexpr std::array<int, 16> kLengths{-1000, -1, 0, 1, 2, 23, 24, 47, 76, 199, 200, 214, 249, 250, 2000, 30000};
    const int width = kLengths[choice % kLengths.size()];
    const int height = kLengths[choice / kLengths.size() % kLengths.size()];
    const CPoint at = flags_ == 0 ? CPoint{6, 181} : CPoint{-300, -20};
    if (flags_ == (MK_SHIFT | MK_CONTROL)) // without regard to the smallest size
        palette.MoveWindow({at.x, at.y, at.x + width, at.y + height});
    else
        palette.SetFloatingRect({at.x, at.y, at.x + width, at.y + height});
}

void PalettePerson::paint(CZkUiPaletteSet& palette, unsigned /*choice*/) {
    look_.paint(palette);
    ui::RecordingDevice device;
    ui::paint(palette, device);
    checkCalls(device.calls());
}

void PalettePerson::paintWhatAsked(CZkUiPaletteSet& palette, unsigned /*choice*/) { look_.paint(palette); }

void PalettePerson::chooseTheme(unsigned choice) {
    zwutads::setVar(L"COLORTHEME", static_cast<short>(static_cast<int>(choice % 4) - 1));
}

// As a program with a screen does it, and its own switches.
void PalettePerson::showOrHide(unsigned choice) {
    CZkUiPaletteSet* const palette = openPalette(session_);
    if (palette == nullptr)
        return;
    switch (choice % 8) {
    case 0:
    case 1:
        session_.ui().frame().ShowControlBar(palette, choice % 2 == 1, (choice & 8) != 0);
        break;
    case 2:
        session_.ui().frame().RecalcLayout();
        break;
    case 3:
        palette->Disable();
        break;
    case 4:
        palette->Enable();
        break;
    case 5:
        palette->onActivated();
        palette->onRolledUp();
        palette->onUnrolled();
        break;
    default:
        session_.ui().settle();
        break;
    }
}

// Every entity whose place has the choice's bit, the last one of model space, or none.
void PalettePerson::selectInDrawing(unsigned choice) {
    const Document* const document = session_.documents().current();
    if (document == nullptr)
        return;
    db::Database& drawing = document->drawing();
    ZrDbObjectIdArray selected;
    const std::vector<ZrDbObjectId> all = drawing.entities(drawing.interface().modelSpaceId());
    for (std::size_t place = 0; place < all.size(); ++place)
        if ((choice >> place % 8 & 1U) != 0)
            selected.push_back(all[place]);
    if (choice % 3 == 0)
        std::ranges::reverse(selected);
    const ZrDbObjectIdArray before = zredImpliedSelection();
    zredSetImpliedSelection(selected);
    if (zredImpliedSelection() != before) // nobody is told of what stays as it is
        checkSelectionIsShared(session_);
}

void PalettePerson::chooseDrawing(unsigned choice) {
    const auto& all = session_.documents().all();
    if (session_.processor().isRunning() || all.empty())
        return;
    session_.documents().setCurrent(all[choice % all.size()].get());
}

void PalettePerson::unloadOrLoad(unsigned choice) {
    if (session_.processor().isRunning())
        return;
    if (choice % 2 == 0)
        session_.modules().unloadModule(kModule);
    else
        session_.modules().loadModule(kModule);
}

} // namespace quor::fuzz
