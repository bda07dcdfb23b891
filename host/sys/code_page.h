// The code pages of files: the names that drawings have for them, and conversion of single characters.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// A row of the code page table: how $DWGCODEPAGE spells it, and what the conversion library calls it.
struct CodePageName {
    std::string_view drawingName;
    std::string_view systemName; // empty: plain ASCII
    bool isDoubleByte = false;
};

// Without regard to case; null for an unknown name.
[[nodiscard]] const CodePageName* findCodePage(std::string_view drawingName);

// Every row of the table, for checks of its completeness.
[[nodiscard]] const std::vector<CodePageName>& codePageNames();

// A conversion of the system, closed with its owner. It converts one character at a time.
class Conversion {
public:
    Conversion(std::string_view to, std::string_view from);
    ~Conversion();
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    [[nodiscard]] bool isOpen() const;
    // The result of converting exactly `in`; empty when it is no character, cut, or needs more than 8 bytes.
    [[nodiscard]] std::string convert(std::string_view in) const;

private:
    void* handle_;
};

// One code page that is ASCII below 128 and has one or two bytes to a character above.
class CodePage {
public:
    explicit CodePage(const CodePageName& name);

    [[nodiscard]] std::string_view drawingName() const { return name_.drawingName; }
    // False when the system lacks the conversion: then no byte above 127 is a character.
    [[nodiscard]] bool isUsable() const { return usable_; }

    // The character that begins at `bytes[at]`; moves `at` behind it. A byte that begins no character gives its
    // escape (host/sys/utf8.h).
    [[nodiscard]] wchar_t next(std::string_view bytes, std::size_t& at) const;

    // True when these two bytes side by side are one character.
    [[nodiscard]] bool joins(char first, char second) const;

    // Appends the bytes of a character above 127; false, and nothing is appended, when the page does not have it.
    [[nodiscard]] bool append(std::string& out, wchar_t c) const;

private:
    struct SingleByte {
        wchar_t character;
        unsigned char byte;
    };

    [[nodiscard]] wchar_t decodeOne(std::string_view bytes) const;
    [[nodiscard]] wchar_t decodePair(std::string_view bytes) const;
    void buildSingleBytes();

    CodePageName name_;
    std::optional<Conversion> toWide_;
    std::optional<Conversion> fromWide_;
    bool usable_ = true;
    std::array<wchar_t, 128> high_{}; // bytes 128 to 255 that are a character alone, else 0
    std::vector<SingleByte> singles_; // the same by character
};

} // namespace quor
