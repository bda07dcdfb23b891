#include "host/rx/shared_library.h"

#include <dlfcn.h>

namespace quor::rx {

Result<SharedLibrary, std::string> SharedLibrary::open(const std::filesystem::path& file) {
    // All symbols at once, so that a library that does not fit fails here and not in the middle of a command.
    void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle != nullptr)
        return SharedLibrary(handle);
    const char* reason = dlerror();
    return fail(std::string(reason != nullptr ? reason : ""));
}

SharedLibrary::~SharedLibrary() {
    if (handle_ != nullptr)
        dlclose(handle_);
}

void* SharedLibrary::symbol(const char* name) const { return dlsym(handle_, name); }

} // namespace quor::rx
