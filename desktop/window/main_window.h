// The main window: the drawing in the middle, the command line below, palettes around, menus and tool bars above. It
// puts the widgets together and keeps what they show up to date; what they do is their own.
#pragma once

#include "desktop/front/parts.h"
#include "desktop/window/layout.h"
#include "desktop/window/recent_files.h"
#include "host/texts/text.h"
#include "sdk/ed/documents.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

class QDockWidget;

namespace quor {
class Session;
}

namespace quor::desktop {

class Actions;
class CommandLine;
class DesktopFrontEnd;
class Dialogs;
class DocumentTabs;
class PaletteHost;
class StatusBar;
class Typing;
class Viewport;

class MainWindow final : public QMainWindow, public PanelPart, public ZrApDocumentReactor {
    Q_OBJECT

public:
    MainWindow(Session& session, DesktopFrontEnd& front);
    ~MainWindow() override;

    [[nodiscard]] Viewport& viewport() { return *viewport_; }
    [[nodiscard]] CommandLine& commandLine() { return *commandLine_; }
    [[nodiscard]] Actions& actions() { return *actions_; }
    // Where docks and tool bars stand, as the person left them.
    void restoreLayout() { layout_.restore(); }
    void restorePalettes() { layout_.restorePalettes(); }
    void saveLayout() { layout_.save(); }

    void showProperties() override;
    void showLayers() override;
    void showTextWindow(bool show) override;

    void documentCreated(ZrApDocument& document) override;
    void documentBecameCurrent(ZrApDocument* document) override;
    void documentToBeDestroyed(ZrApDocument& document) override;
    void commandEnded(const ZrString& name) override;
    void commandCancelled(const ZrString& name) override;
    void modelessOperationEnded(const ZrString& name) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeDocks();
    void connectViewport();
    void connectQuestions();
    void addRecentMenu();
    void bindActions();
    QDockWidget* addDock(const char* name, const Text& title, QWidget* content, Qt::DockWidgetArea area);
    // Once, after all that happens now.
    void refreshSoon() { refresh_.start(); }
    void refresh();
    void refreshTheme();
    void showContextMenu(const QPoint& at);
    // Whether the person is being asked about changes on the way out.
    [[nodiscard]] bool isQuitting() const;

    Session& session_;
    DesktopFrontEnd& front_;
    RecentFiles recent_;
    std::unique_ptr<Dialogs> dialogs_;
    std::unique_ptr<PaletteHost> palettes_;
    Layout layout_;
    Typing* typing_;
    Actions* actions_;
    DocumentTabs* tabs_;
    Viewport* viewport_;
    CommandLine* commandLine_;
    StatusBar* status_;
    QDockWidget* commandDock_ = nullptr;
    QDockWidget* propertiesDock_ = nullptr;
    QDockWidget* layersDock_ = nullptr;
    QTimer refresh_;
    int variableListener_ = 0;
    bool isForwardingKey_ = false;
};

} // namespace quor::desktop
