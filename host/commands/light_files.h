// Lights as the text of a file that other programs read. UTF-8; numbers with "." and as many digits as tell them
// exactly, but for angles.
//
// CSV as in RFC 4180: a row of the fields' names, then a row for each light, CR LF behind each. A text stands as it is,
// also one that a spreadsheet would take for a formula. JSON: one object with the drawing, its units and the lights,
// each light a line. A value that a light does not have is an empty cell, or null.
#pragma once

#include "host/commands/light_fields.h"

#include <span>
#include <string>

namespace quor::commands {

struct DrawingFacts {
    ZrString name;          // path, or the name of one that was never saved
    ZrString lengthUnit;    // "mm"; empty: unitless
    int insertionUnits = 0; // INSUNITS
    int lightingUnits = 0;  // LIGHTINGUNITS
};

// Protocol: begin, one append for each light, then the end.
struct LightFileFormat {
    const wchar_t* keyword;
    const wchar_t* name; // as people write it
    const char* extension;
    std::string (*begin)(const DrawingFacts&);
    void (*append)(std::string& file, std::span<const FieldValue> light, bool isFirst);
    const char* end;
    bool isForSpreadsheets;
};

[[nodiscard]] std::span<const LightFileFormat> lightFileFormats();

// Whether a spreadsheet would take a text among the fields of the light (its name, its layer, …) for a formula.
[[nodiscard]] bool looksLikeFormula(std::span<const FieldValue> light);

} // namespace quor::commands
