#include "sdk/ed/find_file.h"

#include "host/document.h"
#include "host/ed/support_files.h"
#include "host/session.h"
#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"

#include <algorithm>
#include <system_error>
#include <utility>

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

enum class Thing { None, File, Other };

// What cannot be looked at is there; a name that nothing can have is not.
Thing thingAt(const fs::path& path) {
    std::error_code error;
    const fs::file_type type = fs::status(path, error).type();
    if (type == fs::file_type::not_found || error == std::errc::filename_too_long)
        return Thing::None;
    return type == fs::file_type::regular ? Thing::File : Thing::Other;
}

// What of one name stands in the support folders.
struct Found {
    std::optional<fs::path> file;
    std::optional<fs::path> other; // the first that is no file, or cannot be looked at
};

Found search(Session& session, const ZrString& name) {
    Found found;
    const fs::path wanted = toUtf8(name);
    if (wanted.empty())
        return found;
    if (wanted.is_absolute()) {
        found.file = wanted;
        return found;
    }
    for (const fs::path& folder : supportFolders(session)) {
        const fs::path candidate = folder / wanted;
        const Thing thing = thingAt(candidate);
        if (thing == Thing::File) {
            found.file = plainest(candidate);
            return found;
        }
        if (thing == Thing::Other && !found.other)
            found.other = plainest(candidate);
    }
    return found;
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

std::optional<fs::path> findSupportFile(Session& session, const ZrString& name) { return search(session, name).file; }

std::optional<fs::path> findSupportName(Session& session, const ZrString& name) {
    Found found = search(session, name);
    return found.file ? std::move(found.file) : std::move(found.other);
}

std::optional<fs::path> findKeptFile(Session& session, const ZrString& kept) {
    const Found whole = search(session, kept);
    if (whole.file && thingAt(*whole.file) != Thing::None)
        return whole.file;
    ZrString slashed = kept;
    std::replace(slashed.begin(), slashed.end(), L'\\', L'/');
    if (const Found found = search(session, slashed); found.file && thingAt(*found.file) != Thing::None)
        return found.file;
    const ZrString name = slashed.substr(slashed.rfind(L'/') + 1);
    if (const Found byName = search(session, name); byName.file)
        return byName.file;
    return whole.other;
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
