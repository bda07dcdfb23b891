// One transcript file: what is typed, the comments beside it, and what the program is expected to print.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quor::test {

// A line of the file that is not the program's.
struct TranscriptLine {
    enum class Kind { Typed, Comment, Directive };
    Kind kind = Kind::Typed;
    std::string text;          // what is typed; a comment or directive as it stands
    bool beforeOutput = false; // a comment that stands above what the program prints, not directly above a typed line
};

// "> " and ">" begin a typed line, "#! " a directive, "#" a comment; all others are the program's.
[[nodiscard]] std::vector<TranscriptLine> readTranscript(std::string_view file);

// The file as the session makes it: the same lines, with what the program printed between them. A printed line that
// could be taken for one of the others gets a leading backslash. Blanks at the end of a line belong to it.
class TranscriptRecording {
public:
    explicit TranscriptRecording(std::vector<TranscriptLine> lines) : lines_(std::move(lines)) {}

    // UTF-8.
    void print(std::string_view text) { printed_ += text; }
    // The next typed line or directive without moving to it; null at the end.
    [[nodiscard]] const TranscriptLine* peek() const;
    // Moves to it; what was printed so far stands above it.
    const TranscriptLine* next();
    // The whole file.
    [[nodiscard]] std::string finish();

private:
    void writeComments(bool beforeOutput);
    void writePrinted();
    void writeLine(std::string_view line);

    std::vector<TranscriptLine> lines_;
    std::size_t at_ = 0;
    std::string printed_;
    std::string file_;
};

// The lines that differ: "-" is expected, "+" came, with the lines around them; empty when both are equal.
[[nodiscard]] std::string difference(std::string_view expected, std::string_view actual);

} // namespace quor::test
