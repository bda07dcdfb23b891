// Lengths: scientific, decimal, feet with inches, fractions.
#include "host/db/units_format.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include <fmt/format.h>

namespace quor::units {

namespace {

// What the writers below share. They all write a magnitude; the sign is put in front at the end.
struct LengthStyle {
    int precision;
    bool typed; // written as it is typed: no blanks
    int suppress;

    [[nodiscard]] bool leavesOut(SuppressZeros bit) const { return (suppress & bit) != 0; }
};

bool showsZero(std::string_view digits) { return digits.find_first_of("123456789") == std::string_view::npos; }

// Removes what the style leaves out of a plain decimal such as 0.5000; at least one digit stays.
std::string withoutZeros(std::string digits, const LengthStyle& style) {
    if (style.leavesOut(kTrailingZeros) && digits.find('.') != std::string::npos) {
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.back() == '.')
            digits.pop_back();
    }
    if (style.leavesOut(kLeadingZeros) && digits.starts_with("0.") && !showsZero(digits))
        digits.erase(0, 1);
    return digits;
}

std::string decimal(double magnitude, const LengthStyle& style) {
    return withoutZeros(fmt::format("{:.{}f}", magnitude, style.precision), style);
}

std::string scientific(double magnitude, const LengthStyle& style) {
    const std::string text = fmt::format("{:.{}E}", magnitude, style.precision);
    const std::size_t exponent = text.find('E');
    return withoutZeros(text.substr(0, exponent), style) + text.substr(exponent);
}

struct Feet {
    double feet;
    double inches; // 0 <= inches < 12
};

// The remainder is exact, so that 11.99999 stays in its foot until it is rounded.
Feet splitFeet(double magnitude) {
    const double inches = std::fmod(magnitude, 12.0);
    return {std::round((magnitude - inches) / 12.0), inches};
}

std::string joinFeet(double feet, const std::string& inches, const LengthStyle& style) {
    if (feet == 0 && style.leavesOut(kZeroFeet))
        return inches + '"';
    std::string feetText = fmt::format("{:.0f}'", feet);
    if (showsZero(inches) && style.leavesOut(kZeroInches))
        return feetText;
    return feetText + (style.typed ? "" : "-") + inches + '"';
}

std::string engineering(double magnitude, const LengthStyle& style) {
    auto [feet, inches] = splitFeet(magnitude);
    std::string text = fmt::format("{:.{}f}", inches, style.precision);
    if (text.starts_with("12")) {
        feet += 1;
        text = fmt::format("{:.{}f}", 0.0, style.precision);
    }
    return joinFeet(feet, withoutZeros(text, style), style);
}

// A number rounded to the nearest fraction of a power of two, in lowest terms.
struct Fraction {
    double whole;
    int numerator;
    int denominator;
};

Fraction toFraction(double magnitude, int precision) {
    Fraction result{std::floor(magnitude), 0, 1 << precision};
    result.numerator = static_cast<int>(std::lround((magnitude - result.whole) * result.denominator));
    if (result.numerator == result.denominator) {
        result.whole += 1;
        result.numerator = 0;
    }
    while (result.numerator != 0 && result.numerator % 2 == 0) {
        result.numerator /= 2;
        result.denominator /= 2;
    }
    return result;
}

std::string fractionText(const Fraction& value, bool zeroWhole, const LengthStyle& style) {
    if (value.numerator == 0)
        return fmt::format("{:.0f}", value.whole);
    std::string part = fmt::format("{}/{}", value.numerator, value.denominator);
    if (value.whole == 0 && !zeroWhole)
        return part;
    return fmt::format("{:.0f}{}{}", value.whole, style.typed ? '-' : ' ', part);
}

std::string architectural(double magnitude, const LengthStyle& style) {
    const Feet split = splitFeet(magnitude);
    Fraction inches = toFraction(split.inches, style.precision);
    double feet = split.feet;
    if (inches.whole >= 12) {
        feet += 1;
        inches.whole = 0;
    }
    const bool feetShown = feet != 0 || !style.leavesOut(kZeroFeet);
    return joinFeet(feet, fractionText(inches, feetShown, style), style);
}

std::string fractional(double magnitude, const LengthStyle& style) {
    return fractionText(toFraction(magnitude, style.precision), false, style);
}

using Writer = std::string (*)(double, const LengthStyle&);
constexpr Writer kWriters[] = {scientific, decimal, engineering, architectural, fractional};

} // namespace

std::wstring formatLength(double value, int format, int precision, const UnitSettings& settings) {
    const int chosen = format == -1 ? settings.lengthFormat : format;
    if (chosen < kScientific || chosen > kFractional || !std::isfinite(value))
        return {};
    const int digits = precision == -1 ? settings.lengthPrecision : precision;
    const LengthStyle style{std::clamp(digits, 0, kMaxPrecision), settings.unitMode == 1, settings.suppressZeros};
    const std::string text = kWriters[chosen - kScientific](std::abs(value), style);
    std::wstring result(value < 0 && !showsZero(text) ? L"-" : L"");
    return result.append(text.begin(), text.end());
}

} // namespace quor::units
