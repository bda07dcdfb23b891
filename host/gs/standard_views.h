// The views that every drawing has: from its six sides, and from four corners above.
#pragma once

#include "host/gs/camera.h"

#include <span>
#include <string_view>

namespace quor::gs {

struct StandardView {
    const wchar_t* name; // "SWISO"
    ZrGeVector3d backward;
};
[[nodiscard]] std::span<const StandardView> standardViews();
// Without regard to case; null when there is none of that name.
[[nodiscard]] const StandardView* findStandardView(std::wstring_view name);

} // namespace quor::gs
