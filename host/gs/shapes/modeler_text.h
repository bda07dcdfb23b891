// The text in which drawings keep solids and surfaces, as records that refer to each other by number.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quor::gs {

// The characters of a line of a drawing file as they are meant: each one that is no blank is stored mirrored.
[[nodiscard]] std::string unscrambled(std::string_view stored);

// Words of a record behind its type.
struct ModelerRecord {
    std::string_view type;
    std::vector<std::string_view> words;

    // Also of a refined kind: "tedge-edge" is an "edge".
    [[nodiscard]] bool is(std::string_view kind) const;
    // The numbers from a word on, up to the first word that is none.
    [[nodiscard]] std::vector<double> numbersFrom(std::size_t word) const;
    // Behind the last reference to another record.
    [[nodiscard]] std::size_t endOfReferences() const;
};

class ModelerText {
public:
    // The text has its lines ended; the first three say where it comes from.
    explicit ModelerText(std::string text);
    ModelerText(const ModelerText&) = delete;
    ModelerText& operator=(const ModelerText&) = delete;

    [[nodiscard]] const std::vector<ModelerRecord>& records() const { return records_; }
    // The record that a word refers to ("$5"); null for none and for what is no reference.
    [[nodiscard]] const ModelerRecord* referredBy(std::string_view word) const;

private:
    void addRecord(std::vector<std::string_view> words);

    std::string text_;
    std::vector<ModelerRecord> records_;
    std::unordered_map<std::int64_t, std::size_t> byNumber_;
};

} // namespace quor::gs
