#include "host/props/value_input.h"

#include "host/cm/rgb_text.h"
#include "host/db/current_units.h"
#include "host/db/units_parse.h"
#include "host/props/light_facts.h"
#include "host/props/value_text.h"
#include "host/sys/case_fold.h"
#include "host/sys/trim.h"
#include "host/sys/visible_text.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"
#include "sdk/cm/color_services.h"

#include <cmath>

namespace quor::props {

namespace {

constexpr const wchar_t* kDegreeSign = L"°";

ZrString numberInput(const Property& property, double value) {
    switch (property.quantity) {
    case Quantity::Length:
        return lengthText(value);
    case Quantity::Whole:
        return std::to_wstring(std::lround(value));
    default:
        return plainNumberText(value);
    }
}

// People may leave the unit behind the number, or write it.
std::wstring_view withoutUnit(std::wstring_view typed, std::wstring_view unit) {
    const bool hasUnit =
        !unit.empty() && typed.size() > unit.size() && equalFolded(typed.substr(typed.size() - unit.size()), unit);
    return hasUnit ? trimmed(typed.substr(0, typed.size() - unit.size())) : typed;
}

// Bounds are no numbers of the drawing: "160°" in every format.
ZrString outOfRange(const Property& property, const Context& context) {
    const auto bound = [&](double value) {
        const ZrString unit = unitOf(property.quantity, context);
        const bool isApart = !unit.empty() && unit != kDegreeSign;
        return numberText(value) + (isApart ? L" " : L"") + unit;
    };
    return std::isinf(property.range.high)
               ? fill(texts::kNeedsAtLeast, bound(property.range.low))
               : fill(texts::kNeedsBetween, bound(property.range.low), bound(property.range.high));
}

Result<Value, ZrString> parseNumber(const Property& property, std::wstring_view typed, const Context& context) {
    const bool isLength = property.quantity == Quantity::Length;
    const std::wstring_view digits = withoutUnit(typed, unitOf(property.quantity, context));
    const std::optional<double> value =
        units::parseLength(digits, isLength ? -1 : units::kDecimal, units::currentUnits());
    if (!value)
        return fail(fill(isLength ? texts::kNeedsLength : texts::kNeedsNumber, visibleText(typed)));
    if (property.quantity == Quantity::Whole && *value != std::floor(*value))
        return fail(fill(texts::kNeedsWhole, visibleText(typed)));
    if (!property.range.holds(*value))
        return fail(outOfRange(property, context));
    return Value(*value);
}

ZrString listed(const std::vector<ZrString>& words) {
    ZrString text;
    for (const ZrString& word : words)
        text += (text.empty() ? L"" : L" / ") + word;
    return text;
}

Result<Value, ZrString> parseChoice(const Property& property, std::wstring_view typed, const Context& context) {
    const std::vector<ZrString> words = choicesOf(property, context);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!equalFolded(words[i], typed))
            continue;
        if (property.list != nullptr)
            return Value(words[i]);
        return property.editor == Editor::YesNo ? Value(i == 1) : Value(static_cast<int>(i));
    }
    if (property.list != nullptr)
        return fail(fill(texts::kNoLayerToChoose, visibleText(typed)));
    return fail(fill(texts::kNeedsChoice, visibleText(typed), listed(words)));
}

bool isWord(std::wstring_view typed, const Text& word) {
    return equalFolded(typed, word.chinese) || equalFolded(typed, word.english);
}

} // namespace

ZrString unitOf(Quantity quantity, const Context& context) {
    switch (quantity) {
    case Quantity::Length:
        return shownUnit();
    case Quantity::Degrees:
        return kDegreeSign;
    case Quantity::Kelvin:
        return L"K";
    case Quantity::Candela:
        return L"cd";
    case Quantity::Lumen:
        return L"lm";
    case Quantity::Illuminance:
        return illuminanceUnit(context.units.lightingUnits);
    case Quantity::Plain:
    case Quantity::Whole:
        break;
    }
    return {};
}

ZrString inputText(const Property& property, const Value& value) {
    struct Writer {
        const Property& property;
        ZrString operator()(std::monostate) const { return {}; }
        ZrString operator()(bool yes) const { return property.choices[yes ? 1 : 0].get(); }
        ZrString operator()(int place) const {
            const auto index = static_cast<std::size_t>(place);
            return index < property.choices.size() ? ZrString(property.choices[index].get()) : std::to_wstring(place);
        }
        ZrString operator()(double number) const { return numberInput(property, number); }
        ZrString operator()(const ZrString& text) const { return visibleText(text); }
        ZrString operator()(const ZrCmColor& color) const { return colorText(color); }
    };
    return std::visit(Writer{property}, value);
}

ZrString shownText(const Property& property, const Value& value, const Context& context) {
    if (std::holds_alternative<std::monostate>(value))
        return texts::kNoValue.get();
    const ZrString text = inputText(property, value);
    const ZrString unit = unitOf(property.quantity, context);
    return unit.empty() || unit == kDegreeSign ? text + unit : text + L" " + unit;
}

std::vector<ZrString> colorChoices(bool mayFollow) {
    constexpr int kNamedColors = 7;
    std::vector<ZrString> words;
    if (mayFollow)
        words = {texts::kByLayer.get(), texts::kByBlock.get()};
    for (int index = 1; index <= kNamedColors; ++index)
        words.push_back(ZrCmColor::fromIndex(index).colorNameForDisplay());
    return words;
}

std::vector<ZrString> choicesOf(const Property& property, const Context& context) {
    if (property.list != nullptr)
        return property.list(context);
    if (property.editor == Editor::Color)
        return colorChoices(property.mayFollow);
    std::vector<ZrString> words;
    for (const Text& word : property.choices)
        words.emplace_back(word.get());
    return words;
}

Result<Value, ZrString> parseValue(const Property& property, std::wstring_view typed, const Context& context) {
    const std::wstring_view text = trimmed(typed);
    switch (property.editor) {
    case Editor::Number:
        return parseNumber(property, text, context);
    case Editor::Choice:
    case Editor::YesNo:
        return parseChoice(property, text, context);
    case Editor::Color: {
        const std::optional<ZrCmColor> color = parseColor(text, property.mayFollow);
        if (!color)
            return fail(fill(property.mayFollow ? texts::kNeedsColor : texts::kNeedsOwnColor, visibleText(text)));
        return Value(*color);
    }
    case Editor::ReadOnly:
        return fail(fill(texts::kRowIsReadOnly, property.label.get()));
    case Editor::Text:
    case Editor::File:
        break;
    }
    return Value(ZrString(text));
}

std::optional<ZrCmColor> parseColor(std::wstring_view typed, bool mayFollow) {
    const ZrString text(trimmed(typed));
    ZrCmColor color;
    if (mayFollow && isWord(text, texts::kByLayer))
        return color;
    if (mayFollow && isWord(text, texts::kByBlock)) {
        color.setByBlock();
        return color;
    }
    if (zrcmGetColorFromACIName(color, text.c_str()) == Quor::eOk)
        return color;
    if (const auto rgb = cm::parseSpacedRgb(text))
        return ZrCmColor::fromRGB(static_cast<std::uint8_t>(*rgb >> 16), static_cast<std::uint8_t>(*rgb >> 8 & 0xFF),
                                  static_cast<std::uint8_t>(*rgb & 0xFF));
    const std::size_t dollar = text.rfind(L'$');
    if (dollar == ZrString::npos || zrcmGetColorFromColorBookName(color, text.substr(0, dollar).c_str(),
                                                                  text.substr(dollar + 1).c_str()) != Quor::eOk)
        return std::nullopt;
    return color;
}

} // namespace quor::props
