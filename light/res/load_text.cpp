#include "light/res/load_text.h"

#include "sdk/ed/print.h"

#include <vector>

namespace quor::light {

namespace {

constexpr std::size_t longestText = 999;

// Loaded together with the module, before the host sends it any message, and kept for the life of the process.
const ZwResourceHandle keywordModule = zwLoadResourceModule(L"quorkwlres");

// Takes translations out that do not have the placeholders of the built-in texts.
void checkTranslations(ZwResourceHandle module, TextSource source) {
    std::vector<ZwResourceText> builtIn;
    for (const Text& text : allTexts())
        if (text.source == source)
            builtIn.push_back({text.number, text.builtIn});
    zwCheckResourceTexts(module, builtIn);
}

// Held against the built-in texts when the first of its texts is needed.
ZwResourceHandle commandLibraryModule() {
    static ZwResourceHandle checked = nullptr;
    const ZwResourceHandle module = zwCommandLibraryResources();
    if (module != nullptr && module != checked)
        checkTranslations(module, TextSource::CommandLibrary);
    checked = module;
    return module;
}

ZwResourceHandle moduleOf(TextSource source) {
    return source == TextSource::Keywords ? keywordModule : commandLibraryModule();
}

} // namespace

LoadedText::LoadedText(const Text& text) : whole_(text.builtIn) {
    const ZrString* const fromModule = zwFindResourceText(moduleOf(text.source), text.number);
    if (fromModule == nullptr || fromModule->empty())
        return;
    whole_ = fromModule->c_str();
    if (fromModule->size() > longestText)
        cut_ = fromModule->substr(0, longestText);
}

void printText(const Text& text) { zrutPrintf(L"%s", LoadedText(text).c_str()); }

void checkKeywordTranslations() {
    if (keywordModule != nullptr)
        checkTranslations(keywordModule, TextSource::Keywords);
}

} // namespace quor::light
