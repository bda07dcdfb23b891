#include "host/gs/shapes/lettering.h"

#include "host/gs/shapes/stroke_font.h"

#include <optional>

namespace quor::gs {

double widthOf(const ZrString& text) {
    double width = 0;
    for (const wchar_t c : text)
        width += advanceOf(strokesOf(static_cast<char32_t>(c)));
    return width * kLetterWidth;
}

void showLetters(const ZrString& text, const Lettering& lettering, Pen& pen) {
    if (pen.wanted() != Wanted::Lines)
        return;
    double x = 0;
    for (const wchar_t c : text) {
        if (pen.isFull())
            return;
        const Strokes strokes = strokesOf(static_cast<char32_t>(c));
        std::optional<ZrGePoint3d> last;
        for (std::size_t i = 0; i + 1 < strokes.size(); i += last ? 2 : 1) {
            if (strokes[i] == ' ') {
                last.reset();
                continue;
            }
            const ZrGePoint3d at = lettering.origin + lettering.right * ((x + strokes[i] - '0') * kLetterWidth) +
                                   lettering.up * (strokes[i + 1] - '0' - kBaseLine);
            if (last)
                pen.line(*last, at);
            last = at;
        }
        x += advanceOf(strokes);
    }
}

} // namespace quor::gs
