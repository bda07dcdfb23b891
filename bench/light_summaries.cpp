// What a list of the lights of a drawing reads and selects: 10^2 to 10^5 lights of a drawing that was just opened, and
// a selection of as many objects. The cost of one has to be the same however many there are.
#include "host/db/database.h"
#include "host/document.h"
#include "host/session.h"
#include "sdk/db/light.h"
#include "sdk/ed/selection_sets.h"
#include "tests/support/silent_front_end.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using quor::db::Database;

// Lights of every type in turn, saved with their photometric data.
std::string drawingWithLights(std::size_t count) {
    constexpr std::array types{DrawableType::kPointLight, DrawableType::kSpotLight, DrawableType::kWebLight,
                               DrawableType::kDistantLight};
    const std::unique_ptr<Database> drawing = Database::makeNew();
    for (std::size_t i = 0; i < count; ++i) {
        auto light = std::make_unique<ZrDbLight>();
        light->setName(L"Light" + std::to_wstring(i));
        light->setLightType(types[i % types.size()]);
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(drawing->interface().modelSpaceId(), ZrDb::kForWrite);
        ZrDbObjectId id;
        ZrDbLight* appended = light.release();
        space->appendZrDbEntity(id, appended);
        appended->close();
    }
    return std::move(drawing->toBytes()).value();
}

std::vector<ZrDbObjectId> lightsOf(Database& drawing) {
    std::vector<ZrDbObjectId> lights;
    const ZrDbObjectPointer<ZrDbBlockTableRecord> space(drawing.interface().modelSpaceId(), ZrDb::kForRead);
    for (const auto at = space->newIterator(ZrDbLight::desc()); !at->done(); at->step())
        lights.push_back(at->entityId());
    return lights;
}

// Times `read` over the lights of a drawing that is opened anew each time.
template <class Read>
void overLights(benchmark::State& state, Read&& read) {
    const std::string bytes = drawingWithLights(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        const std::unique_ptr<Database> drawing = std::move(Database::fromBytes(bytes)).value();
        const std::vector<ZrDbObjectId> lights = lightsOf(*drawing);
        const auto start = std::chrono::steady_clock::now();
        for (const ZrDbObjectId light : lights)
            read(light);
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void lightSummaries(benchmark::State& state) {
    overLights(state, [](ZrDbObjectId light) {
        ZrDbLightSummary summary;
        benchmark::DoNotOptimize(zrdbLightSummary(light, summary));
        benchmark::DoNotOptimize(summary.name.data());
    });
}

void openLights(benchmark::State& state) {
    overLights(state, [](ZrDbObjectId light) {
        const ZrDbObjectPointer<ZrDbLight> opened(light, ZrDb::kForRead);
        benchmark::DoNotOptimize(opened->name().data());
    });
}

// A set is put together, selected, and the selection asked for again, member by member.
void selectAndAsk(benchmark::State& state) {
    quor::test::SilentFrontEnd front;
    quor::Session session(front);
    auto drawing = Database::fromBytes(drawingWithLights(static_cast<std::size_t>(state.range(0))));
    const quor::Document& document = session.documents().adopt(std::move(drawing).value(), "lights.dxf");
    const std::vector<ZrDbObjectId> lights = lightsOf(document.drawing());
    for ([[maybe_unused]] auto _ : state) {
        ZdsName set;
        zredSSAdd(nullptr, nullptr, set);
        for (const ZrDbObjectId light : lights) {
            const ZdsName name{light, 0};
            zredSSAdd(&name, &set, set);
        }
        zredSSSetFirst(&set);
        zredSSFree(set);
        if (zredSSGet(L"I", set) != RTNORM)
            return state.SkipWithError("nothing is selected");
        ZdsName member;
        for (long i = 0; zredSSName(set, i, member) == RTNORM; ++i)
            benchmark::DoNotOptimize(member.object);
        zredSSFree(set);
        zredSSSetFirst(nullptr);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

BENCHMARK(lightSummaries)->RangeMultiplier(10)->Range(100, 100'000)->UseManualTime()->Complexity(benchmark::oN);
BENCHMARK(openLights)->RangeMultiplier(10)->Range(100, 100'000)->UseManualTime()->Complexity(benchmark::oN);
BENCHMARK(selectAndAsk)->RangeMultiplier(10)->Range(100, 100'000)->Complexity(benchmark::oN);

} // namespace
