#include "console/options.h"

#include "console/exit_status.h"
#include "host/sys/utf8.h"
#include "host/texts/console.h"

#include <CLI/CLI.hpp>

namespace quor::console {

namespace {

namespace words = texts::console;

// The command line before it was looked at more closely.
struct Raw {
    std::vector<std::string> scripts;
    std::vector<std::string> commands;
    std::vector<std::string> settings;
    std::vector<std::string> modules;
    std::string drawing;
    std::string output;
    std::string language;
    bool recover = false;
    bool keepGoing = false;
    bool quiet = false;
    bool help = false;
    bool version = false;
};

// The options that take a value each time they are given.
struct ListRow {
    const char* names;
    std::vector<std::string> Raw::*values;
};
constexpr ListRow kLists[] = {
    {"-s,--script", &Raw::scripts},
    {"-c,--command", &Raw::commands},
    {"--set", &Raw::settings},
    {"--module", &Raw::modules},
};
struct TextRow {
    const char* names;
    std::string Raw::*value;
};
constexpr TextRow kTexts[] = {{"-o,--output", &Raw::output}, {"--lang", &Raw::language}, {"drawing", &Raw::drawing}};
struct FlagRow {
    const char* names;
    bool Raw::*value;
};
constexpr FlagRow kFlags[] = {
    {"--recover", &Raw::recover}, {"-k,--keep-going", &Raw::keepGoing}, {"--quiet", &Raw::quiet},
    {"-h,--help", &Raw::help},    {"--version", &Raw::version},
};

Notice wrong(const ZrString& why) { return {kWrongUsage, fill(words::kUsageHint, why)}; }

void declare(CLI::App& app, Raw& raw) {
    app.set_help_flag();
    app.allow_extras();
    for (const ListRow& row : kLists)
        app.add_option(row.names, raw.*row.values)->type_size(1)->allow_extra_args(false);
    for (const TextRow& row : kTexts)
        app.add_option(row.names, raw.*row.value);
    for (const FlagRow& row : kFlags)
        app.add_flag(row.names, raw.*row.value)->disable_flag_override();
}

// The library's own words begin with the option's name; that of a flag stands without its dashes.
ZrString optionOf(const CLI::ParseError& error) {
    const std::string message = error.what();
    const ZrString name = fromUtf8(message.substr(0, message.find_first_of(": ")));
    if (name.starts_with(L"-"))
        return name;
    return (name.size() == 1 ? L"-" : L"--") + name;
}

Notice wrongValue(const CLI::ParseError& error, const CLI::App& app) {
    const ZrString option = optionOf(error);
    const CLI::Option* known = app.get_option_no_throw(toUtf8(option));
    const bool isFlag = known == nullptr || known->get_items_expected_max() == 0;
    return wrong(fill(isFlag ? words::kOptionFlag : words::kOptionValue, option));
}

// Which option has an empty value although it needs one; null when none has.
const char* emptyOption(const CLI::App& app) {
    constexpr const char* needing[] = {"--script", "--output", "--module", "--lang"};
    for (const char* name : needing)
        for (const std::string& value : app.get_option(name)->results())
            if (value.empty())
                return name;
    return nullptr;
}

// Scripts and commands in the order in which they were given.
std::vector<Run> runsInOrder(const CLI::App& app, const Raw& raw) {
    std::vector<Run> runs;
    std::size_t scripts = 0;
    std::size_t commands = 0;
    for (const CLI::Option* option : app.parse_order()) {
        if (option->check_lname("script") && scripts < raw.scripts.size())
            runs.push_back({Run::Kind::Script, raw.scripts[scripts++]});
        else if (option->check_lname("command") && commands < raw.commands.size())
            runs.push_back({Run::Kind::Command, raw.commands[commands++]});
    }
    return runs;
}

std::optional<Setting> toSetting(const std::string& text) {
    const std::size_t at = text.find('=');
    if (at == std::string::npos || at == 0)
        return std::nullopt;
    return Setting{fromUtf8(text.substr(0, at)), fromUtf8(text.substr(at + 1))};
}

// The first argument that no option and no place takes. The mark behind which everything is a name is none.
std::optional<std::string> superfluous(const CLI::App& app) {
    for (const std::string& argument : app.remaining())
        if (argument != "--")
            return argument;
    return std::nullopt;
}

std::variant<Options, Notice> check(const CLI::App& app, Raw& raw) {
    if (raw.help)
        return Notice{kSuccess, words::kHelp.get()};
    if (raw.version)
        return Notice{kSuccess, fill(words::kVersion, fromUtf8(QUOR_VERSION))};
    if (const std::optional<std::string> extra = superfluous(app)) {
        const bool isOption = extra->size() > 1 && extra->front() == '-';
        return wrong(fill(isOption ? words::kUnknownOption : words::kOneDrawing, fromUtf8(*extra)));
    }
    if (const char* option = emptyOption(app))
        return wrong(fill(words::kOptionEmpty, fromUtf8(option)));
    if (raw.drawing.empty() && app.get_option("drawing")->count() > 0)
        return wrong(words::kEmptyDrawingName.get());
    if (!raw.language.empty() && raw.language != "zh" && raw.language != "en")
        return wrong(fill(words::kBadLanguage, fromUtf8(raw.language)));

    Options options;
    for (const std::string& text : raw.settings) {
        const std::optional<Setting> setting = toSetting(text);
        if (!setting)
            return wrong(fill(words::kBadSetting, fromUtf8(text)));
        options.settings.push_back(*setting);
    }
    options.runs = runsInOrder(app, raw);
    options.drawing = std::move(raw.drawing);
    options.output = std::move(raw.output);
    options.modules = std::move(raw.modules);
    options.language = fromUtf8(raw.language);
    options.recover = raw.recover;
    options.keepGoing = raw.keepGoing;
    options.quiet = raw.quiet;
    return options;
}

// Even what is wrong with the command line is said in the language that it asks for.
Language languageOf(std::span<const char* const> arguments, Language usual) {
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

} // namespace

std::variant<Options, Notice> parseOptions(std::span<const char* const> arguments, Language usual) {
    setLanguage(languageOf(arguments, usual));
    Raw raw;
    CLI::App app;
    declare(app, raw);
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    try {
        app.parse(std::move(reversed));
    } catch (const CLI::ParseError& error) {
        return wrongValue(error, app);
    }
    return check(app, raw);
}

} // namespace quor::console
