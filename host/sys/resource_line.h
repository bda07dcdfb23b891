// One line of a resource module: `number = "text"`, a comment, or nothing.
#pragma once

#include "host/sys/result.h"
#include "sdk/sys/string.h"

#include <optional>

namespace quor::sys {

struct ResourceLine {
    unsigned number = 0;
    ZrString text;
};

// Nothing for a line that is blank or begins with "#"; the error is the reason for people. In the text \n \t \" \\ \xNN
// (two hexadecimal digits) and \uXXXX (four) stand for one character each; a comment may follow it.
[[nodiscard]] Result<std::optional<ResourceLine>, ZrString> parseResourceLine(std::wstring_view line);

} // namespace quor::sys
