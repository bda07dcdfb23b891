// Check boxes in the middle of their cells, with a frame that is seen on every ground.
#pragma once

#include <QStyledItemDelegate>

namespace quor::desktop {

class StateDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace quor::desktop
