// Cuts a text into answers: scripts, macros and typed lines. Pure; views into the text, no copies.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quor::ed {

// What ends an answer.
enum class AnswerSyntax {
    Script, // blank, line end; ";" at the start of a line is a comment
    Macro,  // blank, ";", line end
    Line,   // blank; one line as a person typed it
};

struct RawAnswer {
    enum class Kind { Text, Enter, Escape };
    Kind kind = Kind::Text;
    std::string_view text; // UTF-8
};

class AnswerReader {
public:
    // The text must outlive the reader. A byte order mark at its start is skipped.
    AnswerReader(std::string_view text, AnswerSyntax syntax);

    // The next answer; nothing at the end of the text. An answer that accepts blanks goes to the end of its line (in a
    // macro to the next ";").
    std::optional<RawAnswer> next(bool acceptsBlanks);
    // Whether nothing but comments is left.
    [[nodiscard]] bool atEnd();
    // The line, from 1, on which the last answer stood.
    [[nodiscard]] std::size_t line() const { return lineOfAnswer_; }

private:
    void skipComments();
    [[nodiscard]] bool isSeparator(char c, bool acceptsBlanks) const;
    void takeSeparator(bool acceptsBlanks);

    std::string_view text_;
    AnswerSyntax syntax_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t lineOfAnswer_ = 1;
    bool atLineStart_ = true;
};

} // namespace quor::ed
