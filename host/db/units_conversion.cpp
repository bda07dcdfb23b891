// The lengths of the drawing units, as exact fractions of a metre.
#include "host/db/units_conversion.h"

#include <array>

namespace quor::units {

namespace {

// A fraction, because 0.0254 has no exact binary form but 127/5000 has exact parts: an inch in a foot gives exactly 12.
struct Metres {
    double numerator;
    double denominator;
};

// 299 792 458 m/s (SI, the metre of 1983) times the Julian year of 365.25 days of 86 400 s.
constexpr Metres kLightYear{9460730472580800.0, 1};
// 149 597 870 700 m: International Astronomical Union, resolution B2 of 2012.
constexpr Metres kAstronomicalUnit{149597870700.0, 1};
// 648 000 / pi astronomical units: International Astronomical Union, resolution B2 of 2015.
constexpr Metres kParsec{149597870700.0 * 648000, 3.14159265358979323846};

// International inch 25.4 mm, foot 12 in, yard 36 in, mile 5280 ft: the yard and pound agreement of 1959.
// US survey foot 1200/3937 m: the Mendenhall order of 1893. All others are decimal parts of the metre.
constexpr std::array<Metres, 25> kUnits{{
    {1, 1},            // 0 unitless, never used
    {127, 5000},       // 1 inch
    {381, 1250},       // 2 foot
    {201168, 125},     // 3 mile
    {1, 1000},         // 4 millimetre
    {1, 100},          // 5 centimetre
    {1, 1},            // 6 metre
    {1000, 1},         // 7 kilometre
    {127, 5e9},        // 8 microinch
    {127, 5000000},    // 9 mil, a thousandth of an inch
    {1143, 1250},      // 10 yard
    {1, 1e10},         // 11 angstrom
    {1, 1e9},          // 12 nanometre
    {1, 1e6},          // 13 micron
    {1, 10},           // 14 decimetre
    {10, 1},           // 15 decametre
    {100, 1},          // 16 hectometre
    {1e9, 1},          // 17 gigametre
    kAstronomicalUnit, // 18
    kLightYear,        // 19
    kParsec,           // 20
    {1200, 3937},      // 21 US survey foot
    {100, 3937},       // 22 US survey inch
    {3600, 3937},      // 23 US survey yard
    {6336000, 3937},   // 24 US survey mile, 5280 survey feet
}};

constexpr bool isKnown(int unit) { return unit >= 0 && unit < static_cast<int>(kUnits.size()); }

} // namespace

std::optional<double> unitsConversion(int from, int to) {
    if (!isKnown(from) || !isKnown(to))
        return std::nullopt;
    if (from == to || from == 0 || to == 0)
        return 1.0;
    const Metres& a = kUnits[static_cast<std::size_t>(from)];
    const Metres& b = kUnits[static_cast<std::size_t>(to)];
    return (a.numerator * b.denominator) / (a.denominator * b.numerator);
}

} // namespace quor::units
