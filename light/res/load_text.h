// Reading the module's texts in the language in use.
#pragma once

#include "light/res/text_table.h"
#include "sdk/sys/resources.h"
#include "sdk/sys/string.h"

namespace quor::light {

// A text as it is shown: that of the resource module, or the built-in one when the module has none. Without a resource
// module it costs nothing: the built-in text is referred to, not copied.
class LoadedText {
public:
    explicit LoadedText(const Text& text);

    [[nodiscard]] const wchar_t* c_str() const { return fromModule_.empty() ? builtIn_ : fromModule_.c_str(); }
    [[nodiscard]] ZrString str() const { return c_str(); }

private:
    const wchar_t* builtIn_;
    ZrString fromModule_;
};

// Prints a text on the command line as it stands.
void printText(const Text& text);

// Takes translations out of the keyword module that do not have the placeholders of the built-in text; called once,
// when the module starts. The command library's are held against them when the first is needed.
void checkKeywordTranslations();

} // namespace quor::light
