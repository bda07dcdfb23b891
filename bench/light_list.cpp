// The rows of the light list, 10^2 to 10^5 of them: filling and sorting the list has to grow with the drawing and
// nothing else; what is done to one light has to cost the same beside a hundred rows and beside a hundred thousand.
#include "bench/support/drawing_maker.h"
#include "host/document.h"
#include "host/session.h"
#include "light/palette/light_rows.h"
#include "sdk/db/database.h"
#include "sdk/db/light.h"
#include "tests/support/silent_front_end.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

namespace {

using quor::light::LightRows;

ZrString nameOf(std::size_t number) { return L"点光源" + std::to_wstring(number); }

// A drawing with lights whose names are out of order, and the list of them.
class ListedDrawing {
public:
    explicit ListedDrawing(const benchmark::State& state)
        : session_(front_, {.settingsFile = folder_.path() / "settings.ini",
                            .resourceFolder = {},
                            .moduleFolders = {},
                            .language = L"zh"}) {
        list.Create({.style = LVS_REPORT});
        list.InsertColumn(0, {}, 0, 50);
        list.InsertColumn(1, {}, 0, 120);
        session_.documents().newDocument();
        const auto count = static_cast<std::size_t>(state.range(0));
        constexpr std::size_t stride = 7'919; // a prime: each number comes once
        const ZrDbObjectPointer<ZrDbBlockTableRecord> space(zrdbWorkingDatabase()->modelSpaceId(), ZrDb::kForWrite);
        for (std::size_t i = 0; i < count; ++i)
            lights.push_back(append(*space, nameOf(i * stride % count)));
    }

    // Reads the drawing from a file, so that no light has been opened. False when that failed.
    [[nodiscard]] bool reopen() {
        const auto file = folder_.path() / "lights.dxf";
        if (!std::filesystem::exists(file) && !zrdbWorkingDatabase()->host().save(file))
            return false;
        auto drawing = quor::db::Database::open(file);
        if (!drawing)
            return false;
        session_.documents().adopt(std::move(drawing).value(), file);
        return true;
    }

    // As the palette fills its list.
    void rebuild() {
        quor::light::rowOrder = {.column = 1, .ascending = {false, false}};
        rows.refresh();
        rows.sortByClick(1);
    }

    CListCtrl list;
    LightRows rows{list};
    std::vector<ZrDbObjectId> lights;

private:
    static ZrDbObjectId append(ZrDbBlockTableRecord& space, const ZrString& name) {
        auto* light = new ZrDbLight; // the drawing's as soon as it is appended
        light->setName(name);
        ZrDbObjectId id;
        space.appendZrDbEntity(id, light);
        light->close();
        return id;
    }

    quor::bench::ScratchFolder folder_;
    quor::test::SilentFrontEnd front_;
    quor::Session session_;
};

template <class Work>
double secondsFor(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void rebuild(benchmark::State& state) {
    ListedDrawing drawing(state);
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(secondsFor([&] { drawing.rebuild(); }));
    state.SetComplexityN(state.range(0));
}

void rebuildUnopened(benchmark::State& state) {
    ListedDrawing drawing(state);
    for ([[maybe_unused]] auto _ : state) {
        if (!drawing.reopen())
            return state.SkipWithError("the drawing was not read");
        state.SetIterationTime(secondsFor([&] { drawing.rebuild(); }));
    }
    state.SetComplexityN(state.range(0));
}

void sortByClick(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(secondsFor([&] { drawing.rows.sortByClick(1); }));
    state.SetComplexityN(state.range(0));
}

// The light that the single steps are done to; others come in between, so that it is not the one just touched.
ZrDbObjectId anyLight(const ListedDrawing& drawing, std::size_t step) {
    constexpr std::size_t stride = 104'729; // a prime
    return drawing.lights[step * stride % drawing.lights.size()];
}

double updateAfter(ListedDrawing& drawing, ZrDbObjectId id, const std::function<void(ZrDbLight&)>& change) {
    {
        const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForWrite, true);
        change(*light);
    }
    const ZrDbObjectPointer<ZrDbLight> light(id, ZrDb::kForRead, true);
    return secondsFor([&] { drawing.rows.update(*light); });
}

double updateErased(ListedDrawing& drawing, ZrDbObjectId id, bool erased) {
    return updateAfter(drawing, id, [&](ZrDbLight& light) { light.erase(erased); });
}

// Gives it a name that no light has had.
double updateRenamed(ListedDrawing& drawing, std::size_t step) {
    const ZrString name = nameOf(drawing.lights.size() + step);
    return updateAfter(drawing, anyLight(drawing, step), [&](ZrDbLight& light) { light.setName(name); });
}

void eraseOne(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    for (std::size_t step = 0; [[maybe_unused]] auto _ : state) {
        const ZrDbObjectId light = anyLight(drawing, step++);
        state.SetIterationTime(updateErased(drawing, light, true));
        updateErased(drawing, light, false);
    }
}

void addOne(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    for (std::size_t step = 0; [[maybe_unused]] auto _ : state) {
        const ZrDbObjectId light = anyLight(drawing, step++);
        updateErased(drawing, light, true);
        state.SetIterationTime(updateErased(drawing, light, false));
    }
}

void renameOne(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    for (std::size_t step = 0; [[maybe_unused]] auto _ : state)
        state.SetIterationTime(updateRenamed(drawing, step++));
}

// With as many renamed rows to be put in their places as range(1) says.
void addOneAfterRenaming(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    for (std::size_t step = 0; [[maybe_unused]] auto _ : state) {
        for (std::int64_t i = 0; i < state.range(1); ++i, ++step)
            updateRenamed(drawing, step);
        const ZrDbObjectId light = anyLight(drawing, step);
        updateErased(drawing, light, true);
        state.SetIterationTime(updateErased(drawing, light, false));
    }
}

void selectTenth(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    const auto count = static_cast<std::ptrdiff_t>(drawing.lights.size() / 10);
    const std::vector<ZrDbObjectId> halves[] = {{drawing.lights.begin(), drawing.lights.begin() + count},
                                                {drawing.lights.end() - count, drawing.lights.end()}};
    for (std::size_t step = 0; [[maybe_unused]] auto _ : state)
        state.SetIterationTime(secondsFor([&] { drawing.rows.select(halves[step++ % 2]); }));
    state.SetComplexityN(state.range(0));
}

void findByName(benchmark::State& state) {
    ListedDrawing drawing(state);
    drawing.rebuild();
    constexpr std::int64_t stride = 104'729;
    for (std::int64_t step = 0; [[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(drawing.rows.lightAt(static_cast<int>(step++ * stride % state.range(0))));
}

void sizes(benchmark::internal::Benchmark* benchmark) { benchmark->RangeMultiplier(10)->Range(100, 100'000); }
void whole(benchmark::internal::Benchmark* benchmark) {
    sizes(benchmark);
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime();
}
// Each step is short beside what leads to it: a fixed number of them.
void single(benchmark::internal::Benchmark* benchmark) {
    sizes(benchmark);
    benchmark->Unit(benchmark::kNanosecond)->UseManualTime()->Iterations(20'000);
}

BENCHMARK(rebuild)->Apply(whole)->Complexity();
BENCHMARK(rebuildUnopened)->Apply(whole)->Iterations(10)->Complexity();
BENCHMARK(sortByClick)->Apply(whole)->Complexity();
BENCHMARK(selectTenth)->Apply(whole)->Complexity();
BENCHMARK(addOne)->Apply(single);
BENCHMARK(renameOne)->Apply(single);
BENCHMARK(eraseOne)->Apply(single);
BENCHMARK(addOneAfterRenaming)
    ->ArgsProduct({{10'000, 100'000}, {1, 10, 100}})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(200);
BENCHMARK(findByName)->Apply(sizes);

} // namespace
