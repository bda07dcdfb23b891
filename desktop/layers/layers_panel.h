// The Layers palette: the drawing's layers, their states and colours, which one is current, and new ones.
#pragma once

#include "host/props/property.h"
#include "host/props/watch.h"

#include <QWidget>

#include <functional>

class QLineEdit;
class QToolButton;

namespace quor {
class Session;
}

namespace quor::desktop {

class Hint;
class LayerTable;

class LayersPanel final : public QWidget {
    Q_OBJECT

public:
    LayersPanel(Session& session, QWidget* parent);

    [[nodiscard]] LayerTable& table() { return *table_; }
    // Shows what has changed now; it is shown by itself when the program waits next.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refreshSoon();
    void change(int column, bool value);
    void askForColor();
    // Does something to each of the chosen layers, as one step.
    void changeChosen(const std::function<props::Refusal(ZrDbObjectId)>& one);
    // Says what was refused beside a widget; true when nothing was.
    bool tell(const props::Refusal& refusal, QWidget& about);
    void beginNew();
    void makeNew();

    Session& session_;
    props::Watch watch_;
    QLineEdit* filter_;
    QToolButton* makeCurrent_;
    QToolButton* new_;
    QLineEdit* name_; // of a new layer, while it is asked for
    LayerTable* table_;
    Hint* hint_;
    bool isWaiting_ = false; // to be refreshed
};

} // namespace quor::desktop
