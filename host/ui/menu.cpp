#include "sdk/ui/menu.h"

#include "host/session.h"
#include "host/ui/resource_lookup.h"
#include "sdk/ui/window.h"
#include "sdk/ui/window_ref.h"

bool CMenu::LoadMenu(unsigned id) {
    DestroyMenu();
    const quor::ui::MenuTemplate* const found = quor::ui::findMenu(id);
    if (found != nullptr)
        load(found->entries);
    return found != nullptr;
}

void CMenu::load(std::span<const quor::ui::MenuEntry> entries) {
    for (const quor::ui::MenuEntry& from : entries) {
        Entry& entry = entries_.emplace_back(Entry{.command = from.command, .text = zwResourceText(from.text)});
        if (from.submenu.empty())
            continue;
        entry.submenu = std::make_unique<CMenu>();
        entry.submenu->load(from.submenu);
    }
}

CMenu* CMenu::GetSubMenu(int position) const {
    return position >= 0 && position < GetMenuItemCount() ? entries_[position].submenu.get() : nullptr;
}

unsigned CMenu::GetMenuItemID(int position) const {
    return position >= 0 && position < GetMenuItemCount() ? entries_[position].command : 0;
}

const CMenu::Entry* CMenu::find(unsigned command) const {
    if (command == 0)
        return nullptr;
    for (const Entry& entry : entries_) {
        if (entry.command == command)
            return &entry;
        if (const Entry* const below = entry.submenu != nullptr ? entry.submenu->find(command) : nullptr)
            return below;
    }
    return nullptr;
}

bool CMenu::CheckMenuItem(unsigned command, bool checked) {
    if (command == 0)
        return false;
    for (Entry& entry : entries_) {
        if (entry.command == command) {
            entry.checked = checked;
            return true;
        }
        if (entry.submenu != nullptr && entry.submenu->CheckMenuItem(command, checked))
            return true;
    }
    return false;
}

bool CMenu::isChecked(unsigned command) const {
    const Entry* const entry = find(command);
    return entry != nullptr && entry->checked;
}

bool CMenu::DeleteMenu(int position) {
    if (position < 0 || position >= GetMenuItemCount())
        return false;
    entries_.erase(entries_.begin() + position);
    return true;
}

bool CMenu::TrackPopupMenu(CPoint screen, CWnd& owner) const {
    if (entries_.empty() || !quor::Session::exists())
        return false;
    const quor::ui::WindowRef window(&owner);
    const unsigned chosen = quor::Session::current().front().trackMenu(*this, screen);
    if (find(chosen) == nullptr || !window)
        return false;
    window->SendMessage(WM_COMMAND, chosen);
    return true;
}
