// A list of 10^2 to 10^5 rows: making it, changing one row, finding, sorting, selecting and painting. A change of one
// row may cost the logarithm of their number, painting nothing that depends on it.
#include "sdk/ui/list_control.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

// Counts what is drawn.
class CountingDevice : public quor::ui::DrawingDevice {
public:
    void enter(const CRect& /*child*/) override {}
    void leave() override {}
    void fill(const CRect& /*rect*/, COLORREF /*color*/) override { ++calls; }
    void text(std::wstring_view /*text*/, const CRect& /*rect*/, unsigned /*format*/, COLORREF /*color*/,
              quor::ui::Font /*font*/, const COLORREF* /*background*/) override {
        ++calls;
    }
    void focusRect(const CRect& /*rect*/) override { ++calls; }
    void picture(const quor::ui::PictureResource& /*picture*/, const CRect& /*rect*/, unsigned /*style*/) override {
        ++calls;
    }
    [[nodiscard]] CSize textExtent(std::wstring_view /*text*/, quor::ui::Font /*font*/) const override { return {}; }

    std::size_t calls = 0;
};

std::vector<CListCtrl::Row> makeRows(std::int64_t count) {
    std::vector<CListCtrl::Row> rows(static_cast<std::size_t>(count));
    std::int64_t number = 0;
    for (CListCtrl::Row& row : rows)
        row = {.texts = {L"", L"Pointlight" + std::to_wstring(1 + number++ * 7919 % count)}, .image = 1};
    return rows;
}

// Room for 25 rows.
class List : public CListCtrl {
public:
    explicit List(std::int64_t rows) {
        Create({.style = LVS_REPORT | WS_VISIBLE, .rect = {0, 0, 170, 24 + 25 * 17}});
        SetExtendedStyle(LVS_EX_FULLROWSELECT);
        InsertColumn(0, L"", HDF_LEFT, 50);
        InsertColumn(1, L"Name", HDF_LEFT, 120);
        SetRows(makeRows(rows));
    }
};

template <class Prepare>
void timeSetRows(benchmark::State& state, const Prepare& prepare) {
    List list(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        prepare(list);
        std::vector<CListCtrl::Row> rows = makeRows(state.range(0));
        state.ResumeTiming();
        list.SetRows(std::move(rows));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void setRows(benchmark::State& state) {
    timeSetRows(state, [](List& list) { list.DeleteAllItems(); });
}

void replaceRows(benchmark::State& state) {
    timeSetRows(state, [](List& /*list*/) {});
}

// Does something to one row after the other, all over the list.
template <class Action>
void timeOnRows(benchmark::State& state, const Action& action) {
    List list(state.range(0));
    const int count = list.GetItemCount();
    int row = 0;
    for ([[maybe_unused]] auto _ : state) {
        action(list, row);
        row = (row + 7919) % count;
    }
    state.SetComplexityN(state.range(0));
}

// The list is twice as long in the end at most.
void insertInTheMiddle(benchmark::State& state) {
    List list(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        list.InsertItem(list.GetItemCount() / 2, L"");
        if (list.GetItemCount() == 2 * state.range(0)) {
            state.PauseTiming();
            list.SetRows(makeRows(state.range(0)));
            state.ResumeTiming();
        }
    }
    state.SetComplexityN(state.range(0));
}

void deleteAndInsert(benchmark::State& state) {
    timeOnRows(state, [](List& list, int row) {
        list.DeleteItem(row);
        list.InsertItem(row, L"");
        list.SetItemText(row, 1, L"Pointlight4711");
    });
}

void rename(benchmark::State& state) {
    timeOnRows(state, [](List& list, int row) { list.SetItemText(row, 1, L"Pointlight4711"); });
}

void move(benchmark::State& state) {
    timeOnRows(state, [](List& list, int row) { list.MoveItem(row, list.GetItemCount() / 2); });
}

void mapIDToIndex(benchmark::State& state) {
    timeOnRows(state,
               [](List& list, int row) { benchmark::DoNotOptimize(list.MapIDToIndex(static_cast<unsigned>(row))); });
}

void mapIndexToID(benchmark::State& state) {
    timeOnRows(state, [](List& list, int row) { benchmark::DoNotOptimize(list.MapIndexToID(row)); });
}

void findTheOneSelected(benchmark::State& state) {
    List list(state.range(0));
    list.SetItemState(list.GetItemCount() - 1, LVIS_SELECTED, LVIS_SELECTED);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(list.GetNextItem(-1, LVNI_SELECTED));
    state.SetComplexityN(state.range(0));
}

void walkById(benchmark::State& state) {
    List list(state.range(0));
    list.SelectAll(true);
    for ([[maybe_unused]] auto _ : state) {
        for (unsigned id = list.MapIndexToID(0); id != CListCtrl::kNoRow; id = list.nextID(id))
            benchmark::DoNotOptimize(list.isSelected(id));
    }
    state.SetComplexityN(state.range(0));
}

void sortByText(benchmark::State& state) {
    List list(state.range(0));
    bool ascending = false;
    for ([[maybe_unused]] auto _ : state) {
        ascending = !ascending;
        list.SortItems([&](unsigned a, unsigned b) {
            return ascending ? list.textOf(a, 1) < list.textOf(b, 1) : list.textOf(b, 1) < list.textOf(a, 1);
        });
    }
    state.SetComplexityN(state.range(0));
}

// Every tenth row one by one, as clicks with Ctrl do, then none again.
void selectATenth(benchmark::State& state) {
    List list(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        for (int row = 0; row < list.GetItemCount(); row += 10)
            list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        list.SelectAll(false);
    }
    state.SetComplexityN(state.range(0));
}

void selectAll(benchmark::State& state) {
    List list(state.range(0));
    bool select = false;
    for ([[maybe_unused]] auto _ : state) {
        select = !select;
        list.SelectAll(select);
    }
    state.SetComplexityN(state.range(0));
}

void timePainting(benchmark::State& state, List& list) {
    CountingDevice device;
    list.SetTopIndex(list.GetItemCount() / 2);
    for ([[maybe_unused]] auto _ : state) {
        CDC dc(device);
        list.dispatchPaint(dc);
    }
    state.counters["calls"] = benchmark::Counter(static_cast<double>(device.calls), benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}

void paintNoneSelected(benchmark::State& state) {
    List list(state.range(0));
    timePainting(state, list);
}

void paintAllSelected(benchmark::State& state) {
    List list(state.range(0));
    list.SelectAll(true);
    timePainting(state, list);
}

void paintEverySecondSelected(benchmark::State& state) {
    List list(state.range(0));
    for (int row = 0; row < list.GetItemCount(); row += 2)
        list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    timePainting(state, list);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(100, 100'000)->Complexity();
}

void manySizes(benchmark::internal::Benchmark* benchmark) {
    sizes(benchmark);
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK(setRows)->Apply(manySizes);
BENCHMARK(replaceRows)->Apply(manySizes);
BENCHMARK(insertInTheMiddle)->Apply(sizes);
BENCHMARK(deleteAndInsert)->Apply(sizes);
BENCHMARK(rename)->Apply(sizes);
BENCHMARK(move)->Apply(sizes);
BENCHMARK(mapIDToIndex)->Apply(sizes);
BENCHMARK(mapIndexToID)->Apply(sizes);
BENCHMARK(findTheOneSelected)->Apply(sizes);
BENCHMARK(walkById)->Apply(manySizes);
BENCHMARK(sortByText)->Apply(manySizes);
BENCHMARK(selectATenth)->Apply(manySizes);
BENCHMARK(selectAll)->Apply(manySizes);
BENCHMARK(paintNoneSelected)->Apply(sizes);
BENCHMARK(paintAllSelected)->Apply(sizes);
BENCHMARK(paintEverySecondSelected)->Apply(sizes);

} // namespace
