// Reading the module's texts in the language in use.
#pragma once

#include "light/res/text_table.h"
#include "sdk/sys/resources.h"
#include "sdk/sys/string.h"

namespace quor::light {

// A text as it is shown: that of the resource module, or the built-in one when the module has none or an empty one. It
// is referred to, not copied, except when it is cut: no text has more than 999 characters.
class LoadedText {
public:
    explicit LoadedText(const Text& text);

    [[nodiscard]] const wchar_t* c_str() const { return cut_.empty() ? whole_ : cut_.c_str(); }
    [[nodiscard]] ZrString str() const { return c_str(); }

private:
    const wchar_t* whole_;
    ZrString cut_;
};

// Prints a text on the command line as it stands.
void printText(const Text& text);

// Takes translations out of the keyword module that do not have the placeholders of the built-in text; called once,
// when the module starts. The command library's are held against them when the first is needed.
void checkKeywordTranslations();

} // namespace quor::light
