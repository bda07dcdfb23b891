#include "host/ies/web_cache.h"

#include "host/dxf/descriptor.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace quor::ies {

namespace {

Failure<Error> failure(Error::Kind kind, int systemError = 0) {
    Error error;
    error.kind = kind;
    error.systemError = systemError;
    return fail(std::move(error));
}

Failure<Error> cannotOpen(int systemError) {
    const bool isMissing = systemError == ENOENT || systemError == ENOTDIR;
    return failure(isMissing ? Error::Kind::NotFound : Error::Kind::Unreadable, systemError);
}

// All that is left in a file, and one byte more than a web may have when there is more.
Result<std::string, int> readAll(int fd, std::size_t expected) {
    std::string bytes;
    std::size_t done = 0;
    // One more than expected shows the end without a second look.
    bytes.resize(std::min(expected, kMostBytes) + 1);
    while (done <= kMostBytes) {
        const ssize_t got = ::read(fd, bytes.data() + done, bytes.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return fail(int{errno});
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
        // A file that grows meanwhile.
        if (done == bytes.size())
            bytes.resize(std::min(2 * done, kMostBytes + 1));
    }
    bytes.resize(done);
    return bytes;
}

FileIdentity identityOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

Result<PhotometricWeb, Error> readFile(const std::string& path, FileIdentity& identity) {
    // Without O_NONBLOCK a named pipe would wait for somebody to write into it.
    const dxf::Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0)
        return cannotOpen(errno);
    if (!S_ISREG(status.st_mode))
        return failure(Error::Kind::Unreadable, S_ISDIR(status.st_mode) ? EISDIR : 0);
    if (static_cast<std::size_t>(status.st_size) > kMostBytes)
        return failure(Error::Kind::TooLarge);
    identity = identityOf(status);
    const Result<std::string, int> bytes = readAll(file.get(), static_cast<std::size_t>(status.st_size));
    if (!bytes.ok())
        return failure(Error::Kind::Unreadable, bytes.error());
    return readWeb(bytes.value());
}

} // namespace

bool FileIdentity::operator==(const FileIdentity& other) const {
    return device == other.device && number == other.number && size == other.size &&
           changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

// Forgets what it has of a file that is no longer the one that was read.
std::shared_ptr<const WebFile> WebCache::find(const std::string& path) {
    const auto known =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.path == path; });
    if (known == entries_.end())
        return nullptr;
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && identityOf(status) == known->identity) {
        entries_.splice(entries_.begin(), entries_, known);
        return known->web;
    }
    bytes_ -= static_cast<std::size_t>(known->identity.size);
    entries_.erase(known);
    return nullptr;
}

Result<std::shared_ptr<const WebFile>, Error> WebCache::load(const std::filesystem::path& file) {
    if (auto known = find(file.native()))
        return known;
    FileIdentity identity;
    Result<PhotometricWeb, Error> web = readFile(file.native(), identity);
    if (!web.ok())
        return fail(std::move(web).error());
    const double flux = luminousFlux(web.value());
    auto loaded = std::make_shared<const WebFile>(WebFile{std::move(web).value(), flux});
    keep({file.native(), identity, loaded});
    return loaded;
}

void WebCache::keep(Entry&& entry) {
    bytes_ += static_cast<std::size_t>(entry.identity.size);
    entries_.push_front(std::move(entry));
    while (entries_.size() > capacity_ || bytes_ > kMostBytesKept) {
        bytes_ -= static_cast<std::size_t>(entries_.back().identity.size);
        entries_.pop_back();
    }
}

Result<std::shared_ptr<const WebFile>, Error> loadWeb(const std::filesystem::path& file) {
    static WebCache cache;
    return cache.load(file);
}

} // namespace quor::ies
