#include "host/sys/folder_names.h"

#include "host/sys/utf8.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace quor {

namespace {

fs::path folderPath(const ZrString& folder) {
    const char* home = std::getenv("HOME");
    if (folder.starts_with(L"~/") && home != nullptr)
        return fs::path(home) / toUtf8(folder.substr(2));
    return folder.empty() ? fs::path(".") : fs::path(toUtf8(folder));
}

} // namespace

std::vector<ZrString> folderNames(const ZrString& folder) {
    std::vector<ZrString> names;
    std::error_code error;
    for (fs::directory_iterator entry(folderPath(folder), error), end; !error && entry != end; entry.increment(error)) {
        std::error_code unknown;
        const bool isFolder = entry->is_directory(unknown);
        names.push_back(fromUtf8(entry->path().filename().native()) + (isFolder ? L"/" : L""));
    }
    return names;
}

} // namespace quor
