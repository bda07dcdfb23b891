// The right button, and keys over the drawing.
#include "desktop/front/desktop_front_end.h"
#include "tests/desktop/viewport/screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace quor::desktop::test {
namespace {

QMenu* openMenu(Screen& screen) { return screen.viewport().findChild<QMenu*>("answers"); }

QStringList entriesOf(const QMenu& menu) {
    QStringList entries;
    for (const QAction* const action : menu.actions())
        entries << action->text();
    return entries;
}

TEST(RightButtonTest, IsEnterWhereThereAreNoKeywords) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE"});
        screen.clicks({100, 100}, Qt::RightButton);
        EXPECT_EQ(screen.question(), Question::Kind::Command);
    });
}

TEST(RightButtonTest, ShowsTheOptionsThatThePromptOffers) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0"});
        screen.clicks({100, 100}, Qt::RightButton);
        const QStringList entries = screen.person().sees([&] { return entriesOf(*openMenu(screen)); });
        EXPECT_EQ(entries.mid(2), (QStringList{"", "放弃(U)"}));
        EXPECT_EQ(entries.size(), 4);
    });
}

TEST(RightButtonTest, HidesTheWordsThatAPromptTakesAndDoesNotOffer) {
    withScreen([](Screen& screen) {
        screen.types({L"POINTLIGHT", L"0,0,0"});
        screen.clicks({100, 100}, Qt::RightButton);
        const QStringList entries = screen.person().sees([&] { return entriesOf(*openMenu(screen)); });
        EXPECT_EQ(entries.filter("(N)").size(), 1);
        EXPECT_TRUE(entries.filter("Hotspot").isEmpty());
    });
}

TEST(RightButtonTest, ShowsAllWordsWhereThePromptOffersNone) {
    withScreen([](Screen& screen) {
        screen.types({L"SELECT"});
        screen.clicks({100, 100}, Qt::RightButton);
        const QStringList entries = screen.person().sees([&] { return entriesOf(*openMenu(screen)); });
        EXPECT_TRUE(entries.contains("Previous"));
    });
}

TEST(RightButtonTest, AKeywordOfTheMenuIsTheAnswer) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0", L"5,0", L"5,5"});
        screen.clicks({100, 100}, Qt::RightButton);
        screen.person().does([&] {
            openMenu(screen)->actions().last()->trigger();
            openMenu(screen)->close();
        });
        EXPECT_EQ(screen.objects().size(), 1U);
        EXPECT_EQ(screen.question(), Question::Kind::Point);
    });
}

TEST(RightButtonTest, EnterAndEscOfTheMenuAnswerToo) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0"});
        screen.clicks({100, 100}, Qt::RightButton);
        screen.person().does([&] { openMenu(screen)->actions().first()->trigger(); });
        EXPECT_EQ(screen.question(), Question::Kind::Command);
        screen.types({L"LINE", L"0,0"});
        screen.clicks({100, 100}, Qt::RightButton);
        screen.person().does([&] { openMenu(screen)->actions().at(1)->trigger(); });
        EXPECT_EQ(screen.question(), Question::Kind::Command);
    });
}

TEST(RightButtonTest, AQuestionThatIsAnsweredOtherwiseTakesItsMenuAlong) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,0"});
        screen.clicks({100, 100}, Qt::RightButton);
        screen.types(L"5,5");
        EXPECT_EQ(screen.person().sees([&] { return QApplication::activePopupWidget(); }), nullptr);
    });
}

TEST(RightButtonTest, AtTheCommandPromptAMenuIsAskedFor) {
    withScreen([](Screen& screen) {
        int asked = 0;
        screen.person().does([&] {
            screen.viewport().disconnect(SIGNAL(contextMenuRequested(QPoint)));
            QObject::connect(&screen.viewport(), &Viewport::contextMenuRequested, &screen.viewport(),
                             [&](const QPoint&) { ++asked; });
        });
        screen.clicks({100, 100}, Qt::RightButton);
        EXPECT_EQ(asked, 1);
    });
}

TEST(KeysTest, WhatIsTypedOverTheDrawingGoesToTheCommandLine) {
    withScreen([](Screen& screen) {
        std::vector<int> keys;
        screen.person().does([&] {
            screen.viewport().disconnect(SIGNAL(keyForCommandLine(QKeyEvent*)));
            QObject::connect(&screen.viewport(), &Viewport::keyForCommandLine, &screen.viewport(),
                             [&](const QKeyEvent* event) { keys.push_back(event->key()); });
        });
        for (const Qt::Key key : {Qt::Key_L, Qt::Key_Minus, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Return,
                                  Qt::Key_Escape, Qt::Key_Up, Qt::Key_F3, Qt::Key_Home, Qt::Key_F12})
            screen.presses(key);
        EXPECT_EQ(keys, (std::vector<int>{Qt::Key_L, Qt::Key_Minus, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Return,
                                          Qt::Key_Escape}));
    });
}

TEST(KeysTest, ADoubleClickOnAnObjectShowsItsProperties) {
    withScreen([](Screen& screen) {
        screen.types({L"LINE", L"0,-5", L"0,5", L""});
        screen.doubleClicks(screen.at({0, 0, 0}), Qt::LeftButton);
        EXPECT_EQ(screen.selected(), screen.objects());
        EXPECT_TRUE(screen.person().screen().contains("PROPERTIES"));
    });
}

TEST(KeysTest, TheDrawingAreaHasANameForThoseWhoDoNotSeeIt) {
    withScreen([](Screen& screen) {
        EXPECT_EQ(screen.person().sees([&] { return screen.viewport().accessibleName(); }),
                  QString::fromUtf8("绘图区"));
        EXPECT_EQ(screen.person().sees([&] { return screen.viewport().focusPolicy(); }), Qt::StrongFocus);
    });
}

} // namespace
} // namespace quor::desktop::test
