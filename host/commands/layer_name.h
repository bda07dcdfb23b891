// What may be the name of a layer.
#pragma once

#include "sdk/sys/string.h"

#include <algorithm>

namespace quor::commands {

inline constexpr std::size_t kMaxLayerName = 255;
inline constexpr std::wstring_view kNotInLayerNames = L"<>/\\\":;?*|=,`";

[[nodiscard]] inline bool isLayerName(std::wstring_view name) {
    const bool hasControl = name.find_first_of(L'\x7F') != name.npos ||
                            std::any_of(name.begin(), name.end(), [](wchar_t c) { return c >= 0 && c < L' '; });
    return !name.empty() && name.size() <= kMaxLayerName && name.find_first_of(kNotInLayerNames) == name.npos &&
           !hasControl;
}

} // namespace quor::commands
