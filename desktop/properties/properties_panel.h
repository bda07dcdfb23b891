// The Properties palette: what is selected, by kind, each property changed in its place.
#pragma once

#include "host/props/sheet.h"

#include <QWidget>

class QComboBox;

namespace quor::desktop {

class RowTree;

class PropertiesPanel final : public QWidget {
    Q_OBJECT

public:
    PropertiesPanel(Session& session, QWidget* parent);

    [[nodiscard]] QComboBox& kinds() { return *kinds_; }
    [[nodiscard]] RowTree& rows() { return *rows_; }
    // Shows what has changed now; it is shown by itself when the program waits next.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void refreshSoon();
    void refreshKinds();
    QString take(std::string_view id, const QString& typed);

    Session& session_;
    props::Sheet sheet_;
    QComboBox* kinds_;
    RowTree* rows_;
    bool isRefreshing_ = false;
    bool isWaiting_ = false; // to be refreshed
};

} // namespace quor::desktop
