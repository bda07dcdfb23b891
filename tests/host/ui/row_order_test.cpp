#include "host/ui/row_order.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace quor::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Ids = std::vector<RowOrder::Id>;

RowOrder orderOf(const Ids& ids) {
    RowOrder order;
    order.assign(ids);
    return order;
}

Ids upTo(unsigned count) {
    Ids ids(count);
    std::iota(ids.begin(), ids.end(), 0U);
    return ids;
}

// The same order as a plain vector, for comparison.
class Twin {
public:
    explicit Twin(unsigned seed) : random_(seed) {}

    void insert() {
        const std::size_t position = below(plain_.size() + 1);
        const bool marked = below(2) != 0;
        plain_.insert(plain_.begin() + static_cast<std::ptrdiff_t>(position), {freshId(), marked});
        order_.insert(position, plain_[position].first, marked);
    }
    void erase() {
        const std::size_t position = below(plain_.size());
        unused_.push_back(plain_[position].first);
        order_.erase(plain_[position].first);
        plain_.erase(plain_.begin() + static_cast<std::ptrdiff_t>(position));
    }
    void mark() {
        auto& [id, marked] = plain_[below(plain_.size())];
        marked = !marked;
        order_.mark(id, marked);
    }
    void markRange() {
        const std::size_t begin = below(plain_.size());
        const std::size_t end = begin + below(plain_.size() - begin + 1);
        const bool marked = below(2) != 0;
        std::for_each(plain_.begin() + static_cast<std::ptrdiff_t>(begin),
                      plain_.begin() + static_cast<std::ptrdiff_t>(end), [=](auto& row) { row.second = marked; });
        order_.markRange(begin, end, marked);
    }
    void shuffle() {
        std::shuffle(plain_.begin(), plain_.end(), random_);
        order_.reorder(ids());
    }
    // The first question that the two answer differently, or nothing.
    [[nodiscard]] std::string difference() const {
        if (order_.size() != plain_.size() || order_.ids() != ids())
            return "ids";
        std::size_t next = plain_.size();
        for (std::size_t i = plain_.size(); i-- > 0;) {
            const auto& [id, marked] = plain_[i];
            next = marked ? i : next;
            if (order_.at(i) != id || order_.position(id) != i)
                return "place " + std::to_string(i);
            if (order_.isMarked(id) != marked || order_.nextMarked(i) != next)
                return "mark " + std::to_string(i);
        }
        const auto marked = std::count_if(plain_.begin(), plain_.end(), [](const auto& row) { return row.second; });
        return order_.markedCount() == static_cast<std::size_t>(marked) ? "" : "marked count";
    }

private:
    std::size_t below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_); }
    RowOrder::Id freshId() {
        if (unused_.empty())
            return static_cast<RowOrder::Id>(plain_.size());
        const RowOrder::Id id = unused_.back();
        unused_.pop_back();
        return id;
    }
    [[nodiscard]] Ids ids() const {
        Ids result;
        for (const auto& row : plain_)
            result.push_back(row.first);
        return result;
    }

    std::mt19937 random_;
    std::vector<std::pair<RowOrder::Id, bool>> plain_;
    Ids unused_;
    RowOrder order_;
};

void repeat(int times, Twin& twin, void (Twin::*step)()) {
    for (int i = 0; i < times; ++i)
        (twin.*step)();
}

TEST(RowOrder, AnswersAsAPlainVectorDoesWhileItGrowsAndShrinks) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        Twin twin(seed);
        repeat(9000, twin, &Twin::insert);
        EXPECT_EQ(twin.difference(), "");
        repeat(2000, twin, &Twin::mark);
        repeat(20, twin, &Twin::markRange);
        EXPECT_EQ(twin.difference(), "");
        repeat(4000, twin, &Twin::erase);
        EXPECT_EQ(twin.difference(), "");
        twin.shuffle();
        EXPECT_EQ(twin.difference(), "");
        repeat(3000, twin, &Twin::insert);
        EXPECT_EQ(twin.difference(), "");
        repeat(7900, twin, &Twin::erase);
        EXPECT_EQ(twin.difference(), "");
        repeat(100, twin, &Twin::erase);
        EXPECT_EQ(twin.difference(), "");
        repeat(100, twin, &Twin::insert);
        EXPECT_EQ(twin.difference(), "");
    }
}

TEST(RowOrder, EmptyItAnswersWithNothing) {
    const RowOrder order;

    EXPECT_EQ(order.size(), 0U);
    EXPECT_EQ(order.at(0), RowOrder::kNone);
    EXPECT_FALSE(order.contains(0));
    EXPECT_EQ(order.nextMarked(0), 0U);
    EXPECT_THAT(order.ids(), IsEmpty());
}

TEST(RowOrder, RowsThatAreTakenInPlaceOfOthersAreNotMarked) {
    RowOrder order = orderOf({0, 1, 2});
    order.markRange(0, 3, true);

    order.assign(Ids{2, 0});

    EXPECT_THAT(order.ids(), ElementsAre(2U, 0U));
    EXPECT_EQ(order.markedCount(), 0U);
    EXPECT_FALSE(order.contains(1));
}

TEST(RowOrder, AnotherOrderLeavesTheMarksWithTheirRows) {
    RowOrder order = orderOf({0, 1, 2});
    order.mark(2, true);

    order.reorder(Ids{2, 1, 0});

    EXPECT_TRUE(order.isMarked(2));
    EXPECT_EQ(order.nextMarked(0), 0U);
    EXPECT_EQ(order.nextMarked(1), 3U);
}

TEST(RowOrder, TheNextMarkedRowIsFoundFarAway) {
    RowOrder order = orderOf(upTo(100'000));

    order.mark(99'999, true);

    EXPECT_EQ(order.nextMarked(0), 99'999U);
    EXPECT_EQ(order.nextMarked(99'999), 99'999U);
    EXPECT_EQ(order.nextMarked(100'000), 100'000U);
}

TEST(RowOrder, MarkingTwiceCountsOnce) {
    RowOrder order = orderOf(upTo(10));

    order.mark(3, true);
    order.mark(3, true);
    order.markRange(2, 5, true);

    EXPECT_EQ(order.markedCount(), 3U);
}

TEST(RowOrder, RowsAddedAtTheEndOneByOneStandInTheirOrder) {
    RowOrder order;
    for (unsigned id = 0; id < 5000; ++id)
        order.insert(id, id);

    EXPECT_EQ(order.ids(), upTo(5000));
}

TEST(RowOrder, RowsTakenFromTheFrontOneByOneLeaveTheRest) {
    RowOrder order = orderOf(upTo(5000));
    for (unsigned id = 0; id < 4998; ++id)
        order.erase(id);

    EXPECT_THAT(order.ids(), ElementsAre(4998U, 4999U));
}

} // namespace
} // namespace quor::ui
