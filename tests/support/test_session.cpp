#include "tests/support/test_session.h"

#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/sys/utf8.h"

#include <cstdlib>
#include <string>

namespace quor::test {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quor-test-XXXXXX").string();
    path_ = mkdtemp(pattern.data()) != nullptr ? std::filesystem::path(pattern) : std::filesystem::path();
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

TestSession::TestSession(const TestSessionOptions& options)
    : session_(front_, {.settingsFile = folder_.path() / "settings.ini",
                        .resourceFolder = {},
                        .moduleFolders = {},
                        .language = options.language}) {
    if (options.newDrawing)
        session_.documents().newDocument();
}

void TestSession::addCommand(const ZrString& name, std::function<int()> run, int flags) {
    session_.commands().add({.group = L"TEST",
                             .globalName = name,
                             .localName = name,
                             .flags = flags,
                             .run = std::move(run),
                             .isHost = false});
}

ed::Verdict TestSession::run(std::initializer_list<ZrString> lines) {
    front_.type(lines);
    ed::Verdict last;
    while (std::optional<ed::Verdict> verdict = session_.processor().step())
        last = std::move(*verdict);
    return last;
}

void TestSession::runScript(const std::string& text) {
    session_.input().push(std::make_unique<ed::ScriptSource>(text, L"test.scr"));
    ed::runSources(session_, true);
}

bool TestSession::loadLight(const std::filesystem::path& buildFolder) {
    const std::filesystem::path file = buildFolder / "lib" / "quor" / "modules" / "light.so";
    return session_.modules().loadModule(fromUtf8(file.string())) == Quor::eOk;
}

} // namespace quor::test
