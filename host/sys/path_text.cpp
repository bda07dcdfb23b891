#include "host/sys/path_text.h"

#include "host/sys/trim.h"
#include "host/sys/utf8.h"

#include <cstdlib>

namespace quor {

std::filesystem::path pathFromText(const ZrString& text) {
    std::wstring_view plain = trimmed(text);
    const bool quoted =
        plain.size() >= 2 && (plain.front() == L'"' || plain.front() == L'\'') && plain.back() == plain.front();
    if (quoted)
        plain = plain.substr(1, plain.size() - 2);
    const char* home = std::getenv("HOME");
    if (home != nullptr && plain.starts_with(L"~/"))
        return std::filesystem::path(home) / toUtf8(plain.substr(2));
    return std::filesystem::path(toUtf8(plain));
}

ZrString textOf(const std::filesystem::path& path) { return fromUtf8(path.native()); }

std::filesystem::path absolutePath(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::absolute(path, error);
    return error ? path : whole.lexically_normal();
}

} // namespace quor
