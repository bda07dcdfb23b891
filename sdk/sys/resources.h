// Resource modules: texts by number, in the language in use.
#pragma once

#include "sdk/sys/string.h"

#include <span>

namespace quor::sys {
class ResourceModule;
}
using ZwResourceHandle = const quor::sys::ResourceModule*;

// Loads a resource module by its name from the language folder in use; null when there is none. It stays loaded for the
// life of the process. Asking again gives the same handle.
[[nodiscard]] ZwResourceHandle zwLoadResourceModule(const wchar_t* name);
// The resource module of the host's command library, or null when the language has none.
[[nodiscard]] ZwResourceHandle zwCommandLibraryResources();

// Copies text `number` into `buffer` (at most `size` - 1 characters, always terminated) and answers its length;
// 0 when the handle is null or the module has no such text.
int LoadStringW(ZwResourceHandle module, unsigned number, wchar_t* buffer, int size);
// The same text where it lies, for programs that show it often: it stays there as long as the module does, unless
// zwCheckResourceTexts takes it out. Null when the handle is null or the module has no such text.
[[nodiscard]] const ZrString* zwFindResourceText(ZwResourceHandle module, unsigned number);

// A text that is built into a program, beside its number in the resource modules.
struct ZwResourceText {
    unsigned number;
    const wchar_t* builtIn;
};

// Holds a resource module against the built-in texts, which only their owner knows; called once, right after loading.
// A text whose placeholders are not those of the built-in one, in kind and order, is reported on the command line with
// its file and line and taken out of the module, so that LoadStringW answers 0 for it and the built-in text is used.
// Texts without a built-in one are left alone. Answers how many were taken out; 0 for a null handle.
int zwCheckResourceTexts(ZwResourceHandle module, std::span<const ZwResourceText> builtIn);
