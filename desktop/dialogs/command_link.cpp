#include "desktop/dialogs/command_link.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace quor::desktop {

namespace {

constexpr int kMargin = 12;
constexpr int kArrow = 18;
constexpr int kGap = 10;
constexpr int kBetweenTexts = 4;
constexpr qreal kRadius = 5;
constexpr qreal kTextScale = 1.1;

constexpr int kWrapped = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;
constexpr int kTall = 100'000; // more than any text is

int wrappedHeight(const QFont& font, int width, const QString& text) {
    return text.isEmpty() ? 0 : QFontMetrics(font).boundingRect(QRect(0, 0, width, kTall), kWrapped, text).height();
}

QColor faded(QColor color, qreal opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

} // namespace

CommandLink::CommandLink(const QString& text, const QString& explanation, QWidget* parent)
    : QAbstractButton(parent), explanation_(explanation) {
    setText(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed, QSizePolicy::PushButton);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(text);
    setAccessibleDescription(explanation);
}

void CommandLink::setNumber(int number) {
    number_ = number;
    update();
}

void CommandLink::setRecommended(bool recommended) {
    recommended_ = recommended;
    update();
}

QFont CommandLink::textFont() const {
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * kTextScale);
    return bold;
}

CommandLink::Places CommandLink::placesIn(int width) const {
    Places places;
    const int numberWidth = QFontMetrics(font()).horizontalAdvance("0") + 2 * kBetweenTexts;
    const int left = kMargin + kArrow + kGap;
    const int textWidth = std::max(1, width - left - kGap - numberWidth - kMargin);
    const QFont bold = textFont();
    const int lineHeight = QFontMetrics(bold).height();
    places.text = QRect(left, kMargin, textWidth, wrappedHeight(bold, textWidth, text()));
    places.arrow = QRect(kMargin, kMargin + (lineHeight - kArrow) / 2, kArrow, kArrow);
    places.number = QRect(width - kMargin - numberWidth, kMargin, numberWidth, lineHeight);
    const int below = places.text.bottom() + 1 + (explanation_.isEmpty() ? 0 : kBetweenTexts);
    places.explanation = QRect(left, below, textWidth, wrappedHeight(font(), textWidth, explanation_));
    places.height = places.explanation.bottom() + 1 + kMargin;
    return places;
}

QSize CommandLink::sizeHint() const {
    constexpr int kNarrowest = 200;
    return {kNarrowest, placesIn(std::max(width(), kNarrowest)).height};
}

int CommandLink::heightForWidth(int width) const { return placesIn(width).height; }

// The dialog moves among its links.
void CommandLink::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        event->ignore();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void CommandLink::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void CommandLink::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void CommandLink::paintFrame(QPainter& painter) const {
    const QColor accent = palette().color(QPalette::Link);
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    const qreal fill = isDown() ? 0.30 : underMouse() ? 0.18 : hasFocus() ? 0.12 : 0;
    painter.setBrush(fill > 0 ? faded(accent, fill) : palette().color(QPalette::Base));
    painter.setPen(hasFocus() ? QPen(accent, 2) : QPen(faded(palette().color(QPalette::WindowText), 0.22), 1));
    painter.drawRoundedRect(frame, kRadius, kRadius);
    if (!recommended_)
        return;
    constexpr qreal kBar = 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(frame.left() + 1, frame.top() + 4, kBar, frame.height() - 8), kBar / 2, kBar / 2);
}

void CommandLink::paintArrow(QPainter& painter, const QRect& place) const {
    const QPointF middle = QRectF(place).center();
    const qreal half = place.width() / 2.0 - 2;
    QPainterPath arrow(middle + QPointF(-half, 0));
    arrow.lineTo(middle + QPointF(half, 0));
    arrow.moveTo(middle + QPointF(half * 0.25, -half * 0.7));
    arrow.lineTo(middle + QPointF(half, 0));
    arrow.lineTo(middle + QPointF(half * 0.25, half * 0.7));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Link), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrow);
}

void CommandLink::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrame(painter);
    const Places places = placesIn(width());
    paintArrow(painter, places.arrow);
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setPen(ink);
    painter.setFont(textFont());
    painter.drawText(places.text, kWrapped, text());
    painter.setFont(font());
    painter.setPen(faded(ink, 0.75));
    painter.drawText(places.explanation, kWrapped, explanation_);
    if (number_ > 0) {
        painter.setPen(faded(ink, 0.45));
        painter.drawText(places.number, Qt::AlignRight | Qt::AlignVCenter, QString::number(number_));
    }
}

} // namespace quor::desktop
