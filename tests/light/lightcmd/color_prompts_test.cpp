#include "light/lightcmd/color_input.h"
#include "light/lightcmd/replies.h"
#include "tests/light/lightcmd/prompt_command.h"

#include <fstream>

namespace quor {
namespace {

using test::PromptCommand;

class ColorPromptsTest : public test::PromptCommandTest {
protected:
    ColorPromptsTest() {
        before = [this] { beginWithColor(); };
        light::s_lastColorBook.clear();
        light::s_lastBookColor.clear();
    }

    // Each question is asked for a light of its own, which begins with the colour of the one before.
    int ask(Prompt<int> prompt, std::initializer_list<ZrString> lines) {
        const int result = answerOf(prompt, lines);
        color_ = light()->lightColor();
        return result;
    }
    int askTrueColor(std::initializer_list<ZrString> lines) { return ask(&PromptCommand::promptColor, lines); }
    int askIndex(std::initializer_list<ZrString> lines) { return ask(&PromptCommand::promptIndexColor, lines); }
    int askHsl(std::initializer_list<ZrString> lines) { return ask(&PromptCommand::promptHslColor, lines); }
    int askBook(std::initializer_list<ZrString> lines) { return ask(&PromptCommand::promptColorBookColor, lines); }

    void beginWithColor() { ASSERT_EQ(command_.m_pLight->setLightColor(color_), Quor::eOk); }
    [[nodiscard]] ZrString shown() const { return color_.colorNameForDisplay(); }
    // A book in the user's own folder.
    void writeBook(const std::string& text) {
        std::filesystem::create_directories(session_.folder() / "colorbooks");
        std::ofstream(session_.folder() / "colorbooks" / "own.book") << text;
    }

    ZrCmColor color_ = ZrCmColor::fromRGB(10, 20, 30); // of the light before the question, then after it
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
    before = [this] {
        beginWithColor();
        command_.reopenForRead();
    };

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

// A question, reached from a prompt by the lines before it.
struct BrokenQuestion {
    const char* name;
    int (CZrMultiLight::*prompt)();
    std::vector<ZrString> lines;
    int result;
};

class InputThatBreaks : public ColorPromptsTest, public testing::WithParamInterface<BrokenQuestion> {
protected:
    void typeAndBreak(const std::vector<ZrString>& lines) {
        for (const ZrString& line : lines)
            front().type(line);
        front().breakInput();
    }
};

TEST_P(InputThatBreaks, LeavesTheQuestionAndTheColour) {
    typeAndBreak(GetParam().lines);

    EXPECT_EQ(ask(GetParam().prompt, {}), GetParam().result);

    EXPECT_EQ(asked().size(), GetParam().lines.size() + 1);
    EXPECT_EQ(shown(), L"10,20,30");
}

INSTANTIATE_TEST_SUITE_P(
    Questions, InputThatBreaks,
    testing::Values(BrokenQuestion{"TrueColour", &PromptCommand::promptColor, {}, RTERROR},
                    BrokenQuestion{"Index", &PromptCommand::promptIndexColor, {}, RTERROR},
                    BrokenQuestion{"Hsl", &PromptCommand::promptHslColor, {}, -1},
                    BrokenQuestion{"Book", &PromptCommand::promptColorBookColor, {}, 0},
                    BrokenQuestion{"ColourOfABook", &PromptCommand::promptColorBookColor, {L"Web Colors"}, 0},
                    BrokenQuestion{"IndexBehindTrueColour", &PromptCommand::promptColor, {L"I"}, RTERROR},
                    BrokenQuestion{"HslBehindTrueColour", &PromptCommand::promptColor, {L"H"}, -1},
                    BrokenQuestion{"BookBehindTrueColour", &PromptCommand::promptColor, {L"B"}, 0},
                    BrokenQuestion{
                        "ColourOfABookBehindTrueColour", &PromptCommand::promptColor, {L"B", L"Web Colors"}, 0}),
    [](const auto& row) { return row.param.name; });

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
    color_ = ZrCmColor();

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

TEST_F(ColorPromptsTest, AGivenColourThatIsOfNoBookLeavesTheRememberedOne) {
    light::s_lastColorBook = L"Neutral Greys";
    ZrCmColor color = ZrCmColor::fromRGB(1, 2, 3);
    ASSERT_EQ(color.setNames(L"ink", L""), Quor::eOk);
    front().type({L"^C"});

    EXPECT_FALSE(light::promptColorBook(color));

    EXPECT_EQ(light::s_lastColorBook, L"Neutral Greys");
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
    EXPECT_EQ(askBook({book + L"bb", color + L"x"}), Quor::eOk);
    EXPECT_EQ(shown(), book + L"$" + color);
    color_ = ZrCmColor::fromIndex(1);
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
    before = [this] { command_.loseLight(); };

    EXPECT_EQ(askTrueColor({}), RTERROR);
    EXPECT_EQ(askIndex({}), RTERROR);
    EXPECT_EQ(askHsl({}), RTERROR);
    EXPECT_EQ(askBook({}), RTERROR);
    EXPECT_TRUE(asked().empty());
}

} // namespace
} // namespace quor
