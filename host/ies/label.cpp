#include "host/ies/label.h"

#include "host/ies/bytes.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quor::ies {

namespace {

struct VersionTag {
    std::string_view text;
    Edition edition;
};

// The edition of 1986 has none.
constexpr std::array<VersionTag, 4> kVersionTags{{
    {"IESNA91", Edition::Lm1991},
    {"IESNA:LM-63-1995", Edition::Lm1995},
    {"IESNA:LM-63-2002", Edition::Lm2002},
    {"IES:LM-63-2019", Edition::Lm2019},
}};

// Real files have some dozens. What goes beyond is not kept, so that a file of nothing but brackets takes no memory.
constexpr std::size_t kMostKeywords = 1000;

std::optional<Edition> editionOf(std::string_view line) {
    const auto* tag = std::find_if(kVersionTags.begin(), kVersionTags.end(),
                                   [&](const VersionTag& known) { return isWord(line, known.text); });
    return tag == kVersionTags.end() ? std::nullopt : std::optional(tag->edition);
}

// What stands behind "TILT" and "=", which may have blanks around them; nothing for other lines.
std::optional<std::string_view> tiltOf(std::string_view line) {
    constexpr std::string_view kTilt = "TILT";
    if (!startsWithWord(line, kTilt))
        return std::nullopt;
    line = trimmed(line.substr(kTilt.size()));
    if (!line.starts_with('='))
        return std::nullopt;
    return trimmed(line.substr(1));
}

class LabelReader {
public:
    explicit LabelReader(std::string_view text) : lines_(text) {}

    Result<Label, Error> read() {
        std::string_view line;
        while (lines_.next(line)) {
            line = trimmed(line);
            if (line.empty())
                continue;
            if (const auto tilt = tiltOf(line)) {
                if (takeTilt(*tilt))
                    return std::move(label_);
                refuse(*tilt);
            }
            if (firstLine_ != 0 || !takeVersionLine(line))
                takeLine(line);
            firstLine_ = firstLine_ == 0 ? lines_.number() : firstLine_;
        }
        error_.kind = firstLine_ == 0 ? Error::Kind::Empty : error_.kind;
        return fail(std::move(error_));
    }

private:
    // A label may tell of a tilt, too ("Tilt=15 degrees"), so that what names no factors is free text as long as the
    // line that the format wants comes later.
    void refuse(std::string_view tilt) {
        error_.kind = tilt.empty() ? Error::Kind::NoTilt : Error::Kind::TiltFile;
        error_.line = lines_.number();
        error_.excerpt = excerptOf(tilt);
    }

    // A line that looks like a version line without being one that is known is taken as one, too.
    bool takeVersionLine(std::string_view line) {
        edition_ = editionOf(line);
        hasUnknownTag_ = !edition_ && startsWithWord(line, "IES");
        return edition_ || hasUnknownTag_;
    }

    void takeLine(std::string_view line) {
        const std::size_t close = line.starts_with('[') ? line.find(']') : std::string_view::npos;
        const bool isKeyword = close != std::string_view::npos;
        hasKeywords_ = hasKeywords_ || isKeyword;
        std::vector<Keyword>& keywords = label_.keywords;
        if (keywords.size() >= kMostKeywords)
            return;
        if (!isKeyword) {
            keywords.push_back({L"", decoded(line)});
            return;
        }
        const std::string_view name = trimmed(line.substr(1, close - 1));
        const std::string_view text = trimmed(line.substr(close + 1));
        if (isWord(name, "MORE") && !keywords.empty())
            keywords.back().text.append(1, L'\n').append(decoded(text));
        else
            keywords.push_back({decoded(name), decoded(text)});
    }

    void settleEdition() {
        label_.edition = edition_.value_or(hasKeywords_ ? Edition::Lm1995 : Edition::Lm1986);
        if (!edition_ && (hasUnknownTag_ || hasKeywords_))
            label_.warnings.push_back(
                {Warning::Kind::UnknownVersionLine, firstLine_, static_cast<std::size_t>(label_.edition)});
    }

    // Numbers may stand in the line of TILT= already.
    bool takeTilt(std::string_view tilt) {
        const std::string_view word = tilt.substr(0, tilt.find_first_of(" \t,"));
        label_.includesTilt = isWord(word, "INCLUDE");
        if (!label_.includesTilt && !isWord(word, "NONE"))
            return false;
        settleEdition();
        const char* const begin = word.data() + word.size();
        const char* const end = lines_.rest().data() + lines_.rest().size();
        label_.numbers = {begin, static_cast<std::size_t>(end - begin)};
        label_.line = lines_.number();
        return true;
    }

    Lines lines_;
    Label label_;
    Error error_{Error::Kind::NoTilt, 0, 0, {}}; // of the last line TILT= that was passed over
    std::optional<Edition> edition_;
    std::size_t firstLine_ = 0; // that is not blank
    bool hasUnknownTag_ = false;
    bool hasKeywords_ = false;
};

} // namespace

Result<Label, Error> readLabel(std::string_view text) { return LabelReader(text).read(); }

} // namespace quor::ies
