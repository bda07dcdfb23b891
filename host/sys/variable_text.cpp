#include "host/sys/variable_text.h"

#include "host/db/current_units.h"
#include "host/db/point_parse.h"
#include "host/db/units_format.h"
#include "host/db/units_parse.h"
#include "host/texts/variables.h"
#include "sdk/db/database.h"

#include <cmath>
#include <limits>

namespace quor::sys {
namespace {

using Parsed = Result<VariableValue, SetResult>;

Parsed wholeNumber(std::wstring_view text) {
    const bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (text.front() == L'-' || text.front() == L'+'))
        text.remove_prefix(1);
    if (text.empty() || text.find_first_not_of(L"0123456789") != std::wstring_view::npos)
        return fail(SetResult::WrongType);
    long value = 0;
    for (const wchar_t digit : text) {
        value = value * 10 + (digit - L'0');
        if (value > std::numeric_limits<short>::max())
            return fail(SetResult::OutOfRange);
    }
    return VariableValue(static_cast<short>(negative ? -value : value));
}

// The drawing's units, with angles counted from the x axis.
units::UnitSettings plainAngles() {
    units::UnitSettings settings = units::currentUnits();
    settings.angleBase = 0;
    settings.clockwise = false;
    return settings;
}

Parsed realNumber(const VariableRow& row, std::wstring_view text) {
    const auto number =
        row.angle ? units::parseAngle(text, -1, plainAngles()) : units::parseLength(text, -1, units::currentUnits());
    return number ? Parsed(VariableValue(*number)) : Parsed(fail(SetResult::WrongType));
}

Parsed point(std::wstring_view text, const ZrGePoint3d& lastPoint) {
    units::PointContext context;
    context.settings = units::currentUnits();
    context.lastPoint = lastPoint;
    context.lastPointWorld = zrdbUcs2Wcs(lastPoint);
    const auto parsed = units::parsePoint(text, context);
    if (!parsed)
        return fail(SetResult::WrongType);
    return VariableValue(parsed->world ? zrdbWcs2Ucs(parsed->point) : parsed->point);
}

// A number that is damaged in the drawing has no form in its units.
ZrString formatReal(double value) {
    const ZrString text = units::formatLength(value, -1, -1, units::currentUnits());
    return text.empty() ? zrFormat(L"%g", {value}) : text;
}

ZrString wantedNumber(const ZrString& name, const VariableRow& row) {
    if (row.angle)
        return fill(texts::variableWantsAngle, name);
    const bool whole = row.type == VariableType::Short;
    if (!row.hasBounds())
        return fill(whole ? texts::variableWantsWhole : texts::variableWantsReal, name);
    return fill(whole ? texts::variableWantsWholeRange : texts::variableWantsRealRange, name,
                zrFormat(L"%g", {row.low}), zrFormat(L"%g", {row.high}));
}

ZrString wanted(const ZrString& name, const VariableRow& row) {
    switch (row.type) {
    case VariableType::Text:
        return fill(texts::variableWantsText, name);
    case VariableType::Point:
        return fill(texts::variableWantsPoint, name);
    default:
        return wantedNumber(name, row);
    }
}

} // namespace

Result<VariableValue, SetResult> parseVariable(const VariableRow& row, std::wstring_view text,
                                               const ZrGePoint3d& lastPoint) {
    switch (row.type) {
    case VariableType::Short:
        return wholeNumber(text);
    case VariableType::Real:
        return realNumber(row, text);
    case VariableType::Point:
        return point(text, lastPoint);
    default:
        return VariableValue(ZrString(text));
    }
}

ZrString formatVariable(const VariableValue& value) {
    struct Writer {
        ZrString operator()(short whole) const { return std::to_wstring(whole); }
        ZrString operator()(double real) const { return formatReal(real); }
        ZrString operator()(const ZrString& text) const { return text; }
        ZrString operator()(const ZrGePoint3d& p) const {
            return formatReal(p.x) + L"," + formatReal(p.y) + L"," + formatReal(p.z);
        }
    };
    return std::visit(Writer(), value);
}

ZrString formatAngleVariable(double radians) {
    const ZrString text = units::formatAngle(radians, -1, -1, plainAngles());
    return text.empty() ? zrFormat(L"%g", {radians}) : text;
}

ZrString variableRefusal(const ZrString& name, const VariableRow* row, SetResult result) {
    switch (result) {
    case SetResult::Ok:
        return {};
    case SetResult::Unknown:
        return fill(texts::variableUnknown, name);
    case SetResult::ReadOnly:
        return fill(texts::variableReadOnly, name);
    case SetResult::NoDrawing:
        return fill(texts::variableNoDrawing, name);
    case SetResult::NoSuchLayer:
        return fill(texts::variableNoLayer, name);
    case SetResult::NotInList:
        return fill(texts::variableWantsChoice, name, row != nullptr ? row->choices : L"");
    case SetResult::NotSaved:
        return fill(row != nullptr && row->fromNextStart ? texts::variableNotKept : texts::variableNotSaved, name);
    default:
        return row != nullptr ? wanted(name, *row) : fill(texts::variableReadOnly, name);
    }
}

} // namespace quor::sys
