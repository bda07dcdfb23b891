// What a person selects in the list is selected in the drawing, and the other way round.
#include "sdk/ed/selection.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QTest>

namespace quor::desktop::test {
namespace {

using Rows = std::vector<int>;
using Ids = std::vector<ZrDbObjectId>;

class SelectionInTheDock : public ShownPalette {
protected:
    SelectionInTheDock() { showLights({L"a", L"b", L"c", L"d"}); }
};

TEST_F(SelectionInTheDock, AClickSelectsALightInTheDrawing) {
    click(1);

    EXPECT_EQ(selectedRows(), Rows{1});
    EXPECT_EQ(zredImpliedSelection(), Ids{lights_[1]});
}

TEST_F(SelectionInTheDock, AClickWithCtrlSelectsOneMoreOrLess) {
    click(1);
    click(3, Qt::ControlModifier);
    EXPECT_EQ(zredImpliedSelection(), (Ids{lights_[1], lights_[3]}));

    click(1, Qt::ControlModifier);

    EXPECT_EQ(zredImpliedSelection(), Ids{lights_[3]});
}

TEST_F(SelectionInTheDock, AClickWithShiftSelectsUpToThere) {
    click(1);
    click(3, Qt::ShiftModifier);

    EXPECT_EQ(selectedRows(), (Rows{1, 2, 3}));
    EXPECT_EQ(zredImpliedSelection(), (Ids{lights_[1], lights_[2], lights_[3]}));
}

TEST_F(SelectionInTheDock, AClickBesideTheRowsChangesNothing) {
    click(1);

    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, besideRows());

    EXPECT_EQ(zredImpliedSelection(), Ids{lights_[1]});
}

TEST_F(SelectionInTheDock, TwoClicksAskForTheProperties) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2));
    session_.run({});

    EXPECT_EQ(zredImpliedSelection(), Ids{lights_[2]});
    EXPECT_TRUE(front().shows(L"_properties"));
}

TEST_F(SelectionInTheDock, WhatIsSelectedInTheDrawingIsSelectedInTheList) {
    zredSetImpliedSelection({lights_[0], lights_[2]});

    EXPECT_EQ(selectedRows(), (Rows{0, 2}));
}

TEST_F(SelectionInTheDock, TheKeyboardSelectsEverything) {
    focusList();
    press(Qt::Key_A, Qt::ControlModifier);

    EXPECT_EQ(zredImpliedSelection().size(), 4U);
}

TEST_F(SelectionInTheDock, HomeAndEndGoToTheFirstAndTheLastRow) {
    focusList();
    press(Qt::Key_End);
    EXPECT_EQ(selectedRows(), Rows{3});
    press(Qt::Key_Home);
    EXPECT_EQ(selectedRows(), Rows{0});
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(selectedRows(), (Rows{0, 1, 2, 3}));
}

TEST_F(SelectionInTheDock, SpaceSelectsTheRowWithTheFocus) {
    focusList();
    press(Qt::Key_End);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(selectedRows(), Rows{3});

    press(Qt::Key_Space);

    EXPECT_EQ(selectedRows(), Rows{0});
}

TEST_F(SelectionInTheDock, ArrowsAndEscDoNothingHere) {
    click(1);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Return})
        press(key);

    EXPECT_EQ(selectedRows(), Rows{1});
    EXPECT_TRUE(dock().isVisible());
}

TEST_F(SelectionInTheDock, DeleteErasesWhatIsSelected) {
    click(0);
    click(2, Qt::ControlModifier);
    press(Qt::Key_Delete);
    session_.run({});

    EXPECT_EQ(names(), L"b d");
}

TEST_F(SelectionInTheDock, DeleteIsForTheListBeforeAnyShortcut) {
    QAction shortcut(main_.get());
    bool wasTriggered = false;
    shortcut.setShortcut(Qt::Key_Delete);
    QObject::connect(&shortcut, &QAction::triggered, [&] { wasTriggered = true; });
    main_->addAction(&shortcut);
    dock().setFloating(false);
    click(0);

    press(Qt::Key_Delete);
    session_.run({});

    EXPECT_FALSE(wasTriggered);
    EXPECT_EQ(names(), L"b c d");
}

TEST_F(SelectionInTheDock, ALetterIsTypedIntoTheWindowBehind) {
    struct Typed : QObject {
        QString text;
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::KeyPress)
                text += static_cast<QKeyEvent*>(event)->text();
            return false;
        }
    } typed;
    main_->installEventFilter(&typed);
    focusList();

    press(Qt::Key_L);
    dock().setFloating(false);
    focusList();
    press(Qt::Key_L);

    EXPECT_EQ(typed.text, "ll");
}

} // namespace
} // namespace quor::desktop::test
