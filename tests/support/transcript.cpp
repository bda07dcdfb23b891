#include "tests/support/transcript.h"

#include <algorithm>

namespace quor::test {

namespace {

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

constexpr std::string_view kMarks = ">#\\";

} // namespace

std::vector<TranscriptLine> readTranscript(std::string_view file) {
    using Kind = TranscriptLine::Kind;
    std::vector<TranscriptLine> lines;
    std::size_t commentsSinceOutput = 0; // at the end of `lines`
    for (const std::string_view line : splitLines(file)) {
        if (line.starts_with('>')) {
            lines.push_back({Kind::Typed, std::string(line.substr(line.starts_with("> ") ? 2 : 1)), false});
            commentsSinceOutput = 0;
        } else if (line.starts_with("#!")) {
            lines.push_back({Kind::Directive, std::string(line), false});
            commentsSinceOutput = 0;
        } else if (line.starts_with('#')) {
            lines.push_back({Kind::Comment, std::string(line), false});
            ++commentsSinceOutput;
        } else {
            for (; commentsSinceOutput > 0; --commentsSinceOutput)
                lines[lines.size() - commentsSinceOutput].beforeOutput = true;
        }
    }
    return lines;
}

const TranscriptLine* TranscriptRecording::peek() const {
    const auto isComment = [](const TranscriptLine& line) { return line.kind == TranscriptLine::Kind::Comment; };
    const auto at = std::find_if_not(lines_.begin() + static_cast<std::ptrdiff_t>(at_), lines_.end(), isComment);
    return at == lines_.end() ? nullptr : &*at;
}

const TranscriptLine* TranscriptRecording::next() {
    writeComments(true);
    writePrinted();
    writeComments(false);
    if (at_ >= lines_.size())
        return nullptr;
    const TranscriptLine& line = lines_[at_++];
    const bool isTyped = line.kind == TranscriptLine::Kind::Typed;
    writeLine(!isTyped ? line.text : line.text.empty() ? ">" : "> " + line.text);
    return &line;
}

std::string TranscriptRecording::finish() {
    writeComments(true);
    writePrinted();
    writeComments(false);
    return file_;
}

void TranscriptRecording::writeComments(bool beforeOutput) {
    for (; at_ < lines_.size() && lines_[at_].kind == TranscriptLine::Kind::Comment; ++at_) {
        if (beforeOutput && !lines_[at_].beforeOutput)
            return;
        writeLine(lines_[at_].text);
    }
}

void TranscriptRecording::writePrinted() {
    for (const std::string_view line : splitLines(printed_)) {
        const bool looksTyped = !line.empty() && kMarks.find(line.front()) != std::string_view::npos;
        writeLine((looksTyped ? "\\" : "") + std::string(line));
    }
    printed_.clear();
}

void TranscriptRecording::writeLine(std::string_view line) {
    file_ += line;
    file_ += '\n';
}

namespace {

// Length of the longest common subsequence of the lines from (i, j) on.
class CommonLines {
public:
    CommonLines(const std::vector<std::string_view>& a, const std::vector<std::string_view>& b)
        : columns_(b.size() + 1), lengths_((a.size() + 1) * columns_) {
        for (std::size_t i = a.size(); i-- > 0;)
            for (std::size_t j = b.size(); j-- > 0;)
                at(i, j) = a[i] == b[j] ? at(i + 1, j + 1) + 1 : std::max(at(i + 1, j), at(i, j + 1));
    }
    [[nodiscard]] unsigned& at(std::size_t i, std::size_t j) { return lengths_[i * columns_ + j]; }

private:
    std::size_t columns_;
    std::vector<unsigned> lengths_;
};

// All lines with their mark: ' ' common, '-' expected only, '+' came only.
std::vector<std::string> markedLines(const std::vector<std::string_view>& a, const std::vector<std::string_view>& b) {
    CommonLines common(a, b);
    std::vector<std::string> marked;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() || j < b.size()) {
        if (i < a.size() && j < b.size() && a[i] == b[j]) {
            marked.push_back(" " + std::string(a[i++]));
            ++j;
        } else if (j == b.size() || (i < a.size() && common.at(i + 1, j) >= common.at(i, j + 1))) {
            marked.push_back("-" + std::string(a[i++]));
        } else {
            marked.push_back("+" + std::string(b[j++]));
        }
    }
    return marked;
}

} // namespace

std::string difference(std::string_view expected, std::string_view actual) {
    constexpr std::size_t kContext = 3;
    if (expected == actual)
        return {};
    const std::vector<std::string> lines = markedLines(splitLines(expected), splitLines(actual));
    std::vector<bool> shown(lines.size(), false);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].front() != ' ')
            for (std::size_t k = i - std::min(i, kContext); k <= std::min(i + kContext, lines.size() - 1); ++k)
                shown[k] = true;
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (shown[i])
            text += lines[i] + "\n";
        else if (i > 0 && shown[i - 1])
            text += " ...\n";
    }
    return text.empty() ? " (only the end of the last line differs)\n" : text;
}

} // namespace quor::test
