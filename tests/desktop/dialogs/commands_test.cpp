// The dialogs as commands show them, in the whole program.
#include "desktop/dialogs/command_link.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/task_dialog.h"
#include "desktop/front/desktop_front_end.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

template <class Dialog>
bool isOpen(Person& person) {
    return person.sees([] { return qobject_cast<Dialog*>(QApplication::activeModalWidget()) != nullptr; });
}

std::size_t lights(Person& person) {
    return person.sees([&] {
        Document& document = *person.program().session().documents().current();
        return document.drawing().entities(document.database()->modelSpaceId()).size();
    });
}

short defaultLighting(Person& person) {
    return person.sees([&] { return person.program().session().variables().number(L"DEFAULTLIGHTING"); });
}

TEST(DialogsOfCommandsTest, TheFirstLinkTurnsDefaultLightingOffWhenTheLightIsKept) {
    withProgram(usualOptions(), [](Person& person) {
        person.types("POINTLIGHT");
        ASSERT_TRUE(isOpen<TaskDialog>(person));
        person.presses(Qt::Key_Return);
        person.types("1,2,3");
        EXPECT_EQ(defaultLighting(person), 1);
        person.types("");
        EXPECT_EQ(defaultLighting(person), 0);
        EXPECT_EQ(lights(person), 1U);
    });
}

TEST(DialogsOfCommandsTest, TheTickedBoxIsKeptAndTheQuestionIsNotAskedAgain) {
    withProgram(usualOptions(), [](Person& person) {
        person.types("POINTLIGHT");
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space, Qt::Key_2})
            person.presses(key);
        person.types("1,2,3");
        person.types("");
        EXPECT_EQ(defaultLighting(person), 1);
        person.types("POINTLIGHT");
        EXPECT_FALSE(isOpen<TaskDialog>(person));
        person.types("4,5,6");
        person.types("");
        EXPECT_EQ(lights(person), 2U);
    });
}

TEST(DialogsOfCommandsTest, EscAtTheDialogMakesNoLight) {
    withProgram(usualOptions(), [](Person& person) {
        person.types("POINTLIGHT");
        person.presses(Qt::Key_Escape);
        EXPECT_FALSE(isOpen<TaskDialog>(person));
        EXPECT_EQ(lights(person), 0U);
    });
}

TEST(DialogsOfCommandsTest, TheSecondQuestionAboutDistantLightsStandsWithItsRecommendedLink) {
    withProgram(usualOptions(), [](Person& person) {
        person.types("DISTANTLIGHT");
        ASSERT_TRUE(isOpen<TaskDialog>(person));
        person.presses(Qt::Key_2);
        ASSERT_TRUE(isOpen<TaskDialog>(person));
        person.takesPicture("dialog_distant_light", person.sees([] { return QApplication::activeModalWidget(); }));
        EXPECT_TRUE(person.sees(
            [] { return QApplication::activeModalWidget()->findChildren<CommandLink*>().front()->isRecommended(); }));
        person.presses(Qt::Key_Return);
        EXPECT_EQ(lights(person), 0U);
    });
}

TEST(DialogsOfCommandsTest, AWebFileIsChosenByKeyboard) {
    withProgram(usualOptions(), [](Person& person) {
        person.types("IESINFO");
        person.types("");
        ASSERT_TRUE(isOpen<FileDialog>(person));
        person.types(QString(QUOR_BUILD_DIR) + "/share/quor/webs/street.ies");
        EXPECT_FALSE(isOpen<FileDialog>(person));
        EXPECT_TRUE(person.screen().contains("Quor samples"));
    });
}

TEST(DialogsOfCommandsTest, SaveAsAsksOnceWhetherAFileIsReplaced) {
    const QTemporaryDir folder;
    const QString plan = folder.filePath("plan.dxf");
    withProgram(usualOptions(), [&](Person& person) {
        person.types("SAVEAS");
        person.types(plan);
        person.types("NEW");
        person.types("SAVEAS");
        person.types(folder.filePath("nowhere/plan.dxf"));
        EXPECT_TRUE(isOpen<FileDialog>(person));
        person.does([] { QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit")->clear(); });
        person.types(folder.filePath("other.dxf"));
        EXPECT_TRUE(QFile::exists(folder.filePath("other.dxf")));
        QFile::copy(plan, folder.filePath("third.dxf"));
        person.types("SAVEAS");
        person.types(folder.filePath("third.dxf"));
        ASSERT_TRUE(isOpen<QMessageBox>(person));
        person.does([] {
            for (QAbstractButton* const button : QApplication::activeModalWidget()->findChildren<QAbstractButton*>())
                if (button->text().contains("替换"))
                    return button->click();
        });

        ASSERT_FALSE(isOpen<QDialog>(person));
        EXPECT_EQ(person.sees([&] { return person.program().front().question()->kind; }), Question::Kind::Command);
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().current()->path(); }),
                  folder.filePath("third.dxf").toStdString());
    });
}

} // namespace
} // namespace quor::desktop::test
