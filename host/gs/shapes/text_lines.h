// What the texts of drawings say, without their codes.
#pragma once

#include "sdk/sys/string.h"

#include <vector>

namespace quor::gs {

// Of a text of one line: "%%d" is the sign of degrees, and so on.
[[nodiscard]] ZrString plainText(const ZrString& coded);

// Of a paragraph: its lines, without changes of font, colour and size. Fractions stand in the line.
[[nodiscard]] std::vector<ZrString> plainLines(const ZrString& coded);

} // namespace quor::gs
