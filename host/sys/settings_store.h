// Per-user settings in one readable file of sections and `key = value` lines.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/sys/settings_text.h"

namespace quor {

struct SettingsError {
    enum Kind { kBadName, kNoFolder, kCannotRead, kCannotWrite };

    Kind kind = kCannotRead;
    std::filesystem::path path; // the file or folder that refused
    std::string reason;         // the system's reason, UTF-8; empty for kBadName

    // One line for people: what, where, what to do.
    [[nodiscard]] std::wstring message() const;
};

// Sections and keys are found without regard to case. The file is read at the first use. Nothing throws: when the file
// cannot be read or written, the error says why and the value holds for this process. For one thread.
class SettingsStore {
public:
    // quor/settings.ini in the user's configuration folder ($XDG_CONFIG_HOME, else ~/.config).
    SettingsStore();
    explicit SettingsStore(std::filesystem::path file);

    [[nodiscard]] std::optional<std::wstring> get(std::wstring_view section, std::wstring_view key);
    // Empty also for a value that is no whole number of this range.
    [[nodiscard]] std::optional<int> getInt(std::wstring_view section, std::wstring_view key);

    // Sets the value and writes the file at once, whole or not at all; other lines, comments included, stay as they
    // are, also those that another process wrote meanwhile. Missing folders are made for the user alone.
    std::optional<SettingsError> set(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    std::optional<SettingsError> setInt(std::wstring_view section, std::wstring_view key, int value);

    // Why the file could not be read at the first use; empty when it was read or does not exist yet.
    [[nodiscard]] std::optional<SettingsError> readError();
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    // Empty when neither variable is set.
    [[nodiscard]] static std::filesystem::path defaultPath();

private:
    struct Value {
        std::wstring section;
        std::wstring key;
        std::wstring value;
    };

    void readOnce();
    void keep(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    [[nodiscard]] std::optional<SettingsError> read(SettingsLines& lines) const;
    [[nodiscard]] std::optional<SettingsError> write(const SettingsLines& lines) const;

    std::filesystem::path path_;
    SettingsLines lines_;    // the file as read or written last
    std::vector<Value> own_; // what this process set and could not write
    std::optional<SettingsError> readError_;
    bool wasRead_ = false;
};

} // namespace quor
