// What a person is told of drawings that cannot be opened or saved.
#include "desktop/front/desktop_front_end.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

// What the box says that tells of a problem; nothing where there is none.
QString problem(Person& person) {
    return person.sees([] {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box != nullptr && box->objectName() == "problem" ? box->text() : QString();
    });
}

// A whole line at once: a blank would end the command's name, and a dialog would ask for the file.
void types(Person& person, const ZrString& line) {
    person.does([&] { person.program().front().run(line); });
}

TEST(ProblemTest, ADrawingThatCannotBeOpenedIsTold) {
    withProgram(usualOptions(), [](Person& person) {
        types(person, L"OPEN /nowhere/plan.dxf");
        EXPECT_TRUE(problem(person).contains("/nowhere/plan.dxf"));
        EXPECT_FALSE(problem(person).contains('\n'));
        EXPECT_TRUE(person.screen().contains(problem(person)));
        person.takesPicture("dialog_problem", person.sees([] { return QApplication::activeModalWidget(); }));
        person.presses(Qt::Key_Return);
        EXPECT_TRUE(problem(person).isEmpty());
    });
}

TEST(ProblemTest, ADrawingThatCannotBeSavedIsTold) {
    withProgram(usualOptions(), [](Person& person) {
        types(person, L"SAVEAS /nowhere/plan.dxf");
        EXPECT_TRUE(problem(person).contains("/nowhere"));
        person.presses(Qt::Key_Escape);
        EXPECT_TRUE(problem(person).isEmpty());
    });
}

TEST(ProblemTest, NobodyIsToldWhatAScriptCannotOpen) {
    const QTemporaryDir folder;
    const QString script = folder.filePath("open.scr");
    QFile file(script);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("OPEN\n/nowhere/plan.dxf\n");
    file.close();
    ProgramOptions options = usualOptions();
    options.scripts = {script.toStdString()};

    withProgram(options, [](Person& person) {
        person.settles();
        EXPECT_TRUE(problem(person).isEmpty());
        EXPECT_TRUE(person.screen().contains("plan.dxf"));
    });
}

TEST(ProblemTest, NobodyIsToldInADialogWhatCannotBeOpenedAtTheStart) {
    ProgramOptions options = usualOptions();
    options.drawings = {"/nowhere/plan.dxf"};

    withProgram(options, [](Person& person) {
        EXPECT_TRUE(problem(person).isEmpty());
        EXPECT_TRUE(person.screen().contains("/nowhere/plan.dxf"));
    });
}

} // namespace
} // namespace quor::desktop::test
