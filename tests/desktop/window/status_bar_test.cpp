// The line at the bottom of the window.
#include "desktop/front/desktop_front_end.h"
#include "desktop/viewport/viewport.h"
#include "desktop/window/status_bar.h"
#include "host/gs/camera.h"
#include "host/sys/utf8.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QWheelEvent>

namespace quor::desktop::test {
namespace {

QString textOf(AtTheWindow& at, const char* label) {
    return at.person().sees([&] { return at.window().findChild<QLabel*>(label)->text(); });
}

void movesTo(AtTheWindow& at, const ZrGePoint3d& world) {
    Viewport& viewport = at.viewport();
    at.person().does([&viewport, world] {
        const gs::ScreenPoint seen = *gs::Projector(viewport.camera(), viewport.size()).toScreen(world);
        QTest::mouseMove(&viewport, QPoint(qRound(seen.x), qRound(seen.y)));
    });
}

TEST(StatusBarTest, CoordinatesAreThoseOfTheCursorInTheUcs) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"ZOOM", "C", "0,0", "100"});
        Viewport& viewport = at.viewport();
        const QPoint middle = at.person().sees([&] { return viewport.rect().center(); });
        at.person().does([&] { QTest::mouseMove(&viewport, middle); });
        const double before = textOf(at, "coordinates").section(',', 0, 0).toDouble();
        EXPECT_NEAR(before, 0, 1);
        at.types({"UCS", "1000,0,0", ""});
        at.person().does([&] { QTest::mouseMove(&viewport, middle + QPoint(1, 0)); });
        const double after = textOf(at, "coordinates").section(',', 0, 0).toDouble();
        EXPECT_NEAR(after, before - 1000, 1);
    });
}

TEST(StatusBarTest, CoordinatesFollowTheCursor) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"ZOOM", "C", "0,0", "100"});
        movesTo(at, {20, 10, 0});
        EXPECT_NEAR(textOf(at, "coordinates").section(',', 0, 0).toDouble(), 20, 0.5);
        EXPECT_NEAR(textOf(at, "coordinates").section(',', 1, 1).toDouble(), 10, 0.5);
        EXPECT_EQ(textOf(at, "coordinates").section(',', 2, 2).toDouble(), 0);
    });
}

TEST(StatusBarTest, UnitsChangeTheVariable) {
    atTheWindow([](AtTheWindow& at) {
        auto& units = at.part<QComboBox>("units");
        ASSERT_EQ(at.variable(L"LIGHTINGUNITS"), "2");
        at.person().does([&] { units.setFocus(); });
        at.presses(Qt::Key_Up);
        EXPECT_EQ(at.variable(L"LIGHTINGUNITS"), "1");
        EXPECT_TRUE(at.isChecked("unitsamerican"));
    });
}

TEST(StatusBarTest, UnitsFollowTheVariable) {
    atTheWindow([](AtTheWindow& at) {
        auto& units = at.part<QComboBox>("units");
        at.types({"LIGHTINGUNITS", "0"});
        EXPECT_EQ(at.person().sees([&] { return units.currentIndex(); }), 0);
    });
}

TEST(StatusBarTest, UnitsAreNotTurnedByAWheelThatPassesOverThem) {
    atTheWindow([](AtTheWindow& at) {
        auto& units = at.part<QComboBox>("units");
        at.person().does([&] {
            QWheelEvent turn(QPointF(4, 4), units.mapToGlobal(QPointF(4, 4)), {}, QPoint(0, 120), Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&units, &turn);
        });
        EXPECT_EQ(at.variable(L"LIGHTINGUNITS"), "2");
    });
}

TEST(StatusBarTest, WhatIsTypedOverTheUnitsGoesToTheCommandLine) {
    atTheWindow([](AtTheWindow& at) {
        auto& units = at.part<QComboBox>("units");
        at.person().does([&] { units.setFocus(); });
        at.person().types("LINE");
        EXPECT_EQ(at.person().sees([&] { return at.person().program().front().question()->kind; }),
                  Question::Kind::Point);
        EXPECT_EQ(at.variable(L"LIGHTINGUNITS"), "2");
    });
}

TEST(StatusBarTest, NamesFromADrawingAreShownAsTheyStand) {
    atTheWindow([](AtTheWindow& at) { EXPECT_EQ(at.part<QLabel>("ucs").textFormat(), Qt::PlainText); });
}

TEST(StatusBarTest, UnitsOfAQuestionForATextStayAsTheyAre) {
    atTheWindow([](AtTheWindow& at) {
        auto& units = at.part<QComboBox>("units");
        at.person().does([&] { units.setFocus(); });
        at.types("POINTLIGHT");
        at.presses(Qt::Key_Escape);
        EXPECT_EQ(at.person().sees([&] { return units.currentIndex(); }), 2);
    });
}

struct SwitchOf {
    const char* action;
    const wchar_t* variable;
};

class StatusSwitchTest : public testing::TestWithParam<SwitchOf> {};

TEST_P(StatusSwitchTest, ClickSwitchesAndTheVariableIsFollowed) {
    atTheWindow([](AtTheWindow& at) {
        QAbstractButton& button = at.statusSwitch(GetParam().action);
        const QString before = at.variable(GetParam().variable);
        const bool wasOn = at.person().sees([&] { return button.isChecked(); });
        at.clicks(button);
        const QString after = at.variable(GetParam().variable);
        EXPECT_NE(after, before);
        EXPECT_NE(at.person().sees([&] { return button.isChecked(); }), wasOn);
        at.types({toUtf8(GetParam().variable).c_str(), before.toUtf8().constData()});
        EXPECT_EQ(at.person().sees([&] { return button.isChecked(); }), wasOn);
    });
}

INSTANTIATE_TEST_SUITE_P(Switches, StatusSwitchTest,
                         testing::Values(SwitchOf{"snap", L"OSMODE"}, SwitchOf{"ortho", L"ORTHOMODE"},
                                         SwitchOf{"defaultlighting", L"DEFAULTLIGHTING"}),
                         [](const auto& row) { return std::string(row.param.action); });

TEST(StatusBarTest, ShadedSwitchesTheStyleAndFollowsTheMenu) {
    atTheWindow([](AtTheWindow& at) {
        QAbstractButton& button = at.statusSwitch("shaded");
        const Viewport& viewport = at.viewport();
        at.clicks(button);
        EXPECT_EQ(at.person().sees([&] { return viewport.visualStyle(); }), gs::VisualStyle::Shaded);
        EXPECT_TRUE(at.person().sees([&] { return button.isChecked(); }));
        at.chooses("wireframe");
        EXPECT_FALSE(at.person().sees([&] { return button.isChecked(); }));
    });
}

TEST(StatusBarTest, ChoosingWhatIsChosenLeavesItMarked) {
    atTheWindow([](AtTheWindow& at) {
        at.chooses("wireframe");
        EXPECT_TRUE(at.isChecked("wireframe"));
        at.chooses("unitssi");
        EXPECT_TRUE(at.isChecked("unitssi"));
    });
}

TEST(StatusBarTest, SwitchesAreReachedAndPressedByKeyboard) {
    atTheWindow([](AtTheWindow& at) {
        QAbstractButton& button = at.statusSwitch("ortho");
        at.person().does([&] { button.setFocus(Qt::TabFocusReason); });
        at.presses(Qt::Key_Space);
        EXPECT_EQ(at.variable(L"ORTHOMODE"), "1");
    });
}

TEST(StatusBarTest, UcsIsShownByName) {
    atTheWindow([](AtTheWindow& at) {
        EXPECT_TRUE(textOf(at, "ucs").contains("世界")) << textOf(at, "ucs").toStdString();
        at.types({"UCS", "10,10,0", ""});
        EXPECT_TRUE(textOf(at, "ucs").contains("未命名")) << textOf(at, "ucs").toStdString();
    });
}

TEST(StatusBarTest, ProgressIsShownUntilItIsDone) {
    atTheWindow([](AtTheWindow& at) {
        QProgressBar& bar = *at.person().sees([&] { return at.window().findChild<QProgressBar*>(); });
        at.person().does([&] { at.person().program().front().progress(L"Reading", 0.5); });
        EXPECT_TRUE(at.person().sees([&] { return bar.isVisible(); }));
        EXPECT_EQ(at.person().sees([&] { return bar.value() * 2; }), bar.maximum());
        at.person().does([&] { at.person().program().front().progress(L"Reading", 1); });
        EXPECT_FALSE(at.person().sees([&] { return bar.isVisible(); }));
    });
}

TEST(StatusBarTest, NothingIsSaidOfADrawingWhenNoneIsOpen) {
    atTheWindow([](AtTheWindow& at) {
        at.types("CLOSE");
        EXPECT_EQ(textOf(at, "coordinates"), "");
        EXPECT_EQ(textOf(at, "ucs"), "");
        EXPECT_FALSE(at.part<QComboBox>("units").isEnabled());
    });
}

} // namespace
} // namespace quor::desktop::test
