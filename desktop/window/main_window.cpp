#include "desktop/window/main_window.h"

#include "desktop/front/desktop_front_end.h"
#include "host/ed/command_processor.h"
#include "host/session.h"

#include <QCloseEvent>

namespace quor::desktop {

MainWindow::MainWindow(Session& session, DesktopFrontEnd& front) : session_(session), front_(front) {
    setObjectName("main");
    setWindowTitle("Quor");
    resize(1280, 800);
}

MainWindow::~MainWindow() = default;

// The window goes when QUIT has asked about every drawing.
void MainWindow::closeEvent(QCloseEvent* event) {
    if (session_.processor().quitRequested()) {
        event->accept();
        return;
    }
    event->ignore();
    front_.quit();
}

} // namespace quor::desktop
