#include "host/autosave/copy_folder.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>

namespace quor::autosave {

namespace fs = std::filesystem;

namespace {

constexpr const char* kLock = "lock";

// Closed with the lock still on it when somebody else holds it.
Descriptor locked(const fs::path& file) {
    constexpr mode_t kForUser = S_IRUSR | S_IWUSR;
    Descriptor lock(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kForUser));
    if (!lock.isOpen() || ::flock(lock.get(), LOCK_EX | LOCK_NB) == 0)
        return lock;
    const int error = errno;
    (void)lock.close();
    errno = error;
    return lock;
}

// Whether the file of a lock is still the one at its place: who had it before may have removed it with its folder.
bool isStillThere(const Descriptor& lock, const fs::path& file) {
    struct stat held {};
    struct stat there {};
    return ::fstat(lock.get(), &held) == 0 && ::stat(file.c_str(), &there) == 0 && held.st_dev == there.st_dev &&
           held.st_ino == there.st_ino;
}

bool makeForUser(const fs::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST)
        return true;
    return errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder &&
           makeForUser(folder.parent_path()) && ::mkdir(folder.c_str(), S_IRWXU) == 0;
}

} // namespace

fs::path copiesFolder() {
    const char* const state = std::getenv("XDG_STATE_HOME");
    // The rules for these folders say that a relative one does not count.
    if (state != nullptr && *state == '/')
        return fs::path(state) / "quor" / "autosave";
    const char* const home = std::getenv("HOME");
    return home == nullptr || *home == 0 ? fs::path() : fs::path(home) / ".local/state/quor/autosave";
}

// It gets its name when it is locked, so that nobody finds it without a lock and takes it for one that was left.
Result<CopyFolder, int> CopyFolder::make(const fs::path& parent) {
    if (!makeForUser(parent))
        return fail(int{errno});
    std::string hidden = (parent / ".XXXXXX").string();
    if (::mkdtemp(hidden.data()) == nullptr)
        return fail(int{errno});
    Descriptor lock = locked(fs::path(hidden) / kLock);
    const fs::path name = parent / fs::path(hidden).filename().string().substr(1);
    if (lock.isOpen() && ::rename(hidden.c_str(), name.c_str()) == 0)
        return CopyFolder(name, std::move(lock));
    const int error = errno;
    ::unlink((fs::path(hidden) / kLock).c_str());
    ::rmdir(hidden.c_str());
    return fail(int{error});
}

std::optional<CopyFolder> CopyFolder::takeOver(const fs::path& folder) {
    Descriptor lock = locked(folder / kLock);
    if (!lock.isOpen() || !isStillThere(lock, folder / kLock))
        return std::nullopt;
    return CopyFolder(folder, std::move(lock));
}

CopyFolder::~CopyFolder() {
    if (!lock_.isOpen()) // moved from
        return;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(path_, error))
        if (entry.path().filename() != kLock)
            return;
    ::unlink((path_ / kLock).c_str());
    ::rmdir(path_.c_str());
}

} // namespace quor::autosave
