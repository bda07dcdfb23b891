// Angles as people type them.
#include <cmath>
#include <numbers>

#include "host/db/units_parse.h"
#include "host/db/units_scan.h"

namespace quor::units {

namespace {

constexpr double kPi = std::numbers::pi;

double fromDegrees(double degrees) { return degrees * kPi / 180; }
double fromGrads(double grads) { return grads * kPi / 200; }

bool isWhole(double value) { return std::floor(value) == value; }

// What follows the "d" of 45d30'15.5", added to the degrees. Only the last part may have decimals, and minutes and
// seconds stay below 60. The mark of the last part may be missing.
std::optional<double> takeMinutesAndSeconds(Scanner& scanner, double degrees) {
    const auto first = scanner.takeDecimal();
    if (!first)
        return degrees;
    if (*first >= 60 || !isWhole(degrees))
        return std::nullopt;
    if (scanner.take(L'"'))
        return degrees + *first / 3600;
    const double minutes = degrees + *first / 60;
    const auto seconds = scanner.take(L'\'') ? scanner.takeDecimal() : std::nullopt;
    if (!seconds)
        return minutes;
    if (*seconds >= 60 || !isWhole(*first))
        return std::nullopt;
    scanner.take(L'"');
    return minutes + *seconds / 3600;
}

// A number that is degrees with or without the letter behind it.
std::optional<double> takeDegrees(Scanner& scanner) {
    const auto degrees = scanner.takeDecimal();
    return degrees && scanner.takeLetter('D') ? takeMinutesAndSeconds(scanner, *degrees) : degrees;
}

// N, E, S, W and bearings such as N45dE, in radians.
std::optional<double> takeBearing(Scanner& scanner) {
    if (scanner.takeLetter('E'))
        return 0.0;
    if (scanner.takeLetter('W'))
        return kPi;
    const bool north = scanner.takeLetter('N');
    if (!north && !scanner.takeLetter('S'))
        return std::nullopt;
    const double axis = north ? 90 : 270;
    if (scanner.atEnd())
        return fromDegrees(axis);
    scanner.take(L' ');
    const auto bearing = takeDegrees(scanner);
    if (!bearing || *bearing > 90)
        return std::nullopt;
    scanner.take(L' ');
    const bool east = scanner.takeLetter('E');
    if (!east && !scanner.takeLetter('W'))
        return std::nullopt;
    return fromDegrees(north == east ? axis - *bearing : axis + *bearing);
}

std::optional<double> takeMagnitude(Scanner& scanner, int format) {
    const auto number = scanner.takeDecimal();
    if (!number)
        return std::nullopt;
    if (scanner.takeLetter('D')) {
        const auto degrees = takeMinutesAndSeconds(scanner, *number);
        return degrees ? std::optional(fromDegrees(*degrees)) : std::nullopt;
    }
    if (scanner.takeLetter('G'))
        return fromGrads(*number);
    if (scanner.takeLetter('R'))
        return *number;
    switch (format) {
    case kGrads:
        return fromGrads(*number);
    case kRadians:
        return *number;
    default:
        return fromDegrees(*number);
    }
}

} // namespace

std::optional<double> parseAngle(std::wstring_view text, int format, const UnitSettings& settings) {
    const int chosen = format == -1 ? settings.angleFormat : format;
    if (chosen < kDegrees || chosen > kSurveyor)
        return std::nullopt;
    Scanner scanner(text);
    auto angle = takeBearing(scanner);
    if (!angle) {
        scanner = Scanner(text);
        const bool minus = scanner.takeMinus();
        angle = takeMagnitude(scanner, chosen);
        if (angle && minus)
            angle = -*angle;
    }
    if (!angle || !scanner.atEnd())
        return std::nullopt;
    const double radians = settings.angleBase + (settings.clockwise ? -*angle : *angle);
    return std::isfinite(radians) ? std::optional(radians) : std::nullopt;
}

} // namespace quor::units
