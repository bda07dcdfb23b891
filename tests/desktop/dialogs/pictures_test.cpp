// Pictures of all dialogs in both themes and languages, for a person to look at; each shows more than a plain colour.
#include "desktop/dialogs/dialogs.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/help_dialogs.h"
#include "desktop/dialogs/preview_pane.h"
#include "desktop/dialogs/recovery_dialog.h"
#include "desktop/qt_text.h"
#include "desktop/window/theme.h"
#include "host/sys/system_variables.h"
#include "host/texts/dialogs.h"
#include "host/ui/theme.h"
#include "sdk/ui/task_dialog.h"
#include "tests/desktop/dialogs/dialog_steps.h"
#include "tests/support/test_session.h"

#include <gtest/gtest.h>

#include <QTreeView>

namespace quor::desktop::test {
namespace {

using quor::test::TestSession;

struct Look {
    const wchar_t* language;
    short theme;
    const char* name;
};

class PicturesTest : public testing::TestWithParam<Look> {
protected:
    PicturesTest() : session_({.language = GetParam().language}) {
        session_.session().variables().set(L"COLORTHEME", GetParam().theme);
        applyTheme(ui::Theme());
    }

    Step picture(const QString& name) {
        return [=] { keepPicture(*openDialog(), name + "_" + GetParam().name); };
    }

    TestSession session_;
    QWidget window_;
    Dialogs dialogs_{session_.session(), window_};
};

constexpr Text kTitle{L"光源 - 视口光源模式", L"Lighting - Viewport Lighting Mode"};
constexpr Text kInstruction{
    L"打开默认光源时，无法在视口中显示日光和来自点光源、聚光灯和平行光的光。希望执行什么操作？",
    L"Sunlight and light from point lights, spotlights, and distant lights cannot be displayed in the viewport while "
    L"default lighting is on. What do you want to do?"};
constexpr Text kTurnOff{L"关闭默认光源(建议)", L"Turn off default lighting (recommended)"};
constexpr Text kKeepOn{L"使默认光源保持打开状态", L"Keep default lighting turned on"};
constexpr Text kKeepOnMore{L"添加用户光源时，默认光源将处于打开状态。要查看用户光源的效果，请手动关闭默认光源。",
                           L"Default lighting stays on when user lights are added. To see the effect of user lights, "
                           L"turn off default lighting manually."};
constexpr Text kAlways{L"始终执行我的当前选择", L"Always perform my current choice"};

TEST_P(PicturesTest, TaskDialog) {
    CZrUiTaskDialog dialog;
    dialog.SetDialogWidth(500);
    dialog.SetWindowTitle(kTitle.get());
    dialog.SetMainInstruction(kInstruction.get());
    dialog.AddCommandControl(1, kTurnOff.get());
    dialog.AddCommandControl(2, kKeepOn.get());
    dialog.SetCommandControlExtend(2, kKeepOnMore.get());
    dialog.SetVerificationCheckboxText(kAlways.get());
    dialog.SetOptions(25);
    dialog.SetCommonButtons(8);
    dialog.SetEnableBtn(1);
    later({picture("task"), press(Qt::Key_Escape)});
    EXPECT_FALSE(dialogs_.showTaskDialog(dialog).command.has_value());
}

TEST_P(PicturesTest, WebFileDialog) {
    FileQuestion question;
    question.caption = L"选择光域网文件";
    question.filters = {{L"IES", L"*.ies"}};
    question.previews = true;
    const QString webs = QString(QUOR_BUILD_DIR) + "/share/quor/webs";
    std::vector<FilePlace> places = filePlaces(session_.session());
    places.insert(places.begin(), {toQt(texts::kFilePlaceWebs), webs});
    FileDialog dialog(question, webs, places, &window_);
    for (const char* web : {"street", "downlight", "wall_washer"}) {
        dialog.show();
        auto* const view = dialog.findChild<QTreeView*>("treeView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return view->model()->rowCount(view->rootIndex()) >= 3; }));
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
            if (const QModelIndex file = view->model()->index(row, 0, view->rootIndex());
                file.data().toString() == QString(web) + ".ies")
                view->setCurrentIndex(file);
        dialog.preview()->showNow();
        QTest::qWait(50);
        keepPicture(dialog, QString("web_%1_%2").arg(web, GetParam().name));
        EXPECT_FALSE(dialog.preview()->text().isEmpty());
    }
}

TEST_P(PicturesTest, SaveQuestion) {
    later({picture("save"), press(Qt::Key_Escape)});
    EXPECT_EQ(dialogs_.askToSave(L"办公室 office.dxf"), SaveChoice::Cancel);
}

TEST_P(PicturesTest, RecoveryDialog) {
    const std::vector<autosave::LeftCopy> copies{
        {{}, {L"/home/lin/项目/办公室 office/平面图 plan.dxf", L"平面图 plan.dxf", 1'795'318'000}, 98'566'144},
        {{}, {L"", L"Drawing2", 1'795'317'000}, 14'300}};
    RecoveryDialog dialog(copies, &window_);
    later({picture("recovery"), press(Qt::Key_Escape)});
    EXPECT_EQ(dialog.ask(), RecoveryDialog::Choice::Later);
}

TEST_P(PicturesTest, About) {
    bool wasShown = false;
    later({picture("about"), [&] { wasShown = openDialog()->objectName() == "about"; }, press(Qt::Key_Escape)});
    showAbout(window_);
    EXPECT_TRUE(wasShown);
}

TEST_P(PicturesTest, Shortcuts) {
    bool wasShown = false;
    later({picture("shortcuts"), [&] { wasShown = openDialog()->objectName() == "shortcuts"; }, press(Qt::Key_Return)});
    showShortcuts(window_);
    EXPECT_TRUE(wasShown);
}

INSTANTIATE_TEST_SUITE_P(Looks, PicturesTest,
                         testing::Values(Look{L"zh", 0, "dark_zh"}, Look{L"zh", 1, "light_zh"},
                                         Look{L"en", 0, "dark_en"}, Look{L"en", 1, "light_en"}),
                         [](const testing::TestParamInfo<Look>& look) { return std::string(look.param.name); });

} // namespace
} // namespace quor::desktop::test
