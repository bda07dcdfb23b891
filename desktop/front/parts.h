// What the desktop's front end needs of the windows around it. Each part is made by the main window and attached to the
// front end; without it the front end answers as a program without windows.
#pragma once

#include "host/front.h"

namespace quor::desktop {

// Dialogs that wait for a person.
class DialogPart {
public:
    virtual ~DialogPart() = default;
    virtual TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog& dialog) = 0;
    virtual FileAnswer chooseFile(const FileQuestion& question) = 0;
    virtual SaveChoice askToSave(std::wstring_view drawing) = 0;
    // What cannot be done, until the person has read it.
    virtual void showProblem(std::wstring_view message) = 0;
    // Answers whatever dialog is open with Esc.
    virtual void escape() = 0;
};

// Windows of modules: palettes, menus.
class WindowPart {
public:
    virtual ~WindowPart() = default;
    virtual void realise(CWnd& window) = 0;
    virtual unsigned trackMenu(const CMenu& menu, CPoint screen) = 0;
    // A palette was brought to view.
    virtual void paletteShown(const CZkUiPaletteSet& palette) = 0;
};

// The program's own palettes and windows.
class PanelPart {
public:
    virtual ~PanelPart() = default;
    virtual void showProperties() = 0;
    virtual void showLayers() = 0;
    virtual void showTextWindow(bool show) = 0;
};

} // namespace quor::desktop
