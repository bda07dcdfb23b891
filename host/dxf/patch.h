// Changes to a file as a list of replaced slices; the changed file is composed without copying what stays.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quor::dxf {

// Pieces that make up a file, in order. They point into an image and a patch list, which must outlive them.
using Segments = std::vector<std::string_view>;

[[nodiscard]] std::size_t totalSize(const Segments& segments);
[[nodiscard]] std::string joined(const Segments& segments);

struct Patch {
    std::size_t offset = 0;
    std::size_t length = 0; // of what is replaced; 0 inserts
    std::string bytes;
};

class PatchList {
public:
    // Puts bytes in place of [begin, end). Replaced slices must not overlap; segments() throws std::logic_error when
    // they do.
    void replace(std::size_t begin, std::size_t end, std::string bytes);
    void remove(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    // Several inserts at one place keep their order; they stand before a slice that is replaced from there.
    void insert(std::size_t at, std::string bytes) { replace(at, at, std::move(bytes)); }

    [[nodiscard]] bool empty() const { return patches_.empty(); }
    [[nodiscard]] const std::vector<Patch>& patches() const { return patches_; } // as they were added
    // The changed file. Valid until the list changes.
    [[nodiscard]] Segments segments(std::string_view image) const;

private:
    std::vector<Patch> patches_;
};

} // namespace quor::dxf
