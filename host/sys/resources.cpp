#include "sdk/sys/resources.h"

#include "host/session.h"
#include "host/sys/resource_library.h"

#include <algorithm>

ZwResourceHandle zwLoadResourceModule(const wchar_t* name) {
    return name != nullptr && quor::Session::exists() ? quor::Session::current().resources().load(name) : nullptr;
}

ZwResourceHandle zwCommandLibraryResources() {
    return quor::Session::exists() ? quor::Session::current().resources().commandLibrary() : nullptr;
}

int LoadStringW(ZwResourceHandle module, unsigned number, wchar_t* buffer, int size) {
    if (buffer == nullptr || size <= 0)
        return 0;
    const ZrString* text = zwFindResourceText(module, number);
    const std::size_t length = text != nullptr ? std::min(text->size(), static_cast<std::size_t>(size - 1)) : 0;
    if (length > 0)
        text->copy(buffer, length);
    buffer[length] = L'\0';
    return static_cast<int>(length);
}

const ZrString* zwFindResourceText(ZwResourceHandle module, unsigned number) {
    return module != nullptr ? module->find(number) : nullptr;
}

int zwCheckResourceTexts(ZwResourceHandle module, std::span<const ZwResourceText> builtIn) {
    return quor::Session::exists() ? quor::Session::current().resources().check(module, builtIn) : 0;
}
