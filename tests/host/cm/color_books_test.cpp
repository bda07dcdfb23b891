#include "host/cm/color_books.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "host/texts/text.h"
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
        quor::setLanguage(quor::Language::Chinese);
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
    EXPECT_EQ(book->name(), L"My Book");
    ASSERT_EQ(book->colors().size(), 2U);
    EXPECT_EQ(book->colors()[0].name, L"Deep = Sea");
    EXPECT_EQ(book->colors()[0].blue, 255);
    EXPECT_NE(book->find(L"DEEP = sea"), nullptr);
    EXPECT_EQ(book->find(L"deep"), nullptr);
}

TEST(ColorBookText, MayEndItsLinesWithACarriageReturnAlone) {
    ColorBookError error;
    const auto book = parseColorBook("book = \"Inks\"\r# c\r\rred = 255,0,0\rblue = 0,0,255\r", error);
    ASSERT_TRUE(book);
    EXPECT_EQ(book->colors().size(), 2U);

    EXPECT_FALSE(parseColorBook("book = \"Inks\"\r\rred = blue\r", error));
    EXPECT_EQ(error.line, 3U);
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
    EXPECT_EQ(books.books()[0].name(), L"Banana");
    EXPECT_EQ(books.books()[1].name(), L"zebra");
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
    EXPECT_EQ(books.find(L"Apple")->file(), folder_ / "1.book");
    EXPECT_EQ(books.find(L"Quince")->find(L"a")->red, 7);
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].file, folder_ / "own" / "1.book");
}

TEST(ColorBookText, ANameMayHoldEqualsSigns) {
    ColorBookError error;
    const auto book = parseColorBook("BOOK=\"A = B\"\nbook = 1,2,3\nbook = deep = 4,5,6\n", error);
    ASSERT_TRUE(book) << testing::PrintToString(error.message());
    EXPECT_EQ(book->name(), L"A = B");
    EXPECT_EQ(book->find(L"Book")->red, 1);
    EXPECT_EQ(book->find(L"book = deep")->red, 4);
}

TEST(ColorBookText, BlanksMayStandAroundTheNumbers) {
    ColorBookError error;
    const auto book = parseColorBook("book = \"Spaced\"\nR = 130, 180 ,\t220 \n", error);
    ASSERT_TRUE(book) << testing::PrintToString(error.message());
    EXPECT_EQ(book->find(L"R")->red, 130);
    EXPECT_EQ(book->find(L"R")->green, 180);
    EXPECT_EQ(book->find(L"R")->blue, 220);
}

struct Reason {
    const char* text;
    const wchar_t* reason;
};

class ReasonOfABrokenBook : public testing::TestWithParam<Reason> {
protected:
    ReasonOfABrokenBook() { quor::setLanguage(quor::Language::Chinese); }
};

TEST_P(ReasonOfABrokenBook, IsTheOneThatHelps) {
    ColorBookError error;
    EXPECT_FALSE(parseColorBook(GetParam().text, error));
    EXPECT_EQ(error.reason, GetParam().reason);
}

constexpr const wchar_t* control = L"名称中有控制字符，请将其删除";
constexpr const wchar_t* badName = L"配色系统名称应加双引号，长 4 到 131 个字符，不含 $ 和双引号，首尾没有空格";
constexpr const wchar_t* badColor = L"颜色应为 r,g,b，每个数为 0 到 255 的整数";

INSTANTIATE_TEST_SUITE_P(All, ReasonOfABrokenBook,
                         testing::Values(Reason{"book = \"Es\x1B[2Jc\"\na = 1,2,3\n", control},
                                         Reason{"book = \"Good\"\na\x1B[2J = 1,2,3\n", control},
                                         Reason{"book = \"Good\"\na\xE2\x80\xAE"
                                                "b = 1,2,3\n",
                                                control},
                                         Reason{"book = \"Good\"\na\tb = 1,2,3\n", control},
                                         Reason{"book = Plain\n", badName}, Reason{"book = \"A = B\n", badName},
                                         Reason{"book = \"Good\"\nR = 1 3,2,3\n", badColor},
                                         Reason{"book = \"Good\"\nR = 1, ,3\n", badColor},
                                         Reason{"book = \"Good\"\nbook = \"Next\"\n", L"book 行只能出现一次"},
                                         Reason{"book = \"Good\"\nR 1,2,3\n", L"应为 颜色名称 = r,g,b"}));

TEST(ColorBookText, OfSeveralDoublesTheFirstIsTold) {
    quor::setLanguage(quor::Language::Chinese);
    ColorBookError error;
    EXPECT_FALSE(parseColorBook("book = \"Good\"\nz = 1,2,3\na = 1,2,3\nZ = 1,2,3\nA = 1,2,3\na = 4,5,6\n", error));
    EXPECT_EQ(error.line, 4U);
    EXPECT_EQ(error.reason, L"颜色“Z”已出现在第 2 行");
}

std::string numberedColors(int count) {
    std::string text = "book = \"Many\"\n";
    for (int i = 0; i < count; ++i)
        text += "C" + std::to_string(i) + " = " + std::to_string(i % 256) + ",0,0\n";
    return text;
}

TEST(ColorBookText, EveryOneOfManyColoursIsFound) {
    constexpr int count = 100'000;
    ColorBookError error;
    const auto book = parseColorBook(numberedColors(count), error);
    ASSERT_TRUE(book);
    int found = 0;
    for (int i = 0; i < count; ++i)
        found += book->find(L"c" + std::to_wstring(i)) == &book->colors()[static_cast<std::size_t>(i)] ? 1 : 0;
    EXPECT_EQ(found, count);
    EXPECT_EQ(book->find(L"C"), nullptr);
    EXPECT_EQ(book->find(L"c100000"), nullptr);
    EXPECT_EQ(book->find(L"zzz"), nullptr);
}

TEST_F(BookFolder, ABookThatCannotBeReadIsReportedAndTheOthersLoad) {
    fs::create_symlink("/proc/self/mem", folder_ / "1.book");
    fs::create_directory(folder_ / "2.book");
    fs::create_symlink("nowhere", folder_ / "3.book");
    ASSERT_EQ(::mkfifo((folder_ / "4.book").c_str(), 0600), 0);
    write("5.book", "book = \"Whole\"\na = 1,2,3\n");
    const ColorBooks books = ColorBooks::load({folder_});
    EXPECT_NE(books.find(L"Whole"), nullptr);
    ASSERT_EQ(books.errors().size(), 4U);
    EXPECT_EQ(books.errors()[0].reason, L"无法读取文件(读写设备时出错)");
    EXPECT_EQ(books.errors()[1].reason, L"无法读取文件(这是文件夹，不是文件)");
    EXPECT_EQ(books.errors()[2].reason, L"无法读取文件(文件或文件夹不存在)");
    EXPECT_EQ(books.errors()[3].reason, L"无法读取文件(它不是普通文件)");
}

TEST_F(BookFolder, ABookOfFourMegabytesIsReadAndOneByteMoreIsNot) {
    std::string text = "book = \"Large\"\na = 1,2,3\n";
    text.resize(quor::cm::largestColorBook, '\n');
    write("1.book", text);
    EXPECT_NE(ColorBooks::load({folder_}).find(L"Large"), nullptr);
    write("1.book", text + "\n");
    const ColorBooks books = ColorBooks::load({folder_});
    EXPECT_EQ(books.find(L"Large"), nullptr);
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].reason, L"文件超过 4 MB，不是配色系统");
}

TEST_F(BookFolder, ControlCharactersOfAFileNameAreSpelledOutInMessages) {
    write("a\x1B[2J.book", "none");
    const ColorBooks books = ColorBooks::load({folder_});
    ASSERT_EQ(books.errors().size(), 1U);
    EXPECT_EQ(books.errors()[0].message().find(L'\x1B'), std::wstring::npos);
    EXPECT_NE(books.errors()[0].message().find(L"a^[[2J.book，第 1 行: "), std::wstring::npos);
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
    EXPECT_EQ(books.find(L"Web Colors")->colors().size(), 148U);
    ASSERT_NE(books.find(L"Neutral Greys"), nullptr);
    EXPECT_EQ(books.find(L"Neutral Greys")->find(L"Grey 50")->green, 128);
}

bool isNeutral(const quor::cm::BookColor& color) { return color.red == color.green && color.green == color.blue; }

bool isDarker(const quor::cm::BookColor& a, const quor::cm::BookColor& b) { return a.red < b.red; }

TEST(ShippedBooks, TheGreysAreNeutralAndRiseFromBlackToWhite) {
    const ColorBooks books = ColorBooks::load({shipped});
    ASSERT_NE(books.find(L"Neutral Greys"), nullptr);
    const auto& greys = books.find(L"Neutral Greys")->colors();
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

TEST_F(BookFolder, BooksAreReadOnceUnlessTheyAreReadAnew) {
    quor::cm::setColorBookFolders({folder_});
    EXPECT_EQ(quor::cm::colorBooks().find(L"Late"), nullptr);
    write("1.book", "book = \"Late\"\na = 1,2,3\n");
    EXPECT_EQ(quor::cm::colorBooks().find(L"Late"), nullptr);
    EXPECT_NE(quor::cm::rereadColorBooks().find(L"Late"), nullptr);
    EXPECT_NE(quor::cm::colorBooks().find(L"Late"), nullptr);
    quor::cm::setColorBookFolders({});
}

TEST(ColorBookName, WithoutFoldersThereAreNoBooks) {
    quor::cm::setColorBookFolders({});
    EXPECT_TRUE(quor::cm::colorBooks().books().empty());
    EXPECT_TRUE(quor::cm::colorBooks().errors().empty());
}

} // namespace
