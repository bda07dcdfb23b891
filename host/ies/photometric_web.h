// A photometric web: luminous intensity over the directions around a luminaire, as a web file (LM-63) gives it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quor::ies {

// The editions of the file format.
enum class Edition : std::uint16_t { Lm1986 = 1986, Lm1991 = 1991, Lm1995 = 1995, Lm2002 = 2002, Lm2019 = 2019 };

// The coordinates of the angles: C turns about the vertical axis (0 is straight down), B about the horizontal axis
// along the luminaire, A about the one across. The numbers are those of the file.
enum class Photometry : std::uint8_t { C = 1, B = 2, A = 3 };

// What the given planes (horizontal angles) stand for; the rest follows by mirroring. Vertical angles are never
// mirrored: what lies beyond them is dark.
enum class Symmetry : std::uint8_t {
    None,         // all planes are given; what lies beyond them is dark
    Axial,        // one plane, the same all around
    Quadrants,    // 0..90, mirrored at both planes
    Mirror0_180,  // 0..180
    Mirror90_270, // 90..270
    MirrorAtZero, // types A and B: 0..90, mirrored at the plane 0
};

// How the lamps' output changes with the tilt of the luminaire; kept for information.
struct Tilt {
    int geometry = 1; // 1 lamp vertical, 2 horizontal and stays so, 3 tilts with the luminaire
    std::vector<double> angles;
    std::vector<double> factors;
};

struct Keyword {
    std::wstring name; // without brackets; empty for a line of free text
    std::wstring text; // continuation lines joined with a line break
};

// Something that is not as the format wants it but does not stand in the way of reading.
struct Warning {
    enum class Kind : std::uint8_t {
        UnknownVersionLine, // `number` is the edition by whose rules the file was read
        Missing360,         // the plane that closes the circle was missing; it is the first one again
        TrailingText,       // something that is no number stands behind the last number
        SurplusNumbers,     // so many numbers are left over behind the last one: the counts may be too small
        MissingPlanes,      // the planes leave out a part of the directions and no symmetry fills it; it is dark
        OnePlaneNotAtZero,  // the only plane of a type C web, which stands for all directions, is not the one at 0
        MissingRows,        // the vertical angles leave out a part of the directions; it is dark
    };
    Kind kind;
    std::size_t line = 0; // from 1
    std::size_t number = 0;
};

// Angles are in degrees and strictly increasing; a circle of planes that does not begin at 0 ends beyond 360. `candela`
// holds a row of vertical.size() values per horizontal angle, all factors of the file applied.
struct PhotometricWeb {
    Edition edition = Edition::Lm2002;
    std::vector<Keyword> keywords;
    std::optional<Tilt> tilt;
    double lamps = 0;
    double lumensPerLamp = 0; // negative: absolute photometry
    Photometry photometry = Photometry::C;
    bool inFeet = false; // the three sizes below are feet, else metres
    double width = 0;    // of the luminous opening, as the file has them: negative for round shapes
    double length = 0;
    double height = 0;
    double ballastFactor = 1;
    double thirdFactor = 1; // ballast-lamp factor up to 1991, later of another meaning and not applied
    double watts = 0;
    std::vector<double> vertical;
    std::vector<double> horizontal;
    std::vector<double> candela;
    Symmetry symmetry = Symmetry::None;
    std::vector<Warning> warnings;

    [[nodiscard]] double at(std::size_t horizontalIndex, std::size_t verticalIndex) const {
        return candela[horizontalIndex * vertical.size() + verticalIndex];
    }
};

// The intensity in a direction given by the angles of the web's own photometry, in degrees: interpolated between the
// given directions, mirrored as the symmetry says, 0 outside of what the file covers.
[[nodiscard]] double intensityAt(const PhotometricWeb& web, double horizontal, double vertical);
[[nodiscard]] double maxIntensity(const PhotometricWeb& web);
// The luminous flux in lumen: the intensity integrated over all directions, each cell of the grid with the mean of its
// corners. 0 for a web that is dark or has no extent, so look before dividing by it.
[[nodiscard]] double luminousFlux(const PhotometricWeb& web);

} // namespace quor::ies
