// Menus from resources: entries with texts, check marks and submenus, and their showing.
#pragma once

#include "sdk/sys/string.h"
#include "sdk/ui/geometry.h"
#include "sdk/ui/resource_templates.h"

#include <memory>
#include <vector>

class CWnd;

class CMenu {
public:
    struct Entry {
        unsigned command = 0; // 0: a submenu or a separator
        ZrString text{};
        bool checked = false;
        std::unique_ptr<CMenu> submenu{};
        [[nodiscard]] bool isSeparator() const { return command == 0 && submenu == nullptr; }
    };

    CMenu() = default;
    // Makes it from a template of the resources in use. False, and no entries, when there is none of that number.
    bool LoadMenu(unsigned id);
    void DestroyMenu() { entries_.clear(); }

    [[nodiscard]] int GetMenuItemCount() const { return static_cast<int>(entries_.size()); }
    [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }
    // The submenu at a position, or null.
    [[nodiscard]] CMenu* GetSubMenu(int position) const;
    // The command at a position; 0 for a separator, a submenu or a bad position.
    [[nodiscard]] unsigned GetMenuItemID(int position) const;
    // Checks a command, in submenus too. False when it has none of that number.
    bool CheckMenuItem(unsigned command, bool checked);
    [[nodiscard]] bool isChecked(unsigned command) const;
    // Takes the entry at a position away with its submenu. False for a bad position.
    bool DeleteMenu(int position);

    // Shows it at a point of the screen, waits, and sends the command that was chosen to the owner. False when nothing
    // was chosen, or it has no entries.
    bool TrackPopupMenu(CPoint screen, CWnd& owner) const;

private:
    [[nodiscard]] const Entry* find(unsigned command) const;
    void load(std::span<const quor::ui::MenuEntry> entries);

    std::vector<Entry> entries_;
};
