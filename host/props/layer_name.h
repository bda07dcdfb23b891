// What may be the name of a layer.
#pragma once

#include "host/sys/visible_text.h"
#include "sdk/sys/string.h"

#include <algorithm>

namespace quor {

inline constexpr std::size_t kMaxLayerName = 255;
inline constexpr std::wstring_view kNotInLayerNames = L"<>/\\\":;?*|=,`";

[[nodiscard]] inline bool isLayerName(std::wstring_view name) {
    const bool hasControl = std::any_of(name.begin(), name.end(), isControl);
    return !name.empty() && name.size() <= kMaxLayerName && name.find_first_of(kNotInLayerNames) == name.npos &&
           !hasControl;
}

} // namespace quor
