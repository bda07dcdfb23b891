#include "light/lightcmd/lamp_presets.h"

#include "light/lightcmd/find_row.h"
#include "light/res/load_text.h"
#include "sdk/sys/case_fold.h"

namespace quor::light {

namespace {

constexpr LampPreset presets[] = {
    {LampColorPreset::kD65White, L"D65", nullptr},
    {LampColorPreset::kFluorescent, L"Fluorescent", &texts.lampFluorescent},
    {LampColorPreset::kCoolWhite, L"Coolwhite", &texts.lampCoolWhite},
    {LampColorPreset::kWhiteFluorescent, L"Whitefluorescent", &texts.lampWhiteFluorescent},
    {LampColorPreset::kDaylightFluorescent, L"daylightfluorescenT", &texts.lampDaylightFluorescent},
    {LampColorPreset::kIncandescent, L"Incandescent", &texts.lampIncandescent},
    {LampColorPreset::kXenon, L"Xenon", &texts.lampXenon},
    {LampColorPreset::kHalogen, L"Halogen", &texts.lampHalogen},
    {LampColorPreset::kQuartz, L"Quartz", &texts.lampQuartz},
    {LampColorPreset::kMetalHalide, L"Metalhalide", &texts.lampMetalHalide},
    {LampColorPreset::kMercury, L"mErcury", &texts.lampMercury},
    {LampColorPreset::kPhosphorMercury, L"Phosphormercury", &texts.lampPhosphorMercury},
    {LampColorPreset::kHighPressureSodium, L"highpressureSodium", &texts.lampHighPressureSodium},
    {LampColorPreset::kLowPressureSodium, L"Lowpressuresodium", &texts.lampLowPressureSodium},
};

constexpr const wchar_t* nameOfD65 = L"D65(D)";
constexpr const wchar_t* nameWithoutResource = L"error";

ZrString nameToFind(const LampPreset& preset) {
    if (preset.name == nullptr)
        return nameOfD65;
    return LoadedText({preset.name->number, preset.name->source, nameWithoutResource}).str();
}

} // namespace

std::span<const LampPreset> lampPresets() { return presets; }

ZrString displayName(const LampPreset& preset) {
    return preset.name != nullptr ? LoadedText(*preset.name).str() : nameOfD65;
}

ZrString displayName(LampColorPreset value) {
    const LampPreset* preset = findRow(presets, [&](const LampPreset& candidate) { return candidate.value == value; });
    return preset != nullptr ? displayName(*preset) : ZrString();
}

const LampPreset* findPresetByKeyword(std::wstring_view keyword) {
    return findRow(presets, [&](const LampPreset& preset) { return equalFolded(preset.keyword, keyword); });
}

const LampPreset* findPresetByName(std::wstring_view name) {
    return findRow(presets, [&](const LampPreset& preset) {
        const ZrString full = nameToFind(preset);
        return std::wstring_view(full).substr(0, full.find(L'(')) == name;
    });
}

} // namespace quor::light
