// The webs that were read lately, so that many lights with one web cost one reading.
#pragma once

#include "host/ies/reader.h"

#include <filesystem>
#include <list>
#include <memory>
#include <string>

#include <sys/types.h>
#include <time.h>

namespace quor::ies {

// What tells that a file is the same as before without reading it.
struct FileIdentity {
    dev_t device = 0;
    ino_t number = 0;
    off_t size = 0;
    timespec changed{};
    [[nodiscard]] bool operator==(const FileIdentity& other) const;
};

class WebCache {
public:
    // Keeps at most so many files, and fewer when their files together are larger than kMostBytesKept;
    // broken ones do not count there.
    explicit WebCache(std::size_t capacity = 64) : capacity_(capacity) {}

    static constexpr std::size_t kMostBytesKept = 2 * kMostBytes;

    // From memory when the file is still the one that was read, else from the file. What is wrong in a file is
    // remembered, too; that a file could not be read is not.
    [[nodiscard]] LoadedWeb load(const std::filesystem::path& file);
    [[nodiscard]] std::size_t size() const { return entries_.size(); }

private:
    struct Entry {
        std::string path;
        FileIdentity identity;
        LoadedWeb loaded;
        [[nodiscard]] std::size_t bytes() const;
    };

    [[nodiscard]] const LoadedWeb* find(const std::string& path);
    void keep(Entry&& entry);

    std::size_t capacity_;
    std::size_t bytes_ = 0;    // of the webs of all entries, as files
    std::list<Entry> entries_; // what was used last is first
};

} // namespace quor::ies
