// Everything that menus and tool bars offer, a row each: to add one thing is to add one row. A row either types a line
// at the command prompt or is done by the window itself, under its name.
#pragma once

#include "host/texts/text.h"

#include <span>

namespace quor::desktop {

enum class MenuPlace { File, Edit, View, NamedViews, Style, Panels, Draw, Light, Units, Tools, Theme, Language, Help };
enum class ToolBarPlace { None, File, View, Light };

struct ActionRow {
    MenuPlace menu;
    const char* name; // of the action and of its icon
    Text text;
    const wchar_t* line = nullptr; // typed; null: done by the window
    const char* shortcuts = "";    // several are parted by "; "
    ToolBarPlace toolBar = ToolBarPlace::None;
    bool startsGroup = false; // a separator stands before it
    bool isCheckable = false; // shows a state of the program
    bool needsDrawing = true;
};

[[nodiscard]] std::span<const ActionRow> actionRows();

// The menus in the order of the menu bar; those with a parent are submenus of it.
struct MenuRow {
    MenuPlace place;
    Text title;
    MenuPlace parent; // itself: stands in the menu bar
};
[[nodiscard]] std::span<const MenuRow> menuRows();

} // namespace quor::desktop
