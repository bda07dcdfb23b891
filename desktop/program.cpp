#include "desktop/program.h"

#include "desktop/dialogs/recovery_dialog.h"
#include "desktop/front/desktop_front_end.h"
#include "desktop/front/run_sources.h"
#include "desktop/signals.h"
#include "desktop/window/main_window.h"
#include "host/commands/commands.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/ui/user_interface.h"
#include "sdk/rx/result_codes.h"

#include <QApplication>
#include <QSessionManager>

namespace quor::desktop {

namespace {

// How often the command prompt looks for something to copy.
constexpr int kMillisecondsBetweenLooks = 500;
// What a shell makes of a program that a signal has ended.
constexpr int kEndedBySignal = 128;

std::filesystem::path folderOfCopies(const ProgramOptions& options) {
    return options.copies.empty() ? autosave::copiesFolder() : options.copies;
}

} // namespace

Program::Program(ProgramOptions options) : options_(std::move(options)), front_(std::make_unique<DesktopFrontEnd>()) {
    front_->setDesktopIsDark(options_.desktopIsDark);
    session_ = std::make_unique<Session>(*front_, options_.session);
    autosave_ = std::make_unique<autosave::Autosave>(*session_, folderOfCopies(options_));
    window_ = std::make_unique<MainWindow>(*session_, *front_);
    copying_.setInterval(kMillisecondsBetweenLooks);
    QObject::connect(&copying_, &QTimer::timeout, window_.get(), [this] { copyDrawings(); });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, window_.get(), [this](QSessionManager& manager) {
        const bool mayAsk = manager.allowsInteraction();
        if (!mayLogOut(mayAsk))
            manager.cancel();
        if (mayAsk)
            manager.release();
    });
}

// Copies go while there are drawings to know them by. The windows of modules go next, while the widgets that show them
// are still there; the widgets go while the session that they listen to is there.
Program::~Program() {
    autosave_.reset();
    session_->modules().unloadAll();
    session_->ui().destroyPalettes();
    window_.reset();
    session_.reset();
}

void Program::loadModules() {
    for (const ZrString& module : options_.modules)
        if (session_->modules().loadModule(module) != Quor::eOk)
            front_->print(L"\n" + session_->modules().lastError() + L"\n");
}

// A drawing that was left behind comes before the one that its file holds.
void Program::recoverDrawings() { offerRecovery(*session_, *autosave_, window_.get(), folderOfCopies(options_)); }

void Program::openDrawings() {
    for (const std::filesystem::path& drawing : options_.drawings)
        if (!isDone())
            commands::openPath(*session_, drawing, false);
    if (session_->documents().all().empty())
        session_->documents().newDocument();
}

// The first one runs first: each waits on top of the ones behind it.
void Program::startScripts() {
    for (auto script = options_.scripts.rbegin(); script != options_.scripts.rend(); ++script) {
        auto source = ed::ScriptSource::open(*script);
        if (source)
            session_->input().push(std::move(source).value());
        else
            front_->print(L"\n" + source.error() + L"\n");
    }
}

bool Program::isDone() const { return session_->processor().quitRequested(); }

void Program::runCommands() {
    while (!isDone()) {
        if (session_->input().hasProgramInput())
            runSources(*session_, *front_);
        else if (!session_->processor().step())
            break;
    }
}

// A dialog at the command prompt may belong to a change that is half made.
void Program::copyDrawings() {
    const Question* const open = front_->question();
    if (open != nullptr && open->kind == Question::Kind::Command && QApplication::activeModalWidget() == nullptr)
        autosave_->tick();
}

// What runs may not come to its end in time: copies are written at once, and again when it has.
void Program::endBy(int signal) {
    if (status_ == 0)
        status_ = kEndedBySignal + signal;
    copying_.stop();
    autosave_->writeAllNow();
    session_->processor().requestQuit();
    front_->end();
}

// In the middle of a command there is no drawing that could be saved: it is offered at the next start.
bool Program::mayLogOut(bool mayAsk) {
    if (!session_->documents().hasUnsavedChanges())
        return true;
    const Question* const open = front_->question();
    if (!mayAsk || open == nullptr || open->kind != Question::Kind::Command) {
        autosave_->writeAllNow();
        return true;
    }
    if (commands::quit(*session_) != RTNORM)
        return false;
    front_->end(); // what the person discarded must not be asked about again
    return true;
}

int Program::run() {
    window_->restoreLayout();
    window_->show();
    front_->setAlive(true);
    signals_ = std::make_unique<Signals>([this](int signal) { endBy(signal); });
    loadModules();
    recoverDrawings();
    openDrawings();
    window_->restorePalettes();
    startScripts();
    copying_.start();
    runCommands();
    copying_.stop();
    // Nobody was asked about the changes.
    if (status_ != 0 || !isDone())
        autosave_->writeAllNow();
    signals_.reset();
    front_->setAlive(false);
    window_->saveLayout();
    window_->hide();
    return status_;
}

} // namespace quor::desktop
