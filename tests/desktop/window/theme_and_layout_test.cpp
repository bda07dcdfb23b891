// What a person sets up stays: colours at once, docks at the next start.
#include "desktop/commandline/command_line.h"
#include "desktop/commandline/transcript_view.h"
#include "desktop/palettes/palette_dock.h"
#include "desktop/properties/properties_panel.h"
#include "desktop/window/theme.h"
#include "host/sys/settings_store.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTabBar>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

// Whether widgets of all kinds have light letters on a dark ground: 1 for each that has.
std::vector<bool> darkWidgets(AtTheWindow& at) {
    return at.person().sees([&] {
        const QWidget* const widgets[] = {&at.window(), at.window().findChild<QDockWidget*>("dock.properties"),
                                          at.window().findChild<PropertiesPanel*>(), &at.tabs()};
        std::vector<bool> dark{isDark(QApplication::palette())};
        for (const QWidget* const widget : widgets)
            dark.push_back(isDark(widget->palette()));
        const QPalette& line = at.window().commandLine().input().palette();
        dark.push_back(line.color(QPalette::Base).lightness() < line.color(QPalette::Text).lightness());
        return dark;
    });
}

TEST(ThemeTest, VariableSwitchesAllWidgetsAndTheMenuFollows) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"COLORTHEME", "1"});
        EXPECT_EQ(darkWidgets(at), std::vector<bool>(6, false));
        EXPECT_TRUE(at.isChecked("themelight"));
        at.types({"COLORTHEME", "0"});
        EXPECT_EQ(darkWidgets(at), std::vector<bool>(6, true));
        EXPECT_TRUE(at.isChecked("themedark"));
    });
}

TEST(ThemeTest, MenuSetsTheVariable) {
    atTheWindow([](AtTheWindow& at) {
        at.chooses("themelight");
        EXPECT_EQ(at.variable(L"COLORTHEME"), "1");
        EXPECT_EQ(darkWidgets(at), std::vector<bool>(6, false));
    });
}

TEST(ThemeTest, DesktopThemeIsThatOfTheDesktop) {
    ProgramOptions options = usualOptions();
    options.desktopIsDark = false;
    atTheWindow(options, [](AtTheWindow& at) {
        EXPECT_TRUE(at.isChecked("themedesktop"));
        EXPECT_EQ(darkWidgets(at), std::vector<bool>(6, false));
    });
    options.desktopIsDark = true;
    atTheWindow(options, [](AtTheWindow& at) { EXPECT_EQ(darkWidgets(at), std::vector<bool>(6, true)); });
}

class LayoutTest : public testing::Test {
protected:
    LayoutTest() { options_.session.settingsFile = folder_.filePath("settings.ini").toStdString(); }
    QDockWidget& dock(AtTheWindow& at, const char* name) { return at.part<QDockWidget>(name); }

    QTemporaryDir folder_;
    ProgramOptions options_ = usualOptions();
};

TEST_F(LayoutTest, DocksAndTheSizeOfTheWindowComeBack) {
    atTheWindow(options_, [&](AtTheWindow& at) {
        QDockWidget& properties = dock(at, "dock.properties");
        at.person().does([&] {
            at.window().resize(1024, 700);
            at.window().addDockWidget(Qt::LeftDockWidgetArea, &properties);
        });
        at.presses(Qt::Key_9, Qt::ControlModifier);
    });
    atTheWindow(options_, [&](AtTheWindow& at) {
        EXPECT_EQ(at.person().sees([&] { return at.window().size(); }), QSize(1024, 700));
        EXPECT_FALSE(dock(at, "dock.commandline").isVisible());
        EXPECT_EQ(at.window().dockWidgetArea(&dock(at, "dock.properties")), Qt::LeftDockWidgetArea);
    });
}

TEST_F(LayoutTest, FloatingDockFloatsAgain) {
    atTheWindow(options_, [&](AtTheWindow& at) {
        QDockWidget& properties = dock(at, "dock.properties");
        at.person().does([&] { properties.setFloating(true); });
    });
    atTheWindow(options_, [&](AtTheWindow& at) { EXPECT_TRUE(dock(at, "dock.properties").isFloating()); });
}

TEST_F(LayoutTest, BrokenLayoutIsIgnored) {
    SettingsStore store(options_.session.settingsFile);
    store.set(L"Desktop", L"Geometry", L"no such thing");
    store.set(L"Desktop", L"Layout", L"AAAA/wAAAAD9");
    store.set(L"Desktop", L"Palettes", L"{nobody} knows");
    atTheWindow(options_, [&](AtTheWindow& at) {
        EXPECT_EQ(at.person().sees([&] { return at.window().size(); }), QSize(1280, 800));
        EXPECT_TRUE(dock(at, "dock.commandline").isVisible());
        EXPECT_TRUE(dock(at, "dock.properties").isVisible());
    });
}

} // namespace
} // namespace quor::desktop::test
