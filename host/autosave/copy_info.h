// What is kept beside the copy of a drawing: where it came from and when the copy was made. A text of `key = value`.
#pragma once

#include "sdk/sys/string.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor::autosave {

struct CopyInfo {
    ZrString path;         // of the drawing; empty for one that was never saved
    ZrString title;        // what it was called
    std::int64_t time = 0; // seconds since 1970
};

// Every value comes back as it was, line breaks and bytes that are no text included.
[[nodiscard]] std::string bytesOf(const CopyInfo& info);
// What is not in the text stays empty.
[[nodiscard]] CopyInfo copyInfoIn(std::string_view bytes);

} // namespace quor::autosave
