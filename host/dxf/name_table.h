// Gives each record name of a file a small number.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quor::dxf {

using NameId = std::uint16_t;

class NameTable {
public:
    // Names that are too long or too many share this number; the file itself tells them apart.
    static constexpr NameId kOther = 0xFFFF;
    static constexpr std::size_t kMaxLength = 255;

    NameTable() = default;
    NameTable(NameTable&&) = default;
    NameTable& operator=(NameTable&&) = default;
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    NameId intern(std::string_view name);
    // kOther if the name does not occur.
    [[nodiscard]] NameId find(std::string_view name) const;
    // "" for kOther.
    [[nodiscard]] std::string_view name(NameId id) const;
    [[nodiscard]] std::size_t size() const { return names_.size(); }

private:
    std::deque<std::string> names_; // stable addresses: the map's keys point here
    std::unordered_map<std::string_view, NameId> ids_;
    NameId last_ = kOther;
};

} // namespace quor::dxf
