#include "host/dxf/patch.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace quor::dxf {
namespace {

// A mistake here would write a damaged drawing over a good one: the save fails instead, in every kind of build.
void require(bool fits) {
    if (!fits) {
        throw std::logic_error("patches overlap or lie outside the file");
    }
}

} // namespace

std::size_t totalSize(const Segments& segments) {
    std::size_t size = 0;
    for (const std::string_view segment : segments) {
        size += segment.size();
    }
    return size;
}

std::string joined(const Segments& segments) {
    std::string whole;
    whole.reserve(totalSize(segments));
    for (const std::string_view segment : segments) {
        whole += segment;
    }
    return whole;
}

void PatchList::replace(std::size_t begin, std::size_t end, std::string bytes) {
    require(begin <= end);
    patches_.push_back({begin, end - begin, std::move(bytes)});
}

Segments PatchList::segments(std::string_view image) const {
    std::vector<const Patch*> order;
    order.reserve(patches_.size());
    for (const Patch& patch : patches_) {
        order.push_back(&patch);
    }
    std::stable_sort(order.begin(), order.end(), [](const Patch* a, const Patch* b) {
        return std::pair(a->offset, a->length != 0) < std::pair(b->offset, b->length != 0);
    });

    Segments result;
    result.reserve(2 * order.size() + 1);
    const auto add = [&result](std::string_view bytes) {
        if (!bytes.empty()) {
            result.push_back(bytes);
        }
    };
    std::size_t done = 0;
    for (const Patch* patch : order) {
        require(patch->offset >= done && patch->length <= image.size() &&
                patch->offset <= image.size() - patch->length);
        add(image.substr(done, patch->offset - done));
        add(patch->bytes);
        done = patch->offset + patch->length;
    }
    add(image.substr(done));
    return result;
}

} // namespace quor::dxf
