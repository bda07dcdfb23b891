// The part of a web file in front of the numbers: the version line, the keywords, the line TILT=.
#pragma once

#include "host/ies/reader.h"

#include <string_view>
#include <vector>

namespace quor::ies {

struct Label {
    Edition edition = Edition::Lm1986;
    std::vector<Keyword> keywords;
    std::vector<Warning> warnings;
    bool includesTilt = false;
    std::string_view numbers; // what stands behind TILT=NONE or TILT=INCLUDE
    std::size_t line = 0;     // in which they begin
};

// Without a byte order mark at its front. The label's view points into the text.
[[nodiscard]] Result<Label, Error> readLabel(std::string_view text);

} // namespace quor::ies
