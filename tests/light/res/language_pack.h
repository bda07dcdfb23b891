// A language pack that comes with the program, and what is read out of its texts.
#pragma once

#include "light/res/text_table.h"

#include "host/sys/resource_library.h"

#include <string>
#include <vector>

namespace quor::light {

class LanguagePack {
public:
    explicit LanguagePack(const ZrString& language);

    // Null when the module of the text has none of this number.
    [[nodiscard]] const ZrString* find(const Text& text) const;
    // As the module shows it: the text of the pack, else the built-in one.
    [[nodiscard]] ZrString shown(const Text& text) const;
    [[nodiscard]] std::size_t size(TextSource source) const;
    // Everything that is refused when the pack is read and held against the built-in texts.
    [[nodiscard]] const std::vector<sys::ResourceProblem>& problems() const { return resources_.problems(); }

    [[nodiscard]] static const LanguagePack& english();
    [[nodiscard]] static const LanguagePack& chinese();

private:
    [[nodiscard]] ZwResourceHandle module(TextSource source) const;

    sys::ResourceLibrary resources_;
    ZwResourceHandle commandLibrary_;
    ZwResourceHandle keywords_;
};

// An option as a prompt offers it: "名称(N)", "eXit".
struct Option {
    ZrString name; // without the abbreviation in brackets: "名称", "eXit"
    ZrString abbreviation;

    [[nodiscard]] bool operator==(const Option&) const = default;
};

// What stands between the first "[" and the last "]", cut at "/". The abbreviation is what stands in brackets behind
// the name, else its capital letters.
[[nodiscard]] std::vector<Option> optionsOf(const ZrString& prompt);
[[nodiscard]] std::vector<ZrString> abbreviationsOf(const std::vector<Option>& options);

// For the names of parametrised tests: "Text6801".
template <class Info>
[[nodiscard]] std::string nameOfText(const Info& info) {
    return "Text" + std::to_string(info.param.number);
}

[[nodiscard]] std::vector<Text> textsOf(TextSource source);
// The rows of the table whose built-in text holds `part`.
[[nodiscard]] std::vector<Text> textsWith(std::wstring_view part);

} // namespace quor::light
