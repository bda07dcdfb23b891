#include "host/sys/path_text.h"
#include "host/sys/system_variables.h"
#include "tests/light/lightcmd/prompt_command.h"

namespace quor {
namespace {

namespace fs = std::filesystem;

using test::PromptCommand;

class WebPromptTest : public test::PromptCommandTest {
protected:
    WebPromptTest() { command_.type = DrawableType::kWebLight; }

    int answerOfMenu(std::initializer_list<ZrString> lines) { return answerOf(&PromptCommand::promptWeb, lines); }
    int answerOfFile(std::initializer_list<ZrString> lines) { return answerOf(&PromptCommand::promptWebFile, lines); }
    int answerOfRotation(const wchar_t* axis, double& value, std::initializer_list<ZrString> lines) {
        return answer([&] { return command_.promptWebRotation(axis, value); }, lines);
    }
    int answerOfChoice(const ZrString& reply) {
        return answer([&] { return command_.chooseWebFile(reply); });
    }
    // The default that the question for the file shows.
    [[nodiscard]] const ZrString& shownFile() const { return command_.m_webFile; }
    // A web file of that name in a folder of the test's own; its path.
    [[nodiscard]] ZrString makeWeb(const char* name) const {
        const fs::path file = session_.folder() / name;
        fs::copy_file(QUOR_TEST_DATA "/../../resources/webs/downlight.ies", file);
        return textOf(file);
    }
    [[nodiscard]] ZrString inFolder(const char* name) const { return textOf(session_.folder() / name); }
};

// The menu.

TEST_F(WebPromptTest, EnterAtTheMenuAnswersThatNothingWasTyped) { EXPECT_EQ(answerOfMenu({L""}), RTNONE); }

TEST_F(WebPromptTest, EscAndExitAtTheMenuAnswerTheSame) {
    EXPECT_EQ(answerOfMenu({L"^C"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"E"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"_Exit"}), RTCAN);
}

TEST_F(WebPromptTest, AQuestionOfTheMenuThatIsCancelledCancelsTheMenu) {
    EXPECT_EQ(answerOfMenu({L"F", L"^C"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"F", L"exit"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"X", L"^C"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"Y", L"^C"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"Z", L"^C"}), RTCAN);
    EXPECT_EQ(front().linesLeft(), 0U);
}

TEST_F(WebPromptTest, AQuestionOfTheMenuThatIsAnsweredGoesBackToTheMenu) {
    EXPECT_EQ(answerOfMenu({L"F", makeWeb("a.ies"), L"F", L"", L"X", L"10", L"Y", L"", L""}), RTNONE);
    EXPECT_EQ(front().linesLeft(), 0U);
}

TEST_F(WebPromptTest, TheEndOfTheInputLeavesTheMenuAsEscDoes) {
    EXPECT_EQ(answerOfMenu({}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"F"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"F", L"~"}), RTCAN);
    EXPECT_EQ(answerOfMenu({L"X"}), RTCAN);
}

TEST_F(WebPromptTest, InputThatBreaksAtTheMenuIsAskedAgainUntilItEnds) {
    front().breakInput();

    EXPECT_EQ(answerOfMenu({}), RTCAN);
}

TEST_F(WebPromptTest, WithoutALightAnyItemLeavesTheMenu) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOfMenu({L"F"}), RTNORM);
    EXPECT_EQ(answerOfMenu({L"X"}), RTNORM);
    EXPECT_EQ(answerOfMenu({L"E"}), RTNORM);
    EXPECT_EQ(answerOfMenu({L""}), RTNONE);
    EXPECT_EQ(answerOfMenu({L"^C"}), RTCAN);
}

TEST_F(WebPromptTest, ARotationThatTheLightRefusesGoesBackToTheMenuSilently) {
    before = [this] {
        command_.m_pLight->setWebRotation({1, 2, 3});
        command_.reopenForRead();
    };

    EXPECT_EQ(answerOfMenu({L"X", L"10", L""}), RTNONE);

    ZrGeVector3d rotation;
    light()->webRotation(rotation);
    EXPECT_EQ(rotation, ZrGeVector3d(1, 2, 3));
    EXPECT_EQ(asked().size(), 3U);
}

// The rotation.

TEST_F(WebPromptTest, ATypedRotationIsAnswered) {
    double value = 1.5;

    EXPECT_EQ(answerOfRotation(L"Y", value, {L"370"}), RTNORM);

    EXPECT_EQ(value, 370);
    EXPECT_EQ(front().asked().back(), L"\n输入光域网 Y 旋转 <1.5000>: ");
}

TEST_F(WebPromptTest, EnterAndEscLeaveTheRotationAsItIs) {
    double value = 1.5;

    EXPECT_EQ(answerOfRotation(L"Z", value, {L""}), RTNONE);
    EXPECT_EQ(answerOfRotation(L"Z", value, {L"^C"}), RTCAN);
    EXPECT_EQ(value, 1.5);
}

// The file.

TEST_F(WebPromptTest, AFileIsSetAndShownFromThenOn) {
    const ZrString file = makeWeb("a.ies");

    EXPECT_EQ(answerOfMenu({L"F", file, L"F", L"", L""}), RTNONE);

    EXPECT_EQ(light()->webFile(), file);
    EXPECT_EQ(shownFile(), file);
    EXPECT_EQ(asked()[1], L"\n输入光域网文件 <>: ");
    EXPECT_EQ(asked()[3], L"\n输入光域网文件 <" + file + L">: ");
}

// The name below the support path is relative; a light keeps the full one, so that it finds its web from anywhere.
TEST_F(WebPromptTest, ARelativeReplySetsTheFullNameOfTheFileFound) {
    fs::create_directory(session_.folder() / "lamps");
    const ZrString file = makeWeb("lamps/a.ies");
    ASSERT_EQ(session_.session().variables().set(L"SUPPORTPATH", textOf(session_.folder())), sys::SetResult::Ok);

    EXPECT_EQ(answerOfFile({L"lamps/a.ies"}), RTNORM);

    EXPECT_EQ(light()->webFile(), file);
    EXPECT_EQ(shownFile(), file);
}

TEST_F(WebPromptTest, EnterAtTheFileAnswersAsAFileDoes) { EXPECT_EQ(answerOfFile({L""}), RTNORM); }

TEST_F(WebPromptTest, EscAndExitAtTheFileAnswerTheSame) {
    EXPECT_EQ(answerOfFile({L"^C"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"exit"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"eXit"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"EXIT"}), RTCAN);
}

TEST_F(WebPromptTest, WithoutALightNoFileIsLookedFor) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOfFile({L"none.ies"}), RTNORM);

    EXPECT_FALSE(front().shows(L"无法找到文件"));
}

TEST_F(WebPromptTest, WithoutALightNoFileIsSet) {
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(answerOfChoice(makeWeb("a.ies")), RTERROR);

    EXPECT_EQ(shownFile(), L"");
}

TEST_F(WebPromptTest, AFileThatTheLightRefusesIsAskedAgainSilently) {
    const ZrString file = makeWeb("a.ies");
    before = [this] { command_.reopenForRead(); };

    EXPECT_EQ(answerOfFile({file, L""}), RTNORM);

    EXPECT_EQ(asked().size(), 2U);
    EXPECT_EQ(front().screen(), L"输入光域网文件 <>: " + file + L"\n输入光域网文件 <>: \n");
    EXPECT_EQ(shownFile(), L"");
}

TEST_F(WebPromptTest, AReplyThatIsNotFoundAnswersAnError) {
    EXPECT_EQ(answerOfChoice(L"none.ies"), RTERROR);
    EXPECT_EQ(front().screen(), L"无法找到文件 none.ies。");
}

TEST_F(WebPromptTest, AnAbsolutePathThatDoesNotExistAnswersAnError) {
    EXPECT_EQ(answerOfChoice(inFolder("none.ies")), RTERROR);
    EXPECT_TRUE(front().shows(L"无法找到文件 " + inFolder("none.ies") + L"。"));
}

TEST_F(WebPromptTest, AnInvalidNameAnswersAsAFileDoesAndIsNotSet) {
    const ZrString file = makeWeb("A.IES");

    EXPECT_EQ(answerOfChoice(file), RTNORM);

    EXPECT_TRUE(front().shows(L"无效的文件名 “" + file + L"”。"));
    EXPECT_EQ(shownFile(), L"");
}

TEST_F(WebPromptTest, TheExtensionMayStandInTheNameOfAFolder) {
    fs::create_directory(session_.folder() / "my.ies.files");
    const ZrString file = makeWeb("my.ies.files/a.txt");

    EXPECT_EQ(answerOfChoice(file), RTNORM);
    EXPECT_EQ(shownFile(), file);
}

// The dialog.

TEST_F(WebPromptTest, TheDialogOpensWebFilesAndShowsWhatTheyHold) {
    front().choose(std::nullopt);

    EXPECT_EQ(answerOfChoice(L"~"), RTNORM);

    const FileQuestion& question = front().lastFileQuestion().value();
    EXPECT_EQ(question.caption, L"选择光域网文件");
    ASSERT_EQ(question.filters.size(), 1U);
    EXPECT_EQ(question.filters[0].name, L"IES");
    EXPECT_EQ(question.filters[0].pattern, L"*.ies");
    EXPECT_EQ(question.initialName, L"");
    EXPECT_FALSE(question.forSaving);
    EXPECT_TRUE(question.previews);
    EXPECT_FALSE(question.offersReadOnly);
}

TEST_F(WebPromptTest, ACancelledDialogAnswersAsAFileDoesAndSaysNothing) {
    front().choose(std::nullopt);

    EXPECT_EQ(answerOfChoice(L"~"), RTNORM);

    EXPECT_EQ(front().screen(), L"");
    EXPECT_EQ(shownFile(), L"");
}

TEST_F(WebPromptTest, TheFileFromTheDialogIsSet) {
    const ZrString file = makeWeb("a.ies");
    front().choose(file);

    EXPECT_EQ(answerOfChoice(L"~"), RTNORM);
    EXPECT_EQ(shownFile(), file);
}

TEST_F(WebPromptTest, AnEmptyPathFromTheDialogIsAnInvalidName) {
    front().choose(L"");

    EXPECT_EQ(answerOfChoice(L"~"), RTNORM);
    EXPECT_EQ(front().screen(), L"无效的文件名 “”。");
}

TEST_F(WebPromptTest, APathFromTheDialogThatDoesNotExistAnswersAnError) {
    front().choose(inFolder("none.ies"));

    EXPECT_EQ(answerOfChoice(L"~"), RTERROR);
    EXPECT_TRUE(front().shows(L"无法找到文件 " + inFolder("none.ies") + L"。"));
}

TEST_F(WebPromptTest, ATildeWithMoreBehindItOpensNoDialog) {
    EXPECT_EQ(answerOfChoice(L"~~"), RTERROR);
    EXPECT_EQ(answerOfChoice(L" ~"), RTERROR);
    EXPECT_FALSE(front().lastFileQuestion());
}

} // namespace
} // namespace quor
