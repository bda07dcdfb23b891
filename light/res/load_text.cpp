#include "light/res/load_text.h"

#include "sdk/ed/print.h"

#include <vector>

namespace quor::light {

namespace {

constexpr int textBufferSize = 1000;

// Loaded together with the module, before the host sends it any message, and kept for the life of the process.
const ZwResourceHandle keywordModule = zwLoadResourceModule(L"quorkwlres");

ZwResourceHandle moduleOf(TextSource source) {
    return source == TextSource::Keywords ? keywordModule : zwCommandLibraryResources();
}

std::vector<ZwResourceText> builtInTextsOf(TextSource source) {
    std::vector<ZwResourceText> found;
    for (const Text& text : allTexts())
        if (text.source == source)
            found.push_back({text.number, text.builtIn});
    return found;
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

void checkTranslations() {
    for (const TextSource source : {TextSource::CommandLibrary, TextSource::Keywords})
        zwCheckResourceTexts(moduleOf(source), builtInTextsOf(source));
}

} // namespace quor::light
