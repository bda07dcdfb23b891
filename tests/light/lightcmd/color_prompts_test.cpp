#include "light/lightcmd/color_input.h"
#include "light/lightcmd/multi_light.h"
#include "light/lightcmd/replies.h"
#include "sdk/db/database.h"
#include "sdk/rx/result_codes.h"
#include "sdk/sys/ads.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quor {
namespace {

// A light command that asks one of the questions about a colour and keeps what it answers.
class ColorCommand : public CZrMultiLight {
public:
    ColorCommand() : CZrMultiLight(L"Color") {}
    [[nodiscard]] const wchar_t* typeName() const override { return L"COLORCMD"; }

    ZrCmColor color = ZrCmColor::fromRGB(10, 20, 30); // before the question, then after it
    bool losesLight = false;
    bool isForRead = false; // then the light refuses every change
    int result = 0;

    void trueColor() { result = promptColor(); }
    void indexColor() { result = promptIndexColor(); }
    void hslColor() { result = promptHslColor(); }
    void bookColor() { result = promptColorBookColor(); }
    void (ColorCommand::*question)() = &ColorCommand::trueColor;

protected:
    int optionLoop() override {
        m_pLight->setLightColor(color);
        if (isForRead)
            reopenForRead();
        ZrDbLight* const light = m_pLight;
        m_pLight = losesLight ? nullptr : light;
        (this->*question)();
        m_pLight = light;
        color = m_pLight->lightColor();
        return RTCAN;
    }

private:
    void reopenForRead() {
        const ZrDbObjectId id = m_pLight->objectId();
        m_pLight->close();
        ASSERT_EQ(zrdbOpenObject(m_pLight, id, ZrDb::kForRead), Quor::eOk);
    }
};

class ColorPromptsTest : public testing::Test {
protected:
    ColorPromptsTest() {
        session_.addCommand(L"COLOR", [this] { return command_.execute(); });
        zwutads::setVar(L"DEFAULTLIGHTING", 0);
        light::s_lastColorBook.clear();
        light::s_lastBookColor.clear();
    }

    int ask(void (ColorCommand::*question)(), std::initializer_list<ZrString> answers) {
        session_.front().type(answers);
        command_.question = question;
        session_.session().processor().run(L"COLOR", false);
        return command_.result;
    }
    int askTrueColor(std::initializer_list<ZrString> answers) { return ask(&ColorCommand::trueColor, answers); }
    int askIndex(std::initializer_list<ZrString> answers) { return ask(&ColorCommand::indexColor, answers); }
    int askHsl(std::initializer_list<ZrString> answers) { return ask(&ColorCommand::hslColor, answers); }
    int askBook(std::initializer_list<ZrString> answers) { return ask(&ColorCommand::bookColor, answers); }

    [[nodiscard]] ZrString shown() const { return command_.color.colorNameForDisplay(); }
    test::ScriptedFrontEnd& front() { return session_.front(); }
    // A book in the user's own folder.
    void writeBook(const std::string& text) {
        std::filesystem::create_directories(session_.folder() / "colorbooks");
        std::ofstream(session_.folder() / "colorbooks" / "own.book") << text;
    }

    test::TestSession session_;
    ColorCommand command_;
};

TEST_F(ColorPromptsTest, AColourThatIsSetAnswersTheStatusOfTheLight) {
    EXPECT_EQ(askTrueColor({L"1,2,3"}), Quor::eOk);
    EXPECT_EQ(shown(), L"1,2,3");
    EXPECT_EQ(askIndex({L"5"}), Quor::eOk);
    EXPECT_EQ(shown(), L"蓝");
    EXPECT_EQ(askHsl({L"120,100,50"}), Quor::eOk);
    EXPECT_EQ(shown(), L"0,255,0");
    EXPECT_EQ(askBook({L"Web Colors", L"gold"}), Quor::eOk);
    EXPECT_EQ(shown(), L"Web Colors$gold");
}

TEST_F(ColorPromptsTest, AColourThatTheLightRefusesAnswersItsStatusAndIsNotTold) {
    command_.isForRead = true;

    EXPECT_EQ(askTrueColor({L"1,2,3"}), Quor::eNotOpenForWrite);
    EXPECT_EQ(askIndex({L"5"}), Quor::eNotOpenForWrite);
    EXPECT_EQ(askHsl({L"120,100,50"}), Quor::eNotOpenForWrite);
    EXPECT_EQ(askBook({L"Web Colors", L"gold"}), Quor::eNotOpenForWrite);
    EXPECT_EQ(shown(), L"10,20,30");
    EXPECT_FALSE(front().shows(L"无效"));
}

TEST_F(ColorPromptsTest, TheTrueColourQuestionAnswersHowItWasLeft) {
    EXPECT_EQ(askTrueColor({L""}), RTNONE);
    EXPECT_EQ(askTrueColor({L"^C"}), RTCAN);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, TheTrueColourQuestionAnswersWhatTheNextQuestionAnswers) {
    EXPECT_EQ(askTrueColor({L"I", L"^C"}), RTCAN);
    EXPECT_EQ(askTrueColor({L"I", L""}), RTNORM);
    EXPECT_EQ(askTrueColor({L"H", L""}), -1);
    EXPECT_EQ(askTrueColor({L"B", L"^C"}), 0);
    EXPECT_EQ(askTrueColor({L"B", L"Web Colors", L"gold"}), Quor::eOk);
    EXPECT_EQ(shown(), L"Web Colors$gold");
}

TEST_F(ColorPromptsTest, AnInputThatBreaksLeavesEveryQuestion) {
    front().breakInput();
    EXPECT_EQ(askTrueColor({}), RTERROR);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, AnInputThatBreaksLeavesTheIndexQuestion) {
    front().breakInput();
    EXPECT_EQ(askIndex({}), RTERROR);
}

TEST_F(ColorPromptsTest, AnInputThatBreaksLeavesTheHslQuestion) {
    front().breakInput();
    EXPECT_EQ(askHsl({}), -1);
}

TEST_F(ColorPromptsTest, AnInputThatBreaksLeavesTheQuestionForABook) {
    front().breakInput();
    EXPECT_EQ(askBook({}), 0);
}

TEST_F(ColorPromptsTest, TheIndexQuestionAnswersHowItWasLeft) {
    EXPECT_EQ(askIndex({L"^C"}), RTCAN);
    EXPECT_EQ(askIndex({L""}), RTNORM);
    EXPECT_EQ(askIndex({L"xyz"}), RTNORM);
    EXPECT_EQ(askIndex({L"0", L"256", L""}), RTNORM);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, AnIndexThatIsLongerThanAReplyAnswersSo) {
    EXPECT_EQ(askIndex({ZrString(260, L'1')}), light::replyTooLong);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, TheHslQuestionAnswersMinusOneHoweverItWasLeft) {
    EXPECT_EQ(askHsl({L"^C"}), -1);
    EXPECT_EQ(askHsl({L""}), -1);
    EXPECT_EQ(askHsl({L"256,0,0", L""}), -1);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, AColourByLayerIsShownAsWhiteInHsl) {
    command_.color = ZrCmColor();

    EXPECT_EQ(askHsl({L""}), -1);

    EXPECT_TRUE(front().shows(L"输入 HSL 颜色 (H,S,L) <0,0,100>: "));
}

TEST_F(ColorPromptsTest, TheQuestionForABookAnswersZeroHoweverItWasLeft) {
    EXPECT_EQ(askBook({L"^C"}), 0);
    EXPECT_EQ(askBook({L"Web Colors", L"^C"}), 0);
    EXPECT_EQ(askBook({L"Web Colors", L""}), 0);
    EXPECT_EQ(askBook({L"", L"", L"^C"}), 0);
    EXPECT_EQ(shown(), L"10,20,30");
}

TEST_F(ColorPromptsTest, ABookIsRememberedWithItsColourAsTheBookSpellsThem) {
    askBook({L"WEB COLORS", L"GOLD"});

    EXPECT_EQ(light::s_lastColorBook, L"Web Colors");
    EXPECT_EQ(light::s_lastBookColor, L"gold");
}

TEST_F(ColorPromptsTest, EnterTakesTheRememberedBook) {
    light::s_lastColorBook = L"Neutral Greys";

    EXPECT_EQ(askBook({L"", L"Grey 50"}), Quor::eOk);

    EXPECT_EQ(shown(), L"Neutral Greys$Grey 50");
}

TEST_F(ColorPromptsTest, NothingIsRememberedOfAQuestionThatWasLeft) {
    askBook({L"Web Colors", L"potato", L""});

    EXPECT_EQ(light::s_lastColorBook, L"");
    EXPECT_EQ(light::s_lastBookColor, L"");
}

TEST_F(ColorPromptsTest, TheBookOfTheGivenColourIsRememberedAtOnce) {
    ZrCmColor color = ZrCmColor::fromRGB(1, 2, 3);
    ASSERT_EQ(color.setNames(L"ink", L"Inks"), Quor::eOk);
    front().type({L"^C"});

    EXPECT_FALSE(light::promptColorBook(color));

    EXPECT_EQ(light::s_lastColorBook, L"Inks");
    EXPECT_EQ(light::s_lastBookColor, L"ink");
}

TEST_F(ColorPromptsTest, EnterTakesTheBookOfTheGivenColour) {
    ZrCmColor color = ZrCmColor::fromRGB(1, 2, 3);
    ASSERT_EQ(color.setNames(L"Grey 5", L"Neutral Greys"), Quor::eOk);
    front().type({L"", L"Grey 10"});

    EXPECT_TRUE(light::promptColorBook(color));

    EXPECT_EQ(color.colorNameForDisplay(), L"Neutral Greys$Grey 10");
}

TEST_F(ColorPromptsTest, ABookOfFourCharactersIsFound) {
    writeBook("book = \"Inks\"\nx = 1,2,3\n");

    EXPECT_EQ(askBook({L"ink", L"inks", L"x"}), Quor::eOk);

    EXPECT_TRUE(front().shows(L"未找到配色系统。"));
    EXPECT_EQ(shown(), L"Inks$x");
}

TEST_F(ColorPromptsTest, NamesOf131CharactersAreFoundAndLongerOnesAreCut) {
    const ZrString book(131, L'b');
    const ZrString color(131, L'c');
    writeBook("book = \"" + std::string(131, 'b') + "\"\n" + std::string(131, 'c') + " = 1,2,3\n");

    EXPECT_EQ(askBook({book, color}), Quor::eOk);
    EXPECT_EQ(shown(), book + L"$" + color);
    command_.color = ZrCmColor::fromIndex(1);
    EXPECT_EQ(askBook({book + L"x", color + L"x"}), Quor::eOk);
    EXPECT_EQ(shown(), book + L"$" + color);
    EXPECT_FALSE(front().shows(L"未找到"));
}

TEST_F(ColorPromptsTest, NamesOf130CharactersAreNotThoseOf131) {
    writeBook("book = \"" + std::string(131, 'b') + "\"\n" + std::string(131, 'c') + " = 1,2,3\n");

    EXPECT_EQ(askBook({ZrString(130, L'b'), ZrString(131, L'b'), ZrString(130, L'c'), L""}), 0);

    EXPECT_TRUE(front().shows(L"未找到配色系统。"));
    EXPECT_TRUE(front().shows(L"未找到颜色。"));
}

TEST_F(ColorPromptsTest, ABrokenBookIsToldBeforeTheFirstQuestionForABookOnly) {
    writeBook("book = \"Inks\"\nx = 1,2,256\n");

    askBook({L"^C"});
    EXPECT_TRUE(front().shows(L"own.book，第 2 行: 颜色应为 r,g,b"));
    front().clearScreen();
    askBook({L"^C"});
    EXPECT_FALSE(front().shows(L"own.book"));
}

TEST_F(ColorPromptsTest, ALightThatIsGoneIsAskedNothing) {
    command_.losesLight = true;

    EXPECT_EQ(askTrueColor({}), RTERROR);
    EXPECT_EQ(askIndex({}), RTERROR);
    EXPECT_EQ(askHsl({}), RTERROR);
    EXPECT_EQ(askBook({}), RTERROR);
    EXPECT_TRUE(front().asked().empty());
}

} // namespace
} // namespace quor
