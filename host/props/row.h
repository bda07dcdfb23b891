// One line of the Properties palette: what a widget needs to show a property and to have it changed.
#pragma once

#include "host/props/property.h"

namespace quor::props {

struct Row {
    std::string_view id;
    Group group = Group::General;
    ZrString label{};
    Editor editor = Editor::ReadOnly;
    ZrString text{};  // with its unit; the word for "they differ" when it varies
    ZrString input{}; // what an editor begins with: no unit, empty when it varies
    ZrString unit{};
    bool varies = false;
    std::vector<ZrString> choices{};  // of a choice, and of yes and no; some of a colour
    std::optional<ZrCmColor> color{}; // one of its own, to be shown
};

// The heading of a group; that of the geometry tells the coordinate system.
[[nodiscard]] ZrString headingOf(Group group, bool isWorld);

} // namespace quor::props
