#include "bench/support/light_session.h"

#include "host/document.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"

#include <chrono>
#include <malloc.h>

namespace quor::bench {

namespace {

// Coordinates of the i-th thing on a grid.
std::string place(std::size_t i) { return std::to_string(i % 1000) + "," + std::to_string(i / 1000); }

} // namespace

LightSession::LightSession()
    : session_(front_, {.settingsFile = folder_.path() / "settings.ini",
                        .resourceFolder = {},
                        .moduleFolders = {std::filesystem::path(QUOR_BUILD_DIR) / "lib" / "quor" / "modules"},
                        .language = L"zh"}) {}

bool LightSession::prepare() {
    return session_.modules().loadModule(L"light") == Quor::eOk &&
           run("SETVAR DEFAULTLIGHTING 0\nSETVAR LIGHTINGUNITS 2\n");
}

bool LightSession::openNew() {
    session_.documents().newDocument();
    return prepare();
}

bool LightSession::openWithLines(std::size_t lines) {
    const auto file = folder_.write("lines.dxf", makeDrawing(lines, Entities::Lines));
    auto drawing = db::Database::open(file);
    if (!drawing)
        return false;
    session_.documents().adopt(std::move(drawing).value(), file);
    return prepare();
}

bool LightSession::run(const std::string& script) {
    session_.input().push(std::make_unique<ed::ScriptSource>(script, L"bench.scr"));
    return ed::runSources(session_, false).failures == 0;
}

double LightSession::secondsFor(const std::string& script) {
    const auto start = std::chrono::steady_clock::now();
    const bool worked = run(script);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    return worked ? passed.count() : -1;
}

std::string lightScript(std::size_t first, std::size_t count, const std::string& options) {
    std::string script;
    for (std::size_t i = first; i < first + count; ++i)
        script += "POINTLIGHT " + place(i) + ",3 N\nLamp " + std::to_string(i) + "\n" + options + "X\n";
    return script;
}

std::string lineScript(std::size_t count) {
    std::string script;
    for (std::size_t i = 0; i < count; ++i)
        script += "LINE " + place(i) + " " + place(i + 1) + " \n";
    return script;
}

std::size_t memoryInUse() {
    const struct mallinfo2 memory = mallinfo2();
    return memory.uordblks + memory.hblkhd;
}

} // namespace quor::bench
