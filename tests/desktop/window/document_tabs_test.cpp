// The tabs of the open drawings.
#include "desktop/front/desktop_front_end.h"
#include "desktop/qt_text.h"
#include "host/document.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTabBar>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

const QString kGallery = QUOR_SAMPLE_DRAWINGS "/gallery.dxf";

TEST(DocumentTabsTest, EachDrawingHasATab) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "NEW"});
        EXPECT_EQ(at.tabTexts(), QStringList({"Drawing1", "Drawing2", "Drawing3"}));
        EXPECT_EQ(at.currentTab(), 2);
    });
}

TEST(DocumentTabsTest, ClickOnATabMakesItsDrawingCurrent) {
    atTheWindow([](AtTheWindow& at) {
        at.types("NEW");
        at.clicksTab(0);
        EXPECT_EQ(at.currentTab(), 0);
        EXPECT_EQ(at.title(), "Drawing1 - Quor");
    });
}

TEST(DocumentTabsTest, StarShowsChangesUntilTheyAreTakenBack) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"LINE", "0,0", "10,0", ""});
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1*"));
        EXPECT_EQ(at.title(), "Drawing1* - Quor");
        at.types("U");
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1"));
        EXPECT_EQ(at.title(), "Drawing1 - Quor");
    });
}

TEST(DocumentTabsTest, StarGoesWhenTheDrawingIsSaved) {
    const QTemporaryDir folder;
    ProgramOptions options = usualOptions();
    const QString file = folder.filePath("plan & 户型.dxf");
    QFile::copy(kGallery, file);
    options.drawings = {file.toStdString()};
    atTheWindow(options, [&](AtTheWindow& at) {
        at.types({"LINE", "0,0", "10,0", ""});
        EXPECT_EQ(at.tabTexts(), QStringList("plan && 户型.dxf*"));
        at.types("SAVE");
        EXPECT_EQ(at.tabTexts(), QStringList("plan && 户型.dxf"));
        EXPECT_EQ(at.title(), "plan & 户型.dxf - Quor");
        EXPECT_TRUE(at.person().sees([&] { return at.tabs().tabToolTip(0); }).contains(file.toHtmlEscaped()));
    });
}

TEST(DocumentTabsTest, CloseButtonClosesItsDrawingAlsoBehindTheCurrentOne) {
    atTheWindow([](AtTheWindow& at) {
        at.types("NEW");
        at.closesTab(0);
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing2"));
    });
}

TEST(DocumentTabsTest, MiddleButtonClosesToo) {
    atTheWindow([](AtTheWindow& at) {
        at.types("NEW");
        at.clicksTab(1, Qt::MiddleButton);
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1"));
    });
}

TEST(DocumentTabsTest, ClosingAsksForChangesAndTheTabStaysWhenThePersonThinksAgain) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"LINE", "0,0", "10,0", ""});
        at.closesTab(0);
        ASSERT_TRUE(at.person().sees([] { return QApplication::activeModalWidget() != nullptr; }));
        at.presses(Qt::Key_Escape);
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1*"));
        at.closesTab(0);
        at.discards();
        EXPECT_EQ(at.tabTexts(), QStringList());
        EXPECT_EQ(at.title(), "Quor");
    });
}

TEST(DocumentTabsTest, KeysStepThroughTheDrawingsAndBeginAnewBehindTheLast) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "NEW"});
        at.presses(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(at.currentTab(), 0);
        at.presses(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(at.currentTab(), 2);
        at.presses(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(at.currentTab(), 1);
    });
}

TEST(DocumentTabsTest, ArrowsStepWhileTheTabsHaveTheKeyboard) {
    atTheWindow([](AtTheWindow& at) {
        at.types("NEW");
        at.person().does([&] { at.tabs().setFocus(); });
        at.presses(Qt::Key_Left);
        EXPECT_EQ(at.title(), "Drawing1 - Quor");
    });
}

TEST(DocumentTabsTest, NamesStayReadableHoweverManyThereAre) {
    atTheWindow([](AtTheWindow& at) {
        const int usual = at.person().sees([&] { return at.tabs().tabRect(0).width(); });
        for (int i = 0; i < 20; ++i)
            at.types("NEW");
        EXPECT_GE(at.person().sees([&] { return at.tabs().tabRect(20).width(); }), usual);
    });
}

TEST(DocumentTabsTest, BothKeysForClosingClose) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "NEW"});
        at.presses(Qt::Key_F4, Qt::ControlModifier);
        EXPECT_EQ(at.tabTexts().size(), 2);
        at.presses(Qt::Key_W, Qt::ControlModifier);
        EXPECT_EQ(at.tabTexts().size(), 1);
    });
}

TEST(DocumentTabsTest, SwitchingCancelsWhatRuns) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "LINE", "0,0", "10,0"});
        at.clicksTab(0);
        EXPECT_EQ(at.currentTab(), 0);
        EXPECT_EQ(at.running(), QStringList());
        EXPECT_EQ(at.objects(), 0U);
        at.clicksTab(1);
        EXPECT_EQ(at.objects(), 1U);
    });
}

TEST(DocumentTabsTest, SwitchingCancelsTransparentCommandsToo) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "LINE", "'ZOOM", "W"});
        ASSERT_EQ(at.running().size(), 2);
        at.clicksTab(0);
        EXPECT_EQ(at.currentTab(), 0);
        EXPECT_EQ(at.running(), QStringList());
    });
}

TEST(DocumentTabsTest, ClosingCancelsWhatRuns) {
    atTheWindow([](AtTheWindow& at) {
        at.types({"NEW", "LINE"});
        at.closesTab(0);
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing2"));
        EXPECT_EQ(at.running(), QStringList());
    });
}

} // namespace
} // namespace quor::desktop::test
