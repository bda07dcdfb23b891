#include "desktop/properties/hint.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 2;
constexpr int kHalfBright = 128;

} // namespace

QColor wrongColor(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Base).lightness() < kHalfBright;
    return isDark ? QColor(255, 110, 100) : QColor(200, 30, 30);
}

Hint::Hint(QWidget* area) : QLabel(area), area_(area) {
    setObjectName("hint");
    setWordWrap(true);
    setMargin(kMargin);
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    area->installEventFilter(this);
}

void Hint::say(const QString& message, QWidget* about) {
    setText(message);
    about_ = about;
    if (about != nullptr) {
        about->setAccessibleDescription(message);
        QAccessibleEvent told(about, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
    place();
    show();
    raise();
}

void Hint::clearMessage() {
    if (about_ != nullptr)
        about_->setAccessibleDescription({});
    about_ = nullptr;
    clear();
    hide();
}

void Hint::place() {
    const int width = std::max(0, area_->width() - 2 * kGap);
    const int height = heightForWidth(width);
    int top = area_->height() - height - kGap;
    if (about_ != nullptr && !about_->isAncestorOf(area_)) {
        const QPoint corner = area_->mapFromGlobal(about_->mapToGlobal(QPoint(0, 0)));
        const int below = std::max(corner.y() + about_->height(), 0) + kGap;
        const int above = corner.y() - height - kGap;
        top = below + height <= area_->height() || above < 0 ? below : above;
    }
    setGeometry(kGap, top, width, height);
}

bool Hint::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_ && event->type() == QEvent::Resize && isVisible())
        place();
    return QLabel::eventFilter(watched, event);
}

void Hint::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(wrongColor(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace quor::desktop
