// Reading and saving drawings of 10^2 to 10^6 entities: both have to grow with the file and with nothing else.
#include "bench/support/drawing_maker.h"
#include "host/db/database.h"
#include "host/dxf/image.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace {

using quor::bench::ScratchFolder;
using quor::db::Database;

std::filesystem::path drawingFile(const ScratchFolder& folder, const benchmark::State& state) {
    return folder.write("drawing.dxf", quor::bench::makeDrawing(static_cast<std::size_t>(state.range(0))));
}

void countBytes(benchmark::State& state, const std::filesystem::path& file) {
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(file));
    state.SetBytesProcessed(state.iterations() * size);
    state.SetComplexityN(state.range(0));
}

// The file into memory and no more: the floor under the others.
void readBytes(benchmark::State& state) {
    const ScratchFolder folder;
    const auto file = drawingFile(folder, state);
    for ([[maybe_unused]] auto _ : state) {
        const auto image = quor::dxf::Image::read(file);
        benchmark::DoNotOptimize(image.value().data());
    }
    countBytes(state, file);
}

void load(benchmark::State& state) {
    const ScratchFolder folder;
    const auto file = drawingFile(folder, state);
    for ([[maybe_unused]] auto _ : state) {
        auto database = Database::open(file);
        if (!database)
            return state.SkipWithError("the drawing was not opened");
        benchmark::DoNotOptimize(database.value().get());
    }
    countBytes(state, file);
}

// Saves a drawing in which nothing was changed, synced to the disk.
void save(benchmark::State& state) {
    const ScratchFolder folder;
    const auto file = drawingFile(folder, state);
    const auto database = Database::open(file);
    if (!database)
        return state.SkipWithError("the drawing was not opened");
    for ([[maybe_unused]] auto _ : state)
        if (!database.value()->save(folder.path() / "saved.dxf"))
            return state.SkipWithError("the drawing was not saved");
    countBytes(state, file);
}

// The bytes of a save without the disk.
void write(benchmark::State& state) {
    const ScratchFolder folder;
    const auto file = drawingFile(folder, state);
    const auto database = Database::open(file);
    if (!database)
        return state.SkipWithError("the drawing was not opened");
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(database.value()->toBytes());
    countBytes(state, file);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(100, 1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime()->Complexity();
}

BENCHMARK(readBytes)->Apply(sizes);
BENCHMARK(load)->Apply(sizes);
BENCHMARK(save)->Apply(sizes);
BENCHMARK(write)->Apply(sizes);

} // namespace
