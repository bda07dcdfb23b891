#include "host/cm/color_books.h"
#include "host/sys/settings_store.h"
#include "sdk/cm/color_services.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quor {
namespace {

class ColorBooksCommand : public testing::Test {
protected:
    ColorBooksCommand() { cm::setColorBookFolders({own_}); }

    // The folder of a person's own books; the installed ones stay out of these tests.
    void write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories(own_);
        std::ofstream(own_ / name, std::ios::binary) << text;
    }
    [[nodiscard]] ZrString path(const std::string& name) const { return (own_ / name).wstring(); }
    // What a run shows behind its last question.
    ZrString answerTo(std::initializer_list<ZrString> lines) {
        host_.front().clearScreen();
        result_ = host_.run(lines).result;
        const ZrString& screen = host_.front().screen();
        constexpr std::wstring_view question = L"Enter color book name <list all>: ";
        const std::size_t first = screen.find(L'\n', screen.find(question)) + 1;
        return screen.substr(first, screen.rfind(L"Command: ") - first);
    }

    test::TestSession host_{{.language = L"en"}};
    std::filesystem::path own_ = host_.session().settings().path().parent_path() / "colorbooks";
    int result_ = 0;
};

TEST_F(ColorBooksCommand, ListsTheBooksWithTheirCountsAndFiles) {
    write("1.book", "book = \"Filters\"\na = 1,2,3\nb = 1,2,3\n");
    write("2.book", "book = \"Inks\"\na = 1,2,3\n");

    EXPECT_EQ(answerTo({L"COLORBOOKS", L""}),
              L"  Filters  2 colors  " + path("1.book") + L"\n  Inks      1 color  " + path("2.book") + L"\n");
    EXPECT_EQ(result_, RTNORM);
}

TEST_F(ColorBooksCommand, ListsTheColoursOfABookInColumns) {
    write("1.book", "book = \"My Filters\"\nStraw = 255,221,135\n深红 = 140,0,26\n");

    EXPECT_EQ(answerTo({L"COLORBOOKS", L"MY filters"}),
              L"My Filters  2 colors\n  Straw  255,221,135\n  深红   140,  0, 26\n");
    EXPECT_EQ(result_, RTNORM);
}

TEST_F(ColorBooksCommand, SaysThatThereAreNoBooks) {
    EXPECT_EQ(answerTo({L"COLORBOOKS", L""}), L"There are no color books.\n");
    EXPECT_EQ(result_, RTNORM);
}

TEST_F(ColorBooksCommand, SaysThatThereIsNoBookOfAName) {
    EXPECT_EQ(answerTo({L"COLORBOOKS", L"No \x1B Book"}),
              L"There is no color book \"No ^[ Book\". Press Enter at COLORBOOKS to list them.\n");
    EXPECT_EQ(result_, RTERROR);
}

TEST_F(ColorBooksCommand, ListsBrokenBooksWithTheirReasonsAtTheEnd) {
    write("1.book", "none");
    write("2.book", "book = \"Inks\"\na = 1,2,3\n");

    const ZrString broken =
        path("1.book") + L", line 1: the first entry must be book = \"name\". The whole file was ignored.\n";
    EXPECT_EQ(answerTo({L"COLORBOOKS", L""}), L"  Inks  1 color  " + path("2.book") + L"\n" + broken);
    EXPECT_EQ(result_, RTNORM);
}

TEST_F(ColorBooksCommand, TellsWhatIsWrongWithABookThatIsAskedForByItsName) {
    write("1.book", "book = \"Inks\"\nred = blue\n");

    const ZrString answer = answerTo({L"COLORBOOKS", L"Inks"});

    EXPECT_NE(answer.find(path("1.book") + L", line 2"), ZrString::npos);
    EXPECT_NE(answer.find(L"There is no color book \"Inks\"."), ZrString::npos);
}

TEST_F(ColorBooksCommand, LeavesWhatIsWrongToTheNextWhoAsksWhereTheBookIsFound) {
    write("1.book", "none");
    write("2.book", "book = \"Inks\"\na = 1,2,3\n");

    EXPECT_EQ(answerTo({L"COLORBOOKS", L"Inks"}), L"Inks  1 color\n  a    1,  2,  3\n");
    EXPECT_FALSE(host_.front().shows(path("1.book")));
    (void)cm::colorBooks();
    EXPECT_TRUE(host_.front().shows(path("1.book")));
}

TEST_F(ColorBooksCommand, FindsABookThatWasAddedMeanwhile) {
    std::vector<ZrString> names;
    std::vector<ZrString> displayNames;
    EnumBookNames(names, displayNames);
    write("1.book", "book = \"Inks\"\na = 1,2,3\n");

    EXPECT_EQ(answerTo({L"COLORBOOKS", L"Inks"}), L"Inks  1 color\n  a    1,  2,  3\n");
    EnumBookNames(names, displayNames);
    EXPECT_EQ(names, std::vector<ZrString>{L"Inks"});
}

TEST_F(ColorBooksCommand, EndsAtEsc) {
    answerTo({L"COLORBOOKS", L"^C"});
    EXPECT_EQ(result_, RTCAN);
}

TEST_F(ColorBooksCommand, WorksWithoutADrawingAndInsideAnotherCommand) {
    write("1.book", "book = \"Inks\"\na = 1,2,3\n");
    EXPECT_EQ(answerTo({L"LINE", L"'COLORBOOKS", L"Inks", L"^C"}).substr(0, 13), L"Inks  1 color");
    EXPECT_EQ(answerTo({L"CLOSE", L"COLORBOOKS", L"Inks"}), L"Inks  1 color\n  a    1,  2,  3\n");
}

} // namespace
} // namespace quor
