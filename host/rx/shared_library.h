// A shared library of the platform, open as long as the object lives.
#pragma once

#include "host/sys/result.h"

#include <filesystem>
#include <string>

namespace quor::rx {

class SharedLibrary {
public:
    // The error is the system's own text, UTF-8.
    [[nodiscard]] static Result<SharedLibrary, std::string> open(const std::filesystem::path& file);
    SharedLibrary(SharedLibrary&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    SharedLibrary& operator=(SharedLibrary&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~SharedLibrary();

    // The exported function of that name, or null.
    template <class Function>
    [[nodiscard]] Function* function(const char* name) const {
        return reinterpret_cast<Function*>(symbol(name));
    }

private:
    explicit SharedLibrary(void* handle) : handle_(handle) {}
    [[nodiscard]] void* symbol(const char* name) const;

    void* handle_;
};

} // namespace quor::rx
