#include "host/sys/arguments.h"

#include "host/sys/utf8.h"
#include "host/sys/version.h"
#include "host/texts/usage.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace quor::sys {

namespace {

namespace words = texts::usage;

// The library's own words begin with the option's name; that of a flag stands without its dashes.
ZrString optionOf(const CLI::ParseError& error) {
    const std::string message = error.what();
    const ZrString name = fromUtf8(message.substr(0, message.find_first_of(": ")));
    if (name.starts_with(L"-"))
        return name;
    return (name.size() == 1 ? L"-" : L"--") + name;
}

ZrString wrongValue(const CLI::ParseError& error, const CLI::App& app) {
    const ZrString option = optionOf(error);
    const CLI::Option* known = app.get_option_no_throw(toUtf8(option));
    const bool isFlag = known == nullptr || known->get_items_expected_max() == 0;
    return fill(isFlag ? words::kOptionFlag : words::kOptionOneValue, option);
}

bool hasEmptyValue(const CLI::Option& option) {
    const std::vector<std::string>& values = option.results();
    return std::any_of(values.begin(), values.end(), [](const std::string& value) { return value.empty(); });
}

// The first argument that no option and no place takes. The mark behind which everything is a name is none.
std::optional<std::string> superfluous(const CLI::App& app) {
    for (const std::string& argument : app.remaining())
        if (argument != "--")
            return argument;
    return std::nullopt;
}

bool hasEmptyDrawing(const CLI::App& app) {
    const std::vector<const CLI::Option*> options = app.get_options();
    return std::any_of(options.begin(), options.end(),
                       [](const CLI::Option* option) { return option->get_positional() && hasEmptyValue(*option); });
}

bool isLanguage(const std::string& value) { return value == "zh" || value == "en"; }

} // namespace

Language languageOf(std::span<const std::string> arguments, Language usual) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const bool apart = argument == "--lang" && i + 1 < arguments.size();
        const std::string_view value = apart ? std::string_view(arguments[i + 1]) : argument;
        if (value == "--lang=en" || (apart && value == "en"))
            return Language::English;
        if (value == "--lang=zh" || (apart && value == "zh"))
            return Language::Chinese;
    }
    return usual;
}

std::optional<ZrString> readArguments(CLI::App& app, std::span<const std::string> arguments) {
    try {
        // The library takes the arguments from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        return wrongValue(error, app);
    }
    return std::nullopt;
}

std::optional<ZrString> wrongUsage(const CLI::App& app, std::span<const char* const> needValue) {
    if (const std::optional<std::string> extra = superfluous(app)) {
        const bool isOption = extra->size() > 1 && extra->front() == '-';
        return fill(isOption ? words::kUnknownOption : words::kOneDrawing, fromUtf8(*extra));
    }
    for (const char* name : needValue)
        if (hasEmptyValue(*app.get_option(name)))
            return fill(words::kOptionEmpty, fromUtf8(name));
    if (hasEmptyDrawing(app))
        return ZrString(words::kEmptyDrawingName.get());
    for (const std::string& language : app.get_option("--lang")->results())
        if (!isLanguage(language))
            return fill(words::kBadLanguage, fromUtf8(language));
    return std::nullopt;
}

ZrString usageHint(const ZrString& program, const ZrString& wrong) {
    return fill(words::kHint, program, wrong, program);
}

ZrString versionLine(const ZrString& program) { return fill(words::kVersion, program, kVersion); }

} // namespace quor::sys
