#include "desktop/commandline/prompt_view.h"

#include "desktop/qt_text.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace quor::desktop {

namespace {

constexpr int kNoWidth = 1 << 20; // wide enough for one line
constexpr int kMargin = 3;        // above and below
constexpr double kRound = 3;

QTextLayout::FormatRange inColor(int start, int length, const QColor& color) {
    QTextLayout::FormatRange range;
    range.start = start;
    range.length = length;
    range.format.setForeground(color);
    return range;
}

} // namespace

PromptView::PromptView(QWidget* parent) : QWidget(parent), colors_(LineColors::current()) {
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void PromptView::showParts(std::vector<ed::PromptPart> parts) {
    parts_ = std::move(parts);
    lit_.reset();
    pressed_.reset();
    unsetCursor();
    refresh();
}

void PromptView::showText(const QString& text) { showParts({{ed::PromptPart::Kind::Plain, fromQt(text), {}}}); }

void PromptView::applyColors(const LineColors& colors) {
    colors_ = colors;
    refresh();
}

void PromptView::refresh() {
    QString text;
    QList<QTextLayout::FormatRange> formats;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        const QString part = toQt(parts_[i].text);
        formats.push_back(inColor(static_cast<int>(text.size()), static_cast<int>(part.size()),
                                  isLink(i) ? colors_.link : colors_.dim));
        text += part;
    }
    layout_.setText(text);
    layout_.setFont(font());
    layout_.setFormats(formats);
    layOut(layout_, width());
    setAccessibleDescription(text);
    updateGeometry();
    update();
}

void PromptView::layOut(QTextLayout& layout, int width) const {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    double y = kMargin;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
}

int PromptView::naturalWidth() const {
    QTextLayout layout(layout_.text(), font());
    layOut(layout, kNoWidth);
    return layout.lineCount() == 0 ? 0 : static_cast<int>(std::ceil(layout.lineAt(0).naturalTextWidth())) + 1;
}

int PromptView::heightForWidth(int width) const {
    QTextLayout layout(layout_.text(), font());
    layOut(layout, std::max(width, 1));
    const double lines = layout.lineCount() == 0 ? fontMetrics().height() : layout.boundingRect().height();
    return static_cast<int>(std::ceil(lines)) + 2 * kMargin;
}

QSize PromptView::sizeHint() const { return {naturalWidth(), heightForWidth(kNoWidth)}; }

QSize PromptView::minimumSizeHint() const { return {0, fontMetrics().height() + 2 * kMargin}; }

bool PromptView::isLink(std::size_t part) const { return parts_[part].kind != ed::PromptPart::Kind::Plain; }

int PromptView::startOf(std::size_t part) const {
    qsizetype start = 0;
    for (std::size_t i = 0; i < part; ++i)
        start += toQt(parts_[i].text).size();
    return static_cast<int>(start);
}

QRect PromptView::rectOf(std::size_t part) const {
    if (part >= parts_.size())
        return {};
    const int start = startOf(part);
    const int end = start + static_cast<int>(toQt(parts_[part].text).size());
    const QTextLine line = layout_.lineForTextPosition(start);
    if (!line.isValid())
        return {};
    const double left = line.cursorToX(start);
    const double right = line.cursorToX(std::min(end, line.textStart() + line.textLength()));
    return QRectF(left, line.y(), right - left, line.height()).toAlignedRect();
}

PromptView::Place PromptView::partAt(const QPoint& point) const {
    for (int i = 0; i < layout_.lineCount(); ++i) {
        const QTextLine line = layout_.lineAt(i);
        if (!line.naturalTextRect().contains(point))
            continue;
        const int at = line.xToCursor(point.x(), QTextLine::CursorOnCharacter);
        std::size_t part = 0;
        for (; part + 1 < parts_.size() && startOf(part + 1) <= at; ++part) {
        }
        return isLink(part) ? Place(part) : std::nullopt;
    }
    return std::nullopt;
}

PromptView::Place PromptView::nextFrom(Place part, int direction) const {
    const auto count = static_cast<std::ptrdiff_t>(parts_.size());
    std::ptrdiff_t at = part ? static_cast<std::ptrdiff_t>(*part) : (direction > 0 ? -1 : count);
    for (at += direction; at >= 0 && at < count; at += direction)
        if (isLink(static_cast<std::size_t>(at)))
            return static_cast<std::size_t>(at);
    return part;
}

void PromptView::highlight(Place part) {
    if (lit_ == part)
        return;
    lit_ = part;
    update();
}

void PromptView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (lit_) {
        painter.setPen(hasFocus() ? QPen(colors_.link) : QPen(Qt::NoPen));
        painter.setBrush(colors_.linkGround);
        painter.drawRoundedRect(QRectF(rectOf(*lit_)).adjusted(-1.5, 0.5, 1.5, -0.5), kRound, kRound);
    }
    layout_.draw(&painter, {0, 0});
}

void PromptView::mouseMoveEvent(QMouseEvent* event) {
    highlight(partAt(event->pos()));
    setCursor(lit_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PromptView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? partAt(event->pos()) : std::nullopt;
}

void PromptView::mouseReleaseEvent(QMouseEvent* event) {
    const Place there = partAt(event->pos());
    if (there && there == std::exchange(pressed_, std::nullopt)) {
        const ed::PromptPart part = parts_[*there];
        Q_EMIT chosen(part);
    }
}

void PromptView::leaveEvent(QEvent*) {
    if (!hasFocus())
        highlight(std::nullopt);
}

void PromptView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Right || key == Qt::Key_Down) {
        highlight(nextFrom(lit_, 1));
    } else if (key == Qt::Key_Left || key == Qt::Key_Up) {
        highlight(nextFrom(lit_, -1));
    } else if (lit_ && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)) {
        const ed::PromptPart part = parts_[*lit_];
        Q_EMIT chosen(part);
    } else {
        Q_EMIT keyTyped(event);
    }
}

void PromptView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    highlight(nextFrom(std::nullopt, 1));
    update();
}

void PromptView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    highlight(std::nullopt);
    update();
}

void PromptView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut(layout_, width());
}

void PromptView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        refresh();
}

} // namespace quor::desktop
