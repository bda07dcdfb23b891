// Resource modules: texts by number, in the language in use.
#pragma once

#include "sdk/sys/string.h"

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
