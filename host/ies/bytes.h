// The bytes of a web file as lines and as text for people.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quor::ies {

// Takes a text apart into lines that end with LF, CR or both.
class Lines {
public:
    explicit Lines(std::string_view text) : rest_(text) {}

    // Without its end; false behind the last one.
    bool next(std::string_view& line);
    // The number of the line that came last, from 1.
    [[nodiscard]] std::size_t number() const { return number_; }
    // What stands behind that line.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

// Without the blanks and control characters at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

// Without regard to the case of ASCII letters; `capitals` is in capital letters.
[[nodiscard]] bool isWord(std::string_view text, std::string_view capitals);
[[nodiscard]] bool startsWithWord(std::string_view text, std::string_view capitals);

// UTF-8, else the code page of China (GBK), else Latin-1: makers write in any of them. Two neighbouring bytes of a text
// in Latin-1 may look like a character of GBK, so that most of its characters have to be of the common kind whose bytes
// are both beyond ASCII.
[[nodiscard]] std::wstring decoded(std::string_view bytes);

// The first 40 characters, those that command a terminal shown as '?'.
[[nodiscard]] std::wstring excerptOf(std::string_view bytes);

} // namespace quor::ies
