#include "host/sys/language_choice.h"

#include "host/sys/case_fold.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"

#include <cstdlib>

namespace quor::sys {

namespace {

constexpr const wchar_t* kChinese = L"zh";
constexpr const wchar_t* kEnglish = L"en";
constexpr const wchar_t* kOfTheEnvironment = L"auto";

// In the order in which the system itself looks for the language of messages.
constexpr const char* kLocaleVariables[] = {"LC_ALL", "LC_MESSAGES", "LANG"};

ZrString languageOfEnvironment(const Environment& environment) {
    for (const char* name : kLocaleVariables) {
        const char* const value = environment(name);
        if (value != nullptr && *value != '\0')
            return std::string_view(value).starts_with("en") ? kEnglish : kChinese;
    }
    return kChinese;
}

} // namespace

ZrString languageOf(std::wstring_view choice, const Environment& environment) {
    if (equalFolded(choice, kOfTheEnvironment))
        return languageOfEnvironment(environment);
    return equalFolded(choice, kEnglish) ? kEnglish : kChinese;
}

ZrString languageOf(std::wstring_view choice) {
    return languageOf(choice, [](const char* name) { return std::getenv(name); });
}

ZrString languageOf(SettingsStore& settings) {
    return languageOf(settings.get(kLanguageSection, kLanguageKey).value_or(ZrString()));
}

} // namespace quor::sys
