#include "desktop/options.h"

#include "host/sys/arguments.h"
#include "host/sys/utf8.h"
#include "host/texts/window.h"

#include <CLI/CLI.hpp>

namespace quor::desktop {

namespace {

namespace words = texts::window;

constexpr int kWrongUsage = 2;

// The command line before it was looked at more closely.
struct Raw {
    std::vector<std::string> drawings;
    std::vector<std::string> scripts;
    std::vector<std::string> modules;
    std::string language;
    bool help = false;
    bool version = false;
};

// The options that need a value.
constexpr const char* kNeedValue[] = {"--script", "--module", "--lang"};

Notice wrong(const ZrString& why) { return {kWrongUsage, sys::usageHint(L"quor", why)}; }

void declare(CLI::App& app, Raw& raw) {
    app.set_help_flag();
    app.allow_extras();
    app.add_option("--lang", raw.language);
    app.add_option("--module", raw.modules)->type_size(1)->allow_extra_args(false);
    app.add_option("-s,--script", raw.scripts)->type_size(1)->allow_extra_args(false);
    app.add_option("drawings", raw.drawings);
    app.add_flag("-h,--help", raw.help)->disable_flag_override();
    app.add_flag("--version", raw.version)->disable_flag_override();
}

std::variant<Options, Notice> check(const CLI::App& app, const Raw& raw) {
    if (raw.help)
        return Notice{0, words::kUsage.get()};
    if (raw.version)
        return Notice{0, sys::versionLine(L"quor")};
    if (const std::optional<ZrString> why = sys::wrongUsage(app, kNeedValue))
        return wrong(*why);
    Options options;
    options.drawings.assign(raw.drawings.begin(), raw.drawings.end());
    options.scripts = raw.scripts;
    options.language = fromUtf8(raw.language);
    for (const std::string& module : raw.modules)
        options.modules.push_back(fromUtf8(module));
    return options;
}

} // namespace

std::variant<Options, Notice> parseOptions(std::span<const std::string> arguments, Language usual) {
    setLanguage(sys::languageOf(arguments, usual));
    Raw raw;
    CLI::App app;
    declare(app, raw);
    if (const std::optional<ZrString> why = sys::readArguments(app, arguments))
        return wrong(*why);
    return check(app, raw);
}

} // namespace quor::desktop
