#include "desktop/program.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/front/run_sources.h"
#include "desktop/signals.h"
#include "desktop/window/main_window.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/ui/user_interface.h"

namespace quor::desktop {

Program::Program(ProgramOptions options) : options_(std::move(options)), front_(std::make_unique<DesktopFrontEnd>()) {
    front_->setDesktopIsDark(options_.desktopIsDark);
    session_ = std::make_unique<Session>(*front_, options_.session);
    window_ = std::make_unique<MainWindow>(*session_, *front_);
}

// The windows of modules go first, while the widgets that show them are still there; the widgets go while the session
// that they listen to is there.
Program::~Program() {
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

void Program::openDrawings() {
    for (const std::filesystem::path& drawing : options_.drawings)
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

void Program::run() {
    window_->restoreLayout();
    window_->show();
    front_->setAlive(true);
    loadModules();
    openDrawings();
    window_->restorePalettes();
    startScripts();
    signals_ = std::make_unique<Signals>([this] { front_->quit(); });
    while (!session_->processor().quitRequested()) {
        if (session_->input().hasProgramInput())
            runSources(*session_, *front_);
        else if (!session_->processor().step())
            break;
    }
    signals_.reset();
    front_->setAlive(false);
    window_->saveLayout();
    window_->hide();
}

} // namespace quor::desktop
