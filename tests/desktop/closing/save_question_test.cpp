// What becomes of changes when the person leaves: the question, its answers, and what follows.
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "tests/desktop/support/leaving.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>

namespace quor::desktop::test {
namespace {

using quor::test::TemporaryFolder;

QString question(Person& person) {
    return person.sees([] {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box != nullptr ? box->text() : QString();
    });
}

void names(Person& person, const QString& file) {
    person.does([=] { QTest::keyClicks(QApplication::focusWidget(), file); });
}

TEST(SaveQuestionTest, AfterCancelTheProgramGoesOnAndCanBeLeftLater) {
    withProgram(usualOptions(), [](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        chooses(person, Choice::Cancel);
        ASSERT_TRUE(isAtCommandPrompt(person));
        changesDrawing(person);
        EXPECT_EQ(entityCount(person), 2U);
        closeWindowAndWait(person);
        EXPECT_EQ(openDialog(person), "save");
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
}

TEST(SaveQuestionTest, ClosingOnceMoreLeavesTheQuestionOpen) {
    withProgram(usualOptions(), [](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        const QWidget* const first = person.sees([] { return QApplication::activeModalWidget(); });
        closeWindowAndWait(person);
        EXPECT_EQ(person.sees([] { return QApplication::activeModalWidget(); }), first);
        chooses(person, Choice::Cancel);
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST(SaveQuestionTest, ClosingTwiceWithinACommandAsksOnce) {
    withProgram(usualOptions(), [](Person& person) {
        gives(person, {L"LINE", L"0,0", L"1,1"});
        person.does([&] {
            person.program().window().close();
            person.program().window().close();
        });
        EXPECT_EQ(openDialog(person), "save");
        chooses(person, Choice::Cancel);
        EXPECT_TRUE(isAtCommandPrompt(person));
    });
}

TEST(SaveQuestionTest, ADrawingThatWasNeverSavedIsSavedWhereThePersonSays) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "kept.dxf";
    withProgram(usualOptions(), [&](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        chooses(person, Choice::Save);
        ASSERT_EQ(openDialog(person), "file");
        names(person, QString::fromStdString(file.string()));
        person.doesAtLast([] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); });
        EXPECT_TRUE(person.sawItEnd());
    });
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(SaveQuestionTest, WhoNamesNoFileStays) {
    withProgram(usualOptions(), [](Person& person) {
        changesDrawing(person);
        closeWindowAndWait(person);
        chooses(person, Choice::Save);
        ASSERT_EQ(openDialog(person), "file");
        person.presses(Qt::Key_Escape);
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_TRUE(person.sees([&] { return person.program().session().documents().current()->isModified(); }));
    });
}

TEST(SaveQuestionTest, EachDrawingWithChangesIsAskedAboutInTurn) {
    withProgram(usualOptions(), [](Person& person) {
        changesDrawing(person);
        gives(person, {L"NEW"}); // nothing happens in it
        gives(person, {L"NEW"});
        changesDrawing(person);
        closeWindowAndWait(person);
        EXPECT_TRUE(question(person).contains("Drawing1"));
        chooses(person, Choice::Discard);
        EXPECT_TRUE(question(person).contains("Drawing3"));
        choosesAndLeaves(person, Choice::Discard);
        EXPECT_TRUE(person.sawItEnd());
    });
}

TEST(SaveQuestionTest, CancelAtTheLastOneKeepsAll) {
    withProgram(usualOptions(), [](Person& person) {
        changesDrawing(person);
        gives(person, {L"NEW"});
        changesDrawing(person);
        closeWindowAndWait(person);
        chooses(person, Choice::Discard);
        chooses(person, Choice::Cancel);
        EXPECT_TRUE(isAtCommandPrompt(person));
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 2U);
    });
}

} // namespace
} // namespace quor::desktop::test
