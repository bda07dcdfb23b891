#include "console/options.h"

#include "console/exit_status.h"
#include "host/sys/arguments.h"
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

Notice wrong(const ZrString& why) { return {kWrongUsage, sys::usageHint(L"quorc", why)}; }

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

// The options that need a value.
constexpr const char* kNeedValue[] = {"--script", "--output", "--module", "--lang"};

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

std::variant<Options, Notice> check(const CLI::App& app, Raw& raw) {
    if (raw.help)
        return Notice{kSuccess, words::kHelp.get()};
    if (raw.version)
        return Notice{kSuccess, sys::versionLine(L"quorc")};
    if (const std::optional<ZrString> why = sys::wrongUsage(app, kNeedValue))
        return wrong(*why);

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

} // namespace

std::variant<Options, Notice> parseOptions(std::span<const char* const> arguments, Language usual) {
    const std::vector<std::string> given(arguments.begin(), arguments.end());
    setLanguage(sys::languageOf(given, usual));
    Raw raw;
    CLI::App app;
    declare(app, raw);
    if (const std::optional<ZrString> why = sys::readArguments(app, given))
        return wrong(*why);
    return check(app, raw);
}

} // namespace quor::console
