// A fresh host for one test: its own settings, its own current folder when wanted, a new drawing.
#pragma once

#include "host/document.h"
#include "host/ed/command_processor.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "tests/support/scripted_front_end.h"

#include <filesystem>

namespace quor::test {

// A folder that is there as long as the object.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

struct TestSessionOptions {
    ZrString language = L"zh";
    bool newDrawing = true;
};

class TestSession {
public:
    explicit TestSession(const TestSessionOptions& options = {});

    [[nodiscard]] Session& session() { return session_; }
    [[nodiscard]] ScriptedFrontEnd& front() { return front_; }
    [[nodiscard]] Document& document() { return *session_.documents().current(); }
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }

    // Adds a command whose body is given; its global name is its local name.
    void addCommand(const ZrString& name, std::function<int()> run, int flags = 0);
    // Types the lines, then runs commands until the input ends; how the last command ended.
    ed::Verdict run(std::initializer_list<ZrString> lines);
    // Runs a script's text to its end or first failure.
    void runScript(const std::string& text);

    // The module of lighting commands of this build; false when it could not be loaded.
    [[nodiscard]] bool loadLight(const std::filesystem::path& buildFolder);

private:
    TemporaryFolder folder_;
    ScriptedFrontEnd front_;
    Session session_;
};

} // namespace quor::test
