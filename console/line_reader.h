// Where a person's lines come from: an editing terminal or a pipe.
#pragma once

#include "host/front.h"

namespace quor::console {

struct Line {
    enum class Kind { Text, Cancel, End, Broken };
    Kind kind = Kind::End;
    ZrString text;
};

class LineReader {
public:
    virtual ~LineReader() = default;
    // Shows the prompt, waits for a line, and leaves the screen as it looks after Enter.
    virtual Line read(const Question& question) = 0;
};

} // namespace quor::console
