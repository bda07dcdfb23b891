// Menus and tool bars: what is chosen is typed, so that a person learns what to type.
#include "desktop/qt_text.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace quor::desktop::test {
namespace {

const QString kGallery = QUOR_SAMPLE_DRAWINGS "/gallery.dxf";

void drops(AtTheWindow& at, const QList<QUrl>& urls) {
    at.person().does([&at, urls] {
        QMimeData dropped;
        dropped.setUrls(urls);
        const QPoint middle = at.window().rect().center();
        QDragEnterEvent enters(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&at.window(), &enters);
        if (!enters.isAccepted())
            return;
        QDropEvent falls(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&at.window(), &falls);
    });
}

TEST(MenusTest, KeyboardAloneChoosesAnEntry) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_D, Qt::AltModifier);
        ASSERT_TRUE(at.person().sees([] { return QApplication::activePopupWidget() != nullptr; }));
        at.person().does([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down); });
        at.person().does([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Up); });
        at.person().does([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_L); });
        EXPECT_EQ(at.running(), QStringList("LINE"));
    });
}

TEST(MenusTest, ArrowsAndEnterChooseTheFirstEntry) {
    atTheWindow([](AtTheWindow& at) {
        at.presses(Qt::Key_F, Qt::AltModifier);
        at.person().does([] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            menu->setActiveAction(menu->actions().first());
            QTest::keyClick(menu, Qt::Key_Return);
        });
        EXPECT_EQ(at.tabTexts().size(), 2);
    });
}

TEST(MenusTest, ToolBarTypesItsCommandWhereItIsSeen) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"DEFAULTLIGHTING", "0"});
        at.clicksOnToolBar("pointlight");
        EXPECT_EQ(at.running(), QStringList("POINTLIGHT"));
        EXPECT_TRUE(at.screen().contains("_POINTLIGHT")) << at.screen().toStdString();
    });
}

TEST(MenusTest, ViewCommandsRunWithinTheOneThatWaits) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"DEFAULTLIGHTING", "0", "POINTLIGHT"});
        at.clicksOnToolBar("viewswiso");
        EXPECT_EQ(at.running(), QStringList("POINTLIGHT"));
        EXPECT_TRUE(at.screen().contains("'_VIEW _SWISO")) << at.screen().toStdString();
        at.types({"1,2,3", ""});
        EXPECT_EQ(at.objects(), 1U);
    });
}

TEST(MenusTest, OtherCommandsCancelTheOneThatWaits) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"LINE", "0,0"});
        at.chooses("face");
        EXPECT_EQ(at.running(), QStringList("3DFACE"));
    });
}

TEST(MenusTest, ToolBarsCannotTakeTheKeyboardFromTheCommandLine) {
    atTheWindow([](AtTheWindow& at) {
        at.clicksOnToolBar("line");
        at.clicksOnToolBar("zoomextents");
        EXPECT_TRUE(at.person().sees([] { return QApplication::focusWidget()->inherits("QLineEdit"); }));
    });
}

TEST(MenusTest, LanguageIsKeptAndSaidToCountFromTheNextStart) {
    atTheWindow([](AtTheWindow& at) {
        at.chooses("languageen");
        EXPECT_EQ(at.variable(L"LANGUAGE"), "en");
        EXPECT_TRUE(at.isChecked("languageen"));
        EXPECT_TRUE(at.screen().contains("下次启动")) << at.screen().toStdString();
    });
}

TEST(DropTest, DroppedFilesAreOpenedOneAfterTheOther) {
    const QTemporaryDir folder;
    const QString other = folder.filePath("户型 a & b.dxf");
    QFile::copy(kGallery, other);
    atTheWindow([&](AtTheWindow& at) {
        drops(at, {QUrl::fromLocalFile(kGallery), QUrl::fromLocalFile(other)});
        EXPECT_EQ(at.tabTexts(), QStringList({"Drawing1", "gallery.dxf", "户型 a && b.dxf"}));
    });
}

TEST(DropTest, CommandThatWaitsIsCancelledFirst) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"LINE", "0,0"});
        drops(at, {QUrl::fromLocalFile(kGallery)});
        EXPECT_EQ(at.title(), "gallery.dxf - Quor");
        EXPECT_EQ(at.running(), QStringList());
    });
}

TEST(DropTest, WhatIsNoFileIsNotTaken) {
    atTheWindow([](AtTheWindow& at) {
        drops(at, {QUrl("https://example.org/plan.dxf")});
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1"));
        EXPECT_FALSE(at.screen().contains("OPEN"));
    });
}

} // namespace
} // namespace quor::desktop::test
