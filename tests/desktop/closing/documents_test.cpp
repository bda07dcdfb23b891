// Drawings are closed and chosen by their tabs, also in the middle of a command; without one the program still works.
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/document_tabs.h"
#include "desktop/window/main_window.h"
#include "host/commands/drawing_files.h"
#include "host/document.h"
#include "tests/desktop/support/leaving.h"

#include <gtest/gtest.h>

#include <QTest>

namespace quor::desktop::test {
namespace {

const std::wstring kPlan = fromQt(QUOR_TEST_DATA "/dxf/own/luminaires.dxf");

DocumentTabs& tabs(Person& person) {
    return *person.sees([&] { return person.program().window().findChild<DocumentTabs*>("tabs"); });
}

std::size_t drawings(Person& person) {
    return person.sees([&] { return person.program().session().documents().all().size(); });
}

ZrString currentName(Person& person) {
    return person.sees([&] {
        const Document* const document = person.program().session().documents().current();
        return document != nullptr ? commands::shortName(*document) : ZrString();
    });
}

void closesTab(Person& person, int index) {
    DocumentTabs& bar = tabs(person);
    person.does([&] { Q_EMIT bar.closeWanted(index); });
    person.settles();
}

// Drawing1 and Drawing2, the latter current, with LINE running.
void drawsInTheSecond(Person& person) {
    gives(person, {L"NEW", L"LINE", L"0,0", L"1,1"});
    person.settles();
}

TEST(DocumentTabsTest, ClosingATabLeavesTheCommandFirst) {
    withProgram(usualOptions(), [](Person& person) {
        drawsInTheSecond(person);
        closesTab(person, 0);
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_EQ(drawings(person), 1U);
        EXPECT_EQ(currentName(person), L"Drawing2");
        EXPECT_EQ(entityCount(person), 1U);
    });
}

TEST(DocumentTabsTest, ClosingTheTabInWhichTheCommandRunsAsksAboutItsChanges) {
    withProgram(usualOptions(), [](Person& person) {
        drawsInTheSecond(person);
        closesTab(person, 1);
        EXPECT_EQ(openDialog(person), "save");
        chooses(person, Choice::Discard);
        EXPECT_EQ(currentName(person), L"Drawing1");
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST(DocumentTabsTest, TheKeyForClosingLeavesTheCommandFirst) {
    withProgram(usualOptions(), [](Person& person) {
        drawsInTheSecond(person);
        person.presses(Qt::Key_W, Qt::ControlModifier);
        EXPECT_EQ(openDialog(person), "save");
        chooses(person, Choice::Cancel);
        EXPECT_EQ(currentName(person), L"Drawing2");
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST(DocumentTabsTest, ChoosingATabLeavesTheCommandFirst) {
    withProgram(usualOptions(), [](Person& person) {
        drawsInTheSecond(person);
        DocumentTabs& bar = tabs(person);
        person.does([&] { bar.setCurrentIndex(0); });
        person.settles();
        EXPECT_EQ(currentName(person), L"Drawing1");
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_EQ(wrongWithDrawing(person), "");
    });
}

TEST(DocumentTabsTest, ALightThatIsBeingPlacedIsGivenUpForAnotherDrawing) {
    withProgram(usualOptions(), [](Person& person) {
        gives(person, {L"NEW", L"DEFAULTLIGHTING 0", L"POINTLIGHT", L"1,1"});
        person.settles();
        DocumentTabs& bar = tabs(person);
        person.does([&] { bar.setCurrentIndex(0); });
        person.settles();
        person.does([&] { bar.setCurrentIndex(1); });
        person.settles();
        EXPECT_EQ(currentName(person), L"Drawing2");
        EXPECT_EQ(entityCount(person), 0U);
    });
}

TEST(DocumentTabsTest, ATabThatIsGoneIsNotClosedForAnother) {
    withProgram(usualOptions(), [](Person& person) {
        gives(person, {L"NEW", L"NEW", L"LINE"});
        DocumentTabs& bar = tabs(person);
        person.does([&] {
            Q_EMIT bar.closeWanted(0);
            Q_EMIT bar.closeWanted(0);
        });
        person.settles();
        EXPECT_EQ(drawings(person), 2U);
    });
}

// What a person sees who has closed all drawings.
class WithoutDrawingTest : public testing::Test {
protected:
    static void run(const std::function<void(Person&)>& story) {
        withProgram(usualOptions(), [&](Person& person) {
            gives(person, {L"CLOSE"});
            ASSERT_EQ(drawings(person), 0U);
            story(person);
        });
    }
};

TEST_F(WithoutDrawingTest, ANewOneCanBeMade) {
    run([](Person& person) {
        gives(person, {L"NEW"});
        changesDrawing(person);
        EXPECT_EQ(entityCount(person), 1U);
    });
}

TEST_F(WithoutDrawingTest, AnotherOneCanBeOpened) {
    run([](Person& person) {
        gives(person, {(L"OPEN " + kPlan).c_str()});
        EXPECT_EQ(currentName(person), L"luminaires.dxf");
    });
}

TEST_F(WithoutDrawingTest, CommandsThatNeedOneSaySo) {
    run([](Person& person) {
        gives(person, {L"LINE"});
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_TRUE(person.screen().contains("LINE"));
        gives(person, {L"POINTLIGHT"});
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST_F(WithoutDrawingTest, TheMouseDoesNothing) {
    run([](Person& person) {
        Viewport& viewport = person.program().window().viewport();
        person.does([&] {
            QTest::mouseMove(&viewport, {50, 50});
            QTest::mouseClick(&viewport, Qt::LeftButton, {}, {50, 50});
            QTest::mouseDClick(&viewport, Qt::MiddleButton, {}, {60, 60});
        });
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST_F(WithoutDrawingTest, TheProgramCanBeLeft) {
    run([](Person& person) {
        closeWindow(person);
        EXPECT_TRUE(person.sawItEnd());
    });
}

} // namespace
} // namespace quor::desktop::test
