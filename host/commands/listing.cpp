#include "host/commands/listing.h"

#include "host/sys/text_width.h"

#include <algorithm>

namespace quor::commands {

ZrString Listing::text() const {
    int width = 0;
    for (const auto& [label, value] : rows_)
        width = std::max(width, columnsOf(label));
    ZrString result = L"\n" + heading_ + L"\n";
    for (const auto& [label, value] : rows_)
        result += L"  " + padRight(label, width) + L"  " + value + L"\n";
    for (const ZrString& line : lines_)
        result += L"  " + line + L"\n";
    return result;
}

} // namespace quor::commands
