// MTEXT: lines one below the other, broken where they are too long.
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/lettering.h"
#include "host/gs/shapes/stroke_font.h"
#include "host/gs/shapes/text_lines.h"
#include "host/gs/shapes/values.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quor::gs {

namespace {

using Numbers = Values<10, 20, 30, 11, 21, 31, 40, 41, 44, 50, 71, 210, 220, 230>;

constexpr double kLineSpacing = 5.0 / 3; // of the height of capitals

// The text comes in pieces, the last one with a code of its own.
ZrString textOf(const Source& source) {
    static constexpr dxf::CodeSet kWanted{1, 3, kEmbeddedObject};
    ZrString text;
    BodyTags tags(source, kWanted);
    while (text.size() < kLongestText && tags.next())
        text += drawableText(source, tags.tag());
    return text;
}

// At blanks, where it is wider than that.
void addBroken(const ZrString& line, double mostWidth, std::vector<ZrString>& lines) {
    ZrString begun;
    double width = 0;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = std::min(line.find(L' ', at), line.size() - 1) + 1;
        const ZrString word = line.substr(at, end - at);
        const double wordWidth = widthOf(word);
        if (!begun.empty() && width + wordWidth > mostWidth) {
            lines.push_back(std::exchange(begun, {}));
            width = 0;
        }
        begun += word;
        width += wordWidth;
        at = end;
    }
    lines.push_back(std::move(begun));
}

std::vector<ZrString> linesOf(const Source& source, double mostWidth) {
    const std::vector<ZrString> paragraphs = plainLines(textOf(source));
    if (!(mostWidth > 0))
        return paragraphs;
    std::vector<ZrString> lines;
    for (const ZrString& paragraph : paragraphs)
        addBroken(paragraph, mostWidth, lines);
    return lines;
}

// Along the lines, in the world.
ZrGeVector3d directionOf(const Numbers& numbers) {
    if (numbers.has<11>())
        return numbers.point<11>().asVector().normal();
    const double angle = numbers.real<50>();
    return numbers.plane() * ZrGeVector3d(std::cos(angle), std::sin(angle), 0);
}

} // namespace

void showParagraph(const Source& source, Pen& pen) {
    const Numbers numbers(source);
    if (numbers.isBroken())
        return;
    const double unit = numbers.real<40>(1) / kCapitalHeight;
    const std::vector<ZrString> lines = linesOf(source, unit > 0 ? numbers.real<41>() / unit : 0);
    const ZrGeVector3d direction = directionOf(numbers);
    const ZrGeVector3d normal = ZrGeVector3d(numbers.real<210>(), numbers.real<220>(), numbers.real<230>(1)).normal();
    const ZrGeVector3d right = direction * unit;
    const ZrGeVector3d up = normal.crossProduct(right);
    // Nine places at which it is held: from the left to the right, from the top to the bottom.
    const int hold = std::clamp(numbers.whole<71>(1), 1, 9) - 1;
    const double step = kCapitalHeight * kLineSpacing * numbers.real<44>(1);
    const double height = kCapitalHeight + step * static_cast<double>(lines.size() - 1);
    double y = height * (hold / 3) / 2 - kCapitalHeight;
    for (const ZrString& line : lines) {
        const double x = -widthOf(line) * (hold % 3) / 2;
        showLetters(line, {numbers.point<10>() + right * x + up * y, right, up}, pen);
        y -= step;
    }
    pen.snap(SnapPoint::Kind::End, numbers.point<10>());
}

} // namespace quor::gs
