#include "light/palette/name_keys.h"

#include <algorithm>
#include <bit>

namespace quor::light {

namespace {

constexpr unsigned keyBits = 64;

} // namespace

std::size_t NameKeys::indexOf(wchar_t character) {
    if (character < 0)
        return 0;
    return std::min(static_cast<std::size_t>(character), ownNumbers) + 1;
}

void NameKeys::add(const ZrString& name) {
    if (first_ == nullptr) {
        first_ = &name;
        common_ = name.size();
    }
    const std::size_t most = std::min(common_, name.size());
    common_ = 0;
    while (common_ < most && name[common_] == (*first_)[common_])
        ++common_;
    for (std::size_t i = common_; i < name.size(); ++i)
        numbers_[indexOf(name[i])] = 1;
}

void NameKeys::finish() {
    if (first_ == nullptr)
        return;
    for (std::size_t i = common_; i < first_->size(); ++i)
        numbers_[indexOf((*first_)[i])] = 1;
    std::uint32_t last = 0;
    for (std::uint32_t& number : numbers_)
        if (number != 0)
            number = ++last;
    bits_ = std::max(1U, static_cast<unsigned>(std::bit_width(last)));
}

// Behind a character that shares its number with others nothing can be told.
std::uint64_t NameKeys::keyOf(const ZrString& name) const {
    std::uint64_t key = 0;
    unsigned free = keyBits;
    for (std::size_t i = common_; i < name.size() && free >= bits_; ++i) {
        const std::size_t index = indexOf(name[i]);
        free -= bits_;
        key |= std::uint64_t{numbers_[index]} << free;
        if (isShared(index))
            break;
    }
    return key;
}

} // namespace quor::light
