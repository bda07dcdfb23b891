#include "tests/light/res/language_pack.h"

#include <algorithm>

namespace quor::light {

namespace {

std::vector<ZwResourceText> builtInTexts(TextSource source) {
    std::vector<ZwResourceText> builtIn;
    for (const Text& text : textsOf(source))
        builtIn.push_back({text.number, text.builtIn});
    return builtIn;
}

ZrString capitalsOf(const ZrString& text) {
    ZrString capitals;
    std::copy_if(text.begin(), text.end(), std::back_inserter(capitals),
                 [](wchar_t c) { return c >= L'A' && c <= L'Z'; });
    return capitals;
}

Option optionOf(const ZrString& text) {
    const std::size_t bracket = text.find(L'(');
    if (bracket == ZrString::npos)
        return {text, capitalsOf(text)};
    return {text.substr(0, bracket), text.substr(bracket + 1, text.find(L')') - bracket - 1)};
}

template <class Condition>
std::vector<Text> textsThat(Condition condition) {
    const auto all = allTexts();
    std::vector<Text> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), condition);
    return found;
}

} // namespace

LanguagePack::LanguagePack(const ZrString& language)
    : resources_(QUOR_TEST_DATA "/../../resources", language), commandLibrary_(resources_.load(L"quorcmdres")),
      keywords_(resources_.load(L"quorkwlres")) {
    resources_.check(commandLibrary_, builtInTexts(TextSource::CommandLibrary));
    resources_.check(keywords_, builtInTexts(TextSource::Keywords));
}

const ZrString* LanguagePack::find(const Text& text) const {
    return module(text.source) != nullptr ? module(text.source)->find(text.number) : nullptr;
}

ZrString LanguagePack::shown(const Text& text) const {
    const ZrString* const translated = find(text);
    return translated != nullptr && !translated->empty() ? *translated : text.builtIn;
}

std::size_t LanguagePack::size(TextSource source) const {
    return module(source) != nullptr ? module(source)->size() : 0;
}

ZwResourceHandle LanguagePack::module(TextSource source) const {
    return source == TextSource::Keywords ? keywords_ : commandLibrary_;
}

const LanguagePack& LanguagePack::english() {
    static const LanguagePack pack(L"en");
    return pack;
}

const LanguagePack& LanguagePack::chinese() {
    static const LanguagePack pack(L"zh");
    return pack;
}

std::vector<Option> optionsOf(const ZrString& prompt) {
    const std::size_t open = prompt.find(L'[');
    const std::size_t close = prompt.rfind(L']');
    if (open == ZrString::npos || close == ZrString::npos)
        return {};
    std::vector<Option> options;
    for (std::size_t at = open + 1; at <= close;) {
        const std::size_t end = std::min(prompt.find(L'/', at), close);
        options.push_back(optionOf(prompt.substr(at, end - at)));
        at = end + 1;
    }
    return options;
}

std::vector<ZrString> abbreviationsOf(const std::vector<Option>& options) {
    std::vector<ZrString> abbreviations;
    abbreviations.reserve(options.size());
    for (const Option& option : options)
        abbreviations.push_back(option.abbreviation);
    return abbreviations;
}

std::vector<Text> textsOf(TextSource source) {
    return textsThat([source](const Text& text) { return text.source == source; });
}

std::vector<Text> textsWith(std::wstring_view part) {
    return textsThat([part](const Text& text) { return std::wstring_view(text.builtIn).find(part) != part.npos; });
}

} // namespace quor::light
