#include "sdk/sys/files.h"

#include "host/sys/utf8.h"

#include <filesystem>

bool PathFileExistsW(const wchar_t* path) {
    if (path == nullptr || *path == 0)
        return false;
    std::error_code error;
    return std::filesystem::exists(quor::toUtf8(path), error);
}
