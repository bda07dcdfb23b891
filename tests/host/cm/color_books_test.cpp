#include "host/cm/color_books.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "sdk/cm/color_services.h"

namespace {

namespace fs = std::filesystem;
using quor::cm::ColorBookError;
using quor::cm::ColorBooks;
using quor::cm::parseColorBook;

const fs::path shipped = fs::path(QUOR_TEST_DATA) / ".." / ".." / "resources" / "colorbooks";

class BookFolder : public testing::Test {
protected:
    void SetUp() override {
        std::string name = testing::TempDir() + "booksXXXXXX";
        folder_ = ::mkdtemp(name.data());
    }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    fs::path folder_;
};

TEST(ColorBookText, HoldsNamesBlanksCommentsAndBothLineEnds) {
    ColorBookError error;
    const auto book =
        parseColorBook("\xEF\xBB\xBF# first\r\n book = \"My Book\"\r\n\n# c\nDeep = Sea = 0,0,255\r\n红 = "
                       "255,0,0",
                       error);
    ASSERT_TRUE(book) << testing::PrintToString(error.message());
    EXPECT_EQ(book->name, L"My Book");
    ASSERT_EQ(book->colors.size(), 2U);
    EXPECT_EQ(book->colors[0].name, L"Deep = Sea");
    EXPECT_EQ(book->colors[0].blue, 255);
    EXPECT_NE(book->find(L"DEEP = sea"), nullptr);
    EXPECT_EQ(book->find(L"deep"), nullptr);
}

struct Broken {
    const char* text;
    std::size_t line;
};

class BrokenBook : public testing::TestWithParam<Broken> {};

TEST_P(BrokenBook, IsRefusedWithItsLine) {
    ColorBookError error;
    EXPECT_FALSE(parseColorBook(GetParam().text, error));
    EXPECT_EQ(error.line, GetParam().line);
    EXPECT_FALSE(error.reason.empty());
}

INSTANTIATE_TEST_SUITE_P(
    All, BrokenBook,
    testing::Values(Broken{"", 0}, Broken{"book = \"Empty\"\n", 0}, Broken{"a = 1,2,3\nbook = \"Late\"\n", 1},
                    Broken{"book = \"abc\"\na = 1,2,3\n", 1}, Broken{"book = \"Open\na = 1,2,3\n", 1},
                    Broken{"book = \"Has$Dollar\"\na = 1,2,3\n", 1}, Broken{"book = \"Good\"\nbook = \"Twice\"\n", 2},
                    Broken{"book = \"Good\"\n\n= 1,2,3\n", 3}, Broken{"book = \"Good\"\na\n", 2},
                    Broken{"book = \"Good\"\na = 1,2,256\n", 2}, Broken{"book = \"Good\"\na = 1,2\n", 2},
                    Broken{"book = \"Good\"\na = \"red\"\n", 2}, Broken{"book = \"Good\"\na$b = 1,2,3\n", 2},
                    Broken{"book = \"Good\"\na = 1,2,3\nA = 1,2,3\n", 3},
                    Broken{"book = \"Good\"\na = 1,2,3\n\xFF\n", 3}));

TEST(ColorBookText, NamesOfFourAnd131CharactersAreAcceptedAndOfOneMoreRefused) {
    ColorBookError error;
    EXPECT_TRUE(parseColorBook("book = \"Four\"\nx = 1,2,3", error));
    EXPECT_TRUE(
        parseColorBook("book = \"" + std::string(131, 'b') + "\"\n" + std::string(131, 'c') + " = 1,2,3", error));
    EXPECT_FALSE(parseColorBook("book = \"" + std::string(132, 'b') + "\"\nx = 1,2,3", error));
    EXPECT_FALSE(parseColorBook("book = \"Four\"\n" + std::string(132, 'c') + " = 1,2,3", error));
}

TEST_F(BookFolder, BrokenAndDoubleBooksAreReportedAndTheOthersLoadSorted) {
    write("1.book", "book = \"zebra\"\na = 1,2,3\n");
    write("2.book", "book = \"Apple\"\na = 300,2,3\n");
    write("3.book", "book = \"ZEBRA\"\na = 4,5,6\n");
    write("4.book", "book = \"Banana\"\na = 7,8,9\n");
    write("notes.txt", "no book");
    const ColorBooks books = ColorBooks::load({folder_});
    ASSERT_EQ(books.books().size(), 2U);
    EXPECT_EQ(books.books()[0].name, L"Banana");
    EXPECT_EQ(books.books()[1].name, L"zebra");
    EXPECT_EQ(books.find(L"Zebra")->find(L"A")->red, 1);
    ASSERT_EQ(books.errors().size(), 2U);
    EXPECT_EQ(books.errors()[0].file, folder_ / "2.book");
    EXPECT_EQ(books.errors()[0].line, 2U);
    EXPECT_NE(books.errors()[0].message().find(L"2.book，第 2 行: "), std::wstring::npos);
    EXPECT_EQ(books.errors()[1].file, folder_ / "3.book");
    EXPECT_NE(books.errors()[1].message().find(L"3.book: 配色系统“zebra”已由 "), std::wstring::npos);
}

TEST_F(BookFolder, ABookOfAnEarlierFolderIsNotReplacedByOneOfTheSameName) {
    fs::create_directory(folder_ / "own");
    write("1.book", "book = \"Apple\"\na = 1,2,3\n");
    write("own/1.book", "book = \"apple\"\na = 4,5,6\n");
    write("own/2.book", "book = \"Quince\"\na = 7,8,9\n");
    const ColorBooks books = ColorBooks::load({folder_, folder_ / "own"});
    ASSERT_EQ(books.books().size(), 2U);
    EXPECT_EQ(books.find(L"Apple")->find(L"a")->red, 1);
    EXPECT_EQ(books.find(L"Apple")->file, folder_ / "1.book");
    EXPECT_EQ(books.find(L"Quince")->find(L"a")->red, 7);
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].file, folder_ / "own" / "1.book");
}

TEST_F(BookFolder, AColourGivenTwiceIsToldWithTheLineOfTheFirst) {
    write("1.book", "book = \"Apple\"\n\nRed = 1,2,3\nRED = 1,2,3\n");
    const ColorBooks books = ColorBooks::load({folder_});
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].line, 4U);
    EXPECT_EQ(books.errors()[0].reason, L"颜色“RED”已出现在第 3 行");
}

TEST_F(BookFolder, AFolderThatDoesNotExistHoldsNoBooks) {
    const ColorBooks books = ColorBooks::load({folder_ / "none"});
    EXPECT_TRUE(books.books().empty());
    EXPECT_TRUE(books.errors().empty());
}

TEST_F(BookFolder, AFileInPlaceOfTheFolderIsReported) {
    write("plain", "");
    const ColorBooks books = ColorBooks::load({folder_ / "plain"});
    EXPECT_TRUE(books.books().empty());
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].line, 0U);
    EXPECT_NE(books.errors()[0].message().find(L"plain: 无法列出文件夹("), std::wstring::npos);
}

TEST(ShippedBooks, LoadWithoutErrorAndComplete) {
    const ColorBooks books = ColorBooks::load({shipped});
    EXPECT_TRUE(books.errors().empty());
    ASSERT_NE(books.find(L"web colors"), nullptr);
    EXPECT_EQ(books.find(L"Web Colors")->colors.size(), 148U);
    ASSERT_NE(books.find(L"Neutral Greys"), nullptr);
    EXPECT_EQ(books.find(L"Neutral Greys")->find(L"Grey 50")->green, 128);
}

bool isNeutral(const quor::cm::BookColor& color) { return color.red == color.green && color.green == color.blue; }

bool isDarker(const quor::cm::BookColor& a, const quor::cm::BookColor& b) { return a.red < b.red; }

TEST(ShippedBooks, TheGreysAreNeutralAndRiseFromBlackToWhite) {
    const ColorBooks books = ColorBooks::load({shipped});
    ASSERT_NE(books.find(L"Neutral Greys"), nullptr);
    const auto& greys = books.find(L"Neutral Greys")->colors;
    EXPECT_EQ(greys.size(), 21U);
    EXPECT_TRUE(std::all_of(greys.begin(), greys.end(), isNeutral));
    EXPECT_TRUE(std::is_sorted(greys.begin(), greys.end(), isDarker));
    EXPECT_EQ(greys.front().red, 0);
    EXPECT_EQ(greys.back().red, 255);
}

TEST(ColorBookName, GivesTheColourWithTheNamesAsTheBookSpellsThem) {
    quor::cm::setColorBookFolders({shipped});
    ZrCmColor color;
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"WEB colors", L"Tomato"), Quor::eOk);
    EXPECT_EQ(color.rgb(), 0xFF6347U);
    EXPECT_EQ(color.colorNameForDisplay(), L"Web Colors$tomato");
}

TEST(ColorBookName, AnUnknownBookOrColourLeavesTheColourAlone) {
    quor::cm::setColorBookFolders({shipped});
    ZrCmColor color = ZrCmColor::fromIndex(3);
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"No Book", L"tomato"), Quor::eInvalidInput);
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"Web Colors", L"potato"), Quor::eInvalidInput);
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"Web Colors", L""), Quor::eInvalidInput);
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, nullptr, L"tomato"), Quor::eInvalidInput);
    EXPECT_EQ(zrcmGetColorFromColorBookName(color, L"Web Colors", nullptr), Quor::eInvalidInput);
    EXPECT_EQ(color, ZrCmColor::fromIndex(3));
}

TEST(ColorBookName, BothListsOfBooksAreReplaced) {
    quor::cm::setColorBookFolders({shipped});
    std::vector<ZrString> names{L"old"};
    std::vector<ZrString> displayNames{L"old"};
    EnumBookNames(names, displayNames);
    EXPECT_EQ(names, (std::vector<ZrString>{L"Neutral Greys", L"Web Colors"}));
    EXPECT_EQ(displayNames, names);
}

TEST(ColorBookName, WithoutFoldersThereAreNoBooks) {
    quor::cm::setColorBookFolders({});
    EXPECT_TRUE(quor::cm::colorBooks().books().empty());
    EXPECT_TRUE(quor::cm::colorBooks().errors().empty());
}

} // namespace
