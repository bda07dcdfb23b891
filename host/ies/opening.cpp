#include "host/ies/opening.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace quor::ies {

namespace {

// Which of width (W), length (L) and height (H) are the same number.
enum class Same : std::uint8_t { Any, WidthLength, WidthHeight, LengthHeight, All };

struct Rule {
    std::string_view signs; // of width, length and height: '-', '0' or '+'
    Same same;
    OpeningShape shape;
    std::string_view sizes; // which of the three tell its size, in the order in which they are told
};

// What is tried first comes first.
using Rules = std::vector<Rule>;

const Rules kOfAllEditions{
    {"000", Same::Any, OpeningShape::Point, ""},
    {"++0", Same::Any, OpeningShape::Rectangle, "WL"},
    {"+++", Same::Any, OpeningShape::Box, "WLH"},
};

// Of 1986 and 1991.
const Rules kOfOldEditions{
    {"-00", Same::Any, OpeningShape::Disc, "W"},
    {"-0+", Same::Any, OpeningShape::Cylinder, "WH"},
    {"-+0", Same::Any, OpeningShape::Ellipse, "WL"},
    {"-++", Same::Any, OpeningShape::Ellipsoid, "WLH"},
};

const Rules kOf1995{
    {"-00", Same::Any, OpeningShape::Disc, "W"},
    {"-0+", Same::Any, OpeningShape::Cylinder, "WH"},
    {"-0-", Same::WidthHeight, OpeningShape::Sphere, "W"},
    {"0+-", Same::Any, OpeningShape::CylinderAlong, "HL"},
    {"+0-", Same::Any, OpeningShape::CylinderAcross, "HW"},
};

// From 2002 on.
const Rules kOfNewEditions{
    {"--0", Same::WidthLength, OpeningShape::Disc, "W"},
    {"--0", Same::Any, OpeningShape::Ellipse, "WL"},
    {"--+", Same::WidthLength, OpeningShape::Cylinder, "WH"},
    {"--+", Same::Any, OpeningShape::EllipticalCylinder, "WLH"},
    {"---", Same::All, OpeningShape::Sphere, "W"},
    {"---", Same::Any, OpeningShape::Ellipsoid, "WLH"},
    {"-+-", Same::WidthHeight, OpeningShape::CylinderAlong, "WL"},
    {"+--", Same::LengthHeight, OpeningShape::CylinderAcross, "LW"},
    {"-0-", Same::WidthHeight, OpeningShape::UprightDisc, "W"},
};

const Rules& rulesOf(Edition edition) {
    switch (edition) {
    case Edition::Lm1986:
    case Edition::Lm1991:
        return kOfOldEditions;
    case Edition::Lm1995:
        return kOf1995;
    case Edition::Lm2002:
    case Edition::Lm2019:
        break;
    }
    return kOfNewEditions;
}

bool areSame(Same same, const PhotometricWeb& web) {
    switch (same) {
    case Same::Any:
        return true;
    case Same::WidthLength:
        return web.width == web.length;
    case Same::WidthHeight:
        return web.width == web.height;
    case Same::LengthHeight:
        return web.length == web.height;
    case Same::All:
        return web.width == web.length && web.length == web.height;
    }
    return false;
}

char signOf(double size) { return size < 0 ? '-' : size > 0 ? '+' : '0'; }

const Rule* ruleFor(const PhotometricWeb& web, const Rules& rules) {
    const std::array<char, 3> signs{signOf(web.width), signOf(web.length), signOf(web.height)};
    const auto rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& candidate) {
        return std::equal(signs.begin(), signs.end(), candidate.signs.begin()) && areSame(candidate.same, web);
    });
    return rule == rules.end() ? nullptr : &*rule;
}

double sizeOf(const PhotometricWeb& web, char which) {
    return std::abs(which == 'W' ? web.width : which == 'L' ? web.length : web.height);
}

} // namespace

Opening openingOf(const PhotometricWeb& web) {
    const Rule* rule = ruleFor(web, kOfAllEditions);
    if (rule == nullptr)
        rule = ruleFor(web, rulesOf(web.edition));
    if (rule == nullptr)
        return {OpeningShape::Unknown, {web.width, web.length, web.height}};
    Opening opening{rule->shape, {}};
    for (const char which : rule->sizes)
        opening.sizes.push_back(sizeOf(web, which));
    return opening;
}

} // namespace quor::ies
