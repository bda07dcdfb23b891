// Lines from a pipe or a file, shown behind their prompts so that the output reads like the screen.
#pragma once

#include "console/line_reader.h"
#include "console/output.h"

namespace quor::console {

// As read(2): how many bytes were read, 0 at the end, below 0 for an error.
using ByteSource = std::function<std::ptrdiff_t(char*, std::size_t)>;

class PipeReader final : public LineReader {
public:
    PipeReader(ByteSource source, Output& output) : source_(std::move(source)), output_(output) {}
    // A read error is the broken end. The end also comes when the output's reader is gone or the program is
    // interrupted.
    Line read(const Question& question) override;

private:
    // The next line without its end; false when there is none.
    bool nextLine(std::string& line);
    bool readMore();

    ByteSource source_;
    Output& output_;
    std::string buffer_;
    std::size_t at_ = 0;
    bool ended_ = false;
    bool broken_ = false; // ended by a read error
};

} // namespace quor::console
