#include "desktop/commandline/transcript_view.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace quor::desktop {
namespace {

class TranscriptViewTest : public testing::Test {
protected:
    TranscriptViewTest() {
        view_.resize(400, 200);
        view_.show();
    }

    void say(int lines) {
        for (int i = 0; i < lines; ++i)
            transcript_.print(QString("\nline %1\n").arg(i));
    }

    Transcript transcript_;
    TranscriptView view_{transcript_};
};

TEST_F(TranscriptViewTest, ShowsWhatWasSaidWithoutAnEmptyLineBelow) {
    transcript_.answer("\n命令: ", "LIST");
    transcript_.print("\n没有对象。\n");
    view_.catchUp();
    EXPECT_EQ(view_.toPlainText(), "命令: LIST\n没有对象。");
}

TEST_F(TranscriptViewTest, WaitsForAPauseBeforeItDraws) {
    say(3);
    EXPECT_EQ(view_.toPlainText(), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return view_.toPlainText() == "line 0\nline 1\nline 2"; }));
}

TEST_F(TranscriptViewTest, HasTheSameLinesWhetherItDrawsOftenOrOnce) {
    transcript_.print("one");
    view_.catchUp();
    transcript_.print("\ntwo\n");
    view_.catchUp();
    transcript_.answer("\n命令: ", "U");
    view_.catchUp();
    EXPECT_EQ(view_.toPlainText() + "\n", transcript_.text());
}

TEST_F(TranscriptViewTest, KeepsTheLastLinesOfAnyNumber) {
    say(100'000);
    view_.catchUp();
    EXPECT_EQ(view_.blockCount(), static_cast<int>(Transcript::kMostLines));
    EXPECT_TRUE(view_.toPlainText().endsWith("line 99999"));
}

TEST_F(TranscriptViewTest, StaysAtTheEndWhereTheEndWasSeen) {
    say(100);
    view_.catchUp();
    EXPECT_EQ(view_.verticalScrollBar()->value(), view_.verticalScrollBar()->maximum());
}

TEST_F(TranscriptViewTest, StaysWhereItWasScrolledTo) {
    say(100);
    view_.catchUp();
    view_.verticalScrollBar()->setValue(10);
    say(5);
    view_.catchUp();
    EXPECT_EQ(view_.verticalScrollBar()->value(), 10);
}

TEST_F(TranscriptViewTest, ClearsWithItsTranscript) {
    say(3);
    view_.catchUp();
    transcript_.clear();
    view_.catchUp();
    EXPECT_EQ(view_.toPlainText(), "");
}

TEST_F(TranscriptViewTest, CannotBeTypedInto) {
    QSignalSpy typed(&view_, &TranscriptView::keyTyped);
    QTest::keyClicks(&view_, "ab");
    EXPECT_EQ(typed.count(), 2);
    EXPECT_EQ(view_.toPlainText(), "");
}

TEST_F(TranscriptViewTest, WheelWithCtrlZoomsInsteadOfScrolling) {
    QSignalSpy zoomed(&view_, &TranscriptView::zoomWanted);
    QWheelEvent turned({5, 5}, view_.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(view_.viewport(), &turned);
    ASSERT_EQ(zoomed.count(), 1);
    EXPECT_EQ(zoomed.front().front().toInt(), 1);
}

} // namespace
} // namespace quor::desktop
