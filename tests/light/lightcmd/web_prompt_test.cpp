#include "host/sys/path_text.h"
#include "light/lightcmd/multi_light.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <functional>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fs = std::filesystem;

// A web light whose option loop is one given step.
class WebCommand : public CZrMultiLight {
public:
    WebCommand() : CZrMultiLight(L"Web") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"WEBCMD"; }

    using CZrMultiLight::chooseWebFile;
    using CZrMultiLight::promptWeb;
    using CZrMultiLight::promptWebFile;
    using CZrMultiLight::promptWebRotation;

    std::function<int()> step;
    int result = 0; // what the step answered

    [[nodiscard]] ZrDbLight& light() const { return *m_pLight; }
    [[nodiscard]] const ZrString& shownFile() const { return m_webFile; }
    void reopenForRead() {
        const ZrDbObjectId id = m_pLight->objectId();
        m_pLight->close();
        zrdbOpenObject(m_pLight, id, ZrDb::kForRead);
    }
    void loseLight() {
        m_pLight->close();
        m_pLight = nullptr;
    }

protected:
    bool placeLight() override { return m_pLight->setLightType(DrawableType::kWebLight) == Quor::eOk; }
    int optionLoop() override {
        result = step();
        return RTNORM;
    }
};

class WebPromptTest : public testing::Test {
protected:
    WebPromptTest() {
        session_.addCommand(L"WEB", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
    }

    // What the step answers when these lines are typed.
    int answer(std::function<int()> step, std::initializer_list<ZrString> lines = {}) {
        front().type(lines);
        command_.step = std::move(step);
        session_.session().processor().run(L"WEB", false);
        return command_.result;
    }
    int answerOfMenu(std::initializer_list<ZrString> lines) {
        return answer([this] { return command_.promptWeb(); }, lines);
    }
    int answerOfFile(std::initializer_list<ZrString> lines) {
        return answer([this] { return command_.promptWebFile(); }, lines);
    }
    int answerOfChoice(const ZrString& reply) {
        return answer([this, reply] { return command_.chooseWebFile(reply); });
    }
    // A web file of that name in a folder of the test's own; its path.
    [[nodiscard]] ZrString makeWeb(const char* name) const {
        const fs::path file = session_.folder() / name;
        fs::copy_file(QUOR_TEST_DATA "/../../resources/webs/downlight.ies", file);
        return textOf(file);
    }
    [[nodiscard]] ZrString inFolder(const char* name) const { return textOf(session_.folder() / name); }
    test::ScriptedFrontEnd& front() { return session_.front(); }

    test::TestSession session_;
    WebCommand command_;
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
    const auto menuWithoutLight = [this] {
        command_.loseLight();
        return command_.promptWeb();
    };

    EXPECT_EQ(answer(menuWithoutLight, {L"F"}), RTNORM);
    EXPECT_EQ(answer(menuWithoutLight, {L"X"}), RTNORM);
    EXPECT_EQ(answer(menuWithoutLight, {L"E"}), RTNORM);
    EXPECT_EQ(answer(menuWithoutLight, {L""}), RTNONE);
    EXPECT_EQ(answer(menuWithoutLight, {L"^C"}), RTCAN);
}

TEST_F(WebPromptTest, ARotationThatTheLightRefusesGoesBackToTheMenuSilently) {
    ZrGeVector3d rotation;

    EXPECT_EQ(answer(
                  [&] {
                      command_.light().setWebRotation({1, 2, 3});
                      command_.reopenForRead();
                      const int result = command_.promptWeb();
                      command_.light().webRotation(rotation);
                      return result;
                  },
                  {L"X", L"10", L""}),
              RTNONE);

    EXPECT_EQ(rotation, ZrGeVector3d(1, 2, 3));
    EXPECT_EQ(front().asked().size(), 3U);
}

// The rotation.

TEST_F(WebPromptTest, ATypedRotationIsAnswered) {
    double value = 1.5;

    EXPECT_EQ(answer([&] { return command_.promptWebRotation(L"Y", value); }, {L"370"}), RTNORM);

    EXPECT_EQ(value, 370);
    EXPECT_EQ(front().asked().back(), L"\n输入光域网 Y 旋转 <1.5000>: ");
}

TEST_F(WebPromptTest, EnterAndEscLeaveTheRotationAsItIs) {
    double value = 1.5;

    EXPECT_EQ(answer([&] { return command_.promptWebRotation(L"Z", value); }, {L""}), RTNONE);
    EXPECT_EQ(answer([&] { return command_.promptWebRotation(L"Z", value); }, {L"^C"}), RTCAN);
    EXPECT_EQ(value, 1.5);
}

// The file.

TEST_F(WebPromptTest, AFileIsSetAndShownFromThenOn) {
    const ZrString file = makeWeb("a.ies");
    ZrString set;

    EXPECT_EQ(answer(
                  [&] {
                      const int result = command_.promptWebFile();
                      set = command_.light().webFile();
                      return result;
                  },
                  {file}),
              RTNORM);

    EXPECT_EQ(set, file);
    EXPECT_EQ(command_.shownFile(), file);
    EXPECT_EQ(front().asked().back(), L"\n输入光域网文件 <>: ");
}

TEST_F(WebPromptTest, EnterAtTheFileAnswersAsAFileDoes) { EXPECT_EQ(answerOfFile({L""}), RTNORM); }

TEST_F(WebPromptTest, EscAndExitAtTheFileAnswerTheSame) {
    EXPECT_EQ(answerOfFile({L"^C"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"exit"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"eXit"}), RTCAN);
    EXPECT_EQ(answerOfFile({L"EXIT"}), RTCAN);
}

TEST_F(WebPromptTest, WithoutALightNoFileIsLookedFor) {
    EXPECT_EQ(answer(
                  [this] {
                      command_.loseLight();
                      return command_.promptWebFile();
                  },
                  {L"none.ies"}),
              RTNORM);
    EXPECT_FALSE(front().shows(L"无法找到文件"));
}

TEST_F(WebPromptTest, WithoutALightNoFileIsSet) {
    const ZrString file = makeWeb("a.ies");

    EXPECT_EQ(answer([&] {
                  command_.loseLight();
                  return command_.chooseWebFile(file);
              }),
              RTERROR);
    EXPECT_EQ(command_.shownFile(), L"");
}

TEST_F(WebPromptTest, AFileThatTheLightRefusesIsAskedAgainSilently) {
    const ZrString file = makeWeb("a.ies");

    EXPECT_EQ(answer(
                  [this] {
                      command_.reopenForRead();
                      return command_.promptWebFile();
                  },
                  {file, L""}),
              RTNORM);

    EXPECT_EQ(front().asked().size(), 2U);
    EXPECT_EQ(front().screen(), L"输入光域网文件 <>: " + file + L"\n输入光域网文件 <>: \n");
    EXPECT_EQ(command_.shownFile(), L"");
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
    EXPECT_EQ(command_.shownFile(), L"");
}

TEST_F(WebPromptTest, TheExtensionMayStandInTheNameOfAFolder) {
    fs::create_directory(session_.folder() / "my.ies.files");
    const ZrString file = makeWeb("my.ies.files/a.txt");

    EXPECT_EQ(answerOfChoice(file), RTNORM);
    EXPECT_EQ(command_.shownFile(), file);
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
    EXPECT_EQ(command_.shownFile(), L"");
}

TEST_F(WebPromptTest, TheFileFromTheDialogIsSet) {
    const ZrString file = makeWeb("a.ies");
    front().choose(file);

    EXPECT_EQ(answerOfChoice(L"~"), RTNORM);
    EXPECT_EQ(command_.shownFile(), file);
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
