#include "host/ies/web_cache.h"

#include "host/sys/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/stat.h>

namespace quor::ies {

namespace {

Failure<Error> failure(Error::Kind kind, int systemError = 0) {
    Error error;
    error.kind = kind;
    error.systemError = systemError;
    return fail(std::move(error));
}

Failure<Error> cannotRead(int systemError) {
    using Kind = Error::Kind;
    if (systemError == ENOENT || systemError == ENOTDIR)
        return failure(Kind::NotFound, systemError);
    if (systemError == EFBIG)
        return failure(Kind::TooLarge);
    return failure(Kind::Unreadable, systemError == ENODEV ? 0 : systemError);
}

FileIdentity identityOf(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

Result<std::string, Error> readFile(const std::string& path, FileIdentity& identity) {
    const Result<OpenFile, int> file = openFile(path);
    if (!file.ok())
        return cannotRead(file.error());
    identity = identityOf(file->status);
    Result<std::string, int> bytes = readToEnd(*file, kMostBytes);
    if (!bytes.ok())
        return cannotRead(bytes.error());
    return std::move(bytes).value();
}

LoadedWeb webIn(const std::string& bytes) {
    Result<PhotometricWeb, Error> web = readWeb(bytes);
    if (!web.ok())
        return fail(std::move(web).error());
    const double flux = luminousFlux(web.value());
    return std::make_shared<const WebFile>(WebFile{std::move(web).value(), flux});
}

} // namespace

bool FileIdentity::operator==(const FileIdentity& other) const {
    return device == other.device && number == other.number && size == other.size &&
           changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

// An error takes next to no memory.
std::size_t WebCache::Entry::bytes() const { return loaded.ok() ? static_cast<std::size_t>(identity.size) : 0; }

// Forgets what it has of a file that is no longer the one that was read.
const LoadedWeb* WebCache::find(const std::string& path) {
    const auto known =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.path == path; });
    if (known == entries_.end())
        return nullptr;
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && identityOf(status) == known->identity) {
        entries_.splice(entries_.begin(), entries_, known);
        return &known->loaded;
    }
    bytes_ -= known->bytes();
    entries_.erase(known);
    return nullptr;
}

LoadedWeb WebCache::load(const std::filesystem::path& file) {
    if (const LoadedWeb* known = find(file.native()))
        return *known;
    FileIdentity identity;
    Result<std::string, Error> bytes = readFile(file.native(), identity);
    if (!bytes.ok())
        return fail(std::move(bytes).error());
    LoadedWeb loaded = webIn(bytes.value());
    keep({file.native(), identity, loaded});
    return loaded;
}

void WebCache::keep(Entry&& entry) {
    bytes_ += entry.bytes();
    entries_.push_front(std::move(entry));
    while (entries_.size() > capacity_ || bytes_ > kMostBytesKept) {
        bytes_ -= entries_.back().bytes();
        entries_.pop_back();
    }
}

LoadedWeb loadWeb(const std::filesystem::path& file) {
    static WebCache cache;
    return cache.load(file);
}

} // namespace quor::ies
