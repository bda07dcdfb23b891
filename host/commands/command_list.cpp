#include "host/commands/command_list.h"

#include "host/commands/ask.h"
#include "host/commands/commands.h"
#include "host/document.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/texts/input.h"

#include <array>

namespace quor {

namespace {

constexpr bool kWithDrawing = true;
constexpr bool kAnytime = false;

struct Row {
    const wchar_t* name;
    int (*run)(Session&);
    bool needsDrawing;
    int flags;
    std::array<const wchar_t*, 4> aliases = {};
};

using namespace commands;
using ed::kNoRepeat;
using ed::kNoUndo;
using ed::kTransparent;

// clang-format off
const Row kCommands[] = {
    {L"NEW",        newDrawing,     kAnytime,     kNoUndo},
    {L"OPEN",       openDrawing,    kAnytime,     kNoUndo},
    {L"RECOVER",    recoverDrawing, kAnytime,     kNoUndo},
    {L"SAVE",       saveDrawing,    kWithDrawing, kNoUndo, {L"QSAVE"}},
    {L"SAVEAS",     saveDrawingAs,  kWithDrawing, kNoUndo},
    {L"CLOSE",      closeDrawing,   kWithDrawing, kNoUndo},
    {L"DOCUMENTS",  listDocuments,  kAnytime,     kNoUndo, {L"DOCS"}},
    {L"QUIT",       quit,           kAnytime,     kNoUndo | kNoRepeat, {L"EXIT"}},
    {L"U",          undoOne,        kWithDrawing, kNoUndo},
    {L"UNDO",       undoSeveral,    kWithDrawing, kNoUndo},
    {L"REDO",       redo,           kWithDrawing, kNoUndo},
    {L"SELECT",     commands::select, kWithDrawing, 0},
    {L"ERASE",      erase,          kWithDrawing, 0, {L"E"}},
    {L"LIST",       list,           kWithDrawing, 0, {L"LI", L"LS"}},
    {L"PROPERTIES", properties,     kWithDrawing, 0, {L"PROPS", L"PR", L"CH", L"MO"}},
    {L"CHPROP",     changeProperty, kWithDrawing, 0, {L"-PROPERTIES", L"-PR"}},
    {L"LIGHTTABLE", lightTable,     kWithDrawing, 0},
    {L"-LIGHTTABLE", lightTableAsFile, kWithDrawing, 0},
    {L"LINE",       line,           kWithDrawing, 0, {L"L"}},
    {L"3DFACE",     face,           kWithDrawing, 0, {L"3F"}},
    {L"REFEDIT",    commands::refEdit, kWithDrawing, 0},
    {L"REFCLOSE",   refClose,       kWithDrawing, 0},
    {L"IESINFO",    iesInfo,        kAnytime,     kNoUndo},
    {L"COLORBOOKS", colorBooks,     kAnytime,     kNoUndo | kTransparent},
    {L"UCS",        ucs,            kWithDrawing, 0},
    {L"LAYOUT",     layout,         kWithDrawing, 0, {L"LO"}},
    {L"MODEL",      model,          kWithDrawing, 0},
    {L"PAPER",      paper,          kWithDrawing, 0},
    {L"MSPACE",     modelInLayout,  kWithDrawing, 0, {L"MS"}},
    {L"PSPACE",     paperInLayout,  kWithDrawing, 0, {L"PS"}},
    {L"LAYER",      layer,          kWithDrawing, 0, {L"LA", L"-LAYER", L"-LA"}},
    {L"LAYERS",     layers,         kWithDrawing, 0},
    {L"ZOOM",       zoom,           kWithDrawing, kNoUndo | kTransparent, {L"Z"}},
    {L"VIEW",       commands::view, kWithDrawing, kNoUndo | kTransparent, {L"V", L"-VIEW", L"-V"}},
    {L"VISUALSTYLE", visualStyle,   kWithDrawing, kNoUndo | kTransparent, {L"VS", L"VSCURRENT", L"SHADEMODE", L"SHA"}},
    {L"PROJECTION", projection,     kWithDrawing, kNoUndo | kTransparent, {L"PERSPECTIVE"}},
    {L"PLAN",       plan,           kWithDrawing, kNoUndo | kTransparent},
    {L"REGEN",      regen,          kWithDrawing, kNoUndo | kTransparent, {L"RE", L"REGENALL", L"REA"}},
    {L"OSNAP",      objectSnaps,    kAnytime,     kNoUndo | kTransparent, {L"OS", L"-OSNAP", L"-OS"}},
    {L"SETVAR",     setVariable,    kAnytime,     kTransparent, {L"SET"}},
    {L"TEXTSCR",    textScreen,     kAnytime,     kNoUndo | kTransparent},
    {L"GRAPHSCR",   graphicsScreen, kAnytime,     kNoUndo | kTransparent},
    {L"SCRIPT",     script,         kAnytime,     kNoUndo, {L"SCR"}},
    {L"LOADMODULE", loadModule,     kAnytime,     kNoUndo, {L"LM"}},
    {L"HELP",       help,           kAnytime,     kNoUndo | kTransparent, {L"?"}},
};
// clang-format on

int runRow(Session& session, const Row& row) {
    if (row.needsDrawing && session.documents().current() == nullptr)
        return failWith(texts::kNoDrawing, row.name);
    return row.run(session);
}

} // namespace

void registerHostCommands(Session& session) {
    for (const Row& row : kCommands) {
        ed::Command command;
        command.group = L"QUOR";
        command.globalName = command.localName = row.name;
        command.flags = row.flags;
        command.isHost = true;
        command.run = [&session, &row] { return runRow(session, row); };
        session.commands().add(std::move(command));
        for (const wchar_t* alias : row.aliases)
            if (alias != nullptr)
                session.commands().addAlias(alias, row.name);
    }
}

} // namespace quor
