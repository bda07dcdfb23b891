#include "host/ed/reading.h"

#include "host/db/point_parse.h"
#include "host/db/units_parse.h"
#include "host/texts/input.h"
#include "sdk/ed/get.h"

#include <array>

namespace quor::ed {

namespace {

struct KindTexts {
    Text plain;
    Text withKeywords;
};
// In the order of Wanted.
constexpr std::array<KindTexts, 7> kWrongKind{{
    {texts::kNeedText, texts::kNeedText},
    {texts::kBadKeyword, texts::kBadKeyword},
    {texts::kNeedInteger, texts::kNeedIntegerOrKeyword},
    {texts::kNeedNumber, texts::kNeedNumberOrKeyword},
    {texts::kNeedDistance, texts::kNeedDistanceOrKeyword},
    {texts::kNeedAngle, texts::kNeedAngleOrKeyword},
    {texts::kNeedPoint, texts::kNeedPointOrKeyword},
}};

Refusal refuse(const Text& text) { return {fill(text)}; }

std::optional<long long> parseInteger(std::wstring_view text) {
    const bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (negative || text.front() == L'+'))
        text.remove_prefix(1);
    constexpr long long kEnough = 1'000'000'000'000;
    if (text.empty())
        return std::nullopt;
    long long value = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9')
            return std::nullopt;
        value = std::min(value * 10 + (digit - L'0'), kEnough); // far outside of all bounds stays outside
    }
    return negative ? -value : value;
}

// Decimals mean the same in every format, so that the drawing need not be asked for most numbers.
std::optional<double> parseReal(std::wstring_view text, const DrawingRules& drawing) {
    if (const std::optional<double> decimal = units::parseLength(text, units::kDecimal, {}))
        return decimal;
    return units::parseLength(text, -1, drawing.units());
}

std::optional<ZrGePoint3d> parsePoint(std::wstring_view text, const DrawingRules& drawing) {
    units::PointContext context;
    const bool isPlain = text.find_first_of(L"@<*'\"/") == std::wstring_view::npos;
    if (!isPlain) {
        context.settings = drawing.units();
        context.lastPoint = drawing.lastPoint();
        if (context.lastPoint)
            context.lastPointWorld = drawing.ucsToWorld(*context.lastPoint);
    }
    const std::optional<units::ParsedPoint> parsed = units::parsePoint(text, context);
    if (!parsed)
        return std::nullopt;
    return parsed->world ? drawing.worldToUcs(parsed->point) : parsed->point;
}

Reading readInteger(const ZrString& typed, const Rules& rules) {
    const std::optional<long long> value = parseInteger(typed);
    if (!value)
        return wrongKind(rules);
    if (const std::optional<Refusal> refusal = checkNumber(static_cast<double>(*value), rules.flags))
        return *refusal;
    if (*value < rules.low || *value > rules.high)
        return Refusal{fill(texts::kNeedIntegerBetween, rules.low, rules.high)};
    return *value;
}

Reading checked(double value, const Rules& rules) {
    if (std::optional<Refusal> refusal = checkNumber(value, rules.flags))
        return std::move(*refusal);
    return value;
}

Reading readReal(const ZrString& typed, const Rules& rules, const DrawingRules& drawing) {
    if (const std::optional<double> value = parseReal(typed, drawing))
        return checked(*value, rules);
    return wrongKind(rules);
}

Reading readPoint(const ZrString& typed, const Rules& rules, const DrawingRules& drawing) {
    if (const std::optional<ZrGePoint3d> point = parsePoint(typed, drawing))
        return *point;
    return wrongKind(rules);
}

Reading readDistance(const ZrString& typed, const Rules& rules, const DrawingRules& drawing) {
    if (const std::optional<double> value = parseReal(typed, drawing))
        return checked(*value, rules);
    return readPoint(typed, rules, drawing);
}

Reading readAngle(const ZrString& typed, const Rules& rules, const DrawingRules& drawing) {
    if (const std::optional<double> value = units::parseAngle(typed, -1, drawing.units()))
        return checked(*value, rules);
    return readPoint(typed, rules, drawing);
}

Reading readValue(const ZrString& typed, const Rules& rules, const DrawingRules& drawing) {
    switch (rules.wanted) {
    case Wanted::Integer:
        return readInteger(typed, rules);
    case Wanted::Real:
        return readReal(typed, rules, drawing);
    case Wanted::Distance:
        return readDistance(typed, rules, drawing);
    case Wanted::Angle:
        return readAngle(typed, rules, drawing);
    case Wanted::Point:
        return readPoint(typed, rules, drawing);
    case Wanted::Text:
    case Wanted::Keyword:
        break;
    }
    return wrongKind(rules);
}

} // namespace

std::optional<Refusal> checkNumber(double value, int flags) {
    const bool noZero = (flags & RSG_NOZERO) != 0;
    const bool noNegative = (flags & RSG_NONEG) != 0;
    if ((noZero && value == 0) || (noNegative && value < 0))
        return refuse(noZero && noNegative ? texts::kNeedPositive
                      : noZero             ? texts::kNeedNotZero
                                           : texts::kNeedNotNegative);
    return std::nullopt;
}

Refusal wrongKind(const Rules& rules) {
    const KindTexts& both = kWrongKind[static_cast<std::size_t>(rules.wanted)];
    const bool hasKeywords = rules.keywords != nullptr && !rules.keywords->empty();
    return refuse(hasKeywords ? both.withKeywords : both.plain);
}

Reading readAnswer(ZrString typed, const Rules& rules, const DrawingRules& drawing) {
    if (rules.wanted == Wanted::Text)
        return TextAnswer{std::move(typed)};
    if (rules.keywords != nullptr)
        if (const ZrString* word = rules.keywords->match(typed))
            return KeywordAnswer{*word};
    Reading value = readValue(typed, rules, drawing);
    // Arbitrary text stands in for what can be read as nothing else; a number that is out of bounds stays refused.
    const bool isNoValue = std::holds_alternative<Refusal>(value);
    const bool asksNumber = rules.wanted != Wanted::Keyword && rules.wanted != Wanted::Point;
    const bool isNumber = asksNumber && parseReal(typed, drawing).has_value();
    if (isNoValue && (rules.flags & RSG_OTHER) != 0 && !isNumber)
        return TextAnswer{std::move(typed)};
    return value;
}

} // namespace quor::ed
