// What is no web: the kind of the error, its line and what stands there.
#include "tests/host/ies/web_text.h"

#include <ostream>

namespace quor::ies {
namespace {

using Kind = Error::Kind;

struct Defect {
    WebText text;
    Kind kind;
    std::size_t line;
    std::wstring excerpt;
    friend void PrintTo(const Defect& defect, std::ostream* out) { *out << defect.text.text(); }
};

class Defective : public testing::TestWithParam<Defect> {};

TEST_P(Defective, IsRefusedWithItsLineAndWhatStandsThere) {
    const Error error = refused(GetParam().text);

    EXPECT_EQ(error.kind, GetParam().kind);
    EXPECT_EQ(error.line, GetParam().line);
    EXPECT_EQ(error.excerpt, GetParam().excerpt);
}

INSTANTIATE_TEST_SUITE_P(
    TooFewNumbers, Defective,
    testing::Values(
        Defect{{.candela = "100 80\n"}, Kind::MissingNumber, 9, L""},
        Defect{{.candela = "100\n80\n\n\n"}, Kind::MissingNumber, 10, L""},
        Defect{{.candela = "100 80\n\x1A 20\n"}, Kind::MissingNumber, 9, L""},
        Defect{{.horizontal = "", .candela = ""}, Kind::MissingNumber, 7, L""},
        Defect{{.header = "", .factors = "", .vertical = "", .horizontal = "", .candela = ""},
               Kind::MissingNumber,
               4,
               L""},
        Defect{{.header = "1 -1 1 3 2 1 2 0 0 0\n", .horizontal = "0 90\n"}, Kind::MissingNumber, 9, L""},
        Defect{{.header = "1 -1 1 10000 10000 1 2 0 0 0\n", .vertical = "0 .1 .2\n", .horizontal = "", .candela = ""},
               Kind::MissingNumber,
               7,
               L""}));

INSTANTIATE_TEST_SUITE_P(Texts, Defective,
                         testing::Values(Defect{{.candela = "100 80 abc\n"}, Kind::BadNumber, 9, L"abc"},
                                         Defect{{.candela = "100\nnan\n20\n"}, Kind::BadNumber, 10, L"nan"},
                                         Defect{{.candela = "100 inf 20\n"}, Kind::BadNumber, 9, L"inf"},
                                         Defect{{.candela = "100 0x10 20\n"}, Kind::BadNumber, 9, L"0x10"},
                                         Defect{{.candela = "100 1e999 20\n"}, Kind::BadNumber, 9, L"1e999"},
                                         Defect{{.candela = "100 1.1e30 20\n"}, Kind::BadNumber, 9, L"1.1e30"},
                                         Defect{{.header = "1 -1 1e200 3 1 1 2 0 0 0\n", .factors = "1e200 1 10\n"},
                                                Kind::BadNumber,
                                                9,
                                                L"100"},
                                         Defect{{.vertical = "0 4\xE6\x9C\x88 90\n"}, Kind::BadNumber, 7, L"4月"},
                                         Defect{{.vertical = "0 4\x1B[2J 90\n"}, Kind::BadNumber, 7, L"4?[2J"},
                                         Defect{{.factors = "1 1 15W\n"}, Kind::BadNumber, 6, L"15W"},
                                         Defect{{.header = "1 - 1 3 1 1 2 0 0 0\n"}, Kind::BadNumber, 5, L"-"}));

TEST(Refused, ExcerptsInGbkAreReadableWhereverTheyAreCut) {
    std::string name = "x";
    for (int i = 0; i < 100; ++i)
        name += "\xB5\xC6";

    EXPECT_EQ(refused({.candela = name + "\n"}).excerpt, L"x" + std::wstring(39, L'灯'));
    EXPECT_EQ(refused({.candela = name.substr(1) + "\n"}).excerpt, std::wstring(40, L'灯'));
}

TEST(Refused, ExcerptsHaveFortyCharacters) {
    EXPECT_EQ(refused({.candela = std::string(50, 'x') + "\n"}).excerpt, std::wstring(40, L'x'));
}

INSTANTIATE_TEST_SUITE_P(Counts, Defective,
                         testing::Values(Defect{{.header = "1 -1 1 0 1 1 2 0 0 0\n"}, Kind::BadCount, 5, L"0"},
                                         Defect{{.header = "1 -1 1 3 0 1 2 0 0 0\n"}, Kind::BadCount, 5, L"0"},
                                         Defect{{.header = "1 -1 1 -3 1 1 2 0 0 0\n"}, Kind::BadCount, 5, L"-3"},
                                         Defect{{.header = "1 -1 1 2.5 1 1 2 0 0 0\n"}, Kind::BadCount, 5, L"2.5"},
                                         Defect{{.header = "1 -1 1 10001 1 1 2 0 0 0\n"}, Kind::BadCount, 5, L"10001"},
                                         Defect{{.header = "1 -1 1 3 1e18 1 2 0 0 0\n"}, Kind::BadCount, 5, L"1e18"},
                                         Defect{{.tilt = "TILT=INCLUDE\n1\n0\n"}, Kind::BadCount, 6, L"0"}));

INSTANTIATE_TEST_SUITE_P(TypesAndUnits, Defective,
                         testing::Values(Defect{{.header = "1 -1 1 3 1 0 2 0 0 0\n"}, Kind::BadType, 5, L"0"},
                                         Defect{{.header = "1 -1 1 3 1 4 2 0 0 0\n"}, Kind::BadType, 5, L"4"},
                                         Defect{{.header = "1 -1 1 3 1 1.5 2 0 0 0\n"}, Kind::BadType, 5, L"1.5"},
                                         Defect{{.header = "1 -1 1 3 1 1 0 0 0 0\n"}, Kind::BadUnit, 5, L"0"},
                                         Defect{{.header = "1 -1 1 3 1 1 3 0 0 0\n"}, Kind::BadUnit, 5, L"3"},
                                         Defect{{.tilt = "TILT=INCLUDE\n0\n"}, Kind::BadTilt, 5, L"0"},
                                         Defect{{.tilt = "TILT=INCLUDE\n4\n"}, Kind::BadTilt, 5, L"4"}));

WebText twoPlanes(const char* type, const char* vertical, const char* horizontal) {
    return {.header = std::string("1 -1 1 3 2 ") + type + " 2 0 0 0\n",
            .vertical = vertical,
            .horizontal = horizontal,
            .candela = "6 5 4 3 2 1\n"};
}

INSTANTIATE_TEST_SUITE_P(
    Angles, Defective,
    testing::Values(Defect{{.vertical = "0 90 45\n"}, Kind::AnglesNotIncreasing, 7, L"45"},
                    Defect{{.vertical = "0\n45\n45.0\n"}, Kind::AnglesNotIncreasing, 9, L"45.0"},
                    Defect{twoPlanes("1", "0 45 90\n", "90 0\n"), Kind::AnglesNotIncreasing, 8, L"0"},
                    Defect{twoPlanes("1", "0 45 90\n", "90 90\n"), Kind::AnglesNotIncreasing, 8, L"90"},
                    Defect{{.tilt = "TILT=INCLUDE\n1\n2\n90 0\n1 1\n"}, Kind::AnglesNotIncreasing, 7, L"0"},
                    Defect{twoPlanes("1", "-1 45 90\n", "0 90\n"), Kind::AnglesOutOfRange, 7, L"-1"},
                    Defect{twoPlanes("1", "0 45 180.5\n", "0 90\n"), Kind::AnglesOutOfRange, 7, L"180.5"},
                    Defect{twoPlanes("1", "0 45 90\n", "-90 90\n"), Kind::AnglesOutOfRange, 8, L"-90"},
                    Defect{twoPlanes("1", "0 45 90\n", "0 361\n"), Kind::AnglesOutOfRange, 8, L"361"},
                    Defect{twoPlanes("2", "0 45 91\n", "0 90\n"), Kind::AnglesOutOfRange, 7, L"91"},
                    Defect{twoPlanes("2", "-91 0 90\n", "0 90\n"), Kind::AnglesOutOfRange, 7, L"-91"},
                    Defect{twoPlanes("2", "0 45 90\n", "0 180\n"), Kind::AnglesOutOfRange, 8, L"180"},
                    Defect{twoPlanes("3", "0 45 180\n", "0 90\n"), Kind::AnglesOutOfRange, 7, L"180"},
                    Defect{twoPlanes("3", "0 45 90\n", "-100 90\n"), Kind::AnglesOutOfRange, 8, L"-100"}));

class GoodAngles : public testing::TestWithParam<WebText> {};

TEST_P(GoodAngles, AreAccepted) { EXPECT_TRUE(sound(GetParam()).warnings.empty()); }

INSTANTIATE_TEST_SUITE_P(
    UpToTheLimits, GoodAngles,
    testing::Values(twoPlanes("1", "0 45 180\n", "0 360\n"), twoPlanes("1", "90 135 180\n", "90 270\n"),
                    twoPlanes("1", "0 1e-9 90\n", "0 90\n"), twoPlanes("2", "-90 0 90\n", "-90 90\n"),
                    twoPlanes("2", "0 45 90\n", "0 90\n"), twoPlanes("3", "-90 0 90\n", "-90 90\n"),
                    twoPlanes("3", "-90 -45 0\n", "0 90\n")));

INSTANTIATE_TEST_SUITE_P(
    NegativeIntensities, Defective,
    testing::Values(Defect{{.candela = "100 -80 20\n"}, Kind::NegativeIntensity, 9, L"-80"},
                    Defect{{.candela = "100 80\n-0.001\n"}, Kind::NegativeIntensity, 10, L"-0.001"},
                    Defect{{.header = "1 -1 -1 3 1 1 2 0 0 0\n"}, Kind::NegativeIntensity, 5, L"-1"},
                    Defect{{.factors = "-0.9 1 10\n"}, Kind::NegativeIntensity, 6, L"-0.9"},
                    Defect{{.label = "IESNA91\n", .factors = "1 -1 10\n"}, Kind::NegativeIntensity, 4, L"-1"}));

TEST(Refused, LinesAreCountedWithEachKindOfLineEnd) {
    EXPECT_EQ(refusedText("IESNA91\r\n[TEST] 1\r\nTILT=NONE\r\n1 x").line, 4U);
    EXPECT_EQ(refusedText("IESNA91\r[TEST] 1\rTILT=NONE\r1 x").line, 4U);
    EXPECT_EQ(refusedText("IESNA91\n\n[TEST] 1\n\nTILT=NONE 1 x").line, 5U);
}

TEST(Refused, LargerThanAnyWeb) {
    std::string text = WebText{}.text();
    text.resize(kMostBytes, ' ');
    EXPECT_TRUE(readWeb(text).ok());

    text.push_back(' ');
    EXPECT_EQ(refusedText(text).kind, Kind::TooLarge);
}

TEST(Refused, OtherKindsOfFilesHaveNoTilt) {
    EXPECT_EQ(refusedText("0\nSECTION\n2\nHEADER\n").kind, Kind::NoTilt);
    EXPECT_EQ(refusedText(std::string("\x89PNG\r\n\x1A\n\0\0\0", 11)).kind, Kind::NoTilt);
}

} // namespace
} // namespace quor::ies
