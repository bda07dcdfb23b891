// The program starts, asks for commands, and ends.
#include "desktop/front/desktop_front_end.h"
#include "desktop/window/main_window.h"
#include "host/document.h"
#include "host/session.h"
#include "host/ui/user_interface.h"
#include "sdk/ui/list_control.h"
#include "sdk/ui/palette_set_manager.h"
#include "tests/desktop/support/person.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

constexpr unsigned kLightList = 7504;

int rowsOfLights(Program& program) {
    const CZrRxPaletteSet& palette = *program.session().ui().palettes(false)->palettes().front();
    return palette.IsVisible()
               ? static_cast<const CListCtrl*>(palette.children().front()->GetDlgItem(kLightList))->GetItemCount()
               : -1;
}

TEST(StartTest, ANewDrawingIsOpenAndTheWindowIsShown) {
    withProgram(usualOptions(), [](Person& person) {
        EXPECT_TRUE(person.sees([&] { return person.program().window().isVisible(); }));
        EXPECT_EQ(person.sees([&] { return person.program().session().documents().all().size(); }), 1U);
    });
}

TEST(StartTest, APaletteThatWasShownShowsTheLightsOfTheDrawingThatIsOpenedAtTheStart) {
    const QTemporaryDir folder;
    ProgramOptions options = usualOptions();
    options.session.settingsFile = (folder.path() + "/settings.ini").toStdString();
    options.drawings = {QUOR_TEST_DATA "/dxf/own/every_kind.dxf"};
    int before = 0;
    withProgram(options, [&](Person& person) {
        person.types("LIGHTLIST");
        person.settles();
        before = person.sees([&] { return rowsOfLights(person.program()); });
    });
    ASSERT_GT(before, 0);

    withProgram(options, [&](Person& person) {
        person.settles();
        EXPECT_EQ(person.sees([&] { return rowsOfLights(person.program()); }), before);
    });
}

TEST(StartTest, ControlAndTwoShowAndHideThePaletteInTheMiddleOfACommand) {
    withProgram(usualOptions(), [](Person& person) {
        const auto asked = [&] { return person.sees([&] { return person.program().front().question()->kind; }); };
        person.types("LINE");
        person.types("0,0");
        person.presses(Qt::Key_2, Qt::ControlModifier);
        person.settles();
        EXPECT_EQ(person.sees([&] { return rowsOfLights(person.program()); }), 0);
        EXPECT_EQ(asked(), Question::Kind::Point);

        person.presses(Qt::Key_2, Qt::ControlModifier);
        person.settles();
        EXPECT_EQ(person.sees([&] { return rowsOfLights(person.program()); }), -1);
        EXPECT_EQ(asked(), Question::Kind::Point);
    });
}

} // namespace
} // namespace quor::desktop::test
