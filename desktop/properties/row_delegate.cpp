#include "desktop/properties/row_delegate.h"

#include "desktop/properties/swatch.h"

#include <QWidget>

namespace quor::desktop {

namespace {

// Room for an editor with its frame.
constexpr int kRowMargin = 10;

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(option.fontMetrics.height() + kRowMargin);
    return size;
}

void RowDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const {
    editor->setGeometry(option.rect);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.data(IsHeading).toBool()) {
        option->font.setBold(true);
        option->backgroundBrush = option->palette.brush(QPalette::AlternateBase);
        return;
    }
    if (index.column() == 0)
        return;
    if (!index.data(IsEditable).toBool())
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
    const auto color = index.data(Color).value<QColor>();
    if (color.isValid() && option->widget != nullptr) {
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = swatch(color, *option->widget);
        option->decorationSize = QSize(option->fontMetrics.ascent(), option->fontMetrics.ascent());
    }
}

} // namespace quor::desktop
