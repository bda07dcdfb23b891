// The palette in the whole program: what is chosen in it runs as commands, the drawing and the list follow each other.
#include "desktop/front/desktop_front_end.h"
#include "desktop/palettes/list_view.h"
#include "desktop/palettes/palette_area.h"
#include "desktop/palettes/palette_dock.h"
#include "desktop/window/main_window.h"
#include "sdk/ed/selection.h"
#include "sdk/sys/ads.h"
#include "tests/desktop/support/person.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace quor::desktop::test {
namespace {

// A person with three lights and the palette.
class Lights {
public:
    explicit Lights(Person& person) : person_(person) {
        for (const char* const line :
             {"DEFAULTLIGHTING 0", "POINTLIGHT 0,0,0", "", "POINTLIGHT 5,0,0", "", "POINTLIGHT 9,0,0", "", "LIGHTLIST"})
            person_.types(line);
    }

    [[nodiscard]] PaletteDock& dock() { return *person_.program().window().findChild<PaletteDock*>(); }
    [[nodiscard]] ListView& view() { return *dock().findChild<ListView*>(); }
    void click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers held = Qt::NoModifier) {
        person_.does([=, this] {
            view().activateWindow();
            const QPoint at = view().rowRect(row).center() - view().viewport()->pos();
            QTest::mouseClick(view().viewport(), button, held, at);
        });
    }
    [[nodiscard]] int rows() {
        return person_.sees([this] { return view().list()->GetItemCount(); });
    }
    [[nodiscard]] int selectedRows() {
        return person_.sees([this] { return view().list()->GetSelectedCount(); });
    }
    [[nodiscard]] std::size_t selectedInDrawing() {
        return person_.sees([] { return zredImpliedSelection().size(); });
    }
    [[nodiscard]] short state() {
        return person_.sees([] {
            short value = -1;
            zwutads::getVar(L"LIGHTLISTSTATE", value);
            return value;
        });
    }

private:
    Person& person_;
};

TEST(LightsInTheProgram, AreListedAndSelectedBothWays) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        EXPECT_EQ(lights.rows(), 3);
        EXPECT_EQ(lights.state(), 1);

        lights.click(0);
        lights.click(2, Qt::LeftButton, Qt::ControlModifier);
        EXPECT_EQ(lights.selectedInDrawing(), 2U);

        person.does([] { zredSetImpliedSelection({}); });
        EXPECT_EQ(lights.selectedRows(), 0);
        person.takesPicture("program_with_palette");
    });
}

TEST(LightsInTheProgram, AreErasedByDeleteAndComeBackWithUndo) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        lights.click(1);
        person.presses(Qt::Key_Delete);
        EXPECT_EQ(lights.rows(), 2);
        person.types("U");
        EXPECT_EQ(lights.rows(), 3);
    });
}

TEST(LightsInTheProgram, AreErasedFromTheirMenuByKeyboard) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        lights.click(1, Qt::RightButton);
        ASSERT_TRUE(person.sees([] { return QApplication::activePopupWidget() != nullptr; }));
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return})
            person.does([key] { QTest::keyClick(QApplication::activePopupWidget(), key); });
        EXPECT_EQ(lights.rows(), 2);
    });
}

TEST(LightsInTheProgram, AreNotErasedInTheMiddleOfACommand) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        lights.click(0);
        person.types("POINTLIGHT");
        lights.click(1);
        person.presses(Qt::Key_Delete);
        EXPECT_EQ(lights.rows(), 3);
        person.does([&] { person.program().front().escape(); });
        EXPECT_EQ(lights.rows(), 2);
    });
}

TEST(LightsInTheProgram, LeaveTheKeyboardToTheCommandLine) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        lights.click(0);
        person.types("LIGHTLISTCLOSE");
        EXPECT_EQ(lights.state(), 0);
        person.types("LIGHTLIST");
        EXPECT_EQ(lights.state(), 1);
    });
}

TEST(LightsInTheProgram, AreClosedWithTheButtonOfTheDock) {
    withProgram(usualOptions(), [](Person& person) {
        Lights lights(person);
        person.does([&] { lights.dock().close(); });
        EXPECT_EQ(lights.state(), 0);
        EXPECT_FALSE(person.sees([&] { return lights.dock().isVisible(); }));
    });
}

TEST(LightsInTheProgram, AreDockedBesideTheDrawing) {
    ProgramOptions english = usualOptions();
    english.session.language = L"en";
    withProgram(english, [](Person& person) {
        Lights lights(person);
        person.types("COLORTHEME 1");
        person.does([&] { lights.dock().setFloating(false); });
        lights.click(1);
        person.takesPicture("program_with_docked_palette");
        EXPECT_FALSE(person.sees([&] { return lights.dock().isFloating(); }));
    });
}

TEST(LightsInTheProgram, AreShownAgainInTheNextSessionWhereTheyWere) {
    const QTemporaryDir home;
    ProgramOptions options = usualOptions();
    options.session.settingsFile = (home.path() + "/settings.ini").toStdString();
    withProgram(options, [](Person& person) {
        Lights lights(person);
        person.does([&] {
            person.program().window().addDockWidget(Qt::RightDockWidgetArea, &lights.dock());
            lights.dock().setFloating(false);
        });
    });
    withProgram(options, [](Person& person) {
        MainWindow& window = person.program().window();
        PaletteDock* const dock = person.sees([&] { return window.findChild<PaletteDock*>(); });
        ASSERT_NE(dock, nullptr);
        EXPECT_TRUE(person.sees([&] { return dock->isVisible(); }));
        EXPECT_FALSE(person.sees([&] { return dock->isFloating(); }));
        EXPECT_EQ(person.sees([&] { return window.dockWidgetArea(dock); }), Qt::RightDockWidgetArea);
    });
}

} // namespace
} // namespace quor::desktop::test
