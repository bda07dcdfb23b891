// The line at the bottom: where the cursor is, what is switched on, how far something long has come.
#pragma once

#include "sdk/ge/point3d.h"

#include <QStatusBar>

class QComboBox;
class QLabel;
class QProgressBar;
class QToolButton;

namespace quor {
class Session;
}

namespace quor::desktop {

class Actions;

class StatusBar final : public QStatusBar {
    Q_OBJECT

public:
    StatusBar(Session& session, const Actions& actions, QWidget* parent);

    // In world coordinates; shown in those of the UCS, with the drawing's units.
    void showCursor(const ZrGePoint3d& world);
    // LIGHTINGUNITS, UCS and the like, as they are now.
    void refresh();
    void showProgress(const QString& what, double fraction);

Q_SIGNALS:
    // A person has chosen other lighting units.
    void unitsChosen(int units);

private:
    QToolButton* addSwitch(QAction& action, const QString& text, const QString& tip);

    Session& session_;
    QLabel* coordinates_;
    QLabel* progressText_;
    QProgressBar* progress_;
    QComboBox* units_;
    QLabel* ucs_;
};

} // namespace quor::desktop
