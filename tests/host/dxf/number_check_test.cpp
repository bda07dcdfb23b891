#include "host/dxf/number_check.h"

#include <array>
#include <gtest/gtest.h>

namespace quor::dxf {
namespace {

constexpr std::array<std::string_view, 1> kLines{"LINE"};

// What is found in the file beside what recovery finds.
std::vector<Error> found(const std::string& file) {
    const Image image = Image::fromBytes(file);
    Layout layout = std::move(scan(image, {true, {}})).value();
    checkNumbers(image, layout, kLines);
    return layout.problems;
}

std::string entity(const std::string& type, const std::string& tags) {
    return "0\nSECTION\n2\nENTITIES\n0\n" + type + "\n" + tags + "0\nENDSEC\n0\nEOF\n";
}

struct BadValue : testing::TestWithParam<std::string> {};

TEST_P(BadValue, IsListedWithItsLineAndText) {
    const std::vector<Error> problems = found(entity("LINE", "8\n0\n10\n" + GetParam() + "\n20\n1.0\n"));
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].kind, Error::Kind::BadNumber);
    EXPECT_EQ(problems[0].line, 10U);
    EXPECT_EQ(problems[0].excerpt, excerptOf(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Texts, BadValue, testing::Values("abc", "nan", "1e999", "0x10", ""));

TEST(NumberCheck, SoundValuesAndTextsAreNotListed) {
    EXPECT_TRUE(found(entity("LINE", "8\nabc\n62\n   -3\n10\n 1.5E-3\n")).empty());
}

TEST(NumberCheck, WholeNumbersAreChecked) { EXPECT_EQ(found(entity("LINE", "62\n1.5\n")).size(), 1U); }

TEST(NumberCheck, OtherRecordsAreLeftAlone) { EXPECT_TRUE(found(entity("ARC", "10\nabc\n")).empty()); }

TEST(NumberCheck, ExtendedDataAreLeftAlone) { EXPECT_TRUE(found(entity("LINE", "1001\nX\n1040\nabc\n")).empty()); }

TEST(NumberCheck, HeaderVariablesAreCheckedWhereverTheHeaderStands) {
    const std::string file = "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\nabc\n0\nENDSEC\n"
                             "0\nSECTION\n2\nHEADER\n9\n$LTSCALE\n40\nbig\n0\nENDSEC\n0\nEOF\n";
    const std::vector<Error> problems = found(file);
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_EQ(problems[0].line, 18U);
    EXPECT_EQ(problems[1].line, 8U);
}

TEST(NumberCheck, ManyAreCountedButNotAllKept) {
    std::string tags;
    for (int i = 0; i < 200; ++i) {
        tags += "10\nabc\n";
    }
    const Image image = Image::fromBytes(entity("LINE", tags));
    Layout layout = std::move(scan(image, {true, {}})).value();
    checkNumbers(image, layout, kLines);
    EXPECT_EQ(layout.problemCount, 200U);
    EXPECT_EQ(layout.problems.size(), Layout::kMaxProblems);
}

} // namespace
} // namespace quor::dxf
