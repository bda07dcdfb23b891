// A block of aligned lines about one thing, and the values in it as people read them.
#pragma once

#include "host/texts/text.h"
#include "sdk/cm/color.h"
#include "sdk/ge/point3d.h"

#include <utility>
#include <vector>

namespace quor::commands {

class Listing {
public:
    void heading(ZrString text) { heading_ = std::move(text); }
    void row(const ZrString& label, const ZrString& value) { rows_.emplace_back(label, value); }
    void row(const Text& label, const ZrString& value) { row(label.get(), value); }
    // Behind the rows, as it stands.
    void line(ZrString text) { lines_.push_back(std::move(text)); }

    // A fresh line with the heading, then one for each row with its value in a common column.
    [[nodiscard]] ZrString text() const;

private:
    ZrString heading_;
    std::vector<std::pair<ZrString, ZrString>> rows_;
    std::vector<ZrString> lines_;
};

// A length in the drawing's units and precision.
[[nodiscard]] ZrString lengthText(double length);
// World coordinates, shown in the current UCS.
[[nodiscard]] ZrString pointText(const ZrGePoint3d& world);
[[nodiscard]] ZrString vectorText(const ZrGeVector3d& world);
// As few digits as tell it, at most eight.
[[nodiscard]] ZrString numberText(double value);
[[nodiscard]] ZrString degreesText(double radians);
[[nodiscard]] ZrString colorText(const ZrCmColor& color);
[[nodiscard]] ZrString linetypeText(const ZrString& name);
[[nodiscard]] ZrString lineweightText(int weight);
[[nodiscard]] ZrString yesNoText(bool yes);

} // namespace quor::commands
