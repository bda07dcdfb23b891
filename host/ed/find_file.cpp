#include "sdk/ed/find_file.h"

#include "host/document.h"
#include "host/ed/support_files.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"

namespace fs = std::filesystem;

namespace quor::ed {

namespace {

constexpr wchar_t kFolderSeparator = L';';
constexpr const char* kWebFolder = "webs";

void appendListed(std::vector<fs::path>& folders, const ZrString& list) {
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(kFolderSeparator, begin), list.size());
        if (const fs::path folder = pathFromText(list.substr(begin, end - begin)); !folder.empty())
            folders.push_back(absolutePath(folder));
        begin = end + 1;
    }
}

// Taking ".." out of a path may lead elsewhere, where folders are links.
fs::path plainest(const fs::path& file) {
    const fs::path plain = file.lexically_normal();
    std::error_code error;
    return fs::equivalent(plain, file, error) ? plain : file;
}

} // namespace

std::vector<fs::path> supportFolders(Session& session) {
    std::vector<fs::path> folders;
    const Document* const document = session.documents().current();
    if (document != nullptr && !document->path().empty())
        folders.push_back(absolutePath(document->path()).parent_path());
    std::error_code error;
    if (const fs::path working = fs::current_path(error); !error)
        folders.push_back(working);
    appendListed(folders, session.variables().text(L"SUPPORTPATH").value_or(ZrString()));
    folders.push_back(absolutePath(session.options().resourceFolder / kWebFolder));
    return folders;
}

std::optional<fs::path> findSupportFile(Session& session, const ZrString& name) {
    const fs::path wanted = toUtf8(name);
    if (wanted.empty())
        return std::nullopt;
    if (wanted.is_absolute())
        return wanted;
    for (const fs::path& folder : supportFolders(session)) {
        const fs::path candidate = folder / wanted;
        std::error_code error;
        if (fs::is_regular_file(candidate, error))
            return plainest(candidate);
    }
    return std::nullopt;
}

} // namespace quor::ed

int zredFindFile(const wchar_t* name, ZrString& found) {
    if (name == nullptr || !quor::Session::exists())
        return RTERROR;
    const std::optional<fs::path> file = quor::ed::findSupportFile(quor::Session::current(), name);
    if (!file)
        return RTERROR;
    found = quor::textOf(*file);
    return RTNORM;
}
