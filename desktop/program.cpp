#include "desktop/program.h"

#include "desktop/front/desktop_front_end.h"
#include "desktop/window/main_window.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "host/ed/script_run.h"
#include "host/rx/module_loader.h"

namespace quor::desktop {

Program::Program(ProgramOptions options)
    : options_(std::move(options)), front_(std::make_unique<DesktopFrontEnd>()),
      session_(std::make_unique<Session>(*front_, options_.session)),
      window_(std::make_unique<MainWindow>(*session_, *front_)) {}

// The windows of modules go with the session, while the widgets that show them are still there.
Program::~Program() {
    session_.reset();
    window_.reset();
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

void Program::run() {
    window_->show();
    loadModules();
    openDrawings();
    while (!session_->processor().quitRequested() && session_->processor().step())
        if (session_->input().hasProgramInput())
            ed::runSources(*session_, false);
    window_->hide();
}

} // namespace quor::desktop
