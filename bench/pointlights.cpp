// POINTLIGHT from a script, 10^2 to 10^5 times in one drawing: the last light has to cost what the first one did. Once
// with a name alone, once with every option.
#include "bench/support/drawing_maker.h"
#include "bench/support/silent_front_end.h"
#include "host/document.h"
#include "host/ed/input_stack.h"
#include "host/ed/script_run.h"
#include "host/ed/script_source.h"
#include "host/rx/module_loader.h"
#include "host/session.h"
#include "host/sys/utf8.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

// Every light is given a name: default names end in a 16-bit number, so that a drawing has 65,536 of them at most.
std::string lightScript(std::size_t first, std::size_t count, const std::string& options) {
    std::string script;
    for (std::size_t i = first; i < first + count; ++i)
        script += "POINTLIGHT " + std::to_string(i % 1000) + "," + std::to_string(i / 1000) + ",3 N\nLamp " +
                  std::to_string(i) + "\n" + options + "X\n";
    return script;
}

// 39 answers.
const std::string everyOption = "I 0.8 S F P I F 1200 C K 3000 X W F 512 4 W A S C 5 10 A 64 V Y X "
                                "A L 1 E 5 T S U N X C 10,20,30 ";

// A host with the module and a new drawing, without default lighting so that no command asks about it.
class LightSession {
public:
    LightSession()
        : session_(front_, {.settingsFile = folder_.path() / "settings.ini",
                            .resourceFolder = {},
                            .moduleFolders = {std::filesystem::path(QUOR_BUILD_DIR) / "lib" / "quor" / "modules"},
                            .language = L"zh"}) {
        session_.documents().newDocument();
    }

    bool loadModule() { return session_.modules().loadModule(L"light") == Quor::eOk; }
    // Runs the script; false when a command failed.
    bool run(const std::string& script) {
        session_.input().push(std::make_unique<quor::ed::ScriptSource>(script, L"bench.scr"));
        return quor::ed::runSources(session_, false).failures == 0;
    }

private:
    quor::bench::ScratchFolder folder_;
    quor::bench::SilentFrontEnd front_;
    quor::Session session_;
};

double secondsFor(LightSession& session, const std::string& script, bool& worked) {
    const auto start = Clock::now();
    worked = session.run(script) && worked;
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Counts the time of the commands alone; "last_tenth" is the cost of a light in the last tenth over that in the first.
void makeLights(benchmark::State& state, const std::string& options) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const std::size_t tenth = count / 10;
    const std::string first = lightScript(0, tenth, options);
    const std::string middle = lightScript(tenth, count - 2 * tenth, options);
    const std::string last = lightScript(count - tenth, tenth, options);
    double ratio = 0;
    for ([[maybe_unused]] auto _ : state) {
        LightSession session;
        bool worked = session.loadModule() && session.run("SETVAR DEFAULTLIGHTING 0\n");
        const double begin = secondsFor(session, first, worked);
        const double between = secondsFor(session, middle, worked);
        const double end = secondsFor(session, last, worked);
        if (!worked)
            return state.SkipWithError("a command failed");
        state.SetIterationTime(begin + between + end);
        ratio = end / begin;
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
    state.counters["last_tenth"] = ratio;
}

void pointLights(benchmark::State& state) { makeLights(state, ""); }
void pointLightsWithEveryOption(benchmark::State& state) { makeLights(state, everyOption); }

BENCHMARK(pointLights)
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Complexity(benchmark::oN);
BENCHMARK(pointLightsWithEveryOption)
    ->RangeMultiplier(10)
    ->Range(100, 10'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Complexity(benchmark::oN);

} // namespace
