// What entities look like, of a drawing that was just opened: 10^3 to 10^6 lines, and references to a block of a
// hundred. The cost of one has to be the same however many there are.
#include "host/db/database.h"
#include "host/gs/shape.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>
#include <utility>

namespace {

using quor::db::Database;

std::string line(std::size_t number) {
    const std::string x = std::to_string(number);
    return "0\nLINE\n8\nWALLS\n62\n3\n10\n" + x + ".25\n20\n1234.5678\n30\n0.0\n11\n" + x +
           ".75\n21\n-8765.4321\n31\n12.5\n";
}

std::string drawingOf(const std::string& entities) {
    std::string block = "0\nBLOCK\n8\n0\n2\nPART\n70\n0\n10\n0.0\n20\n0.0\n30\n0.0\n";
    for (std::size_t i = 0; i < 100; ++i)
        block += line(i);
    return "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nWALLS\n70\n0\n62\n1\n6\nCONTINUOUS\n0\n"
           "ENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n" +
           block + "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
}

// Times the shapes of all entities of model space, one after the other.
template <class Make>
void shapesOf(benchmark::State& state, Make&& make) {
    std::string entities;
    for (std::size_t i = 0; i < static_cast<std::size_t>(state.range(0)); ++i)
        entities += make(i);
    const std::string bytes = drawingOf(entities);
    for ([[maybe_unused]] auto _ : state) {
        const std::unique_ptr<Database> drawing = std::move(Database::fromBytes(bytes)).value();
        const auto start = std::chrono::steady_clock::now();
        quor::gs::ShapeReader reader(*drawing);
        quor::gs::Shape shape;
        for (const quor::db::ObjectEntry* entity : drawing->structure().modelSpace().entities) {
            shape.clear();
            reader.append(shape, *entity);
            benchmark::DoNotOptimize(shape.lines.data());
        }
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void lineShapes(benchmark::State& state) { shapesOf(state, line); }

void referenceShapes(benchmark::State& state) {
    shapesOf(state, [](std::size_t number) {
        return "0\nINSERT\n8\n0\n2\nPART\n10\n" + std::to_string(number) + ".0\n20\n0.0\n30\n0.0\n";
    });
}

BENCHMARK(lineShapes)->RangeMultiplier(10)->Range(1000, 1'000'000)->UseManualTime()->Complexity(benchmark::oN);
BENCHMARK(referenceShapes)->RangeMultiplier(10)->Range(100, 10'000)->UseManualTime()->Complexity(benchmark::oN);

} // namespace
