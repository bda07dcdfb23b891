#include "host/sys/resource_library.h"

#include "host/sys/placeholder.h"
#include "host/sys/problem_report.h"
#include "host/sys/resource_line.h"
#include "host/sys/system_error.h"
#include "host/sys/utf8.h"
#include "host/sys/visible_text.h"
#include "host/sys/whole_file.h"
#include "host/texts/resources.h"

#include <algorithm>
#include <cerrno>

namespace fs = std::filesystem;

namespace quor::sys {
namespace {

constexpr std::size_t kMostBytes = std::size_t{16} << 20; // far more than the texts of a module

// Modules of sessions that have ended: handles to them may still be held.
std::vector<std::unique_ptr<ResourceModule>>& retiredModules() {
    static std::vector<std::unique_ptr<ResourceModule>> modules;
    return modules;
}

// A name that cannot lead out of its folder.
bool isPlainName(std::wstring_view name) {
    return !name.empty() && name.front() != L'.' && name.find_first_of(L"/\\") == std::wstring_view::npos &&
           name.find(L'\0') == std::wstring_view::npos;
}

} // namespace

ZrString ResourceProblem::message() const {
    const ZrString name = fromUtf8(file.native());
    return visibleText(line > 0 ? fill(texts::resourceProblem, name, line, reason)
                                : fill(texts::resourceFileProblem, name, reason));
}

void ResourceModule::read(std::string_view bytes, std::vector<ResourceProblem>& problems) {
    const std::wstring text = fromUtf8(bytes);
    std::wstring_view rest = text;
    if (!rest.empty() && rest.front() == L'\uFEFF')
        rest.remove_prefix(1);
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = rest.find(L'\n');
        readLine(rest.substr(0, end), number, problems);
        rest.remove_prefix(end == std::wstring_view::npos ? rest.size() : end + 1);
    }
}

void ResourceModule::readLine(std::wstring_view line, int number, std::vector<ResourceProblem>& problems) {
    auto parsed = parseResourceLine(line);
    if (!parsed) {
        problems.push_back({file_, number, parsed.error()});
        return;
    }
    if (!parsed.value())
        return;
    ResourceLine& found = *parsed.value();
    const auto [at, added] = texts_.try_emplace(found.number, Entry{std::move(found.text), number});
    if (!added)
        problems.push_back({file_, number, fill(texts::resourceTwice, found.number, at->second.line)});
}

void ResourceModule::check(std::span<const ZwResourceText> builtIn, std::vector<ResourceProblem>& problems) {
    for (const ZwResourceText& own : builtIn) {
        const auto at = texts_.find(own.number);
        if (at == texts_.end() || placeholderKinds(at->second.text) == placeholderKinds(own.builtIn))
            continue;
        problems.push_back(
            {file_, at->second.line,
             fill(texts::resourcePlaceholders, own.number, placeholders(own.builtIn), placeholders(at->second.text))});
        texts_.erase(at);
    }
}

const ZrString* ResourceModule::find(unsigned number) const {
    const auto at = texts_.find(number);
    return at == texts_.end() ? nullptr : &at->second.text;
}

ResourceLibrary::ResourceLibrary(fs::path folder, ZrString language)
    : folder_(std::move(folder)), language_(std::move(language)) {
    retiredModules(); // a library that is static itself goes before the place where it leaves its modules
}

ResourceLibrary::~ResourceLibrary() {
    for (auto& [name, module] : modules_)
        if (module)
            retiredModules().push_back(std::move(module));
}

ZwResourceHandle ResourceLibrary::load(std::wstring_view name) {
    const auto known = modules_.find(name);
    if (known != modules_.end())
        return known->second.get();
    const std::size_t before = problems_.size();
    auto& module = modules_[ZrString(name)] = readModule(name);
    reportFrom(before);
    return module.get();
}

ZwResourceHandle ResourceLibrary::commandLibrary() {
    if (!commandLibrary_)
        commandLibrary_ = load(L"quorcmdres");
    return *commandLibrary_;
}

std::unique_ptr<ResourceModule> ResourceLibrary::readModule(std::wstring_view name) {
    if (!isPlainName(name) || !isPlainName(language_))
        return nullptr;
    const fs::path file = folder_ / "lang" / toUtf8(language_) / (toUtf8(name) + ".txt");
    const Result<std::string, int> bytes = readWholeFile(file, kMostBytes);
    if (!bytes) {
        const bool isMissing = bytes.error() == ENOENT || bytes.error() == ENOTDIR;
        if (!isMissing)
            problems_.push_back({file, 0, fill(texts::resourceNotRead, systemErrorText(bytes.error()))});
        return nullptr;
    }
    auto module = std::make_unique<ResourceModule>(file);
    module->read(*bytes, problems_);
    return module;
}

int ResourceLibrary::check(ZwResourceHandle module, std::span<const ZwResourceText> builtIn) {
    const auto at =
        std::find_if(modules_.begin(), modules_.end(), [&](const auto& held) { return held.second.get() == module; });
    if (module == nullptr || at == modules_.end())
        return 0;
    const std::size_t before = problems_.size();
    at->second->check(builtIn, problems_);
    reportFrom(before);
    return static_cast<int>(problems_.size() - before);
}

void ResourceLibrary::reportFrom(std::size_t first) const {
    for (std::size_t i = first; i < problems_.size(); ++i)
        reportProblem(problems_[i].message());
}

} // namespace quor::sys
