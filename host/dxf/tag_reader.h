// Walks the tags of a slice of a drawing file, in any form.
#pragma once

#include "host/dxf/code_set.h"
#include "host/dxf/line_ends.h"
#include "host/dxf/tag.h"

#include <cstddef>
#include <string_view>

namespace quor::dxf {

class TagReader {
public:
    // Reads file[begin, end). The bytes must outlive the reader and the tags it hands out.
    TagReader(std::string_view file, Form form, std::size_t begin, std::size_t end);

    // The next tag; false at the end and at the first tag that is damaged (see damaged()).
    [[nodiscard]] bool next(Tag& tag) { return next(tag, kEveryCode); }
    // The same of the tags with these codes; passing over the others costs little.
    [[nodiscard]] bool next(Tag& tag, const CodeSet& wanted);

    // True when next() stopped before the end: bad group code, value cut off. position() is where.
    [[nodiscard]] bool damaged() const { return damaged_; }
    [[nodiscard]] std::size_t position() const { return at_; }
    void seek(std::size_t offset);

private:
    static constexpr CodeSet kEveryCode = CodeSet::all();

    bool nextAscii(Tag& tag, const CodeSet& wanted);
    bool nextBinary(Tag& tag, const CodeSet& wanted);
    bool stopAt(std::size_t offset);

    std::string_view file_;
    std::size_t at_;
    std::size_t end_;
    LineEnds ends_; // behind at_
    Form form_;
    bool damaged_ = false;
};

// Number of the line (from 1) that offset stands on. Counts line ends from the start: for error messages only.
[[nodiscard]] std::size_t lineOf(std::string_view file, std::size_t offset);

} // namespace quor::dxf
