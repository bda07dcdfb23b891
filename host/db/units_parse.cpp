// Lengths as people type them.
#include "host/db/units_parse.h"

#include <cmath>

#include "host/db/units_scan.h"

namespace quor::units {

namespace {

struct LengthRules {
    bool feet;
    bool fractions;
};

// "/4": what stands under and before the stroke. The denominator 0 is no number.
std::optional<double> takeFraction(Scanner& scanner, double numerator) {
    if (!scanner.take(L'/'))
        return std::nullopt;
    const auto denominator = scanner.takeWhole();
    if (!denominator || *denominator == 0)
        return std::nullopt;
    return numerator / *denominator;
}

// 1/2, 15-1/2 or 15 1/2
std::optional<double> takeMixed(Scanner& scanner) {
    const auto first = scanner.takeWhole();
    if (!first)
        return std::nullopt;
    if (!scanner.take(L'-') && !scanner.take(L' '))
        return takeFraction(scanner, *first);
    const auto numerator = scanner.takeWhole();
    const auto part = numerator ? takeFraction(scanner, *numerator) : std::nullopt;
    return part ? std::optional(*first + *part) : std::nullopt;
}

std::optional<double> takeInches(Scanner& scanner, const LengthRules& rules) {
    Scanner ahead = scanner;
    auto inches = rules.fractions ? takeMixed(ahead) : std::nullopt;
    if (inches)
        scanner = ahead;
    else
        inches = scanner.takeDecimal();
    if (inches && rules.feet)
        scanner.take(L'"');
    return inches;
}

std::optional<double> takeMagnitude(Scanner& scanner, const LengthRules& rules) {
    Scanner ahead = scanner;
    const auto feet = rules.feet ? ahead.takeDecimal() : std::nullopt;
    if (!feet || !ahead.take(L'\''))
        return takeInches(scanner, rules);
    scanner = ahead;
    if (scanner.atEnd())
        return *feet * 12;
    scanner.take(L'-');
    const auto inches = takeInches(scanner, rules);
    return inches ? std::optional(*feet * 12 + *inches) : std::nullopt;
}

} // namespace

std::optional<double> parseLength(std::wstring_view text, int format, const UnitSettings& settings) {
    const int chosen = format == -1 ? settings.lengthFormat : format;
    if (chosen < kScientific || chosen > kFractional)
        return std::nullopt;
    const LengthRules rules{chosen == kEngineering || chosen == kArchitectural,
                            chosen == kArchitectural || chosen == kFractional};
    Scanner scanner(text);
    const bool minus = scanner.takeMinus();
    const auto magnitude = takeMagnitude(scanner, rules);
    if (!magnitude || !scanner.atEnd() || !std::isfinite(*magnitude))
        return std::nullopt;
    return minus ? -*magnitude : *magnitude;
}

} // namespace quor::units
