// The view of a list: scrolling both ways, headings, tips, the keyboard, and what it costs with very many rows.
#include "desktop/palettes/tooltips.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

namespace quor::desktop::test {
namespace {

class TheListView : public ShownPalette {
protected:
    TheListView() {
        for (int i = 10; i < 60; ++i)
            addLight(L"L" + std::to_wstring(i));
        show();
        settle();
    }
    void turnWheel(QPoint angle) {
        const QPointF at = middleOf(list().GetTopIndex());
        QWheelEvent event(at, view().viewport()->mapToGlobal(at), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &event);
        settle();
    }
    [[nodiscard]] QScrollBar& bar() { return *view().verticalScrollBar(); }
};

TEST_F(TheListView, ScrollsAsFarAsThereAreRows) {
    EXPECT_EQ(bar().maximum(), 50 - list().GetCountPerPage());
    EXPECT_EQ(bar().pageStep(), list().GetCountPerPage());

    bar().setValue(20);

    EXPECT_EQ(list().GetTopIndex(), 20);
}

TEST_F(TheListView, FollowsTheListThatScrolls) {
    list().SetTopIndex(7);
    settle();

    EXPECT_EQ(bar().value(), 7);
}

TEST_F(TheListView, HasFewerRowsAfterSomeHaveGone) {
    bar().setValue(bar().maximum());
    while (list().GetItemCount() > 3)
        list().DeleteItem(0);
    settle();

    EXPECT_EQ(bar().maximum(), 0);
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(list().GetTopIndex(), 0);
}

TEST_F(TheListView, ScrollsWithTheWheelByLines) {
    turnWheel({0, -120});
    EXPECT_EQ(list().GetTopIndex(), QApplication::wheelScrollLines());
    turnWheel({0, 120});
    EXPECT_EQ(list().GetTopIndex(), 0);
}

TEST_F(TheListView, AddsUpWhatAFineWheelTurns) {
    for (int i = 0; i < 8; ++i)
        turnWheel({0, -15});
    EXPECT_EQ(list().GetTopIndex(), QApplication::wheelScrollLines());
}

TEST_F(TheListView, SelectsTheRowUnderTheMouseWhereverItIsScrolled) {
    bar().setValue(20);
    settle();
    click(22);

    EXPECT_EQ(selectedRows(), std::vector<int>{22});
}

TEST_F(TheListView, ScrollsToTheRowThatTheKeyboardGoesTo) {
    focusList();
    press(Qt::Key_End);
    EXPECT_EQ(bar().value(), bar().maximum());
    press(Qt::Key_PageUp);
    EXPECT_EQ(selectedRows().front(), 49 - list().GetCountPerPage());
}

TEST_F(TheListView, LeavesRoomForItsScrollBar) {
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(view().viewport()->y(), list().GetHeaderCtrl()->GetClientRect().bottom);
    EXPECT_EQ(headings().geometry(), QRect(0, 0, view().width(), view().viewport()->y()));
}

TEST_F(TheListView, SortsWhenAHeadingIsClicked) {
    clickHeading(1);
    EXPECT_EQ(list().GetItemText(0, 1), L"L59");
    clickHeading(1);
    EXPECT_EQ(list().GetItemText(0, 1), L"L10");
}

TEST_F(TheListView, SortsTwiceWhenAHeadingIsClickedTwiceFast) {
    clickHeading(1);
    const CRect heading = list().GetHeaderCtrl()->GetItemRect(1);
    QTest::mouseDClick(&headings(), Qt::LeftButton, Qt::NoModifier, QPoint(heading.left + 20, 8));

    EXPECT_EQ(list().GetItemText(0, 1), L"L10");
}

TEST_F(TheListView, WidensAColumnByTheEdgeOfItsHeading) {
    const int edge = list().GetHeaderCtrl()->GetItemRect(1).right;
    QTest::mousePress(&headings(), Qt::LeftButton, Qt::NoModifier, QPoint(edge - 2, 8));
    QTest::mouseMove(&headings(), QPoint(edge + 98, 8));
    QTest::mouseRelease(&headings(), Qt::LeftButton, Qt::NoModifier, QPoint(edge + 98, 8));
    settle();

    EXPECT_EQ(list().GetColumnWidth(1), 220);
    EXPECT_EQ(list().GetItemText(0, 1), L"L10"); // and does not sort
    EXPECT_TRUE(view().horizontalScrollBar()->isVisible());
}

TEST_F(TheListView, ScrollsToTheRightWithItsHeadings) {
    list().SetColumnWidth(1, 300);
    settle();

    view().horizontalScrollBar()->setValue(40);

    EXPECT_EQ(list().GetScrollLeft(), 40);
    EXPECT_EQ(headings().x(), -40);
}

TEST_F(TheListView, GivesTheKeyboardToTheListAndTakesItAway) {
    focusList();
    EXPECT_TRUE(list().hasFocus());
    focusDrawing();
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(TheListView, GetsTheKeyboardWithTheListAndGivesItToTheDrawing) {
    list().SetFocus();
    EXPECT_TRUE(view().hasFocus() || dock().focusWidget() == &view());
    focusList();

    list().EnableWindow(false);

    EXPECT_EQ(CWnd::GetFocus(), nullptr);
    EXPECT_FALSE(view().hasFocus());
}

TEST_F(TheListView, IsReachedByTab) { EXPECT_TRUE(view().focusPolicy() & Qt::TabFocus); }

TEST_F(TheListView, TellsTheNameOfTheRowUnderTheMouse) {
    EXPECT_EQ(tipOf(list()), L"");
    const QPointF at = middleOf(2);
    QMouseEvent move(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);

    EXPECT_EQ(tipOf(list()), L"L12");
    EXPECT_EQ(tipOf(tips()), L"");
}

TEST_F(TheListView, ShowsATipAsItStandsAndTakesItAwayWithTheNextRow) {
    list().SetItemText(2, 1, L"<b>x</b>");
    const auto moveTo = [this](int row) {
        const QPointF at = middleOf(row);
        QMouseEvent move(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &move);
    };
    moveTo(2);
    QHelpEvent rests(QEvent::ToolTip, middleOf(2), view().viewport()->mapToGlobal(middleOf(2)));
    QApplication::sendEvent(view().viewport(), &rests);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_TRUE(QToolTip::text().contains("&lt;b&gt;x"));

    list().DeleteItem(2);
    moveTo(2);

    EXPECT_EQ(tipOf(list()), L"L13");
}

// A list whose rows are counted when they are drawn.
class CountingList final : public CListCtrl {
public:
    int drawn = 0;

protected:
    void PreSubclassWindow() override { ModifyStyle(0, LVS_OWNERDRAWFIXED); }
    void DrawItem(const ui::DrawItem& item) override {
        ++drawn;
        item.dc.FillSolidRect(item.rect, RGB(1, 2, 3));
    }
};

// A list of one column and ten rows' height, in a window of its own.
struct CountedWindow {
    CountedWindow() {
        parent.Create({.style = WS_VISIBLE, .rect = {0, 0, 300, 400}});
        many.Create({.parent = &parent, .style = LVS_REPORT | WS_VISIBLE, .rect = {0, 0, 200, 24 + 170}});
        many.InsertColumn(0, L"Name", HDF_LEFT, 100);
        showChildren(parent, window);
        window.show();
    }
    CWnd parent;
    CountingList many;
    QWidget window;
};

TEST_F(TheListView, DrawsOnlyTheRowsThatAreSeenHoweverManyThereAre) {
    CountedWindow counted;
    CountingList& many = counted.many;
    many.SetRows(std::vector<CListCtrl::Row>(100'000, {.texts = {L"x"}}));
    settle();
    auto* const shown = static_cast<ListView*>(widgetOf(many));
    ASSERT_EQ(shown->verticalScrollBar()->maximum(), 100'000 - 10);

    many.drawn = 0;
    shown->verticalScrollBar()->setValue(50'000);
    settle();

    EXPECT_EQ(many.GetTopIndex(), 50'000);
    EXPECT_GE(many.drawn, 10);
    EXPECT_LE(many.drawn, 2 * 11);
}

TEST_F(TheListView, IsPaintedOnceForManyChanges) {
    CountedWindow counted;
    CountingList& many = counted.many;
    settle();
    many.drawn = 0;

    for (int i = 0; i < 1000; ++i)
        many.InsertItem(0, L"x");
    settle();

    EXPECT_GE(many.drawn, 10);
    EXPECT_LE(many.drawn, 3 * 11);
}

} // namespace
} // namespace quor::desktop::test
