// Photometric web files of 10^2 to 10^6 intensities: reading has to grow with the file and with nothing else, and a web
// that was read already has to cost next to nothing.
#include "bench/support/drawing_maker.h"
#include "host/ies/reader.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

namespace {

std::string angles(std::size_t count, double last) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += std::to_string(last * static_cast<double>(i) / static_cast<double>(count - 1)) + "\n";
    return text;
}

// A web all around with about that many intensities, as many planes as vertical angles.
std::string webOf(std::size_t intensities) {
    const auto side = static_cast<std::size_t>(std::sqrt(static_cast<double>(intensities)));
    const std::string count = std::to_string(side);
    std::string text = "IESNA:LM-63-2002\n[MANUFAC] bench\nTILT=NONE\n1 -1 1 " + count + " " + count +
                       " 1 2 0 0 0\n1 1 10\n" + angles(side, 180) + angles(side, 360);
    for (std::size_t i = 0; i < side * side; ++i)
        text += std::to_string(1000 + i % 997) + (i % 10 == 9 ? ".25\n" : ".25 ");
    return text;
}

void readWeb(benchmark::State& state) {
    const std::string bytes = webOf(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        const auto web = quor::ies::readWeb(bytes);
        if (!web.ok())
            return state.SkipWithError("refused");
        benchmark::DoNotOptimize(web.value().candela.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
    state.SetComplexityN(state.range(0));
}

void luminousFlux(benchmark::State& state) {
    const auto web = quor::ies::readWeb(webOf(static_cast<std::size_t>(state.range(0))));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(quor::ies::luminousFlux(web.value()));
    state.SetComplexityN(state.range(0));
}

void loadWebAgain(benchmark::State& state) {
    const quor::bench::ScratchFolder folder;
    const std::filesystem::path file = folder.write("bench.ies", webOf(static_cast<std::size_t>(state.range(0))));
    if (!quor::ies::loadWeb(file).ok())
        return state.SkipWithError("refused");
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(quor::ies::loadWeb(file).ok());
    state.SetComplexityN(state.range(0));
}

BENCHMARK(readWeb)->RangeMultiplier(10)->Range(100, 1'000'000)->Complexity(benchmark::oN);
BENCHMARK(luminousFlux)->RangeMultiplier(10)->Range(100, 1'000'000)->Complexity(benchmark::oN);
BENCHMARK(loadWebAgain)->RangeMultiplier(10)->Range(100, 1'000'000)->Complexity(benchmark::o1);

} // namespace
