// Menus, dialogs and pictures as data: what a program or module has built in, each under its number. Their texts stand
// in the resource module of the command library under numbers of their own, with the built-in text beside.
#pragma once

#include "sdk/sys/resources.h"
#include "sdk/sys/string.h"
#include "sdk/ui/geometry.h"

#include <span>
#include <string_view>

namespace quor::ui {

// A line of a menu: a command, a submenu (command 0), or a separator (command 0, no submenu).
struct MenuEntry {
    unsigned command = 0;
    ZwResourceText text{0, L""};
    std::span<const MenuEntry> submenu{};
};

// A menu as it is loaded: its entries are the headings of a menu bar; what pops up is the submenu of one of them.
struct MenuTemplate {
    unsigned id;
    std::span<const MenuEntry> entries;
};

enum class ControlKind { Static, Button, List };

// A control of a dialog; lengths for 96 dots per inch, in the dialog's client coordinates.
struct ControlTemplate {
    unsigned id;
    ControlKind kind;
    ZwResourceText text{0, L""}; // number 0: no text
    unsigned style = 0;          // beside WS_CHILD and WS_VISIBLE
    CRect rect;
};

struct DialogTemplate {
    unsigned id;
    CSize size; // of the client area, for 96 dots per inch
    std::span<const ControlTemplate> controls;
};

// A picture as an SVG document; drawn at any size, `size` is the one at 96 dots per inch. Its name is what a person who
// does not see it is told.
struct PictureResource {
    unsigned id;
    ZwResourceText name;
    CSize size;
    std::string_view svg;
};

} // namespace quor::ui

// The menus, dialogs and pictures of one program or module; they live as long as its code.
struct ZwUiResources {
    std::span<const quor::ui::MenuTemplate> menus;
    std::span<const quor::ui::DialogTemplate> dialogs;
    std::span<const quor::ui::PictureResource> pictures;
};
using ZwResourceInstance = const ZwUiResources*;

// The resources in which menus, dialogs and pictures are looked up; null: the host's own. Set answers what it was.
ZwResourceInstance zwSetResourceInstance(ZwResourceInstance instance);
[[nodiscard]] ZwResourceInstance zwGetResourceInstance();

// Makes resources current for the length of a block.
class ZwResourceScope {
public:
    explicit ZwResourceScope(ZwResourceInstance instance) : before_(zwSetResourceInstance(instance)) {}
    ~ZwResourceScope() { zwSetResourceInstance(before_); }
    ZwResourceScope(const ZwResourceScope&) = delete;
    ZwResourceScope& operator=(const ZwResourceScope&) = delete;

private:
    ZwResourceInstance before_;
};

// A text in the language in use: the command library's, or the built-in one.
[[nodiscard]] ZrString zwResourceText(const ZwResourceText& text);
