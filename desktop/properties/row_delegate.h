// How rows of properties look: headings bold on a ground of their own, values that cannot be changed paler, colours
// with a swatch.
#pragma once

#include <QStyledItemDelegate>

namespace quor::desktop {

class RowDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    enum Role { IsHeading = Qt::UserRole + 1, IsEditable, Color };

    using QStyledItemDelegate::QStyledItemDelegate;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // The whole cell, over the swatch too.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace quor::desktop
