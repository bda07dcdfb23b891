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

Result<PhotometricWeb, Error> readFile(const std::string& path, FileIdentity& identity) {
    const Result<OpenFile, int> file = openFile(path);
    if (!file.ok())
        return cannotRead(file.error());
    identity = identityOf(file->status);
    const Result<std::string, int> bytes = readToEnd(*file, kMostBytes);
    if (!bytes.ok())
        return cannotRead(bytes.error());
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
