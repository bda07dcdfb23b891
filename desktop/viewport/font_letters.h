// Letters of the desktop's fonts as outlines, for the texts of drawings that the built-in stroke font cannot write.
#pragma once

#include "host/gs/letters.h"

#include <QFont>

#include <unordered_map>

namespace quor::desktop {

// Gives the host outlines for as long as it lives.
class FontLetters {
public:
    FontLetters();
    ~FontLetters();
    FontLetters(const FontLetters&) = delete;
    FontLetters& operator=(const FontLetters&) = delete;

private:
    [[nodiscard]] const gs::LetterOutline* outlineOf(char32_t character);

    QFont font_;
    std::unordered_map<char32_t, gs::LetterOutline> outlines_; // empty for what no font has
};

} // namespace quor::desktop
