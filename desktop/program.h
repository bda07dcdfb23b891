// The desktop program: one host session, its main window, and the loop that asks for commands until the person is done.
#pragma once

#include "host/autosave/autosave.h"
#include "host/session.h"

#include <QTimer>

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
    std::filesystem::path copies; // where drawings with unsaved changes are copied; empty: the user's own place
};

class Program {
public:
    explicit Program(ProgramOptions options);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Shows the window, opens the drawings, then runs commands until QUIT. Waits in event loops of its own; called from
    // one. The status that the program ends with: 0, or 128 and the number of the signal that ended it.
    [[nodiscard]] int run();
    // The desktop's session is about to end. Where the person may be asked, they are asked what is to become of each
    // drawing with changes; false: the session is to go on. Otherwise copies are written.
    [[nodiscard]] bool mayLogOut(bool mayAsk);

    [[nodiscard]] Session& session() { return *session_; }
    [[nodiscard]] DesktopFrontEnd& front() { return *front_; }
    [[nodiscard]] MainWindow& window() { return *window_; }

private:
    void loadModules();
    void recoverDrawings();
    void openDrawings();
    void startScripts();
    void runCommands();
    // Copies what has changed, when nothing but the command prompt waits.
    void copyDrawings();
    // A signal came: there is nobody to ask.
    void endBy(int signal);
    [[nodiscard]] bool isDone() const;

    ProgramOptions options_;
    std::unique_ptr<DesktopFrontEnd> front_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<autosave::Autosave> autosave_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<Signals> signals_;
    QTimer copying_;
    int status_ = 0;
};

} // namespace quor::desktop
