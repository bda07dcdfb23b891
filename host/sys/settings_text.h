// The lines of a settings file: sections, keys, values and how a value is written so that it reads back the same.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// The lines of a file without their "\n"; each may be a section "[name]", a "key = value", a comment or anything else.
using SettingsLines = std::vector<std::wstring>;

// A name that a section or key can have: not empty, no blanks around it, no control characters, and for a key no "="
// and no "#", ";", "[" in front, for a section no "]".
[[nodiscard]] bool isSettingsSection(std::wstring_view name);
[[nodiscard]] bool isSettingsKey(std::wstring_view name);

// The last value of a key, sections and keys without regard to case.
[[nodiscard]] std::optional<std::wstring> findSetting(const SettingsLines& lines, std::wstring_view section,
                                                      std::wstring_view key);

// Changes the line that findSetting reads, or adds one at the end of the section, the section too if need be.
void putSetting(SettingsLines& lines, std::wstring_view section, std::wstring_view key, std::wstring_view value);

} // namespace quor
