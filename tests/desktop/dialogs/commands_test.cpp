// The dialogs as commands show them, in the whole program.
#include "desktop/dialogs/command_link.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/task_dialog.h"
#include "host/document.h"
#include "host/sys/system_variables.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QApplication>

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

} // namespace
} // namespace quor::desktop::test
