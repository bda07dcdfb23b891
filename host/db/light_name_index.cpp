#include "host/db/light_name_index.h"

#include <bit>
#include <charconv>
#include <string_view>

namespace quor::db {

namespace {

constexpr std::size_t kWordBits = 64;
constexpr std::size_t kLongestNumber = 6; // "-32768"

// The number behind the prefix, when the rest of the name is written as a number is.
std::optional<std::int16_t> numberBehind(const ZrString& prefix, const ZrString& name) {
    if (name.size() == prefix.size() || !startsWithFolded(name, prefix))
        return std::nullopt;
    const std::wstring_view digits = std::wstring_view(name).substr(prefix.size());
    std::array<char, kLongestNumber> text{};
    if (digits.size() > text.size())
        return std::nullopt;
    for (std::size_t i = 0; i < digits.size(); ++i)
        text[i] = digits[i] > 0 && digits[i] < 0x80 ? static_cast<char>(digits[i]) : '?';
    std::int16_t number = 0;
    const std::string_view typed(text.data(), digits.size());
    const auto [stopped, error] = std::from_chars(typed.begin(), typed.end(), number);
    if (error != std::errc() || stopped != typed.end())
        return std::nullopt;
    std::array<char, kLongestNumber> usual{};
    const char* const end = std::to_chars(usual.data(), usual.data() + usual.size(), number).ptr;
    return typed == std::string_view(usual.data(), end) ? std::optional(number) : std::nullopt;
}

} // namespace

void LightNameIndex::NumberSet::set(std::int16_t number, bool taken) {
    const auto index = static_cast<std::uint16_t>(number);
    const std::uint64_t bit = std::uint64_t{1} << (index % kWordBits);
    std::uint64_t& word = taken_[index / kWordBits];
    word = taken ? word | bit : word & ~bit;
}

std::optional<std::int16_t> LightNameIndex::NumberSet::firstFreeFrom(std::int16_t start) const {
    const auto first = static_cast<std::uint16_t>(start);
    std::size_t word = first / kWordBits;
    // The bits before the start count at the end, when the search comes round to their word again.
    std::uint64_t free = ~taken_[word] & (~std::uint64_t{0} << (first % kWordBits));
    for (std::size_t tried = 0; tried <= taken_.size(); ++tried) {
        if (free != 0)
            return static_cast<std::int16_t>(word * kWordBits + static_cast<std::size_t>(std::countr_zero(free)));
        word = (word + 1) % taken_.size();
        free = ~taken_[word];
    }
    return std::nullopt;
}

void LightNameIndex::mark(const ZrString& name, bool taken) {
    for (auto& [prefix, numbers] : numbers_)
        if (const auto number = numberBehind(prefix, name))
            numbers.set(*number, taken);
}

void LightNameIndex::add(const ZrString& name) {
    if (counts_.add(name) == 1)
        mark(name, true);
}

void LightNameIndex::remove(const ZrString& name) {
    if (counts_.remove(name) == 0)
        mark(name, false);
}

std::int16_t LightNameIndex::nextFree(const ZrString& prefix, std::int16_t start) {
    const auto [found, isNew] = numbers_.try_emplace(prefix);
    NumberSet& numbers = found->second;
    if (isNew)
        counts_.forEach([&](const ZrString& name) {
            if (const auto number = numberBehind(prefix, name))
                numbers.set(*number, true);
        });
    return numbers.firstFreeFrom(start).value_or(start);
}

} // namespace quor::db
