#include "desktop/window/main_window.h"

#include "desktop/commandline/command_line.h"
#include "desktop/dialogs/dialogs.h"
#include "desktop/dialogs/help_dialogs.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/layers/layers_panel.h"
#include "desktop/palettes/palette_host.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/actions.h"
#include "desktop/window/document_tabs.h"
#include "desktop/window/icons.h"
#include "desktop/window/status_bar.h"
#include "desktop/window/theme.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/pick.h"
#include "host/session.h"
#include "host/sys/settings_store.h"
#include "host/sys/system_variables.h"
#include "host/sys/utf8.h"
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

constexpr const wchar_t* kLayoutSection = L"Desktop";
constexpr const wchar_t* kGeometryKey = L"Geometry";
constexpr const wchar_t* kStateKey = L"Layout";
constexpr const wchar_t* kPalettesKey = L"Palettes";
constexpr const wchar_t* kQuit = L"QUIT";
// Raised when docks or tool bars are added, so that an older layout is not half applied.
constexpr int kLayoutVersion = 1;

// A line that a person would type: what stands behind the apostrophe may run within another command.
bool isTransparent(const ZrString& line) { return line.starts_with(L'\''); }

bool takesTransparent(const Question& question) {
    return question.kind != Question::Kind::Text && !question.acceptsBlanks;
}

} // namespace

MainWindow::MainWindow(Session& session, DesktopFrontEnd& front)
    : session_(session), front_(front), recent_(session.settings()), dialogs_(std::make_unique<Dialogs>(session, *this)),
      palettes_(std::make_unique<PaletteHost>(session, *this)),
      actions_(new Actions(*this, [this](const ActionRow& row) { type(row); })),
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
    bindActions();
    bindViewActions();
    bindVariableActions();
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
    propertiesDock_ = addDock("dock.properties", words::kProperties, new PropertiesPanel(session_, this),
                              Qt::RightDockWidgetArea);
    layersDock_ = addDock("dock.layers", words::kLayers, new LayersPanel(session_, this), Qt::RightDockWidgetArea);
    tabifyDockWidget(propertiesDock_, layersDock_);
    propertiesDock_->raise();
    layersDock_->hide();
    resizeDocks({commandDock_}, {150}, Qt::Vertical);
    resizeDocks({propertiesDock_}, {290}, Qt::Horizontal);
    for (const auto& [dock, name] : {std::pair(commandDock_, "commandline"), {propertiesDock_, "properties"},
                                     {layersDock_, "layers"}}) {
        actions_->bind(name, [dock = dock] {
            dock->setVisible(!dock->isVisible());
            dock->raise();
        });
        actions_->showState(name, [dock = dock] { return dock->isVisible(); });
        connect(dock, &QDockWidget::visibilityChanged, this, &MainWindow::refreshSoon);
    }
}

void MainWindow::connectViewport() {
    connect(viewport_, &Viewport::cursorMoved, status_, &StatusBar::showCursor);
    connect(viewport_, &Viewport::viewChanged, this, &MainWindow::refreshSoon);
    connect(viewport_, &Viewport::modesChanged, this, &MainWindow::refreshSoon);
    connect(viewport_, &Viewport::keyForCommandLine, commandLine_, &CommandLine::takeKey);
    connect(commandLine_, &CommandLine::escaped, viewport_, &Viewport::escape);
    connect(viewport_, &Viewport::contextMenuRequested, this, &MainWindow::showContextMenu);
    palettes_->setFocusDrawing([this] { commandLine_->setFocus(); });
}

void MainWindow::connectQuestions() {
    connect(&front_, &DesktopFrontEnd::progressed, status_, &StatusBar::showProgress);
    connect(&front_, &DesktopFrontEnd::questionOpened, this, &MainWindow::refreshSoon);
    connect(tabs_, &DocumentTabs::chosen, this, [this](int index) { chooseDocument(index, false); });
    connect(tabs_, &DocumentTabs::closeWanted, this, [this](int index) { chooseDocument(index, true); });
    connect(status_, &StatusBar::unitsChosen, this, [this](int units) {
        constexpr const char* kNames[] = {"unitsgeneric", "unitsamerican", "unitssi"};
        actions_->action(kNames[units]).trigger();
    });
}

void MainWindow::type(const ActionRow& row) {
    const ZrString line = row.line;
    const Question* const open = front_.question();
    const bool isWithin = open != nullptr && open->kind != Question::Kind::Command;
    if (isTransparent(line) && isWithin && takesTransparent(*open))
        front_.giveText(line);
    else
        front_.run(line);
}

void MainWindow::typeOpen(const ZrString& file) { front_.run(L"_OPEN " + file); }

bool MainWindow::isOn(const wchar_t* variable) const { return session_.variables().number(variable) != 0; }

void MainWindow::switchVariable(const wchar_t* name) {
    const ZrString line = L"'" + ZrString(name) + (isOn(name) ? L" 0" : L" 1");
    type({.menu = MenuPlace::View, .name = "", .text = {L"", L""}, .line = line.c_str()});
}

void MainWindow::bindActions() {
    actions_->bind("quit", [this] { close(); });
    actions_->bind("selectall", [this] {
        if (front_.question() == nullptr || front_.question()->kind != Question::Kind::Command)
            front_.run(L"_SELECT _ALL "); // within a command, all is what a new one selects
        else if (const Document* const document = session_.documents().current())
            zredSetImpliedSelection(ed::entitiesOfCurrentSpace(*document));
    });
    actions_->bind("deselect", [] { zredSetImpliedSelection({}); });
    actions_->bind("shortcuts", [this] { showShortcuts(*this); });
    actions_->bind("about", [this] { showAbout(*this); });
    actions_->bind("textwindow", [this] { commandLine_->showTextWindow(!commandLine_->isTextWindowShown()); });
    actions_->showState("textwindow", [this] { return commandLine_->isTextWindowShown(); });
    connect(&actions_->menu(MenuPlace::File), &QMenu::aboutToShow, this, &MainWindow::refreshRecentFiles);
}

void MainWindow::bindViewActions() {
    actions_->bind("wireframe", [this] { viewport_->setVisualStyle(gs::VisualStyle::Wireframe); });
    actions_->showState("wireframe", [this] { return viewport_->visualStyle() == gs::VisualStyle::Wireframe; });
    actions_->bind("shaded", [this] {
        const bool isShaded = viewport_->visualStyle() == gs::VisualStyle::Shaded;
        viewport_->setVisualStyle(isShaded ? gs::VisualStyle::Wireframe : gs::VisualStyle::Shaded);
    });
    actions_->showState("shaded", [this] { return viewport_->visualStyle() == gs::VisualStyle::Shaded; });
    actions_->bind("interior", [this] {
        const bool isOpen = viewport_->visualStyle() == gs::VisualStyle::Interior;
        viewport_->setVisualStyle(isOpen ? gs::VisualStyle::Shaded : gs::VisualStyle::Interior);
    });
    actions_->showState("interior", [this] { return viewport_->visualStyle() == gs::VisualStyle::Interior; });
    actions_->bind("perspective", [this] {
        gs::Camera camera = viewport_->camera();
        const bool isParallel = camera.projection == gs::Projection::Parallel;
        camera.projection = isParallel ? gs::Projection::Perspective : gs::Projection::Parallel;
        viewport_->setCamera(camera);
    });
    actions_->showState("perspective",
                        [this] { return viewport_->camera().projection == gs::Projection::Perspective; });
    actions_->bind("snap", [this] { viewport_->toggleSnaps(); });
    actions_->showState("snap", [this] { return viewport_->areSnapsOn(); });
    actions_->bind("ortho", [this] { viewport_->toggleOrtho(); });
    actions_->showState("ortho", [this] { return viewport_->isOrthoOn(); });
}

void MainWindow::bindVariableActions() {
    actions_->bind("glyphs", [this] { switchVariable(L"LIGHTGLYPHDISPLAY"); });
    actions_->showState("glyphs", [this] { return isOn(L"LIGHTGLYPHDISPLAY"); });
    actions_->bind("defaultlighting", [this] { switchVariable(L"DEFAULTLIGHTING"); });
    actions_->showState("defaultlighting", [this] { return isOn(L"DEFAULTLIGHTING"); });
    constexpr const char* kUnits[] = {"unitsgeneric", "unitsamerican", "unitssi"};
    constexpr const char* kThemes[] = {"themedark", "themelight", "themedesktop"};
    for (short i = 0; i < 3; ++i) {
        actions_->showState(kUnits[i], [this, i] { return session_.variables().number(L"LIGHTINGUNITS") == i; });
        actions_->showState(kThemes[i], [this, i] { return session_.variables().number(L"COLORTHEME") == i; });
    }
    for (const auto& [name, language] :
         {std::pair("languagezh", L"zh"), {"languageen", L"en"}, {"languageauto", L"auto"}})
        actions_->showState(name, [this, language = ZrString(language)] {
            return session_.variables().text(L"LANGUAGE") == language;
        });
}

// Where a command runs, it is left first.
void MainWindow::chooseDocument(int index, bool close) {
    const auto& all = session_.documents().all();
    if (index < 0 || static_cast<std::size_t>(index) >= all.size())
        return;
    Document* const document = all[static_cast<std::size_t>(index)].get();
    if (front_.question() == nullptr || front_.question()->kind != Question::Kind::Command) {
        front_.escape();
        QTimer::singleShot(0, this, [this, index, close] { chooseDocument(index, close); });
        return;
    }
    session_.documents().setCurrent(document);
    if (close)
        front_.run(L"_CLOSE");
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

void MainWindow::refresh() {
    const Document* const document = session_.documents().current();
    if (document != nullptr && !document->path().empty())
        recent_.add(document->path());
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

void MainWindow::refreshRecentFiles() {
    QMenu& menu = actions_->menu(MenuPlace::File);
    auto* recent = menu.findChild<QMenu*>("recent");
    if (recent == nullptr) {
        recent = new QMenu(toQt(words::kSubRecent), &menu);
        recent->setObjectName("recent");
        menu.insertMenu(&actions_->action("save"), recent);
    }
    recent->clear();
    int number = 0;
    for (const ZrString& file : recent_.all()) {
        const QString label = QString("&%1  %2").arg(++number).arg(toQt(file).replace('&', "&&"));
        recent->addAction(label, this, [this, file] { typeOpen(file); });
    }
    if (number == 0)
        recent->addAction(toQt(words::kNoRecent))->setEnabled(false);
    recent->addSeparator();
    recent->addAction(toQt(words::kClearRecent), this, [this] { recent_.clear(); });
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

void MainWindow::restoreLayout() {
    const auto bytes = [&](const wchar_t* key) {
        const std::optional<std::wstring> text = session_.settings().get(kLayoutSection, key);
        return text ? QByteArray::fromBase64(toQt(*text).toLatin1()) : QByteArray();
    };
    restoreGeometry(bytes(kGeometryKey));
    restoreState(bytes(kStateKey), kLayoutVersion);
}

// A layout that cannot be written is no reason to keep a person from leaving.
void MainWindow::saveLayout() {
    const auto keep = [&](const wchar_t* key, const QByteArray& bytes) {
        (void)session_.settings().set(kLayoutSection, key, fromQt(QString::fromLatin1(bytes.toBase64())));
    };
    keep(kGeometryKey, saveGeometry());
    keep(kStateKey, saveState(kLayoutVersion));
    (void)session_.settings().set(kLayoutSection, kPalettesKey, fromQt(palettes_->shownPalettes().join(' ')));
}

void MainWindow::restorePalettes() {
    if (const auto shown = session_.settings().get(kLayoutSection, kPalettesKey))
        palettes_->showPalettes(toQt(*shown).split(' ', Qt::SkipEmptyParts));
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

// What no widget wanted is meant for the command line; what that does not want comes back here.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (std::exchange(isForwardingKey_, true))
        return;
    commandLine_->takeKey(event);
    isForwardingKey_ = false;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) {
            typeOpen(fromQt(url.toLocalFile()));
            event->acceptProposedAction();
            return; // one at a time: each is a command
        }
}

} // namespace quor::desktop
