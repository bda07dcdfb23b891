// How a drawing writes and reads lengths and angles, as a value: the rules need no drawing.
#pragma once

namespace quor::units {

// LUNITS
enum LengthFormat { kScientific = 1, kDecimal = 2, kEngineering = 3, kArchitectural = 4, kFractional = 5 };
// AUNITS
enum AngleFormat { kDegrees = 0, kDegreesMinutesSeconds = 1, kGrads = 2, kRadians = 3, kSurveyor = 4 };

// Bits of UnitSettings::suppressZeros. 4 and 8 are those of DIMZIN; unlike DIMZIN, 0 leaves out nothing.
enum SuppressZeros { kZeroFeet = 1, kZeroInches = 2, kLeadingZeros = 4, kTrailingZeros = 8 };

constexpr int kMaxPrecision = 8;

struct UnitSettings {
    int lengthFormat = kDecimal; // LUNITS
    int lengthPrecision = 4;     // LUPREC, 0 to 8
    int angleFormat = kDegrees;  // AUNITS
    int anglePrecision = 0;      // AUPREC, 0 to 8
    double angleBase = 0;        // ANGBASE: the direction of angle zero, radians
    bool clockwise = false;      // ANGDIR: which way angles grow
    int unitMode = 0;            // UNITMODE: 1 writes feet, fractions and bearings as they are typed, without blanks
    int suppressZeros = 0;
};

} // namespace quor::units
