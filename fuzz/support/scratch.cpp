#include "fuzz/support/scratch.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace quor::fuzz {

namespace {

std::filesystem::path parentFolder() {
    const std::filesystem::path inMemory = "/dev/shm";
    std::error_code error;
    return std::filesystem::is_directory(inMemory, error) ? inMemory : std::filesystem::temp_directory_path();
}

} // namespace

Scratch::Scratch() {
    std::string pattern = (parentFolder() / "quor-fuzz-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        std::abort();
    path_ = pattern;
    std::filesystem::current_path(path_);
}

Scratch::~Scratch() {
    std::error_code ignored;
    std::filesystem::current_path("/", ignored);
    std::filesystem::remove_all(path_, ignored);
}

void Scratch::keep(const std::string& name, const std::filesystem::path& original) {
    std::ifstream file(original, std::ios::binary);
    if (!file)
        std::abort();
    kept_[name] = std::string(std::istreambuf_iterator<char>(file), {});
}

void Scratch::provide(std::string_view name) const {
    const auto found = kept_.find(name);
    if (found == kept_.end() || std::filesystem::exists(path_ / found->first))
        return;
    std::ofstream(path_ / found->first, std::ios::binary) << found->second;
}

void Scratch::empty() const {
    for (const auto& entry : std::filesystem::directory_iterator(path_))
        std::filesystem::remove_all(entry.path());
}

} // namespace quor::fuzz
