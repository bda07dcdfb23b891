// The layers as a table: which one is current, whether they are on, frozen, locked, their colours. Each cell is changed
// by a click or the space bar, for all layers that are selected.
#pragma once

#include "host/props/layer_rows.h"

#include <QTableWidget>

#include <vector>

namespace quor::desktop {

class LayerTable final : public QTableWidget {
    Q_OBJECT

public:
    enum Column { Current, Name, On, Frozen, Locked, Color, Columns };

    explicit LayerTable(QWidget* parent);

    void showLayers(const std::vector<props::LayerRow>& layers);
    // Only those whose name holds the text.
    void setFilter(const QString& text);
    void setEditable(bool editable) { isEditable_ = editable; }
    // The layers of the selected rows; the row of the cell that has the keyboard stands for all of them when it is not
    // selected.
    [[nodiscard]] std::vector<ZrDbObjectId> chosen() const;
    [[nodiscard]] const props::LayerRow* layerAt(int row) const;
    // Of the layer of that name; -1 where there is none.
    [[nodiscard]] int rowOf(const QString& name) const;

Q_SIGNALS:
    // A person wants to have it otherwise: On, Frozen or Locked with what it is to be; Current; Color.
    void changeWanted(int column, bool value);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void fill(int row);
    void want(int row, int column);
    void applyFilter();

    std::vector<props::LayerRow> layers_;
    QString filter_;
    bool isEditable_ = true;
};

} // namespace quor::desktop
