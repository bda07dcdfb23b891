#include "light/res/load_text.h"

#include "sdk/ed/print.h"

#include <vector>

namespace quor::light {

namespace {

constexpr int textBufferSize = 1000;

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

// Read when the first of its texts is needed: a program that is started has no use for any of them yet.
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

LoadedText::LoadedText(const Text& text) : builtIn_(text.builtIn) {
    const ZwResourceHandle module = moduleOf(text.source);
    if (module == nullptr)
        return;
    wchar_t buffer[textBufferSize];
    if (const int length = LoadStringW(module, text.number, buffer, textBufferSize); length > 0)
        fromModule_.assign(buffer, static_cast<std::size_t>(length));
}

void printText(const Text& text) { zrutPrintf(L"%s", LoadedText(text).c_str()); }

void checkKeywordTranslations() {
    if (keywordModule != nullptr)
        checkTranslations(keywordModule, TextSource::Keywords);
}

} // namespace quor::light
