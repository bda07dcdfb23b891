// A person in front of the palette: mouse, keys, places and colours, as a fuzzer's choices want it; beside the
// commands, what else may come over the palette: another drawing, the module going and coming.
#pragma once

#include "fuzz/support/painted_look.h"

class CListCtrl;
class CWnd;
class CZkUiPaletteSet;

namespace quor {
class Session;
}

namespace quor::fuzz {

class PalettePerson {
public:
    explicit PalettePerson(Session& session) : session_(session) {}

    // `what` says which kind of act it is, `choice` which row, place, key or size; bits 0 and 1 of `held` are Shift and
    // Ctrl. Nothing while there is nothing to act on. What has to hold of the palette is checked afterwards.
    void act(unsigned what, unsigned choice, unsigned held);

private:
    // On a palette that is seen.
    using Act = void (PalettePerson::*)(CZkUiPaletteSet& palette, unsigned choice);
    static const Act kActs[];
    // On the host as a whole.
    using HostAct = void (PalettePerson::*)(unsigned choice);
    static const HostAct kHostActs[];

    using Press = void (*)(CWnd& window, CPoint point, unsigned flags);
    void pressRow(CZkUiPaletteSet& palette, unsigned choice, Press press);
    void clickRow(CZkUiPaletteSet& palette, unsigned choice);
    void doubleClickRow(CZkUiPaletteSet& palette, unsigned choice);
    void rightClickRow(CZkUiPaletteSet& palette, unsigned choice);
    void moveOverRow(CZkUiPaletteSet& palette, unsigned choice);
    void clickAnywhere(CZkUiPaletteSet& palette, unsigned choice);
    void doubleClickAnywhere(CZkUiPaletteSet& palette, unsigned choice);
    void rightClickAnywhere(CZkUiPaletteSet& palette, unsigned choice);
    void moveAnywhere(CZkUiPaletteSet& palette, unsigned choice);
    void clickHeading(CZkUiPaletteSet& palette, unsigned choice);
    void pressKey(CZkUiPaletteSet& palette, unsigned choice);
    void turnWheel(CZkUiPaletteSet& palette, unsigned choice);
    void sendCommand(CZkUiPaletteSet& palette, unsigned choice);
    void sendMessage(CZkUiPaletteSet& palette, unsigned choice);
    void resize(CZkUiPaletteSet& palette, unsigned choice);
    void paint(CZkUiPaletteSet& palette, unsigned choice);
    void paintWhatAsked(CZkUiPaletteSet& palette, unsigned choice);

    void chooseTheme(unsigned choice);
    void showOrHide(unsigned choice);
    void selectInDrawing(unsigned choice);
    void chooseDrawing(unsigned choice);
    void unloadOrLoad(unsigned choice);

    Session& session_;
    PaintedLook look_;
    unsigned flags_ = 0; // MK_…, held down meanwhile
};

} // namespace quor::fuzz
