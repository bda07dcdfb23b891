// The rows against their rules in the plainest form, after every step of many random sequences.
#include "tests/light/palette/listed_lights.h"
#include "tests/light/palette/plain_rows.h"

#include <ostream>
#include <random>

namespace quor::test {
namespace {

using Light = PlainRows::Light;

// What can be seen of a row.
struct SeenRow {
    ZrString name;
    ZrString icon; // the text of column 0
    int image;
    std::intptr_t data;
    bool selected;
    ZrDbObjectId light;

    bool operator==(const SeenRow&) const = default;
};

// How many lights are there at first, how many names share them, how many steps follow.
struct Extent {
    unsigned seed;
    unsigned lights;
    unsigned names;
    unsigned steps;

    friend std::ostream& operator<<(std::ostream& out, const Extent& extent) {
        return out << "seed " << extent.seed << ", " << extent.lights << " lights, " << extent.names << " names";
    }
};

class LightRowsAndPlainRows : public ListedLights, public testing::WithParamInterface<Extent> {
protected:
    void drawAll() {
        for (unsigned i = 0; i < GetParam().lights; ++i)
            drawOne();
    }

    // Does the same to both.
    void takeStep() {
        using Step = void (LightRowsAndPlainRows::*)();
        static constexpr std::pair<Step, unsigned> steps[] = {
            {&LightRowsAndPlainRows::renameOne, 30}, {&LightRowsAndPlainRows::addOne, 20},
            {&LightRowsAndPlainRows::eraseOne, 15},  {&LightRowsAndPlainRows::uneraseOne, 12},
            {&LightRowsAndPlainRows::retypeOne, 12}, {&LightRowsAndPlainRows::touchOne, 8},
            {&LightRowsAndPlainRows::selectSome, 6}, {&LightRowsAndPlainRows::click, 3},
            {&LightRowsAndPlainRows::refresh, 1},    {&LightRowsAndPlainRows::orderOtherwise, 1},
        };
        unsigned at = below(108);
        for (const auto& [step, weight] : steps) {
            if (at < weight)
                return (this->*step)();
            at -= weight;
        }
    }

    void expectEqual() const {
        ASSERT_EQ(seen(), expected());
        ASSERT_EQ(list.GetSelectionMark(), expectedMark());
    }

    void refresh() {
        light::rowOrder = plain.order = {.column = 1, .ascending = {false, false}};
        rows.refresh();
        plain.refresh(lights);
        expectEqual();
        rows.sortByClick(1);
        plain.sortByClick(1);
    }

private:
    unsigned below(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(random); }
    ZrString anyName() { return L"光源" + std::to_wstring(below(GetParam().names)); }
    int anyType() {
        static constexpr int types[] = {1, 2, 3, 10};
        return types[below(4)];
    }
    Light& anyLight() { return lights[below(static_cast<unsigned>(lights.size()))]; }
    // The next light in that state from a random one on, or a random one.
    Light& anyLight(bool erased) {
        const std::size_t start = below(static_cast<unsigned>(lights.size()));
        for (std::size_t i = 0; i < lights.size(); ++i)
            if (Light& light = lights[(start + i) % lights.size()]; light.erased == erased)
                return light;
        return lights[start];
    }

    void tell(const Light& light) {
        update(light.id);
        plain.update(light);
    }
    Light& drawOne() {
        Light light{.id = {}, .name = anyName(), .type = anyType()};
        light.id = draw(light.name, light.type);
        return lights.emplace_back(light);
    }
    void addOne() { tell(drawOne()); }
    void renameOne() {
        Light& light = anyLight(false);
        light.name = anyName();
        rename(light.id, light.name);
        tell(light);
    }
    void retypeOne() {
        Light& light = anyLight(false);
        light.type = anyType();
        setType(light.id, light.type);
        tell(light);
    }
    void setErased(Light& light, bool erased) {
        light.erased = erased;
        erase(light.id, erased);
        tell(light);
    }
    void eraseOne() { setErased(anyLight(false), true); }
    void uneraseOne() { setErased(anyLight(true), false); }
    void touchOne() { tell(anyLight()); }
    void selectSome() {
        std::vector<ZrDbObjectId> ids;
        for (unsigned count = below(12); count > 0; --count)
            ids.push_back(anyLight().id);
        if (!ids.empty())
            ids.insert(ids.end(), below(4), ids.front());
        rows.select(ids);
        plain.select(ids);
    }
    void click() {
        const int column = static_cast<int>(below(2));
        rows.sortByClick(column);
        plain.sortByClick(column);
    }
    // As another list does that shares the order.
    void orderOtherwise() {
        plain.order = {.column = static_cast<int>(below(2)), .ascending = {below(2) == 0, below(2) == 0}};
        light::rowOrder = plain.order;
    }

    [[nodiscard]] std::vector<SeenRow> seen() const {
        std::vector<SeenRow> found;
        found.reserve(static_cast<std::size_t>(list.GetItemCount()));
        for (int i = 0; i < list.GetItemCount(); ++i)
            found.push_back({.name = list.GetItemText(i, 1),
                             .icon = list.GetItemText(i, 0),
                             .image = list.GetItemImage(i),
                             .data = list.GetItemData(i),
                             .selected = list.GetItemState(i, LVIS_SELECTED) != 0,
                             .light = rows.lightAt(i)});
        return found;
    }
    [[nodiscard]] std::vector<SeenRow> expected() const {
        std::vector<SeenRow> found;
        found.reserve(plain.rows().size());
        for (const PlainRows::Row& row : plain.rows())
            found.push_back({.name = row.name,
                             .icon = {},
                             .image = row.image,
                             .data = static_cast<std::intptr_t>(found.size()),
                             .selected = row.selected,
                             .light = plain.lightOf(row)});
        return found;
    }
    [[nodiscard]] int expectedMark() const {
        const auto found = std::ranges::find(plain.rows(), true, &PlainRows::Row::marked);
        return found == plain.rows().end() ? -1 : static_cast<int>(found - plain.rows().begin());
    }

    std::mt19937 random{GetParam().seed};
    std::vector<Light> lights;
    PlainRows plain;
};

TEST_P(LightRowsAndPlainRows, AreTheSameAfterEveryStep) {
    drawAll();
    refresh();
    for (unsigned step = 0; step < GetParam().steps && !HasFatalFailure(); ++step) {
        takeStep();
        expectEqual();
    }
}

std::vector<Extent> extents(unsigned count, const Extent& extent) {
    std::vector<Extent> all(count, extent);
    for (unsigned i = 0; i < count; ++i)
        all[i].seed += i;
    return all;
}

const auto byNumber = [](const auto& info) { return std::to_string(info.index); };

INSTANTIATE_TEST_SUITE_P(FewRows, LightRowsAndPlainRows,
                         testing::ValuesIn(extents(40, {.seed = 1, .lights = 5, .names = 4, .steps = 200})), byNumber);
INSTANTIATE_TEST_SUITE_P(RowsWithFewNames, LightRowsAndPlainRows,
                         testing::ValuesIn(extents(10, {.seed = 100, .lights = 150, .names = 5, .steps = 300})),
                         byNumber);
INSTANTIATE_TEST_SUITE_P(RowsWithManyNames, LightRowsAndPlainRows,
                         testing::ValuesIn(extents(10, {.seed = 200, .lights = 200, .names = 500, .steps = 300})),
                         byNumber);
INSTANTIATE_TEST_SUITE_P(ManyRows, LightRowsAndPlainRows,
                         testing::ValuesIn(extents(3, {.seed = 300, .lights = 1200, .names = 400, .steps = 250})),
                         byNumber);

} // namespace
} // namespace quor::test
