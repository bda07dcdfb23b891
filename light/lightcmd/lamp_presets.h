// The lamp presets: the words that people type for them and the names that they are shown by.
#pragma once

#include "light/res/text_table.h"
#include "sdk/db/light.h"
#include "sdk/sys/string.h"

#include <span>
#include <string_view>

namespace quor::light {

struct LampPreset {
    LampColorPreset value;
    const wchar_t* keyword; // as in the keyword list
    const Text* name;       // the name with the keyword's abbreviation behind it; null: built in only
};

// In the order of their values, from 0 to 13.
[[nodiscard]] std::span<const LampPreset> lampPresets();

// As prompts show it, such as "荧光灯(F)".
[[nodiscard]] ZrString displayName(const LampPreset& preset);
// Empty for a value that is no preset.
[[nodiscard]] ZrString displayName(LampColorPreset value);

// Without regard to case; null when there is none.
[[nodiscard]] const LampPreset* findPresetByKeyword(std::wstring_view keyword);
// The first one with this display name, without what stands in brackets behind it; case counts. Only names that a
// resource module has are found, and D65: the built-in ones are not looked at, every preset without a name there is
// called "error".
[[nodiscard]] const LampPreset* findPresetByName(std::wstring_view name);

} // namespace quor::light
