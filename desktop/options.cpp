#include "desktop/options.h"

#include "host/sys/utf8.h"
#include "host/texts/text.h"
#include "host/texts/window.h"

#include <CLI/CLI.hpp>

#include <algorithm>

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

Notice wrong(const Text& text, const std::string& option) { return {kWrongUsage, fill(text, fromUtf8(option))}; }

void declare(CLI::App& app, Raw& raw) {
    app.set_help_flag();
    app.allow_extras();
    app.add_option("--lang", raw.language);
    app.add_option("--module", raw.modules)->type_size(1)->allow_extra_args(false);
    app.add_option("--script", raw.scripts)->type_size(1)->allow_extra_args(false);
    app.add_option("drawings", raw.drawings);
    app.add_flag("-h,--help", raw.help);
    app.add_flag("--version", raw.version);
}

bool isLanguage(const std::string& language) { return language.empty() || language == "zh" || language == "en"; }

std::variant<Options, Notice> accepted(const Raw& raw) {
    if (!isLanguage(raw.language))
        return wrong(words::kWrongOption, "--lang " + raw.language);
    if (!raw.language.empty())
        setLanguage(raw.language == "en" ? Language::English : Language::Chinese);
    if (raw.help)
        return Notice{0, words::kUsage.get()};
    if (raw.version)
        return Notice{0, L"quor " + fromUtf8(QUOR_VERSION) + L"\n"};
    Options options;
    options.drawings.assign(raw.drawings.begin(), raw.drawings.end());
    options.scripts = raw.scripts;
    options.language = fromUtf8(raw.language);
    for (const std::string& module : raw.modules)
        options.modules.push_back(fromUtf8(module));
    return options;
}

} // namespace

std::variant<Options, Notice> parseOptions(std::span<const std::string> arguments) {
    CLI::App app;
    Raw raw;
    declare(app, raw);
    try {
        // The library takes the arguments from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        // Its own words begin with the option's name.
        const std::string message = error.what();
        return wrong(words::kMissingValue, message.substr(0, message.find_first_of(": ")));
    }
    const std::vector<std::string> unknown = app.remaining();
    const auto option =
        std::find_if(unknown.begin(), unknown.end(), [](const std::string& word) { return word.starts_with("-"); });
    return option == unknown.end() ? accepted(raw) : wrong(words::kWrongOption, *option);
}

} // namespace quor::desktop
