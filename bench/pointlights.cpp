// POINTLIGHT from a script, 10^2 to 10^5 times in one drawing: the last light has to cost what the first one did, also
// where the drawing holds half a million other entities. With a name alone, and with every option. Then taking the
// lights back and erasing them, which has to grow with their number and nothing else.
#include "bench/support/light_session.h"

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

namespace {

using quor::bench::lightScript;
using quor::bench::LightSession;

constexpr std::size_t otherEntities = 500'000;

// 39 answers.
const std::string everyOption = "I 0.8 S F P I F 1200 C K 3000 X W F 512 4 W A S C 5 10 A 64 V Y X "
                                "A L 1 E 5 T S U N X C 10,20,30 ";

// Seconds that the lights of a script took.
struct Times {
    double first = 0; // tenth
    double last = 0;
    double all = 0;
};

// Nothing when a command failed.
std::optional<Times> makeLights(LightSession& session, std::size_t count, const std::string& options) {
    const std::size_t tenth = count / 10;
    const std::string first = lightScript(0, tenth, options);
    const std::string middle = lightScript(tenth, count - 2 * tenth, options);
    const std::string last = lightScript(count - tenth, tenth, options);
    Times times;
    times.first = session.secondsFor(first);
    const double between = session.secondsFor(middle);
    times.last = session.secondsFor(last);
    times.all = times.first + between + times.last;
    return times.first < 0 || between < 0 || times.last < 0 ? std::nullopt : std::optional(times);
}

// Counts the time of the commands alone. "last_over_first" is the speed of the last tenth over that of the first,
// "bytes_per_light" what each light keeps in memory, its undo included.
template <class Prepare>
void timeLights(benchmark::State& state, const std::string& options, const Prepare& prepare) {
    const auto count = static_cast<std::size_t>(state.range(0));
    double ratio = 0;
    std::size_t bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        LightSession session;
        if (!prepare(session))
            return state.SkipWithError("there is no drawing to put lights in");
        const std::size_t before = quor::bench::memoryInUse();
        const std::optional<Times> times = makeLights(session, count, options);
        if (!times)
            return state.SkipWithError("a command failed");
        state.SetIterationTime(times->all);
        ratio = times->first / times->last;
        bytes = quor::bench::memoryInUse() - before;
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
    state.counters["last_over_first"] = ratio;
    state.counters["bytes_per_light"] = static_cast<double>(bytes) / static_cast<double>(count);
}

bool openNew(LightSession& session) { return session.openNew(); }
bool openWithLines(LightSession& session) { return session.openWithLines(otherEntities); }
bool typeLines(LightSession& session) {
    return session.openNew() && session.run(quor::bench::lineScript(otherEntities));
}

void pointLights(benchmark::State& state) { timeLights(state, "", openNew); }
void pointLightsWithEveryOption(benchmark::State& state) { timeLights(state, everyOption, openNew); }
void pointLightsBesideLoadedLines(benchmark::State& state) { timeLights(state, "", openWithLines); }
void pointLightsBesideTypedLines(benchmark::State& state) { timeLights(state, "", typeLines); }

// What one command does with all the lights of a drawing.
void timeOnAllLights(benchmark::State& state, const std::string& command) {
    const std::string script = lightScript(0, static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        LightSession session;
        if (!session.openNew() || !session.run(script))
            return state.SkipWithError("the lights were not made");
        const double seconds = session.secondsFor(command);
        if (seconds < 0)
            return state.SkipWithError("the command failed");
        state.SetIterationTime(seconds);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void undoPointLights(benchmark::State& state) { timeOnAllLights(state, "UNDO All\n"); }
void erasePointLights(benchmark::State& state) { timeOnAllLights(state, "ERASE ALL \n"); }

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Unit(benchmark::kMillisecond)->UseManualTime();
}

// Making the drawing takes longer than making the lights: few runs are enough.
void sizesBesideLines(benchmark::internal::Benchmark* benchmark) {
    sizes(benchmark);
    benchmark->Range(1'000, 100'000)->Iterations(3);
}

BENCHMARK(pointLights)->Apply(sizes)->Range(100, 100'000)->Complexity(benchmark::oN);
BENCHMARK(pointLightsWithEveryOption)->Apply(sizes)->Range(100, 10'000)->Complexity(benchmark::oN);
BENCHMARK(pointLightsBesideLoadedLines)->Apply(sizesBesideLines);
BENCHMARK(pointLightsBesideTypedLines)->Apply(sizesBesideLines);
BENCHMARK(undoPointLights)->Apply(sizes)->Range(1'000, 100'000)->Complexity(benchmark::oN);
BENCHMARK(erasePointLights)->Apply(sizes)->Range(1'000, 100'000)->Complexity(benchmark::oN);

} // namespace
