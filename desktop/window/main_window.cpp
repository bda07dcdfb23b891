#include "desktop/window/main_window.h"

#include "desktop/commandline/command_line.h"
#include "desktop/commandline/text_window.h"
#include "desktop/dialogs/dialogs.h"
#include "desktop/dialogs/help_dialogs.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/layers/layers_panel.h"
#include "desktop/palettes/palette_host.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/actions.h"
#include "desktop/window/bindings.h"
#include "desktop/window/document_tabs.h"
#include "desktop/window/icons.h"
#include "desktop/window/recent_menu.h"
#include "desktop/window/status_bar.h"
#include "desktop/window/theme.h"
#include "desktop/window/typing.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/window.h"
#include "host/ui/user_interface.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMimeData>
#include <QVBoxLayout>

namespace quor::desktop {

namespace {

namespace words = texts::window;

constexpr const wchar_t* kQuit = L"QUIT";

// A dock behind the tab of another one is not.
bool isSeen(const QDockWidget& dock) { return dock.isVisible() && !dock.visibleRegion().isEmpty(); }

std::vector<ZrString> filesIn(const QMimeData& dropped) {
    std::vector<ZrString> files;
    for (const QUrl& url : dropped.urls())
        if (url.isLocalFile())
            files.push_back(fromQt(url.toLocalFile()));
    return files;
}

} // namespace

MainWindow::MainWindow(Session& session, DesktopFrontEnd& front)
    : session_(session), front_(front), recent_(session.settings()),
      dialogs_(std::make_unique<Dialogs>(session, *this)), palettes_(std::make_unique<PaletteHost>(session, *this)),
      layout_(*this, *palettes_, session.settings()), typing_(new Typing(session, front, this)),
      actions_(new Actions(*this, [this](const ActionRow& row) { typing_->line(row.line); })),
      tabs_(new DocumentTabs(session.documents(), this)), viewport_(new Viewport(session, front, this)),
      commandLine_(new CommandLine(session, front, this)), status_(new StatusBar(session, *actions_, this)) {
    setObjectName("main");
    setWindowIcon(programIcon());
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    resize(1280, 800);
    auto* const middle = new QWidget(this);
    auto* const column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(viewport_, 1);
    setCentralWidget(middle);
    setStatusBar(status_);
    makeDocks();
    addRecentMenu();
    bindActions();
    bindView(*actions_, *viewport_);
    bindVariables(*actions_, session.variables(), *typing_);
    connectViewport();
    connectQuestions();
    refresh_.setSingleShot(true);
    refresh_.setInterval(0);
    connect(&refresh_, &QTimer::timeout, this, &MainWindow::refresh);
    front.setDialogs(dialogs_.get());
    front.setWindows(palettes_.get());
    front.setPanels(this);
    front.setView(viewport_);
    session.documents().addReactor(this);
    variableListener_ = session.variables().addListener([this](const ZrString& name) {
        if (name == L"COLORTHEME")
            refreshTheme();
        refreshSoon();
    });
    refreshTheme();
    refresh();
}

MainWindow::~MainWindow() {
    session_.documents().removeReactor(this);
    session_.variables().removeListener(variableListener_);
    front_.setDialogs(nullptr);
    front_.setWindows(nullptr);
    front_.setPanels(nullptr);
    front_.setView(nullptr);
}

QDockWidget* MainWindow::addDock(const char* name, const Text& title, QWidget* content, Qt::DockWidgetArea area) {
    auto* const dock = new QDockWidget(toQt(title), this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::makeDocks() {
    commandDock_ = addDock("dock.commandline", words::kCommandLine, commandLine_, Qt::BottomDockWidgetArea);
    propertiesDock_ =
        addDock("dock.properties", words::kProperties, new PropertiesPanel(session_, this), Qt::RightDockWidgetArea);
    layersDock_ = addDock("dock.layers", words::kLayers, new LayersPanel(session_, this), Qt::RightDockWidgetArea);
    tabifyDockWidget(propertiesDock_, layersDock_);
    propertiesDock_->raise();
    layersDock_->hide();
    resizeDocks({commandDock_}, {150}, Qt::Vertical);
    resizeDocks({propertiesDock_}, {290}, Qt::Horizontal);
    for (const auto& [dock, name] :
         {std::pair(commandDock_, "commandline"), {propertiesDock_, "properties"}, {layersDock_, "layers"}}) {
        actions_->bind(name, [dock = dock] {
            dock->setVisible(!isSeen(*dock));
            dock->raise();
        });
        actions_->showState(name, [dock = dock] { return isSeen(*dock); });
        connect(dock, &QDockWidget::visibilityChanged, this, &MainWindow::refreshSoon);
    }
}

void MainWindow::connectViewport() {
    connect(viewport_, &Viewport::cursorMoved, status_, &StatusBar::showCursor);
    connect(viewport_, &Viewport::viewChanged, this, &MainWindow::refreshSoon);
    connect(viewport_, &Viewport::modesChanged, this, &MainWindow::refreshSoon);
    connect(viewport_, &Viewport::keyForCommandLine, commandLine_, &CommandLine::takeKey);
    connect(commandLine_, &CommandLine::escaped, viewport_, &Viewport::escape);
    connect(commandLine_, &CommandLine::neededWhileHidden, commandDock_, &QDockWidget::show);
    connect(viewport_, &Viewport::contextMenuRequested, this, &MainWindow::showContextMenu);
    connect(palettes_.get(), &PaletteHost::seenChanged, this, &MainWindow::refreshSoon);
    connect(&commandLine_->textWindow(), &TextWindow::shownChanged, this, &MainWindow::refreshSoon);
    palettes_->setFocusDrawing([this] { commandLine_->setFocus(); });
}

void MainWindow::connectQuestions() {
    connect(&front_, &DesktopFrontEnd::progressed, status_, &StatusBar::showProgress);
    connect(&front_, &DesktopFrontEnd::questionOpened, this, &MainWindow::refreshSoon);
    connect(tabs_, &DocumentTabs::chosen, typing_, &Typing::choose);
    connect(tabs_, &DocumentTabs::closeWanted, typing_, &Typing::close);
    connect(status_, &StatusBar::unitsChosen, typing_,
            [this](int units) { typing_->line(L"'LIGHTINGUNITS " + std::to_wstring(units)); });
}

void MainWindow::addRecentMenu() {
    QMenu& file = actions_->menu(MenuPlace::File);
    auto* const recent = new RecentMenu(recent_, &file);
    const QList<QAction*> all = file.actions();
    file.insertMenu(all[all.indexOf(&actions_->action("open")) + 1], recent);
    connect(recent, &RecentMenu::chosen, typing_, [this](const ZrString& chosen) { typing_->open({chosen}); });
}

void MainWindow::bindActions() {
    actions_->bind("quit", [this] { close(); });
    actions_->bind("selectall", [this] { typing_->selectAll(); });
    actions_->bind("deselect", [this] { viewport_->escape(); });
    actions_->bind("shortcuts", [this] { showShortcuts(*this); });
    actions_->bind("about", [this] { showAbout(*this); });
    actions_->bind("nextdrawing", [this] { tabs_->step(1); });
    actions_->bind("previousdrawing", [this] { tabs_->step(-1); });
    actions_->bind("lightlist", [this] { palettes_->togglePalettes(); });
    actions_->showState("lightlist", [this] { return palettes_->arePalettesSeen(); });
    actions_->bind("textwindow", [this] { commandLine_->showTextWindow(!commandLine_->isTextWindowShown()); });
    actions_->showState("textwindow", [this] { return commandLine_->isTextWindowShown(); });
}

void MainWindow::showProperties() {
    propertiesDock_->show();
    propertiesDock_->raise();
    propertiesDock_->widget()->setFocus();
}

void MainWindow::showLayers() {
    layersDock_->show();
    layersDock_->raise();
    layersDock_->widget()->setFocus();
}

void MainWindow::showTextWindow(bool show) { commandLine_->showTextWindow(show); }

void MainWindow::documentCreated(ZrApDocument&) { refreshSoon(); }

void MainWindow::documentBecameCurrent(ZrApDocument*) {
    viewport_->setDocument(session_.documents().current());
    refreshSoon();
}

void MainWindow::documentToBeDestroyed(ZrApDocument&) { refreshSoon(); }
void MainWindow::commandEnded(const ZrString&) { refreshSoon(); }
void MainWindow::commandCancelled(const ZrString&) { refreshSoon(); }
void MainWindow::modelessOperationEnded(const ZrString&) { refreshSoon(); }

void MainWindow::refresh() {
    const Document* const document = session_.documents().current();
    recent_.follow(session_.documents());
    tabs_->refresh();
    status_->refresh();
    actions_->refresh(document != nullptr);
    const ZrString mark = document != nullptr && document->isModified() ? L"*" : L"";
    setWindowTitle(document == nullptr ? toQt(words::kNoDrawingTitle)
                                       : toQt(fill(words::kTitle, commands::shortName(*document), mark)));
}

void MainWindow::refreshTheme() {
    applyTheme(session_.ui().service().theme());
    actions_->refreshIcons();
    viewport_->update();
}

void MainWindow::showContextMenu(const QPoint& at) {
    QMenu menu(this);
    if (const ZrString& last = session_.processor().lastCommand(); !last.empty())
        menu.addAction(toQt(fill(words::kRepeat, last)), this, [this, last] { front_.run(last); });
    if (QMenu* const recent = commandLine_->recentCommandsMenu(&menu)) {
        recent->setTitle(toQt(words::kRecentCommands));
        menu.addMenu(recent);
    }
    menu.addSeparator();
    for (const char* name : {"undo", "redo", "erase", "properties", "selectall"})
        menu.addAction(&actions_->action(name));
    menu.addSeparator();
    for (const char* name : {"zoomextents", "zoomwindow", "zoomprevious", "shaded"})
        menu.addAction(&actions_->action(name));
    menu.exec(at);
}

// The window goes when QUIT has asked about every drawing.
void MainWindow::closeEvent(QCloseEvent* event) {
    if (session_.processor().quitRequested()) {
        event->accept();
        return;
    }
    event->ignore();
    if (!isQuitting())
        front_.quit();
    else if (QWidget* const question = QApplication::activeModalWidget())
        question->activateWindow();
}

bool MainWindow::isQuitting() const {
    const std::vector<ZrString> running = session_.processor().running();
    return !running.empty() && running.front() == kQuit;
}

// What no widget wanted is meant for the drawing or the command line; what those do not want comes back here.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (std::exchange(isForwardingKey_, true))
        return;
    if (event->key() == Qt::Key_Delete)
        QApplication::sendEvent(viewport_, event);
    else
        commandLine_->takeKey(event);
    isForwardingKey_ = false;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!filesIn(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    typing_->open(filesIn(*event->mimeData()));
    event->acceptProposedAction();
}

} // namespace quor::desktop
