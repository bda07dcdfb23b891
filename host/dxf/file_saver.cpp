#include "host/dxf/file_saver.h"

#include "host/sys/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>

namespace quor::dxf {
namespace {

namespace fs = std::filesystem;
using Outcome = Result<void, SaveError>;

Failure<SaveError> failure(SaveStep step, const fs::path& path, int systemError = errno) {
    return fail(SaveError{step, systemError, path});
}

// A file that is removed again unless it is kept.
class Temporary {
public:
    Temporary() = default;
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary() {
        if (!path_.empty()) {
            const int before = errno;
            ::unlink(path_.c_str());
            errno = before;
        }
    }
    void own(fs::path path) { path_ = std::move(path); }
    void keep() { path_.clear(); }
    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

// A write beyond the size limit of the process shall be an error, not the end of the program.
class WithoutSizeSignal {
public:
    WithoutSizeSignal() {
        sigemptyset(&signal_);
        sigaddset(&signal_, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &signal_, &before_);
    }
    WithoutSizeSignal(const WithoutSizeSignal&) = delete;
    WithoutSizeSignal& operator=(const WithoutSizeSignal&) = delete;
    ~WithoutSizeSignal() {
        const int error = errno;
        const timespec now{};
        while (sigismember(&before_, SIGXFSZ) == 0 && sigtimedwait(&signal_, nullptr, &now) > 0) {
        }
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
        errno = error;
    }

private:
    sigset_t signal_{};
    sigset_t before_{};
};

// ".plan.dxf.3f9a01c2.tmp" beside plan.dxf; the name is cut where it would be too long.
fs::path temporaryName(const fs::path& target) {
    constexpr std::size_t kLongestStem = 200;
    thread_local std::minstd_rand random{std::random_device{}()};
    std::array<char, 16> tail{};
    std::snprintf(tail.data(), tail.size(), ".%08x", static_cast<unsigned>(random()));
    const std::string name = target.filename().string().substr(0, kLongestStem);
    return target.parent_path() / ("." + name + tail.data() + ".tmp");
}

// Tries make(path) with fresh names until one is free. False with errno when it fails for another reason.
template <class Make>
bool makeTemporary(const fs::path& target, Temporary& temporary, Make make) {
    constexpr int kTries = 100;
    for (int attempt = 0; attempt < kTries; ++attempt) {
        fs::path path = temporaryName(target);
        if (make(path)) {
            temporary.own(std::move(path));
            return true;
        }
        if (errno != EEXIST) {
            return false;
        }
    }
    return false;
}

// The file that a chain of symbolic links ends at, whether or not it exists.
std::optional<fs::path> resolved(fs::path path) {
    constexpr int kMostLinks = 40;
    for (int links = 0; links < kMostLinks; ++links) {
        std::error_code error;
        const fs::path next = fs::read_symlink(path, error);
        if (error) {
            return path;
        }
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    errno = ELOOP;
    return std::nullopt;
}

fs::path folderOf(const fs::path& path) { return path.has_parent_path() ? path.parent_path() : fs::path("."); }

// `told` hears after each write how many bytes it wrote; so much at once that nobody waits long for that.
bool writeAll(int fd, const Segments& segments, const std::function<void(std::size_t)>& told = {}) {
    constexpr std::size_t kBatch = std::min(IOV_MAX, 1024);
    constexpr std::size_t kMostBytes = std::size_t{16} << 20;
    std::array<iovec, kBatch> batch{};
    std::size_t next = 0;
    std::size_t skip = 0; // bytes of segments[next] that are written
    while (next < segments.size()) {
        std::size_t count = 0;
        std::size_t bytes = 0;
        for (std::size_t i = next; i < segments.size() && count < kBatch && bytes < kMostBytes; ++i, ++count) {
            const std::string_view rest = segments[i].substr(i == next ? skip : 0, kMostBytes - bytes);
            batch[count] = {const_cast<char*>(rest.data()), rest.size()};
            bytes += rest.size();
        }
        const ssize_t written = ::writev(fd, batch.data(), static_cast<int>(count));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        if (told) {
            told(static_cast<std::size_t>(written));
        }
        skip += static_cast<std::size_t>(written);
        while (next < segments.size() && skip >= segments[next].size()) {
            skip -= segments[next].size();
            ++next;
        }
    }
    return true;
}

// Asks for the space at once, so that a full disk is known before the long write. Not every file system can tell.
bool reserve(int fd, std::size_t size) {
    return size == 0 || ::fallocate(fd, 0, 0, static_cast<off_t>(size)) == 0 || errno == EOPNOTSUPP ||
           errno == ENOSYS || errno == EINTR;
}

Outcome checkTarget(const fs::path& target, struct stat& old, bool& exists) {
    exists = ::stat(target.c_str(), &old) == 0;
    if (!exists) {
        return errno == ENOENT ? Outcome() : Outcome(failure(SaveStep::Target, target));
    }
    if (!S_ISREG(old.st_mode)) {
        return failure(SaveStep::Target, target, S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    }
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        return failure(SaveStep::Target, target);
    }
    return {};
}

// Writes the contents; false with errno.
using Write = std::function<bool(int fd)>;

Outcome writeTemporary(const fs::path& target, const struct stat* old, const Write& write, Temporary& temporary) {
    constexpr mode_t kNewFile = 0666;
    int fd = -1;
    const bool made = makeTemporary(target, temporary, [&fd](const fs::path& path) {
        fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFile);
        return fd >= 0;
    });
    Descriptor file(fd);
    if (!made) {
        return failure(SaveStep::CreateTemp, folderOf(target));
    }
    if (old != nullptr) {
        // The owner can be kept by privileged users only; the permission bits must be.
        if (::fchown(file.get(), old->st_uid, old->st_gid) != 0) {
            errno = 0;
        }
        if (::fchmod(file.get(), old->st_mode & 07777) != 0) {
            return failure(SaveStep::CreateTemp, temporary.path());
        }
    }
    const WithoutSizeSignal quiet;
    if (!write(file.get())) {
        return failure(SaveStep::Write, target);
    }
    if (::fdatasync(file.get()) != 0 || !file.close()) {
        return failure(SaveStep::Sync, target);
    }
    return {};
}

// A second name for the target under a temporary name; a copy where the file system knows no second names.
bool linkOld(const fs::path& target, Temporary& link) {
    const auto make = [&target](const fs::path& path) {
        if (::link(target.c_str(), path.c_str()) == 0) {
            return true;
        }
        if (errno == EEXIST) {
            return false;
        }
        std::error_code error;
        if (fs::copy_file(target, path, error)) {
            return true;
        }
        ::unlink(path.c_str());
        errno = error.value();
        return false;
    };
    return makeTemporary(target, link, make);
}

Outcome putInPlace(const fs::path& target, Temporary& temporary, bool keepOld) {
    if (!keepOld) {
        if (::rename(temporary.path().c_str(), target.c_str()) != 0) {
            return failure(SaveStep::Replace, target);
        }
        temporary.keep();
        return {};
    }
    const fs::path backup = backupPath(target);
    Temporary old;
    std::error_code error;
    if (fs::is_directory(backup, error)) {
        return failure(SaveStep::Backup, backup, EISDIR);
    }
    if (!linkOld(target, old)) {
        return failure(SaveStep::Backup, backup);
    }
    if (::rename(temporary.path().c_str(), target.c_str()) != 0) {
        return failure(SaveStep::Replace, target);
    }
    temporary.keep();
    if (::rename(old.path().c_str(), backup.c_str()) != 0) {
        const int why = errno;
        if (::rename(old.path().c_str(), target.c_str()) == 0) {
            old.keep();
        }
        return failure(SaveStep::Backup, backup, why);
    }
    old.keep();
    return {};
}

void syncFolder(const fs::path& folder) {
    // The files are in place whatever comes of this; some file systems cannot sync a folder.
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        ::fsync(descriptor.get());
    }
}

Outcome save(const fs::path& path, const Write& write, const SaveOptions& options) {
    const auto target = resolved(path);
    if (!target) {
        return failure(SaveStep::Target, path);
    }
    if (!target->has_filename()) {
        return failure(SaveStep::Target, path, EISDIR);
    }
    struct stat old {};
    bool exists = false;
    if (auto checked = checkTarget(*target, old, exists); !checked) {
        return checked;
    }
    Temporary temporary;
    if (auto written = writeTemporary(*target, exists ? &old : nullptr, write, temporary); !written) {
        return written;
    }
    if (auto placed = putInPlace(*target, temporary, exists && options.keepBackup); !placed) {
        return placed;
    }
    syncFolder(folderOf(*target));
    return {};
}

} // namespace

fs::path backupPath(const fs::path& path) {
    fs::path backup = path;
    backup.replace_extension(".bak");
    if (backup == path) {
        backup += ".bak";
    }
    return backup;
}

Outcome saveAtomically(const fs::path& path, const Segments& segments, const SaveOptions& options) {
    const std::size_t size = totalSize(segments);
    std::size_t done = 0;
    const auto told = [&](std::size_t written) {
        done += written;
        if (options.progress) {
            options.progress(static_cast<double>(done) / static_cast<double>(size));
        }
    };
    const auto write = [&](int fd) { return reserve(fd, size) && writeAll(fd, segments, told); };
    return save(path, write, options);
}

Outcome savePiecesAtomically(const fs::path& path, const std::function<std::string_view()>& next,
                             const SaveOptions& options) {
    const auto write = [&](int fd) {
        for (std::string_view piece = next(); !piece.empty(); piece = next())
            if (!writeAll(fd, {piece}))
                return false;
        return true;
    };
    return save(path, write, options);
}

} // namespace quor::dxf
