#include "host/commands/ask.h"
#include "host/commands/ask_file.h"
#include "host/commands/commands.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/texts/commands.h"
#include "host/ui/file_dialog.h"
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

std::optional<ZrString> chooseOrType(Session& session, const Text& prompt, const Text& caption,
                                     FileQuestion::Filter filter) {
    if (!asksInDialog(session))
        return askLine(prompt.get());
    FileQuestion chooser;
    chooser.caption = caption.get();
    chooser.filters = {std::move(filter)};
    return ui::chooseFile(session, chooser);
}

} // namespace

// The script answers from the next command prompt on.
int script(Session& session) {
    const std::optional<ZrString> answer =
        chooseOrType(session, texts::kAskScript, texts::kChooseScript, {texts::kScriptFiles.get(), L"*.scr"});
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
    const std::optional<ZrString> answer =
        chooseOrType(session, texts::kAskModule, texts::kChooseModule, {texts::kModuleFiles.get(), L"*.so"});
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
