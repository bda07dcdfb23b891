// How widgets are drawn: Qt's own style, with the program's icons and with lines that are seen in every theme.
#pragma once

#include <QProxyStyle>

namespace quor::desktop {

class ProgramStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ProgramStyle();

    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace quor::desktop
