#include "host/props/value_text.h"

#include "host/db/data.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/texts/list.h"
#include "sdk/db/database.h"
#include "sdk/db/units.h"

#include <cmath>

namespace quor {

namespace {

constexpr double kMostInFull = 1e15;              // beyond it the digits of a length are no longer its own
constexpr double kLeastWithExponent = 99999999.5; // with eight digits
constexpr int kOfTheDrawing = -1;
constexpr int kScientific = 1; // as in LUNITS
constexpr int kDecimal = 2;
constexpr int kFirstWithFeet = 3; // engineering
constexpr int kLastWithFeet = 4;  // architectural
constexpr const wchar_t* kNoLength = L"—";

// Symbols of the units of length, by INSUNITS; those of the US survey are written as the ordinary ones.
constexpr const wchar_t* kUnitSymbols[] = {L"",    L"in", L"ft", L"mi", L"mm", L"cm", L"m",   L"km", L"µin",
                                           L"mil", L"yd", L"Å",  L"nm", L"µm", L"dm", L"dam", L"hm", L"Gm",
                                           L"au",  L"ly", L"pc", L"ft", L"in", L"yd", L"mi"};

ZrString inFormat(double value, int format) {
    if (!std::isfinite(value))
        return kNoLength;
    ZrString text;
    zrdbRToS(value, std::abs(value) > kMostInFull ? kScientific : format, -1, text);
    return text;
}

} // namespace

ZrString drawingUnit() {
    const auto unit = static_cast<std::size_t>(Session::current().variables().number(L"INSUNITS"));
    return unit < std::size(kUnitSymbols) ? kUnitSymbols[unit] : L"";
}

ZrString shownUnit() {
    const short format = Session::current().variables().number(L"LUNITS");
    const bool showsFeet = format >= kFirstWithFeet && format <= kLastWithFeet;
    return showsFeet ? ZrString() : drawingUnit();
}

ZrString lengthText(double length) { return inFormat(length, kOfTheDrawing); }

ZrString decimalText(double value) { return inFormat(value, kDecimal); }

ZrString measureText(double length) {
    const ZrString unit = shownUnit();
    return unit.empty() ? lengthText(length) : lengthText(length) + L" " + unit;
}

ZrString coordinatesText(double x, double y, double z) {
    return L"X=" + lengthText(x) + L"  Y=" + lengthText(y) + L"  Z=" + lengthText(z);
}

ZrString pointText(const ZrGePoint3d& world) {
    const ZrGePoint3d point = zrdbWcs2Ucs(world);
    return coordinatesText(point.x, point.y, point.z);
}

ZrString vectorText(const ZrGeVector3d& world) {
    const ZrGeVector3d vector = zrdbWcs2Ucs(world);
    return coordinatesText(vector.x, vector.y, vector.z);
}

ZrString directionText(const ZrGeVector3d& world) {
    const ZrGeVector3d vector = zrdbWcs2Ucs(world);
    return L"X=" + decimalText(vector.x) + L"  Y=" + decimalText(vector.y) + L"  Z=" + decimalText(vector.z);
}

// "%.8g" may give "-0", which is no number that people write.
ZrString numberText(double value) { return zrFormat(L"%.8g", {value == 0 ? 0.0 : value}); }

ZrString plainNumberText(double value) {
    const double size = std::abs(value);
    return size >= kLeastWithExponent && size < kMostInFull ? zrFormat(L"%.0f", {value}) : numberText(value);
}

double inDegrees(double radians) { return radians / db::kDegree; }
ZrString degreesText(double radians) { return numberText(inDegrees(radians)) + L"°"; }

ZrString colorText(const ZrCmColor& color) {
    if (color.isByLayer())
        return texts::kByLayer.get();
    return color.isByBlock() ? ZrString(texts::kByBlock.get()) : color.colorNameForDisplay();
}

ZrString colorWithComponentsText(const ZrCmColor& color) {
    if (!color.hasColorName())
        return colorText(color);
    return colorText(color) + zrFormat(L" (%d,%d,%d)", {color.red(), color.green(), color.blue()});
}

ZrString linetypeText(const ZrString& name) {
    if (equalFolded(name, L"ByLayer"))
        return texts::kByLayer.get();
    return equalFolded(name, L"ByBlock") ? ZrString(texts::kByBlock.get()) : name;
}

ZrString lineweightText(int weight) {
    switch (weight) {
    case -1:
        return texts::kByLayer.get();
    case -2:
        return texts::kByBlock.get();
    case -3:
        return texts::kDefaultWeight.get();
    default:
        return zrFormat(L"%.2f mm", {weight / 100.0});
    }
}

ZrString yesNoText(bool yes) { return (yes ? texts::kYes : texts::kNo).get(); }

} // namespace quor
