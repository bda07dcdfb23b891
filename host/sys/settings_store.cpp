#include "host/sys/settings_store.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/sys/case_fold.h"
#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/sys/whole_file.h"
#include "host/texts/settings.h"

namespace quor {
namespace {

namespace fs = std::filesystem;

std::string reasonOf(int number) { return toUtf8(systemErrorText(number)); }

// A person writes a few lines; more than this is some other file.
constexpr std::size_t kMostBytes = std::size_t{16} << 20;

// All bytes and down to the disk; false, with errno, when that failed.
bool writeAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file.get(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::fsync(file.get()) == 0;
}

// Makes a folder and what is missing above it, for the user alone. The first that fails is the error.
std::optional<SettingsError> makeFolders(const fs::path& folder) {
    std::error_code ignored;
    if (folder.empty() || fs::is_directory(folder, ignored))
        return std::nullopt;
    if (folder.has_parent_path() && folder.parent_path() != folder)
        if (auto error = makeFolders(folder.parent_path()))
            return error;
    if (::mkdir(folder.c_str(), 0700) == 0)
        return std::nullopt;
    const int number = errno;
    if (fs::is_directory(folder, ignored)) // another process was faster
        return std::nullopt;
    return SettingsError{SettingsError::kNoFolder, folder, reasonOf(number)};
}

// The file itself where the path is a link, so that the link stays.
fs::path followLinks(const fs::path& path) {
    std::error_code failure;
    const fs::path target = fs::canonical(path, failure);
    return failure ? path : target;
}

const Text& describe(SettingsError::Kind kind) {
    switch (kind) {
    case SettingsError::kBadName:
        return texts::kSettingsBadName;
    case SettingsError::kNoFolder:
        return texts::kSettingsNoFolder;
    case SettingsError::kCannotRead:
        return texts::kSettingsUnreadable;
    case SettingsError::kCannotWrite:
        break;
    }
    return texts::kSettingsUnwritable;
}

fs::path absoluteFolder(const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path folder = value != nullptr ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

} // namespace

std::wstring SettingsError::message() const {
    std::wstring text = fromUtf8(path.native()) + L": " + describe(kind).get();
    return reason.empty() ? text : text + L": " + fromUtf8(reason);
}

SettingsStore::SettingsStore() : SettingsStore(defaultPath()) {}

SettingsStore::SettingsStore(fs::path file) : path_(std::move(file)) {}

fs::path SettingsStore::defaultPath() {
    fs::path folder = absoluteFolder("XDG_CONFIG_HOME");
    if (folder.empty()) {
        const fs::path home = absoluteFolder("HOME");
        if (home.empty())
            return {};
        folder = home / ".config";
    }
    return folder / "quor" / "settings.ini";
}

void SettingsStore::readOnce() {
    if (!wasRead_) {
        wasRead_ = true;
        readError_ = read(lines_);
    }
}

std::optional<SettingsError> SettingsStore::readError() {
    readOnce();
    return readError_;
}

std::optional<std::wstring> SettingsStore::get(std::wstring_view section, std::wstring_view key) {
    readOnce();
    for (const Value& own : own_)
        if (equalFolded(own.section, section) && equalFolded(own.key, key))
            return own.value;
    return findSetting(lines_, section, key);
}

std::optional<int> SettingsStore::getInt(std::wstring_view section, std::wstring_view key) {
    const auto text = get(section, key);
    if (!text)
        return std::nullopt;
    const std::string bytes = toUtf8(*text);
    int value = 0;
    const auto [end, failure] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), value);
    if (failure != std::errc() || end != bytes.data() + bytes.size())
        return std::nullopt;
    return value;
}

std::optional<SettingsError> SettingsStore::set(std::wstring_view section, std::wstring_view key,
                                                std::wstring_view value) {
    if (!isSettingsSection(section) || !isSettingsKey(key))
        return SettingsError{SettingsError::kBadName, path_, {}};
    readOnce();
    keep(section, key, value);
    SettingsLines lines;
    if (auto error = read(lines)) // anew: another process may have written meanwhile
        return error;
    for (const Value& own : own_)
        putSetting(lines, own.section, own.key, own.value);
    if (auto error = write(lines))
        return error;
    lines_ = std::move(lines);
    own_.clear();
    return std::nullopt;
}

std::optional<SettingsError> SettingsStore::setInt(std::wstring_view section, std::wstring_view key, int value) {
    return set(section, key, std::to_wstring(value));
}

// Remembers a value that is not in the file yet.
void SettingsStore::keep(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    for (Value& own : own_) {
        if (equalFolded(own.section, section) && equalFolded(own.key, key)) {
            own.value = value;
            return;
        }
    }
    own_.push_back({std::wstring(section), std::wstring(key), std::wstring(value)});
}

std::optional<SettingsError> SettingsStore::read(SettingsLines& lines) const {
    const Result<std::string, int> file = readWholeFile(path_, kMostBytes);
    const bool isMissing = !file && (file.error() == ENOENT || file.error() == ENOTDIR);
    if (isMissing)
        return std::nullopt;
    if (!file)
        return SettingsError{SettingsError::kCannotRead, path_, reasonOf(file.error())};
    const std::string& bytes = *file;
    lines.clear();
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        lines.push_back(fromUtf8(std::string_view(bytes).substr(at, end - at)));
        at = end + 1;
    }
    return std::nullopt;
}

std::optional<SettingsError> SettingsStore::write(const SettingsLines& lines) const {
    const auto refuse = [this](int number) {
        return SettingsError{SettingsError::kCannotWrite, path_, reasonOf(number)};
    };
    if (path_.empty())
        return refuse(ENOENT);
    if (auto error = makeFolders(path_.parent_path()))
        return error;
    std::string bytes;
    for (const std::wstring& line : lines)
        bytes += toUtf8(line) + '\n';
    const fs::path target = followLinks(path_);
    std::string name = target.native() + ".XXXXXX";
    const Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.isOpen())
        return refuse(errno);
    if (writeAll(file, bytes) && ::rename(name.c_str(), target.c_str()) == 0)
        return std::nullopt;
    const int number = errno;
    ::unlink(name.c_str());
    return refuse(number);
}

} // namespace quor
