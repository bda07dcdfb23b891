#include "desktop/window/style.h"

#include "desktop/window/icons.h"
#include "desktop/window/theme.h"

#include <QPainter>
#include <QStyleOption>

namespace quor::desktop {

namespace {

struct IconRow {
    QStyle::StandardPixmap icon;
    const char* name;
};
constexpr IconRow kIcons[] = {
    {QStyle::SP_TitleBarCloseButton, "close"},
    {QStyle::SP_DockWidgetCloseButton, "close"},
    {QStyle::SP_TabCloseButton, "close"},
    {QStyle::SP_TitleBarNormalButton, "float"},
    {QStyle::SP_ToolBarHorizontalExtensionButton, "more"},
};

// Qt's style draws the frame of a box this much darker than the window, which a dark window swallows.
constexpr int kFrameIsDarker = 140;
constexpr double kFrameInk = 0.5;
constexpr double kFocusRadius = 2;

bool isBox(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           element == QStyle::PE_IndicatorItemViewItemCheck;
}

QPalette withLighterFrames(QPalette palette) {
    const QColor frame = mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kFrameInk);
    palette.setColor(QPalette::Window, frame.lighter(kFrameIsDarker));
    return palette;
}

void drawFocus(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::Link), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kFocusRadius, kFocusRadius);
    painter.restore();
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle("Fusion") {}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    for (const IconRow& row : kIcons)
        if (row.icon == icon)
            return iconOf(row.name);
    return QProxyStyle::standardIcon(icon, option, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element == PE_FrameFocusRect)
        return drawFocus(*option, *painter);
    if (!isBox(element) || !isDark(option->palette))
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    // The option is of a kind that only the style knows: it is changed for the time of drawing.
    auto* const changed = const_cast<QStyleOption*>(option);
    const QPalette kept = std::exchange(changed->palette, withLighterFrames(option->palette));
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    changed->palette = kept;
}

} // namespace quor::desktop
