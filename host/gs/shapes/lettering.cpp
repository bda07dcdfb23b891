#include "host/gs/shapes/lettering.h"

#include "host/gs/letters.h"
#include "host/gs/shapes/stroke_font.h"

#include <optional>

namespace quor::gs {

namespace {

// How a character is drawn: by its outline where the program has one for it, else by strokes.
struct Letter {
    explicit Letter(char32_t character) : strokes(strokesOf(character)) {
        if (isBox(strokes))
            outline = letterOutline(character);
    }
    // Units of the grid.
    [[nodiscard]] double width() const {
        return outline != nullptr ? outline->advance * kCapitalHeight : advanceOf(strokes) * kLetterWidth;
    }

    Strokes strokes;
    const LetterOutline* outline = nullptr;
};

void showOutline(const LetterOutline& outline, double x, const Lettering& lettering, Pen& pen) {
    for (const std::vector<ZrGePoint2d>& stroke : outline.strokes) {
        std::optional<ZrGePoint3d> last;
        for (const ZrGePoint2d& point : stroke) {
            const ZrGePoint3d at = lettering.origin + lettering.right * (x + point.x * kCapitalHeight) +
                                   lettering.up * (point.y * kCapitalHeight);
            if (last)
                pen.line(*last, at);
            last = at;
        }
    }
}

void showStrokes(Strokes strokes, double x, const Lettering& lettering, Pen& pen) {
    std::optional<ZrGePoint3d> last;
    for (std::size_t i = 0; i + 1 < strokes.size(); i += last ? 2 : 1) {
        if (strokes[i] == ' ') {
            last.reset();
            continue;
        }
        const ZrGePoint3d at = lettering.origin + lettering.right * (x + (strokes[i] - '0') * kLetterWidth) +
                               lettering.up * (strokes[i + 1] - '0' - kBaseLine);
        if (last)
            pen.line(*last, at);
        last = at;
    }
}

} // namespace

double widthOf(const ZrString& text) {
    double width = 0;
    for (const wchar_t c : text)
        width += Letter(static_cast<char32_t>(c)).width();
    return width;
}

void showLetters(const ZrString& text, const Lettering& lettering, Pen& pen) {
    if (pen.wanted() != Wanted::Lines)
        return;
    double x = 0;
    for (const wchar_t c : text) {
        if (pen.isFull())
            return;
        const Letter letter(static_cast<char32_t>(c));
        if (letter.outline != nullptr)
            showOutline(*letter.outline, x, lettering, pen);
        else
            showStrokes(letter.strokes, x, lettering, pen);
        x += letter.width();
    }
}

} // namespace quor::gs
