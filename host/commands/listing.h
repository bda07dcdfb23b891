// A block of aligned lines about one thing. Control characters in it, which come from drawings, are spelled out.
#pragma once

#include "host/props/value_text.h"
#include "host/sys/visible_text.h"
#include "host/texts/text.h"

#include <utility>
#include <vector>

namespace quor::commands {

class Listing {
public:
    void heading(const ZrString& text) { heading_ = visibleText(text); }
    void row(const ZrString& label, const ZrString& value) {
        rows_.emplace_back(visibleText(label), visibleText(value));
    }
    void row(const Text& label, const ZrString& value) { row(label.get(), value); }
    // Behind the rows, as it stands.
    void line(const ZrString& text) { lines_.push_back(visibleText(text)); }

    // Labels with their values.
    [[nodiscard]] const std::vector<std::pair<ZrString, ZrString>>& rows() const { return rows_; }
    // A fresh line with the heading, then one for each row with its value in a common column.
    [[nodiscard]] ZrString text() const;

private:
    ZrString heading_;
    std::vector<std::pair<ZrString, ZrString>> rows_;
    std::vector<ZrString> lines_;
};

} // namespace quor::commands
