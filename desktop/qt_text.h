// Texts of the host as Qt has them, and back.
#pragma once

#include "host/texts/text.h"
#include "sdk/sys/string.h"

#include <QString>

#include <string_view>

namespace quor::desktop {

[[nodiscard]] inline QString toQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}
[[nodiscard]] inline QString toQt(const Text& text) { return toQt(std::wstring_view(text.get())); }
// A tool tip that shows a text of a person or a file as it stands: Qt would take some for rich text.
[[nodiscard]] inline QString asTip(const QString& text) {
    return QStringLiteral("<p style='white-space:pre-wrap'>") + text.toHtmlEscaped() + QStringLiteral("</p>");
}
[[nodiscard]] inline ZrString fromQt(const QString& text) { return text.toStdWString(); }

} // namespace quor::desktop
