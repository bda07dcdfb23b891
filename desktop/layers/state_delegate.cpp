#include "desktop/layers/state_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

namespace quor::desktop {

namespace {

// The mark in a box of side 1.
QPainterPath checkMark(const QRectF& box) {
    const auto at = [&](double x, double y) { return QPointF(box.x() + x * box.width(), box.y() + y * box.height()); };
    QPainterPath path(at(0.22, 0.52));
    path.lineTo(at(0.43, 0.74));
    path.lineTo(at(0.80, 0.26));
    return path;
}

} // namespace

void StateDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    cell.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    constexpr double kThickMark = 1.8;
    constexpr double kPaleFrame = 0.55;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor ink = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const int side = option.fontMetrics.ascent();
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(option.rect).center());
    box = QRectF(box.toAlignedRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QColor frame = ink;
    frame.setAlphaF(kPaleFrame);
    painter->save();
    painter->setPen(frame);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box);
    if (index.data(Qt::CheckStateRole).toInt() == Qt::Checked) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(ink, kThickMark, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(checkMark(box));
    }
    painter->restore();
}

} // namespace quor::desktop
