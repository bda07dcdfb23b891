// The dock of a palette: shown and hidden from both sides, docked, floating, in tabs, remembered.
#include "sdk/sys/ads.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QApplication>
#include <QDockWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>

namespace quor::desktop::test {
namespace {

class TheDock : public ShownPalette {
protected:
    TheDock() { showLights({L"a", L"b"}); }
};

TEST_F(TheDock, FloatsWhereThePaletteWantsToAtFirst) {
    EXPECT_TRUE(dock().isVisible());
    EXPECT_TRUE(dock().isFloating());
    EXPECT_EQ(dock().area().size(), QSize(208, 438));
    EXPECT_EQ(palette().GetClientRect().Size(), (CSize{208, 438}));
    EXPECT_EQ(dock().windowTitle(), QString::fromStdWString(palette().GetName()));
    EXPECT_FALSE(dock().windowIcon().isNull());
    EXPECT_EQ(lightListState(), 1);
}

TEST_F(TheDock, HasARowForEachLight) { EXPECT_EQ(names(), L"a b"); }

TEST_F(TheDock, TellsThePaletteWhereItIs) {
    dock().move(300, 200);
    settle();

    const QPoint inside = dock().area().mapToGlobal(QPoint());
    EXPECT_EQ(palette().GetWindowRect().TopLeft(), (CPoint{inside.x(), inside.y()}));
    EXPECT_FALSE(palette().IsDocked());
}

TEST_F(TheDock, IsLaidOutAnewWhenThePersonSizesIt) {
    dock().resize(400, 600);
    settle();

    EXPECT_EQ(palette().GetClientRect().Size(), (CSize{dock().area().width(), dock().area().height()}));
    EXPECT_EQ(view().width(), list().GetClientRect().Width());
    EXPECT_EQ(list().GetClientRect().Width(), dock().area().width() - 20);
}

TEST_F(TheDock, IsNotMadeSmallerThanThePaletteCanBe) {
    dock().resize(50, 50);
    settle();

    EXPECT_EQ(dock().area().size(), QSize(200, 250));
}

TEST_F(TheDock, TellsThePaletteThatItIsDocked) {
    dock().setFloating(false);
    settle();

    EXPECT_TRUE(palette().IsDocked());
    EXPECT_EQ(palette().GetClientRect().Height(), dock().area().height());
    EXPECT_EQ(palette().GetFloatingRect().Size(), (CSize{208, 438}));
}

TEST_F(TheDock, StaysDockedWhenThePaletteIsShownAgain) {
    dock().setFloating(false);
    settle();
    const QRect before = dock().geometry();
    session_.run({L"LIGHTLISTCLOSE", L"LIGHTLIST"});
    settle();

    EXPECT_FALSE(dock().isFloating());
    EXPECT_EQ(dock().geometry(), before);
    EXPECT_EQ(palette().GetClientRect().Height(), dock().area().height());
}

// Presses on the title and moves the mouse far, with what a window system tells of it.
void dragByTitle(QWidget& dock, QPoint way) {
    const QPoint from(dock.width() / 2, 5);
    const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, at, dock.mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&dock, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, from + way / 2, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, from + way, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, from + way, Qt::LeftButton, Qt::NoButton);
}

TEST_F(TheDock, HasItsFormerSizeWhenItIsDraggedAway) {
    dock().setFloating(false);
    settle();
    ASSERT_GT(dock().area().height(), 500);

    dragByTitle(dock(), {-400, 100});
    settle();

    ASSERT_TRUE(dock().isFloating());
    EXPECT_EQ(dock().area().size(), QSize(208, 438));
    EXPECT_EQ(palette().GetFloatingRect().Size(), (CSize{208, 438}));
    EXPECT_FALSE(palette().IsDocked());
}

TEST_F(TheDock, IsSeenOnTheScreenWhenItFloatsAgain) {
    palette().SetFloatingRect({5000, 4000, 5300, 4400});
    dock().setFloating(false);
    settle();
    dock().setFloating(true);
    settle();

    EXPECT_TRUE(dock().screen()->availableGeometry().contains(dock().frameGeometry()));
    EXPECT_EQ(dock().area().size(), QSize(300, 400));
}

TEST_F(TheDock, ShowsThePaletteAndHidesItInTheMiddleOfACommand) {
    host_->togglePalettes();
    EXPECT_FALSE(host_->arePalettesSeen());
    EXPECT_EQ(lightListState(), 0);

    host_->togglePalettes();
    settle();

    EXPECT_TRUE(host_->arePalettesSeen());
    EXPECT_EQ(lightListState(), 1);
    EXPECT_EQ(names(), L"a b");
}

TEST_F(TheDock, ComesForwardBeforeItIsHiddenWhenAnotherTabCoversIt) {
    QDockWidget other(main_.get());
    main_->addDockWidget(Qt::RightDockWidgetArea, &other);
    dock().setFloating(false);
    main_->tabifyDockWidget(&dock(), &other);
    other.show();
    other.raise();
    settle();
    ASSERT_FALSE(host_->arePalettesSeen());

    host_->togglePalettes();
    settle();

    EXPECT_TRUE(host_->arePalettesSeen());
    EXPECT_EQ(lightListState(), 1);
}

TEST_F(ShownPalette, IsATabOfTheDocksOnTheRightWhenItIsDockedForTheFirstTime) {
    QDockWidget properties(main_.get());
    main_->addDockWidget(Qt::RightDockWidgetArea, &properties);
    properties.show();
    showLights({L"a"});
    ASSERT_TRUE(dock().isFloating());

    dock().setFloating(false);
    settle();

    EXPECT_EQ(main_->tabifiedDockWidgets(&dock()), QList<QDockWidget*>{&properties});
}

TEST_F(TheDock, IsHiddenByTheCommand) {
    session_.run({L"LIGHTLISTCLOSE"});
    EXPECT_FALSE(dock().isVisible());
    EXPECT_EQ(lightListState(), 0);
    session_.run({L"LIGHTLIST"});
    EXPECT_TRUE(dock().isVisible());
    EXPECT_EQ(lightListState(), 1);
}

TEST_F(TheDock, HidesThePaletteByItsCloseButton) {
    dock().close();
    settle();

    EXPECT_FALSE(dock().isVisible());
    EXPECT_FALSE(palette().IsVisible());
    EXPECT_EQ(lightListState(), 0);
}

TEST_F(TheDock, ShowsAndHidesThePaletteFromAMenuOfDocks) {
    dock().toggleViewAction()->trigger();
    settle();
    EXPECT_EQ(lightListState(), 0);

    dock().toggleViewAction()->trigger();
    settle();

    EXPECT_EQ(lightListState(), 1);
    EXPECT_TRUE(dock().isVisible());
}

TEST_F(TheDock, ShowsTheLightsOfTheDrawingThatHasBecomeCurrentMeanwhile) {
    dock().close();
    settle();
    session_.session().documents().newDocument();
    addLight(L"other");

    dock().toggleViewAction()->trigger();
    settle();

    EXPECT_EQ(names(), L"other");
}

TEST_F(TheDock, IsShownBehindAnotherTabAsFarAsThePaletteGoes) {
    QDockWidget other(main_.get());
    main_->addDockWidget(Qt::LeftDockWidgetArea, &other);
    other.show();
    dock().setFloating(false);
    main_->tabifyDockWidget(&dock(), &other);
    other.raise();
    settle();

    EXPECT_EQ(lightListState(), 1);
    EXPECT_FALSE(main_->tabifiedDockWidgets(&dock()).isEmpty());
}

TEST_F(TheDock, ComesBeforeOtherTabsWhenItIsAskedFor) {
    QDockWidget other(main_.get());
    main_->addDockWidget(Qt::LeftDockWidgetArea, &other);
    other.show();
    dock().setFloating(false);
    main_->tabifyDockWidget(&dock(), &other);
    other.raise();
    settle();
    ASSERT_TRUE(dock().visibleRegion().isEmpty());

    host_->paletteShown(palette());
    settle();

    EXPECT_FALSE(dock().visibleRegion().isEmpty());
}

TEST_F(TheDock, HidesThePaletteWhenARestoredLayoutDoesNotHaveIt) {
    dock().setFloating(false);
    dock().close();
    settle();
    const QByteArray without = main_->saveState();
    show();
    settle();

    main_->restoreState(without);
    settle();

    EXPECT_EQ(lightListState(), 0);
    EXPECT_FALSE(dock().isVisible());
}

TEST_F(TheDock, IsWhereItWasWhenTheLayoutWasSaved) {
    main_->addDockWidget(Qt::RightDockWidgetArea, &dock());
    dock().setFloating(false);
    settle();
    const QByteArray layout = main_->saveState();

    EXPECT_EQ(main_->dockWidgetArea(&dock()), Qt::RightDockWidgetArea);

    main_->addDockWidget(Qt::LeftDockWidgetArea, &dock());
    main_->restoreState(layout);

    EXPECT_EQ(main_->dockWidgetArea(&dock()), Qt::RightDockWidgetArea);
}

TEST_F(TheDock, IsShownInTheNextSessionAsItWas) {
    const QString id = QString::fromStdWString(palette().GetToolID());
    EXPECT_EQ(host_->shownPalettes(), QStringList{id});
    session_.run({L"LIGHTLISTCLOSE"});
    EXPECT_EQ(host_->shownPalettes(), QStringList());

    host_->showPalettes({"something else"});
    EXPECT_EQ(lightListState(), 0);
    host_->showPalettes({id});

    EXPECT_EQ(lightListState(), 1);
    EXPECT_EQ(names(), L"a b");
}

TEST_F(TheDock, IsDisabledWithThePalette) {
    palette().Disable();
    EXPECT_FALSE(view().isEnabled());
    palette().Enable();
    EXPECT_TRUE(view().isEnabled());
}

TEST_F(TheDock, ShowsAndHidesTheTips) {
    QWidget& panel = *widgetOf(tips());
    const int before = view().height();
    palette().SendMessage(ui::kTipsMessage, 0);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(view().height(), before + 108);

    palette().SendMessage(ui::kTipsMessage, 0);

    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(view().height(), before);
}

TEST_F(TheDock, ListsTheDrawingThatIsCurrent) {
    session_.session().documents().newDocument();
    EXPECT_EQ(names(), L"");
    addLight(L"z");
    show();
    EXPECT_EQ(names(), L"z");
}

} // namespace
} // namespace quor::desktop::test
