// Angles: degrees, degrees with minutes and seconds, grads, radians, bearings.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include <fmt/format.h>

#include "host/db/units_format.h"

namespace quor::units {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

struct AngleStyle {
    int precision;
    bool typed; // written as it is typed: no blanks
};

// The angle as the settings count it, 0 <= angle < one turn.
double relativeAngle(double radians, const UnitSettings& settings) {
    const double difference = radians - settings.angleBase;
    const double angle = std::fmod(settings.clockwise ? -difference : difference, kTurn);
    const double positive = angle < 0 ? angle + kTurn : angle;
    return positive < kTurn ? positive + 0.0 : 0.0;
}

// A part of a turn in units of which a turn has `unitsPerTurn`. What is rounded up to a whole turn shows as 0.
std::string decimalAngle(double radians, double unitsPerTurn, const AngleStyle& style) {
    const std::string text = fmt::format("{:.{}f}", radians / kTurn * unitsPerTurn, style.precision);
    const bool wholeTurn = text == fmt::format("{:.{}f}", unitsPerTurn, style.precision);
    return wholeTurn ? fmt::format("{:.{}f}", 0.0, style.precision) : text;
}

std::string degrees(double radians, const AngleStyle& style) { return decimalAngle(radians, 360, style); }
std::string grads(double radians, const AngleStyle& style) { return decimalAngle(radians, 400, style) + 'g'; }
std::string plainRadians(double radians, const AngleStyle& style) { return decimalAngle(radians, kTurn, style) + 'r'; }

// What an angular precision shows: 0 degrees, 1 and 2 minutes, 3 and 4 seconds, from 5 on decimals of seconds.
int secondDecimals(int precision) { return std::max(precision - 4, 0); }

// How many of the smallest unit shown a degree has.
long long partsPerDegree(int precision) {
    if (precision == 0)
        return 1;
    if (precision <= 2)
        return 60;
    long long parts = 3600;
    for (int i = 0; i < secondDecimals(precision); ++i)
        parts *= 10;
    return parts;
}

// Counting in whole parts makes the carry from seconds to minutes to degrees come by itself.
long long countParts(double radians, int precision) {
    const long long parts = partsPerDegree(precision);
    return std::llround(radians / kTurn * 360 * static_cast<double>(parts)) % (360 * parts);
}

std::string partsText(long long count, int precision) {
    const long long parts = partsPerDegree(precision);
    const long long wholeDegrees = count / parts;
    const long long rest = count % parts;
    if (precision == 0)
        return fmt::format("{}d", wholeDegrees);
    const long long partsPerMinute = parts / 60;
    if (precision <= 2)
        return fmt::format("{}d{}'", wholeDegrees, rest / partsPerMinute);
    const long long partsPerSecond = parts / 3600;
    const long long seconds = rest % partsPerMinute;
    const std::string text = fmt::format("{}d{}'{}", wholeDegrees, rest / partsPerMinute, seconds / partsPerSecond);
    if (secondDecimals(precision) == 0)
        return text + '"';
    return text + fmt::format(".{:0{}}\"", seconds % partsPerSecond, secondDecimals(precision));
}

std::string degreesMinutesSeconds(double radians, const AngleStyle& style) {
    return partsText(countParts(radians, style.precision), style.precision);
}

// A bearing turns from north or south towards east or west; the four main directions have a letter only.
std::string surveyor(double radians, const AngleStyle& style) {
    struct Quadrant {
        std::string_view axis; // the main direction at its start
        std::string_view from;
        std::string_view towards;
        bool growsFromAxis; // the bearing is counted from the start of the quadrant
    };
    constexpr Quadrant quadrants[] = {
        {"E", "N", "E", false}, {"N", "N", "W", true}, {"W", "S", "W", false}, {"S", "S", "E", true}};

    const long long count = countParts(radians, style.precision);
    const long long quarter = 90 * partsPerDegree(style.precision);
    const Quadrant& quadrant = quadrants[count / quarter];
    const long long rest = count % quarter;
    if (rest == 0)
        return std::string(quadrant.axis);
    const std::string text = partsText(quadrant.growsFromAxis ? rest : quarter - rest, style.precision);
    return fmt::format("{0}{3}{1}{3}{2}", quadrant.from, text, quadrant.towards, style.typed ? "" : " ");
}

using Writer = std::string (*)(double, const AngleStyle&);
constexpr Writer kWriters[] = {degrees, degreesMinutesSeconds, grads, plainRadians, surveyor};

} // namespace

std::wstring formatAngle(double radians, int format, int precision, const UnitSettings& settings) {
    const int chosen = format == -1 ? settings.angleFormat : format;
    const double angle = relativeAngle(radians, settings);
    if (chosen < kDegrees || chosen > kSurveyor || !std::isfinite(radians - settings.angleBase))
        return {};
    const int digits = precision == -1 ? settings.anglePrecision : precision;
    const AngleStyle style{std::clamp(digits, 0, kMaxPrecision), settings.unitMode == 1};
    const std::string text = kWriters[chosen](angle, style);
    return {text.begin(), text.end()};
}

} // namespace quor::units
