// The desktop program: one host session, its main window, and the loop that asks for commands until the person is done.
#pragma once

#include "host/session.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quor::desktop {

class DesktopFrontEnd;
class MainWindow;
class Signals;

// What to start with.
struct ProgramOptions {
    std::vector<std::filesystem::path> drawings; // none: a new one
    std::vector<std::string> scripts;            // run after the start
    SessionOptions session;
    std::vector<ZrString> modules{L"light"};
    bool desktopIsDark = true;
};

class Program {
public:
    explicit Program(ProgramOptions options);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Shows the window, opens the drawings, then runs commands until QUIT. Waits in event loops of its own; called from
    // one.
    void run();

    [[nodiscard]] Session& session() { return *session_; }
    [[nodiscard]] DesktopFrontEnd& front() { return *front_; }
    [[nodiscard]] MainWindow& window() { return *window_; }

private:
    void loadModules();
    void openDrawings();
    void startScripts();

    ProgramOptions options_;
    std::unique_ptr<DesktopFrontEnd> front_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<Signals> signals_;
};

} // namespace quor::desktop
