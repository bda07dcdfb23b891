#include "sdk/ui/nav_dialog.h"

#include "host/ed/script_source.h"
#include "host/sys/path_text.h"
#include "host/ui/file_dialog_text.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace quor {
namespace {

using test::TestSession;

CZrUiNavDialog dialog() {
    CZrUiNavDialog result;
    result.SetCaption(L"选择文件");
    result.AddFilter(L"IES", L"*.ies");
    return result;
}

ZrString inWorkingFolder(const char* name) { return textOf(std::filesystem::current_path() / name); }

TEST(NavDialog, WhatIsSetReachesTheFrontEnd) {
    TestSession test;
    test.front().choose(std::nullopt);
    CZrUiNavDialog shown = dialog();
    shown.AddFilter(L"DXF", L"*.dxf");
    shown.SetFileName(L"a.ies");
    shown.SetCreateFile(true);
    shown.SetPreviewPane(true, true);
    shown.SetReadOnlyHidden(false);
    shown.SetReadOnlyAllowed(true);

    shown.DoModal();

    const FileQuestion& question = test.front().lastFileQuestion().value();
    EXPECT_EQ(question.caption, L"选择文件");
    ASSERT_EQ(question.filters.size(), 2U);
    EXPECT_EQ(question.filters[0].name, L"IES");
    EXPECT_EQ(question.filters[0].pattern, L"*.ies");
    EXPECT_EQ(question.filters[1].name, L"DXF");
    EXPECT_EQ(question.filters[1].pattern, L"*.dxf");
    EXPECT_EQ(question.initialName, L"a.ies");
    EXPECT_TRUE(question.forSaving);
    EXPECT_TRUE(question.previews);
    EXPECT_TRUE(question.offersReadOnly);
}

TEST(NavDialog, APreviewPaneIsShownWhenItIsPresentAndVisible) {
    TestSession test;
    test.front().choose(std::nullopt);
    test.front().choose(std::nullopt);
    CZrUiNavDialog shown = dialog();

    shown.SetPreviewPane(true, false);
    shown.DoModal();
    EXPECT_FALSE(test.front().lastFileQuestion()->previews);

    shown.SetPreviewPane(false, true);
    shown.DoModal();
    EXPECT_FALSE(test.front().lastFileQuestion()->previews);
}

TEST(NavDialog, TheReadOnlyBoxIsOfferedWhenItIsAllowedAndNotHidden) {
    TestSession test;
    test.front().choose(std::nullopt);
    test.front().choose(std::nullopt);
    CZrUiNavDialog shown = dialog();

    shown.SetReadOnlyHidden(true);
    shown.DoModal();
    EXPECT_FALSE(test.front().lastFileQuestion()->offersReadOnly);

    shown.SetReadOnlyHidden(false);
    shown.SetReadOnlyAllowed(false);
    shown.DoModal();
    EXPECT_FALSE(test.front().lastFileQuestion()->offersReadOnly);
}

TEST(NavDialog, TheChosenFileIsTheOneResult) {
    TestSession test;
    test.front().choose(L"/lamps/a.ies");
    CZrUiNavDialog shown = dialog();

    EXPECT_EQ(shown.DoModal(), kNavDialogOk);
    EXPECT_EQ(shown.GetResults(), std::vector<ZrString>{L"/lamps/a.ies"});
}

TEST(NavDialog, ACancelledDialogHasNoResultNotEvenAnEarlierOne) {
    TestSession test;
    test.front().choose(L"/lamps/a.ies");
    test.front().choose(std::nullopt);
    CZrUiNavDialog shown = dialog();
    shown.DoModal();

    EXPECT_EQ(shown.DoModal(), kNavDialogCancelled);
    EXPECT_TRUE(shown.GetResults().empty());
}

TEST(NavDialog, TheAnswersAreThoseOfWindows) {
    EXPECT_EQ(kNavDialogOk, 1);
    EXPECT_EQ(kNavDialogCancelled, 2);
}

TEST(NavDialog, WithoutAHostItIsCancelled) { EXPECT_EQ(dialog().DoModal(), kNavDialogCancelled); }

TEST(NavDialog, AScriptAnswersItsDialogs) {
    TestSession test;
    test.session().input().push(std::make_unique<ed::ScriptSource>("my lamps/a.ies\n"));
    CZrUiNavDialog shown = dialog();

    EXPECT_EQ(shown.DoModal(), kNavDialogOk);
    EXPECT_EQ(shown.GetResults(), std::vector<ZrString>{inWorkingFolder("my lamps/a.ies")});
    EXPECT_TRUE(test.front().asked().empty());
    EXPECT_FALSE(test.front().lastFileQuestion());
}

// How a command ends that a dialog was cancelled in and that answers RTERROR.
ed::Verdict::Kind kindAfterDialog(TestSession& test) {
    test.addCommand(L"CHOOSE", [] { return dialog().DoModal() == kNavDialogOk ? RTNORM : RTERROR; });
    return test.session().processor().run(L"CHOOSE", false).kind;
}

TEST(NavDialog, EscCountsAsEscOfTheCommand) {
    TestSession test;
    test.front().type(L"^C");

    EXPECT_EQ(kindAfterDialog(test), ed::Verdict::Kind::Cancelled);
}

TEST(NavDialog, AWindowThatWasClosedCountsAsEscToo) {
    TestSession test;
    test.front().choose(std::nullopt);

    EXPECT_EQ(kindAfterDialog(test), ed::Verdict::Kind::Cancelled);
}

TEST(NavDialog, TheEndOfTheInputCutsTheCommandOff) {
    TestSession test;

    EXPECT_EQ(kindAfterDialog(test), ed::Verdict::Kind::EndOfInput);
}

TEST(NavDialog, TheEndOfAScriptCutsTheCommandOff) {
    TestSession test;
    test.session().input().push(std::make_unique<ed::ScriptSource>("CHOOSE"));

    test.addCommand(L"CHOOSE", [] { return dialog().DoModal() == kNavDialogOk ? RTNORM : RTERROR; });

    EXPECT_EQ(test.session().processor().step()->kind, ed::Verdict::Kind::EndOfInput);
    EXPECT_FALSE(test.front().lastFileQuestion());
}

TEST(FileDialogText, ThePromptNamesTheCaptionThePatternsAndTheDefault) {
    FileQuestion question;
    question.caption = L"选择文件";
    question.filters = {{L"IES", L"*.ies"}, {L"DXF", L"*.dxf"}};

    EXPECT_EQ(ui::filePrompt(question), L"\n选择文件 (*.ies;*.dxf)，输入路径 <取消>: ");
}

std::optional<ZrString> typed(const wchar_t* text) {
    return ui::askFile({}, [&](const Question&) { return Answer{Answer::Kind::Text, text, {}}; }).file;
}

TEST(FileDialogText, ARelativePathStartsAtTheWorkingFolder) {
    EXPECT_EQ(typed(L"a b.ies"), inWorkingFolder("a b.ies"));
    EXPECT_EQ(typed(L"/lamps/a.ies"), L"/lamps/a.ies");
}

TEST(FileDialogText, BlanksAndQuotationMarksAroundThePathAreTakenOff) {
    EXPECT_EQ(typed(L" \"/my lamps/a.ies\" "), L"/my lamps/a.ies");
}

TEST(FileDialogText, ATildeBeforeASlashIsTheHomeFolder) {
    const char* home = std::getenv("HOME");
    ASSERT_NE(home, nullptr);

    EXPECT_EQ(typed(L"~/a.ies"), textOf(std::filesystem::path(home) / "a.ies"));
}

TEST(FileDialogText, BlanksAloneCancel) {
    EXPECT_EQ(typed(L"  "), std::nullopt);
    EXPECT_EQ(typed(L"\"\""), std::nullopt);
}

TEST(FileDialogText, EnterAndEscCancelAndTheInputGoesOn) {
    const auto answered = [](Answer::Kind kind) {
        return ui::askFile({}, [kind](const Question&) { return Answer{kind, {}, {}}; });
    };

    EXPECT_EQ(answered(Answer::Kind::Enter).file, std::nullopt);
    EXPECT_FALSE(answered(Answer::Kind::Enter).inputEnded);
    EXPECT_EQ(answered(Answer::Kind::Cancel).file, std::nullopt);
    EXPECT_FALSE(answered(Answer::Kind::Cancel).inputEnded);
    EXPECT_TRUE(answered(Answer::Kind::End).inputEnded);
    EXPECT_TRUE(answered(Answer::Kind::Broken).inputEnded);
}

} // namespace
} // namespace quor
