// The folder in which a fuzzed session reads and writes: emptied after every run, on a file system in memory where
// there is one.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace quor::fuzz {

class Scratch {
public:
    // Makes the folder and goes into it, so that names without a folder stay in there.
    Scratch();
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    // A file that runs find under this name once they ask for it.
    void keep(const std::string& name, const std::filesystem::path& original);
    // The names of the files kept, sorted.
    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& kept() const { return kept_; }
    // Puts the file there, unless it is there; nothing for a name that is not kept.
    void provide(std::string_view name) const;
    void empty() const;

private:
    std::filesystem::path path_;
    std::map<std::string, std::string, std::less<>> kept_;
};

} // namespace quor::fuzz
