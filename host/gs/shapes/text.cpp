// TEXT, ATTRIB: one line.
#include "host/db/data.h"
#include "host/gs/shapes/kinds.h"
#include "host/gs/shapes/lettering.h"
#include "host/gs/shapes/stroke_font.h"
#include "host/gs/shapes/text_lines.h"
#include "host/gs/shapes/values.h"

#include <array>
#include <cmath>

namespace quor::gs {

namespace {

using Numbers = Values<10, 20, 30, 11, 21, 31, 40, 41, 50, 51, 70, 71, 72, 73, 74, 210, 220, 230>;

enum Horizontal { Left = 0, Center = 1, Right = 2, Aligned = 3, Middle = 4, Fit = 5 };
constexpr int kBackwards = 2;
constexpr int kUpsideDown = 4;

// Capitals, from where the text is held.
double heightOfHold(const Numbers& numbers, int vertical) {
    constexpr std::array<double, 4> holds{0, -kBaseLine, kCapitalHeight / 2.0, kCapitalHeight};
    if (numbers.whole<72>() == Middle)
        return kCapitalHeight / 2.0;
    return vertical < 0 || vertical > 3 ? 0 : holds[static_cast<std::size_t>(vertical)];
}

// From one point to another, as wide as that; an aligned text is as high as it is wide then.
Lettering between(const Numbers& numbers, double width, double unit) {
    const ZrGeVector3d way = numbers.point<11>() - numbers.point<10>();
    const ZrGeVector3d right = width > 0 ? way / width : ZrGeVector3d();
    const ZrGeVector3d up(-way.y, way.x, 0);
    const double high = numbers.whole<72>() == Aligned ? right.length() : unit;
    return {numbers.point<10>(), right, up.normal() * high};
}

Lettering heldAtAPoint(const Numbers& numbers, int vertical, double width, double unit) {
    const double angle = numbers.real<50>() * db::kDegree;
    ZrGeVector3d right = ZrGeVector3d(std::cos(angle), std::sin(angle), 0) * unit;
    ZrGeVector3d up(-right.y, right.x, 0);
    right *= numbers.real<41>(1);
    const int horizontal = numbers.whole<72>();
    const int generation = numbers.whole<71>();
    right *= (generation & kBackwards) != 0 ? -1 : 1;
    up *= (generation & kUpsideDown) != 0 ? -1 : 1;
    const double across = horizontal == Right ? width : horizontal == Center || horizontal == Middle ? width / 2 : 0;
    const bool isHeld = horizontal != Left || vertical != 0;
    const ZrGePoint3d hold = isHeld ? numbers.point<11>() : numbers.point<10>();
    return {hold - right * across - up * heightOfHold(numbers, vertical), right, up};
}

ZrString textOf(const Source& source) {
    static constexpr dxf::CodeSet kWanted{1};
    BodyTags tags(source, kWanted);
    return tags.next() ? plainText(drawableText(source, tags.tag())) : ZrString();
}

void show(const Source& source, const Numbers& numbers, int vertical, Pen& pen) {
    const ZrString text = textOf(source);
    if (text.empty())
        return;
    const double width = widthOf(text);
    const double unit = numbers.real<40>(1) / kCapitalHeight;
    const int horizontal = numbers.whole<72>();
    Lettering lettering = horizontal == Aligned || horizontal == Fit ? between(numbers, width, unit)
                                                                     : heldAtAPoint(numbers, vertical, width, unit);
    const ZrGeVector3d right = lettering.right.normal(ZrGeTol(0, 0));
    lettering.up += right * (lettering.up.length() * std::tan(numbers.real<51>() * db::kDegree));
    const ZrGeMatrix3d plane = numbers.plane();
    showLetters(text, {plane * lettering.origin, plane * lettering.right, plane * lettering.up}, pen);
    pen.snap(SnapPoint::Kind::End, plane * numbers.point<10>());
}

} // namespace

void showText(const Source& source, Pen& pen) {
    const Numbers numbers(source);
    if (!numbers.isBroken())
        show(source, numbers, numbers.whole<73>(), pen);
}

// Which has other flags in 70, and what a text has in 73 in 74.
void showAttribute(const Source& source, Pen& pen) {
    constexpr int kHidden = 1;
    const Numbers numbers(source);
    if (!numbers.isBroken() && (numbers.whole<70>() & kHidden) == 0)
        show(source, numbers, numbers.whole<74>(), pen);
}

} // namespace quor::gs
