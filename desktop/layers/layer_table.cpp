#include "desktop/layers/layer_table.h"

#include "desktop/keys.h"
#include "desktop/layers/state_delegate.h"
#include "desktop/properties/swatch.h"
#include "desktop/qt_text.h"
#include "host/props/value_text.h"
#include "host/sys/visible_text.h"
#include "host/texts/list.h"
#include "host/texts/properties.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace quor::desktop {

namespace {

constexpr int kRowMargin = 8;
constexpr int kCurrentMark = 0x2714; // a heavy check mark

bool isSwitch(int column) {
    return column == LayerTable::On || column == LayerTable::Frozen || column == LayerTable::Locked;
}

bool stateOf(const props::LayerRow& layer, int column) {
    if (column == LayerTable::On)
        return layer.isOn;
    return column == LayerTable::Frozen ? layer.isFrozen : layer.isLocked;
}

} // namespace

LayerTable::LayerTable(QWidget* parent) : QTableWidget(parent) {
    setObjectName("layers");
    setColumnCount(Columns);
    setHorizontalHeaderLabels({toQt(texts::kColumnCurrent), toQt(texts::kColumnLayerName), toQt(texts::kColumnLayerOn),
                               toQt(texts::kColumnLayerFrozen), toQt(texts::kColumnLayerLocked),
                               toQt(texts::kColumnLayerColor)});
    setAccessibleName(toQt(texts::kLayerListName));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowMargin);
    for (const int column : {On, Frozen, Locked})
        setItemDelegateForColumn(column, new StateDelegate(this));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeaderItem(Name)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeaderItem(Color)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
}

const props::LayerRow* LayerTable::layerAt(int row) const {
    return row >= 0 && static_cast<std::size_t>(row) < layers_.size() ? &layers_[static_cast<std::size_t>(row)]
                                                                      : nullptr;
}

int LayerTable::rowOf(const QString& name) const {
    const auto found = std::ranges::find(layers_, fromQt(name), &props::LayerRow::name);
    return found == layers_.end() ? -1 : static_cast<int>(found - layers_.begin());
}

void LayerTable::showLayers(const std::vector<props::LayerRow>& layers) {
    const bool areSame = std::ranges::equal(layers, layers_, {}, &props::LayerRow::id, &props::LayerRow::id);
    layers_ = layers;
    if (!areSame) {
        clearContents();
        setRowCount(static_cast<int>(layers_.size()));
    }
    for (int row = 0; row < rowCount(); ++row)
        fill(row);
    if (!areSame && currentRow() < 0 && rowCount() > 0)
        setCurrentCell(0, Name, QItemSelectionModel::NoUpdate);
    applyFilter();
}

void LayerTable::fill(int row) {
    const props::LayerRow& layer = layers_[static_cast<std::size_t>(row)];
    for (int column = 0; column < Columns; ++column) {
        if (item(row, column) == nullptr) {
            auto* const made = new QTableWidgetItem;
            made->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            setItem(row, column, made);
        }
        QTableWidgetItem& cell = *item(row, column);
        if (isSwitch(column)) {
            const bool on = stateOf(layer, column);
            cell.setCheckState(on ? Qt::Checked : Qt::Unchecked);
            const QString words = toQt((on ? texts::kYes : texts::kNo).get());
            cell.setData(Qt::AccessibleTextRole, horizontalHeaderItem(column)->text() + ": " + words);
        }
    }
    item(row, Current)->setText(layer.isCurrent ? QString(QChar(kCurrentMark)) : QString());
    item(row, Current)->setTextAlignment(Qt::AlignCenter);
    item(row, Current)->setData(Qt::AccessibleTextRole, layer.isCurrent ? toQt(texts::kColumnCurrent) : QString());
    QFont font = this->font();
    font.setBold(layer.isCurrent);
    item(row, Name)->setFont(font);
    item(row, Name)->setText(toQt(visibleText(layer.name)));
    item(row, Name)->setToolTip(asTip(item(row, Name)->text()));
    item(row, Color)->setText(toQt(colorText(layer.color)));
    item(row, Color)->setIcon(swatch(toQt(layer.color), *this));
}

void LayerTable::setFilter(const QString& text) {
    filter_ = text;
    applyFilter();
}

void LayerTable::applyFilter() {
    for (int row = 0; row < rowCount(); ++row)
        setRowHidden(row, !item(row, Name)->text().contains(filter_, Qt::CaseInsensitive));
}

std::vector<ZrDbObjectId> LayerTable::chosen() const {
    std::vector<ZrDbObjectId> ids;
    const bool isAlone = currentRow() >= 0 && !selectionModel()->isRowSelected(currentRow());
    for (int row = 0; row < rowCount(); ++row)
        if (!isRowHidden(row) && (isAlone ? row == currentRow() : selectionModel()->isRowSelected(row)))
            ids.push_back(layers_[static_cast<std::size_t>(row)].id);
    return ids;
}

void LayerTable::want(int row, int column) {
    const props::LayerRow* const layer = layerAt(row);
    if (layer == nullptr || !isEditable_)
        return;
    if (isSwitch(column))
        Q_EMIT changeWanted(column, !stateOf(*layer, column));
    else if (column == Color)
        Q_EMIT changeWanted(Color, true);
    else
        Q_EMIT changeWanted(Current, true);
}

// Before shortcuts of the main window.
bool LayerTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll)) {
        event->accept();
        return true;
    }
    return QTableWidget::event(event);
}

void LayerTable::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        want(currentRow(), currentColumn());
    else if (isWalking(key) || event->matches(QKeySequence::SelectAll))
        QTableWidget::keyPressEvent(event);
    else // what is typed is for others
        event->ignore();
}

// A click changes what it hits; the name and the mark are only selected.
void LayerTable::mouseReleaseEvent(QMouseEvent* event) {
    QTableWidget::mouseReleaseEvent(event);
    const QModelIndex hit = indexAt(event->position().toPoint());
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    if (isPlain && hit.isValid() && hit == currentIndex() && (isSwitch(hit.column()) || hit.column() == Color))
        want(hit.row(), hit.column());
}

void LayerTable::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex hit = indexAt(event->position().toPoint());
    if (!hit.isValid() || (hit.column() != Name && hit.column() != Current))
        return;
    setCurrentIndex(hit);
    want(hit.row(), Current);
}

} // namespace quor::desktop
