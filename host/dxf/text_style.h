// The manner in which a text file writes its tags, so that new tags look like their neighbours.
#pragma once

#include <cstdint>
#include <string_view>

namespace quor::dxf {

enum class LineEnd : std::uint8_t { CrLf, Lf };

struct TextStyle {
    LineEnd lineEnd = LineEnd::CrLf;
    bool padCodes = true;    // group codes right-justified in 3
    bool padIntegers = true; // int16 right-justified in 6, int32 in 9, int64 in 18

    [[nodiscard]] std::string_view newline() const { return lineEnd == LineEnd::CrLf ? "\r\n" : "\n"; }
};

} // namespace quor::dxf
