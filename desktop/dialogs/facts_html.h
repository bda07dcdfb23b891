// Labels and values as a small table for a label.
#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace quor::desktop {

using Fact = std::pair<QString, QString>;

[[nodiscard]] inline QString factsHtml(const std::vector<Fact>& facts) {
    QString html = "<table cellspacing='0' cellpadding='2'>";
    for (const auto& [label, value] : facts)
        html += "<tr><td style='white-space:nowrap'><b>" + label.toHtmlEscaped() + "</b>&nbsp;</td><td>" +
                value.toHtmlEscaped() + "</td></tr>";
    return html + "</table>";
}

} // namespace quor::desktop
