// What is told of a file, as small tables for a label.
#pragma once

#include "desktop/qt_text.h"
#include "host/texts/dialogs.h"

#include <QString>

#include <utility>
#include <vector>

namespace quor::desktop {

using Fact = std::pair<QString, QString>;

// The size of a file, in KB or MB.
[[nodiscard]] inline QString fileSizeText(qint64 bytes) {
    constexpr double kKilo = 1024;
    const double kilobytes = static_cast<double>(bytes) / kKilo;
    return kilobytes < kKilo ? toQt(fill(texts::kPreviewKilobytes, kilobytes))
                             : toQt(fill(texts::kPreviewMegabytes, kilobytes / kKilo));
}

[[nodiscard]] inline QString factsHtml(const std::vector<Fact>& facts) {
    QString html = "<table cellspacing='0' cellpadding='2'>";
    for (const auto& [label, value] : facts)
        html += "<tr><td style='white-space:nowrap'><b>" + label.toHtmlEscaped() + "</b>&nbsp;</td><td>" +
                value.toHtmlEscaped() + "</td></tr>";
    return html + "</table>";
}

} // namespace quor::desktop
