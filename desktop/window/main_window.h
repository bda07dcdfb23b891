// The main window: the drawing in the middle, the command line below, palettes around, menus and tool bars above.
#pragma once

#include "desktop/front/parts.h"

#include <QMainWindow>

namespace quor {
class Session;
}

namespace quor::desktop {

class DesktopFrontEnd;

class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    MainWindow(Session& session, DesktopFrontEnd& front);
    ~MainWindow() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Session& session_;
    DesktopFrontEnd& front_;
};

} // namespace quor::desktop
