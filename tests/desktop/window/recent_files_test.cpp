// The drawings that were opened last, in the menu and across runs.
#include "desktop/qt_text.h"
#include "desktop/window/actions.h"
#include "desktop/window/recent_files.h"
#include "host/document.h"
#include "host/sys/settings_store.h"
#include "host/sys/utf8.h"
#include "tests/desktop/window/at_the_window.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

using Files = std::vector<ZrString>;

const QString kGallery = QUOR_SAMPLE_DRAWINGS "/gallery.dxf";

class RecentFilesTest : public testing::Test {
protected:
    // A drawing of that name in a folder of this test.
    QString drawing(const QString& name) {
        const QString file = folder_.filePath(name);
        QFile::copy(kGallery, file);
        return file;
    }
    ProgramOptions options() {
        ProgramOptions options = usualOptions();
        options.session.settingsFile = folder_.filePath("settings.ini").toStdString();
        return options;
    }
    SettingsStore settings() { return SettingsStore(folder_.filePath("settings.ini").toStdString()); }

    // What the menu shows when it opens.
    static QList<QAction*> menuOf(AtTheWindow& at) {
        return at.person().sees([&] {
            auto* const menu = at.window().findChild<QMenu*>("recent");
            Q_EMIT menu->aboutToShow();
            return menu->actions();
        });
    }
    static QStringList textsOf(AtTheWindow& at) {
        const QList<QAction*> actions = menuOf(at);
        return at.person().sees([&] {
            QStringList texts;
            for (const QAction* const action : actions)
                if (!action->data().isNull())
                    texts.push_back(action->data().toString());
            return texts;
        });
    }
    static void choose(AtTheWindow& at, int index) {
        QAction* const action = menuOf(at).at(index);
        at.person().does([=] { action->trigger(); });
    }

    QTemporaryDir folder_;
};

TEST_F(RecentFilesTest, LastOneIsFirstAndNoneStandsTwice) {
    SettingsStore store = settings();
    RecentFiles recent(store);
    for (const char* const file : {"/a.dxf", "/b.dxf", "/a.dxf"})
        recent.add(file);
    EXPECT_EQ(recent.all(), (Files{L"/a.dxf", L"/b.dxf"}));
}

TEST_F(RecentFilesTest, NineAreKept) {
    SettingsStore store = settings();
    RecentFiles recent(store);
    for (const char* const file : {"/1", "/2", "/3", "/4", "/5", "/6", "/7", "/8", "/9", "/10"})
        recent.add(file);
    EXPECT_EQ(recent.all(), (Files{L"/10", L"/9", L"/8", L"/7", L"/6", L"/5", L"/4", L"/3", L"/2"}));
}

TEST_F(RecentFilesTest, ClearedListIsEmptyAlsoForTheNextRun) {
    SettingsStore store = settings();
    RecentFiles recent(store);
    recent.add("/a.dxf");
    recent.clear();
    SettingsStore next = settings();
    EXPECT_EQ(RecentFiles(next).all(), Files{});
}

TEST_F(RecentFilesTest, NamesOfAllKindsAreKeptAcrossRuns) {
    const Files names{L"/户型 图/甲;乙.dxf", L"/a  b & c #1 = [x].dxf", L"/ends with blank "};
    SettingsStore store = settings();
    RecentFiles recent(store);
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        recent.add(toUtf8(*name));
    SettingsStore next = settings();
    EXPECT_EQ(RecentFiles(next).all(), names);
}

TEST_F(RecentFilesTest, MenuShowsWhatWasOpenedInThisRunAndInThePreviousOne) {
    const QString first = drawing("a & 户型 b.dxf");
    const QString second = drawing("second.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) { at.opens(first); });
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.opens(second);
        EXPECT_EQ(textsOf(at), QStringList({second, first}));
    });
}

TEST_F(RecentFilesTest, ChoosingOneOpensIt) {
    const QString file = drawing("a & 户型  b.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.opens(file);
        at.types("CLOSE");
        choose(at, 0);
        EXPECT_EQ(at.title(), "a & 户型  b.dxf - Quor");
    });
}

TEST_F(RecentFilesTest, OneThatIsGoneIsToldOnTheCommandLine) {
    const QString file = drawing("gone.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.opens(file);
        at.types("CLOSE");
        QFile::remove(file);
        choose(at, 0);
        EXPECT_TRUE(at.screen().contains("找不到文件 " + file)) << at.screen().toStdString();
        EXPECT_EQ(at.tabTexts(), QStringList("Drawing1"));
    });
}

TEST_F(RecentFilesTest, ClearedMenuSaysThatThereAreNoneAlsoWhileADrawingIsOpen) {
    const QString file = drawing("plan.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.opens(file);
        choose(at, 2);
        at.types({"LINE", "0,0", "1,0", ""});
        EXPECT_EQ(textsOf(at), QStringList());
        EXPECT_FALSE(menuOf(at).first()->isEnabled());
    });
}

TEST_F(RecentFilesTest, SavingUnderAnotherNameAddsIt) {
    const QString file = folder_.filePath("saved.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.runs("SAVEAS " + file);
        EXPECT_EQ(textsOf(at), QStringList(file)) << at.screen().toStdString();
    });
}

TEST_F(RecentFilesTest, GoingToAnotherTabLeavesTheOrder) {
    const QString first = drawing("first.dxf");
    const QString second = drawing("second.dxf");
    atTheWindow(options(), [&](AtTheWindow& at) {
        at.opens(first);
        at.opens(second);
        at.clicksTab(1);
        at.types({"LINE", "0,0", "1,0", ""});
        EXPECT_EQ(textsOf(at), QStringList({second, first}));
    });
}

} // namespace
} // namespace quor::desktop::test
