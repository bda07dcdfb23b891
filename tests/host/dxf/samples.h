// Small drawings that the tests of this folder share.
#pragma once

#include "host/dxf/binary_tags.h"
#include "host/dxf/layout.h"
#include "host/dxf/tag_writer.h"

#include <string>
#include <string_view>

namespace quor::dxf::samples {

// A drawing with a header, a layer table, a light in the model, a line on a sheet and an object. `\n` line ends.
inline std::string text() {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$DWGCODEPAGE\n  3\nANSI_936\n  9\n$HANDSEED\n  "
           "5\n2F0\n"
           "  9\n$INSUNITS\n 70\n     4\n  0\nENDSEC\n"
           "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nDIMSTYLE\n  5\nA\n330\n0\n  0\nDIMSTYLE\n105\n27\n  "
           "5\nArrow\n330\nA\n  0\nENDTAB\n"
           "  0\nENDSEC\n"
           "  0\nSECTION\n  2\nENTITIES\n"
           "  0\nLIGHT\n  "
           "5\n2CE\n102\n{ACAD_XDICTIONARY\n360\n2CF\n102\n}\n102\n{ACAD_REACTORS\n330\nFFFF\n102\n}"
           "\n330\n1F\n100\nAcDbEntity\n"
           "  8\n0\n 40\n1.5\n"
           "  0\nLINE\n  5\n2d0\n330\n1B\n100\nAcDbEntity\n 67\n     1\n  8\n0\n330\n999\n"
           "  0\nENDSEC\n"
           "  0\nSECTION\n  2\nOBJECTS\n  0\nXRECORD\n  5\n2CF\n100\nAcDbXrecord\n330\n1F\n  0\nENDSEC\n"
           "  0\nEOF\n";
}

inline std::string withCrLf(std::string_view text) {
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    return result;
}

// A drawing of all kinds of values, in the given form.
inline std::string written(Form form) {
    TagWriter out(form, TextStyle{LineEnd::Lf, true, true});
    out.text(0, "SECTION");
    out.text(2, "HEADER");
    out.text(9, "$ACADVER");
    out.text(1, "AC1015");
    out.text(9, "$HANDSEED");
    out.handle(5, 0x2F0);
    out.text(0, "ENDSEC");
    out.text(0, "SECTION");
    out.text(2, "ENTITIES");
    out.text(0, "LIGHT");
    out.handle(5, 0x2CE);
    out.handle(330, 0x1F);
    out.int16(67, 1);
    out.int32(90, -70000);
    out.int64(160, 0x123456789A);
    out.boolean(290, true);
    out.bytes(310, std::string_view("\x08\x00\xFF", 3));
    out.point(10, 1.0, -2.5, 1e-9);
    out.text(1000, "extended");
    out.int16(1070, -3);
    out.text(0, "LINE");
    out.handle(5, 0x2CF);
    out.text(0, "ENDSEC");
    out.text(0, "EOF");
    return form == Form::Ascii ? out.str() : std::string(binarySentinel()) + out.str();
}

} // namespace quor::dxf::samples
