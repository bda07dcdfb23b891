#include "sdk/db/units.h"

#include "host/db/current_units.h"
#include "host/db/units_conversion.h"
#include "host/db/units_format.h"
#include "host/db/units_parse.h"
#include "sdk/rx/result_codes.h"

namespace units = quor::units;

namespace {

int give(ZrString text, ZrString& out) {
    if (text.empty())
        return RTERROR;
    out = std::move(text);
    return RTNORM;
}

int give(const std::optional<double>& number, double& out) {
    if (!number)
        return RTERROR;
    out = *number;
    return RTNORM;
}

} // namespace

int zrdbRToS(double value, int unit, int precision, ZrString& out) {
    return give(units::formatLength(value, unit, precision, units::currentUnits()), out);
}

int zrdbAngToS(double radians, int unit, int precision, ZrString& out) {
    return give(units::formatAngle(radians, unit, precision, units::currentUnits()), out);
}

int zrdbDisToF(const wchar_t* text, int unit, double& value) {
    return text == nullptr ? RTERROR : give(units::parseLength(text, unit, units::currentUnits()), value);
}

int zrdbAngToF(const wchar_t* text, int unit, double& radians) {
    return text == nullptr ? RTERROR : give(units::parseAngle(text, unit, units::currentUnits()), radians);
}

Quor::ErrorStatus zredGetUnitsConversion(int fromInsunits, int toInsunits, double& factor) {
    const auto found = units::unitsConversion(fromInsunits, toInsunits);
    if (!found)
        return Quor::eInvalidInput;
    factor = *found;
    return Quor::eOk;
}
