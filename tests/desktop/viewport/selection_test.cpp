// Selecting with the mouse, at the command prompt and where a command asks for objects.
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/db/ref_edit.h"
#include "host/document.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quor::desktop::test {
namespace {

// Three lines: one to the left, one in the middle, one to the right that is longer.
constexpr ZrGePoint3d kLeft(-20, 0, 0);
constexpr ZrGePoint3d kMiddle(0, 0, 0);
constexpr ZrGePoint3d kRight(20, 0, 0);

class SelectionTest : public testing::Test {
protected:
    static void tell(const std::function<void(Screen&, const ZrDbObjectIdArray&)>& story) {
        withScreen([&](Screen& screen) {
            screen.types(
                {L"LINE", L"-20,-5", L"-20,5", L"", L"LINE", L"0,-5", L"0,5", L"", L"LINE", L"20,-25", L"20,25", L""});
            story(screen, screen.objects());
        });
    }
};

TEST_F(SelectionTest, AClickOnAnObjectSelectsIt) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kMiddle));
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[1]});
    });
}

TEST_F(SelectionTest, SeveralClicksAddUp) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kRight));
        screen.clicks(screen.at(kLeft));
        EXPECT_EQ(screen.selected(), (ZrDbObjectIdArray{lines[2], lines[0]}));
    });
}

TEST_F(SelectionTest, ShiftTakesAway) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kRight));
        screen.clicks(screen.at(kLeft));
        screen.clicks(screen.at(kRight), Qt::LeftButton, Qt::ShiftModifier);
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[0]});
    });
}

TEST_F(SelectionTest, ControlToggles) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kRight), Qt::LeftButton, Qt::ControlModifier);
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[2]});
        screen.clicks(screen.at(kRight), Qt::LeftButton, Qt::ControlModifier);
        EXPECT_TRUE(screen.selected().empty());
    });
}

TEST_F(SelectionTest, ARectangleToTheRightSelectsWhatLiesInside) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.drags(screen.at({-25, 10, 0}), screen.at({25, -10, 0}));
        EXPECT_EQ(screen.selected(), (ZrDbObjectIdArray{lines[0], lines[1]}));
    });
}

TEST_F(SelectionTest, ARectangleToTheLeftSelectsWhatItTouches) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.drags(screen.at({25, 10, 0}), screen.at({-5, -2, 0}));
        EXPECT_EQ(screen.selected(), (ZrDbObjectIdArray{lines[1], lines[2]}));
    });
}

TEST_F(SelectionTest, TwoClicksMakeAWindowToo) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at({-25, 10, 0}));
        screen.moves(screen.at({10, 0, 0}));
        screen.clicks(screen.at({25, -10, 0}));
        EXPECT_EQ(screen.selected(), (ZrDbObjectIdArray{lines[0], lines[1]}));
    });
}

TEST_F(SelectionTest, TwoClicksMakeACrossingToo) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at({25, 10, 0}));
        screen.clicks(screen.at({-5, -2, 0}));
        EXPECT_EQ(screen.selected(), (ZrDbObjectIdArray{lines[1], lines[2]}));
    });
}

TEST_F(SelectionTest, ARectangleWithShiftTakesAway) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.drags(screen.at({25, 10, 0}), screen.at({-25, -2, 0}));
        screen.drags(screen.at({-25, 10, 0}), screen.at({5, -10, 0}), Qt::LeftButton, Qt::ShiftModifier);
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[2]});
    });
}

TEST_F(SelectionTest, EscTakesBackTheRectangleFirstAndThenTheSelection) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kLeft));
        screen.clicks(screen.at({10, 10, 0}));
        screen.presses(Qt::Key_Escape);
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[0]});
        screen.presses(Qt::Key_Escape);
        EXPECT_TRUE(screen.selected().empty());
        screen.clicks(screen.at(kRight));
        EXPECT_EQ(screen.selected(), ZrDbObjectIdArray{lines[2]});
    });
}

TEST_F(SelectionTest, DeleteErasesWhatIsSelected) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.clicks(screen.at(kLeft));
        screen.presses(Qt::Key_Delete);
        EXPECT_EQ(screen.objects(), (ZrDbObjectIdArray{lines[1], lines[2]}));
    });
}

TEST_F(SelectionTest, DeleteWithNothingSelectedAsksForNothing) {
    tell([](Screen& screen, const ZrDbObjectIdArray&) {
        screen.presses(Qt::Key_Delete);
        EXPECT_EQ(screen.question(), Question::Kind::Command);
        EXPECT_EQ(screen.objects().size(), 3U);
    });
}

TEST_F(SelectionTest, ACommandTakesWhatIsPickedForIt) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.types(L"ERASE");
        screen.clicks(screen.at(kLeft));
        screen.drags(screen.at({-10, 10, 0}), screen.at({10, -10, 0}));
        EXPECT_EQ(screen.question(), Question::Kind::Selection);
        screen.types(L"");
        EXPECT_EQ(screen.objects(), ZrDbObjectIdArray{lines[2]});
    });
}

TEST_F(SelectionTest, ShiftTakesAwayWhatWasPickedForACommand) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        screen.types(L"ERASE");
        screen.drags(screen.at({25, 10, 0}), screen.at({-25, -2, 0}));
        screen.clicks(screen.at(kRight), Qt::LeftButton, Qt::ShiftModifier);
        screen.types(L"");
        EXPECT_EQ(screen.objects(), ZrDbObjectIdArray{lines[2]});
    });
}

// The drawing differs from how it looked before by what stands out.
QImage seen(Screen& screen) {
    screen.waitsUntilStill();
    return screen.person().sees([&] { return screen.viewport().grab().toImage(); });
}

TEST_F(SelectionTest, WhatIsPickedForACommandStandsOutUntilItEnds) {
    tell([](Screen& screen, const ZrDbObjectIdArray&) {
        const QPoint there = screen.at({-20, 3, 0});
        const QRgb usual = seen(screen).pixel(there);
        screen.types(L"ERASE");
        screen.clicks(screen.at(kLeft));
        screen.moves({10, 10});
        EXPECT_NE(seen(screen).pixel(there), usual);
        screen.person().does([&] { screen.person().program().front().escape(); });
        EXPECT_EQ(seen(screen).pixel(there), usual);
    });
}

TEST_F(SelectionTest, WhatAnythingElseSelectsStandsOut) {
    tell([](Screen& screen, const ZrDbObjectIdArray& lines) {
        const QPoint there = screen.at({-20, 3, 0});
        const QRgb usual = seen(screen).pixel(there);
        screen.person().does([&] { zredSetImpliedSelection({lines[0]}); });
        EXPECT_NE(seen(screen).pixel(there), usual);
    });
}

TEST_F(SelectionTest, WhatIsUnderTheCursorStandsOut) {
    tell([](Screen& screen, const ZrDbObjectIdArray&) {
        const QPoint there = screen.at({-20, 4, 0});
        const QRgb usual = seen(screen).pixel(there);
        screen.moves(screen.at({-20, -4, 0}));
        EXPECT_NE(seen(screen).pixel(there), usual);
    });
}

TEST_F(SelectionTest, NothingIsSelectedWhereACommandAsksForSomethingElse) {
    tell([](Screen& screen, const ZrDbObjectIdArray&) {
        screen.types({L"POINTLIGHT", L"0,0,5"});
        screen.clicks(screen.at(kLeft));
        EXPECT_TRUE(screen.selected().empty());
    });
}

TEST_F(SelectionTest, WhileABlockIsEditedInPlaceNothingElseIsSelected) {
    withScreen([](Screen& screen) {
        screen.types(
            {L"OPEN " + fromQt(QUOR_TEST_DATA "/dxf/own/luminaires.dxf"), L"REFEDIT", L"#60", L"", L"'ZOOM E"});
        screen.waitsUntilStill();
        screen.drags({2, 2}, {795, 595});

        const ZrDbObjectIdArray selected = screen.selected();

        EXPECT_EQ(selected.size(), 4U);
        EXPECT_TRUE(screen.person().sees([&] {
            const db::RefEdit& editing = screen.person().program().session().documents().current()->drawing().refEdit();
            return std::ranges::all_of(selected, [&](ZrDbObjectId id) { return editing.holds(*id.entry()); });
        }));
    });
}

TEST(BegunRectangleTest, ACommandThatIsTypedLeavesIt) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0", L"5,5", L""});
        screen.clicks({100, 100});
        screen.types(L"REGEN");
        screen.clicks({700, 500});
        EXPECT_TRUE(screen.selected().empty());
    });
}

} // namespace
} // namespace quor::desktop::test
