// Menus of modules: on rows, in the dialog, on the dock's title; by mouse and by keyboard.
#include "desktop/palettes/popup_menu.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace quor::desktop::test {
namespace {

using Lines = std::vector<ZrString>;

void askByKeyboard(QWidget& widget) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, widget.rect().center(),
                            widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &event);
}

class MenusOfThePalette : public ShownPalette {
protected:
    MenusOfThePalette() { showLights({L"a", L"b", L"c"}); }
};

TEST_F(MenusOfThePalette, OfOneRowOffersTheGlyph) {
    rightClick(middleOf(1));

    EXPECT_EQ(selectedRows(), std::vector<int>{1});
    EXPECT_EQ(front().lastMenu(), (Lines{L"删除", L"特性", L"轮廓显示", L"  [x] 自动", L"  开", L"  关"}));
}

TEST_F(MenusOfThePalette, OfSeveralRowsHasNoGlyph) {
    click(0);
    click(1, Qt::ControlModifier);
    rightClick(middleOf(1));

    EXPECT_EQ(front().lastMenu(), (Lines{L"删除", L"特性"}));
}

TEST_F(MenusOfThePalette, StandsWhereTheMouseIs) {
    rightClick(middleOf(1));

    const QPoint place = view().viewport()->mapToGlobal(middleOf(1));
    EXPECT_EQ(front().lastMenuPlace(), (CPoint{place.x(), place.y()}));
}

TEST_F(MenusOfThePalette, StandsWhereTheMouseIsInADockThatHasMovedWithItsWindow) {
    dock().setFloating(false);
    settle();
    main_->move(120, 90);
    settle();

    rightClick(middleOf(2));

    const QPoint place = view().viewport()->mapToGlobal(middleOf(2));
    EXPECT_EQ(front().lastMenuPlace(), (CPoint{place.x(), place.y()}));
}

TEST_F(MenusOfThePalette, DoesWhatIsChosen) {
    front().chooseMenu(7507);
    rightClick(middleOf(1));
    session_.run({});

    EXPECT_EQ(names(), L"a c");
}

TEST_F(MenusOfThePalette, BesideTheRowsThereIsNone) {
    rightClick(besideRows());

    EXPECT_EQ(front().lastMenu(), Lines{});
}

TEST_F(MenusOfThePalette, TheMenuKeyAsksForThatOfTheRowWithTheFocus) {
    click(2);
    askByKeyboard(view());

    EXPECT_EQ(front().lastMenu().front(), L"删除");
    EXPECT_EQ(selectedRows(), std::vector<int>{2});
    const QPoint row = view().mapToGlobal(view().rowRect(2).center());
    EXPECT_EQ(front().lastMenuPlace(), (CPoint{row.x(), row.y()}));
}

TEST_F(MenusOfThePalette, TheMenuKeyAsksForThatOfTheDialogWithoutARow) {
    focusList();
    askByKeyboard(view());

    EXPECT_EQ(front().lastMenu().size(), 1U);
    EXPECT_TRUE(front().lastMenu().front().starts_with(L"[x] "));
}

TEST_F(MenusOfThePalette, OfTheTitleClosesThePalette) {
    dock().setFloating(false);
    settle();
    front().chooseMenu(7501);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(20, 5), dock().mapToGlobal(QPoint(20, 5)));

    QApplication::sendEvent(&dock(), &event);

    EXPECT_EQ(front().lastMenu().size(), 3U);
    EXPECT_EQ(front().lastMenu()[1], L"---");
    EXPECT_FALSE(dock().isVisible());
}

constexpr ui::MenuEntry kMore[] = {{21, {0, L"&Third"}}, {22, {0, L"Fo&urth"}}};
constexpr ui::MenuEntry kEntries[] = {{11, {0, L"&First"}}, {}, {0, {0, L"&More"}, kMore}, {12, {0, L"&Second"}}};
constexpr ui::MenuTemplate kMenus[] = {{1, kEntries}};
constexpr ZwUiResources kResources{.menus = kMenus, .dialogs = {}, .pictures = {}};

class PopUpMenus : public ShownPalette {
protected:
    PopUpMenus() {
        const ZwResourceScope scope(&kResources);
        menu_.LoadMenu(1);
        menu_.CheckMenuItem(12, true);
    }
    // What it answers when these keys are pressed while it is open.
    unsigned choose(std::initializer_list<Qt::Key> keys) {
        QTimer::singleShot(0, [keys] {
            for (const Qt::Key key : keys)
                QTest::keyClick(QApplication::activePopupWidget(), key);
        });
        return host_->trackMenu(menu_, {100, 100});
    }

    CMenu menu_;
};

TEST_F(PopUpMenus, HaveTheEntriesOfTheModule) {
    QMenu shown;
    addEntries(shown, menu_);
    const QList<QAction*> actions = shown.actions();

    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->text(), "&First");
    EXPECT_FALSE(actions[0]->isCheckable());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->menu()->actions().size(), 2);
    EXPECT_TRUE(actions[3]->isChecked());
}

TEST_F(PopUpMenus, AreAnsweredByTheirLetters) {
    EXPECT_EQ(choose({Qt::Key_S}), 12U);
    EXPECT_EQ(choose({Qt::Key_M, Qt::Key_U}), 22U);
}

TEST_F(PopUpMenus, AreAnsweredWithArrowsAndEnter) { EXPECT_EQ(choose({Qt::Key_Down, Qt::Key_Return}), 11U); }

TEST_F(PopUpMenus, AnswerNothingToEsc) { EXPECT_EQ(choose({Qt::Key_Escape}), 0U); }

} // namespace
} // namespace quor::desktop::test
