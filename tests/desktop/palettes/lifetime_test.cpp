// Windows and their widgets come and go in any order.
#include "host/rx/module_loader.h"
#include "sdk/ui/controls.h"
#include "tests/desktop/palettes/shown_palette.h"

#include <QPointer>
#include <QTest>

namespace quor::desktop::test {
namespace {

class Lifetimes : public ShownPalette {
protected:
    Lifetimes() { showLights({L"a", L"b"}); }
    void unload() {
        session_.session().modules().unloadModule(L"light");
        settle();
    }
};

TEST_F(Lifetimes, TheDockGoesWithItsModule) {
    const QPointer<QWidget> shown(&dock());
    unload();

    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(main_->findChildren<PaletteDock*>().isEmpty());
}

TEST_F(Lifetimes, AModuleThatIsLoadedAgainHasADockAgain) {
    unload();
    ASSERT_TRUE(session_.loadLight(QUOR_BUILD_DIR));
    show();
    settle();

    EXPECT_TRUE(dock().isVisible());
    EXPECT_EQ(names(), L"a b");
    EXPECT_EQ(main_->findChildren<PaletteDock*>().size(), 1);
}

TEST_F(Lifetimes, ADockComesBackWhereItWas) {
    main_->addDockWidget(Qt::RightDockWidgetArea, &dock());
    dock().setFloating(false);
    settle();
    const QByteArray layout = main_->saveState();
    unload();
    main_->restoreState(layout);

    ASSERT_TRUE(session_.loadLight(QUOR_BUILD_DIR));
    show();
    settle();

    EXPECT_FALSE(dock().isFloating());
    EXPECT_EQ(main_->dockWidgetArea(&dock()), Qt::RightDockWidgetArea);
    EXPECT_TRUE(palette().IsDocked());
}

TEST_F(Lifetimes, ThePaletteWorksOnWithoutTheMainWindow) {
    host_.reset();
    main_.reset();
    session_.run({L"LIGHTLISTCLOSE", L"LIGHTLIST"});

    EXPECT_EQ(names(), L"a b");
    EXPECT_EQ(widgetOf(palette()), nullptr);
}

TEST_F(Lifetimes, TheWidgetsGoOnWithoutTheirHost) {
    host_.reset();
    focusList();
    list().EnableWindow(false);
    dock().close();
    settle();

    EXPECT_FALSE(palette().IsVisible());
}

TEST_F(Lifetimes, AControlThatIsTakenOverKeepsItsWidget) {
    CStatic label;
    label.Create({.parent = palette().children().front(), .style = WS_VISIBLE, .rect = {0, 0, 50, 20}, .text = L"x"});
    QWidget* const widget = widgetOf(label);
    ASSERT_NE(widget, nullptr);

    CStatic other;
    other.SubclassWindow(label);
    other.MoveWindow({5, 5, 60, 25});

    EXPECT_EQ(widgetOf(other), widget);
    EXPECT_EQ(widget->geometry(), QRect(5, 5, 55, 20));
}

TEST_F(Lifetimes, AWindowMayGoInItsOwnClick) {
    struct GoingButton : CButton {
        void OnLButtonDown(unsigned, CPoint) override { DestroyWindow(); }
    };
    GoingButton button;
    button.Create({.parent = palette().children().front(), .style = WS_VISIBLE, .rect = {0, 0, 50, 20}});
    const QPointer<QWidget> widget(widgetOf(button));

    QTest::mouseClick(widget, Qt::LeftButton);
    settle();

    EXPECT_TRUE(widget.isNull());
}

} // namespace
} // namespace quor::desktop::test
