// The language packs of a session: resource modules by name, from the folder of the language in use.
#pragma once

#include "sdk/sys/resources.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace quor::sys {

// Why a line of a resource module was refused.
struct ResourceProblem {
    std::filesystem::path file;
    int line = 0; // 0: the file as a whole
    ZrString reason;

    // One line for people: file, line, reason.
    [[nodiscard]] ZrString message() const;
};

// The texts of one file of `number = "text"` lines. A line that is wrong is reported and left out; the others count.
class ResourceModule {
public:
    explicit ResourceModule(std::filesystem::path file) : file_(std::move(file)) {}

    // Reads the file's bytes; what is wrong with them is added to `problems`.
    void read(std::string_view bytes, std::vector<ResourceProblem>& problems);
    // Takes out the texts whose placeholders differ from the built-in ones; what they were is added to `problems`.
    void check(std::span<const ZwResourceText> builtIn, std::vector<ResourceProblem>& problems);

    // The text of that number, or null.
    [[nodiscard]] const ZrString* find(unsigned number) const;
    [[nodiscard]] std::size_t size() const { return texts_.size(); }

private:
    struct Entry {
        ZrString text;
        int line;
    };

    void readLine(std::wstring_view line, int number, std::vector<ResourceProblem>& problems);

    std::filesystem::path file_;
    std::unordered_map<unsigned, Entry> texts_;
};

class ResourceLibrary {
public:
    // Modules are files `<folder>/lang/<language>/<name>.txt`.
    ResourceLibrary(std::filesystem::path folder, ZrString language);
    // The modules outlive the library, since handles to them live as long as the process.
    ~ResourceLibrary();
    ResourceLibrary(const ResourceLibrary&) = delete;
    ResourceLibrary& operator=(const ResourceLibrary&) = delete;

    // Null when the language has no such module, or it cannot be read. A name is a plain file name without extension.
    [[nodiscard]] ZwResourceHandle load(std::wstring_view name);
    // The module of the host's command library, which is looked for once.
    [[nodiscard]] ZwResourceHandle commandLibrary();
    // How many texts were taken out; see zwCheckResourceTexts().
    int check(ZwResourceHandle module, std::span<const ZwResourceText> builtIn);

    [[nodiscard]] const ZrString& language() const { return language_; }
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
    // Everything that was refused so far.
    [[nodiscard]] const std::vector<ResourceProblem>& problems() const { return problems_; }

private:
    std::unique_ptr<ResourceModule> readModule(std::wstring_view name);
    void reportFrom(std::size_t first) const;

    std::filesystem::path folder_;
    ZrString language_;
    std::map<ZrString, std::unique_ptr<ResourceModule>, std::less<>> modules_; // null: looked for and not there
    std::optional<ZwResourceHandle> commandLibrary_;
    std::vector<ResourceProblem> problems_;
};

} // namespace quor::sys
