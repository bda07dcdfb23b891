#include "host/ui/list_rows.h"

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

std::vector<CListCtrl::Row> threeRows() {
    return {{.texts = {L"", L"a"}, .image = 1}, {.texts = {L"", L"b"}, .image = 2}, {.texts = {L"", L"c"}, .image = 3}};
}

class Rows : public testing::Test {
protected:
    Rows() { rows.assign(threeRows()); }
    [[nodiscard]] ZrString names() const {
        ZrString result;
        for (int i = 0; i < rows.count(); ++i)
            result += rows.text(rows.idAt(i), 1);
        return result;
    }

    ListRows rows;
};

TEST_F(Rows, TakenOverHaveTheirTextsAndImages) {
    EXPECT_EQ(names(), L"abc");
    EXPECT_EQ(rows.image(rows.idAt(2)), 3);
    EXPECT_EQ(rows.text(rows.idAt(0), 0), L"");
}

TEST_F(Rows, KeepTheirIdWhereverTheyStand) {
    const ListRows::Id id = rows.idAt(2);

    rows.move(id, 0);

    EXPECT_EQ(rows.indexOf(id), 0);
    EXPECT_EQ(rows.text(id, 1), L"c");
    EXPECT_EQ(names(), L"cab");
}

TEST_F(Rows, UseTheIdOfAnErasedRowAgainWithNothingOfIt) {
    const ListRows::Id id = rows.idAt(1);
    rows.setData(id, 7);
    rows.select(id, true);

    rows.erase(id);

    EXPECT_EQ(rows.indexOf(id), -1);
    EXPECT_EQ(rows.insert(0, L"", -1), id);
    EXPECT_EQ(rows.text(id, 1), L"");
    EXPECT_EQ(rows.data(id), 0);
    EXPECT_EQ(rows.image(id), -1);
    EXPECT_FALSE(rows.isSelected(id));
}

TEST_F(Rows, TakeATextOfAnotherRow) {
    const ListRows::Id added = rows.insert(3, L"", -1);

    rows.setText(added, 1, rows.text(rows.idAt(0), 1));
    rows.setText(rows.idAt(1), 1, rows.text(added, 1));

    EXPECT_EQ(names(), L"aaca");
}

TEST_F(Rows, ThatAreAllDeletedLeaveNothingButTheNumbering) {
    rows.number();
    rows.setFocus(rows.idAt(0));

    rows.clear();

    EXPECT_EQ(rows.count(), 0);
    EXPECT_EQ(rows.focus(), ListRows::kNone);
    EXPECT_EQ(rows.data(rows.insert(0, L"", -1)), 0);
    EXPECT_EQ(rows.data(rows.insert(1, L"", -1)), 1);
}

TEST_F(Rows, AreWalkedFromTheFirstToTheLast) {
    const ListRows::Id first = rows.idAt(0);

    EXPECT_EQ(rows.next(first), rows.idAt(1));
    EXPECT_EQ(rows.next(rows.idAt(2)), ListRows::kNone);
    EXPECT_EQ(rows.next(ListRows::kNone), ListRows::kNone);
}

TEST_F(Rows, AfterTakingOverOthersHaveNothingOfTheOldOnes) {
    rows.setFocus(rows.idAt(0));
    rows.setMark(rows.idAt(0));
    rows.setData(rows.idAt(0), 5);
    rows.selectAll(true);

    rows.assign({{.texts = {L"x"}, .image = -1}});

    EXPECT_EQ(rows.count(), 1);
    EXPECT_EQ(rows.text(0, 0), L"x");
    EXPECT_EQ(rows.text(0, 1), L"");
    EXPECT_EQ(rows.selectedCount(), 0);
    EXPECT_EQ(rows.focus(), ListRows::kNone);
    EXPECT_EQ(rows.mark(), ListRows::kNone);
    EXPECT_EQ(rows.data(0), 0);
}

TEST_F(Rows, OfWhichOnlySomeHaveATextInAColumnKeepItThere) {
    rows.assign({{.texts = {}, .image = -1}, {.texts = {L"x", L"", L"y"}, .image = -1}, {.texts = {}, .image = -1}});

    EXPECT_EQ(rows.text(1, 0), L"x");
    EXPECT_EQ(rows.text(1, 2), L"y");
    EXPECT_EQ(rows.text(0, 0), L"");
    EXPECT_EQ(rows.text(2, 2), L"");
    EXPECT_EQ(rows.text(1, 3), L"");
    EXPECT_EQ(rows.text(1, -1), L"");
}

TEST_F(Rows, NumberedHaveTheirIndexAsDataAlsoAfterOthersCameAndWent) {
    rows.number();

    rows.erase(rows.idAt(0));
    rows.insert(0, L"", -1);
    rows.insert(0, L"", -1);

    EXPECT_EQ(rows.data(rows.idAt(0)), 0);
    EXPECT_EQ(rows.data(rows.idAt(3)), 3);
}

TEST_F(Rows, NumberedOnceKeepTheirNumbersWhenOneIsGivenAnother) {
    rows.number();

    rows.setData(rows.idAt(1), 50);
    rows.move(rows.idAt(2), 0);

    EXPECT_EQ(rows.data(rows.idAt(0)), 2);
    EXPECT_EQ(rows.data(rows.idAt(1)), 0);
    EXPECT_EQ(rows.data(rows.idAt(2)), 50);
}

TEST_F(Rows, AddedAfterTheNumbersBecameTheirOwnHaveNone) {
    rows.number();
    rows.setData(rows.idAt(0), 50);

    const ListRows::Id added = rows.insert(3, L"", -1);

    EXPECT_EQ(rows.data(added), 0);
}

TEST_F(Rows, SortedKeepTheOrderOfEqualOnesAndTheirSelection) {
    rows.select(rows.idAt(0), true);

    rows.sort([this](unsigned a, unsigned b) { return (rows.text(a, 1) == L"c") > (rows.text(b, 1) == L"c"); });

    EXPECT_EQ(names(), L"cab");
    EXPECT_EQ(rows.nextSelected(0), 1);
    EXPECT_EQ(rows.nextSelected(2), -1);
}

TEST_F(Rows, MovedStaySelected) {
    rows.select(rows.idAt(0), true);

    rows.move(rows.idAt(0), 2);

    EXPECT_EQ(rows.nextSelected(0), 2);
    EXPECT_EQ(rows.selectedCount(), 1);
}

TEST_F(Rows, GiveTheirTextsToTheNextColumnWhenOneIsInserted) {
    rows.insertColumn(1);

    EXPECT_EQ(rows.text(rows.idAt(0), 1), L"");
    EXPECT_EQ(rows.text(rows.idAt(0), 2), L"a");
}

TEST_F(Rows, SelectedAsARangeMayBeGivenFromItsEnd) {
    rows.selectRange(2, 1, true);

    EXPECT_EQ(rows.selectedCount(), 2);
    EXPECT_FALSE(rows.isSelected(rows.idAt(0)));
}

} // namespace
} // namespace quor::ui
