#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/texts/commands.h"
#include "sdk/rx/dynamic_linker.h"

namespace quor::commands {

namespace {

int listModules(Session& session) {
    const std::vector<std::filesystem::path> modules = session.modules().loaded();
    if (modules.empty())
        say(texts::kNoModules);
    for (const std::filesystem::path& module : modules)
        printText(L"\n  " + visibleText(textOf(module)) + L"\n");
    return RTNORM;
}

} // namespace

// The script answers from the next command prompt on.
int script(Session& session) {
    const std::optional<ZrString> answer = askLine(texts::kAskScript.get());
    if (!answer || answer->empty())
        return RTCAN;
    auto source = ed::ScriptSource::open(pathFromText(*answer));
    if (!source) {
        printText(L"\n" + visibleText(source.error()) + L"\n");
        return RTERROR;
    }
    if (const std::optional<ZrString> refusal = session.input().pushScript(std::move(source).value())) {
        printText(L"\n" + visibleText(*refusal) + L"\n");
        return RTERROR;
    }
    return RTNORM;
}

int loadModule(Session& session) {
    const std::optional<ZrString> answer = askLine(texts::kAskModule.get());
    if (!answer || answer->empty())
        return RTCAN;
    if (*answer == L"?")
        return listModules(session);
    const ZrString file = textOf(pathFromText(*answer));
    if (session.modules().loadModule(file) != Quor::eOk) {
        printText(L"\n" + visibleText(session.modules().lastError()) + L"\n");
        return RTERROR;
    }
    sayShown(texts::kModuleLoaded, file);
    return RTNORM;
}

} // namespace quor::commands
