#include "tests/host/dxf/samples.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quor::dxf {
namespace {

using Kind = Error::Kind;

Layout recovered(std::string_view file) { return std::move(scan(Image::fromBytes(file), {true, {}})).value(); }

const std::string kHead = "0\nSECTION\n2\nENTITIES\n0\nLINE\n5\nA\n8\n0\n";
const std::string kTail = "0\nARC\n5\nB\n0\nENDSEC\n0\nEOF\n";

TEST(Recover, AWholeFileHasNoProblems) {
    const Layout layout = recovered(samples::text());
    EXPECT_TRUE(layout.problems.empty());
    EXPECT_EQ(layout.problemCount, 0U);
}

TEST(Recover, KeepsTheLastRecordWhenOnlyTheEndIsMissing) {
    const std::string file = kHead + "0\nARC\n5\nB\n";
    const Layout layout = recovered(file);
    ASSERT_EQ(layout.records.size(), 2U);
    EXPECT_EQ(layout.records[1].handle, 0xBU);
    EXPECT_FALSE(layout.hasEnd);
    EXPECT_FALSE(layout.sections[0].closed);
    EXPECT_EQ(layout.sections[0].bodyEnd, file.size());
    EXPECT_EQ(layout.endTag.begin, file.size());
    ASSERT_EQ(layout.problems.size(), 1U);
    EXPECT_EQ(layout.problems[0].kind, Kind::NoEnd);
}

TEST(Recover, LeavesOutTheRecordThatTheFileBreaksOffInAndSaysSo) {
    const Layout layout = recovered(kHead + "0\nARC\n5\nB");
    ASSERT_EQ(layout.records.size(), 1U);
    EXPECT_EQ(layout.sections[0].bodyEnd, kHead.size());
    ASSERT_EQ(layout.problems.size(), 2U);
    EXPECT_EQ(layout.problems[1].kind, Kind::Incomplete);
    EXPECT_EQ(layout.problems[1].excerpt, L"ARC");
    EXPECT_EQ(layout.problems[1].line, 11U);
}

TEST(Recover, AGroupCodeWithoutValueLeavesItsRecordOut) {
    const Layout layout = recovered(kHead + "0\nARC\n5\n");
    EXPECT_EQ(layout.records.size(), 1U);
    ASSERT_EQ(layout.problems.size(), 2U);
    EXPECT_EQ(layout.problems[0].kind, Kind::MissingValue);
    EXPECT_EQ(layout.problems[1].kind, Kind::Incomplete);
}

TEST(Recover, AVariableThatTheFileBreaksOffInIsLeftOutAndReported) {
    const Layout layout = recovered("0\nSECTION\n2\nHEADER\n9\n$LIMMIN\n10\n1.0");
    EXPECT_TRUE(layout.headerVars.empty());
    ASSERT_EQ(layout.problems.size(), 2U);
    EXPECT_EQ(layout.problems[1].excerpt, L"$LIMMIN");
    EXPECT_EQ(layout.problems[1].line, 5U);
}

TEST(Recover, ACutBinaryFileLacksItsEndOnce) {
    const std::string file = samples::written(Form::Binary16);
    const Layout layout = recovered(std::string_view(file).substr(0, file.size() - 3));
    const auto ends = std::count_if(layout.problems.begin(), layout.problems.end(),
                                    [](const Error& problem) { return problem.kind == Kind::NoEnd; });
    EXPECT_EQ(ends, 1);
}

TEST(Recover, ClosingTheRestMakesADrawingAgain) {
    const std::string file = kHead + "0\nARC\n5\nB";
    std::string mended = file;
    mended.insert(recovered(file).endTag.begin, "0\nENDSEC\n0\nEOF\n");
    const auto layout = scan(Image::fromBytes(mended));
    ASSERT_TRUE(layout.ok());
    EXPECT_EQ(layout->records.size(), 1U);
}

TEST(Recover, TheRecordBeforeACutEndIsWhole) {
    const Layout layout = recovered(kHead + "0\nENDSEC");
    EXPECT_EQ(layout.records.size(), 1U);
    EXPECT_FALSE(layout.sections[0].closed);
    EXPECT_EQ(layout.endTag.begin, kHead.size());
}

TEST(Recover, SkipsADamagedRecordToTheNextOne) {
    const Layout layout = recovered(kHead + "bad\n62\n0\n0\n 8\n" + kTail);
    ASSERT_EQ(layout.records.size(), 2U);
    EXPECT_TRUE(layout.records[0].damaged);
    EXPECT_EQ(layout.records[0].handle, 0xAU);
    EXPECT_EQ(layout.records[0].end(), layout.records[1].begin);
    EXPECT_FALSE(layout.records[1].damaged);
    EXPECT_EQ(layout.records[1].handle, 0xBU);
    EXPECT_TRUE(layout.hasEnd);
    EXPECT_EQ(layout.problems.at(0).line, 11U);
}

TEST(Recover, ADamagedHeaderGoesOnAtTheNextVariable) {
    const Layout layout =
        recovered("0\nSECTION\n2\nHEADER\n9\n$EXTMIN\nbad\n9\n$ACADVER\n1\nAC1027\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(layout.version, "AC1027");
    EXPECT_EQ(layout.headerVars.size(), 2U);
}

TEST(Recover, ASectionWithoutEndEndsAtTheNext) {
    const Layout layout = recovered(kHead + "0\nSECTION\n2\nOBJECTS\n0\nENDSEC\n0\nEOF\n");
    ASSERT_EQ(layout.sections.size(), 2U);
    EXPECT_FALSE(layout.sections[0].closed);
    EXPECT_EQ(layout.sections[0].end, layout.sections[1].begin);
    EXPECT_EQ(layout.records.size(), 1U);
}

TEST(Recover, ASectionWithoutNameIsDroppedWhenTheFileBreaksOff) {
    const Layout layout = recovered("0\nSECTION\n2\nTABLES\n0\nENDSEC\n0\nSECTION\n");
    EXPECT_EQ(layout.sections.size(), 1U);
    EXPECT_EQ(layout.endTag.begin, std::string("0\nSECTION\n2\nTABLES\n0\nENDSEC\n").size());
}

TEST(Recover, BinaryFilesGoOnAtTheNextRecord) {
    std::string file = samples::written(Form::Binary16);
    const std::size_t marker = file.find("extended") - 2;
    file[marker] = '\x51'; // 81 is no group code of any kind
    file[marker + 1] = 0;
    const Layout layout = recovered(file);
    ASSERT_EQ(layout.records.size(), 2U);
    EXPECT_TRUE(layout.records[0].damaged);
    EXPECT_EQ(layout.records[1].handle, 0x2CFU);
    EXPECT_TRUE(layout.hasEnd);
}

TEST(Recover, ManyProblemsAreCountedButNotAllKept) {
    std::string file = kHead;
    for (int i = 0; i < 1000; ++i) {
        file += "bad\n0\nLINE\n";
    }
    const Layout layout = recovered(file + kTail);
    EXPECT_EQ(layout.problemCount, 1000U);
    EXPECT_EQ(layout.problems.size(), Layout::kMaxProblems);
    EXPECT_EQ(layout.records.size(), 1002U);
}

TEST(Recover, WhatIsNoDrawingAtAllIsStillRefused) {
    EXPECT_FALSE(scan(Image::fromBytes("hello\n"), {true, {}}).ok());
    EXPECT_FALSE(scan(Image::fromBytes(""), {true, {}}).ok());
}

// Each of these takes hours when the time grows with the square of the size.
TEST(Scan, LargeStrangeFilesTakeTimeInProportionToTheirSize) {
    constexpr std::size_t kSize = 10'000'000;
    const std::string begin = "0\nSECTION\n2\nENTITIES\n0\nLINE\n";
    for (const std::string& body :
         {"1\n" + std::string(kSize, 'x') + "\n", std::string(kSize, 'x'), std::string(kSize, '\n'),
          std::string(kSize, ' '), "x\n" + std::string(kSize, '0')}) {
        EXPECT_TRUE(scan(Image::fromBytes(begin + body), {true, {}}).ok());
    }
    std::string zeros;
    while (zeros.size() < kSize) {
        zeros += "\n0\n";
    }
    EXPECT_TRUE(scan(Image::fromBytes(begin + zeros + "x"), {true, {}}).ok());
    EXPECT_TRUE(scan(Image::fromBytes(samples::written(Form::Binary16) + std::string(kSize, '\0')), {true, {}}).ok());
    const std::string cut = samples::written(Form::Binary8).substr(0, 60);
    EXPECT_TRUE(scan(Image::fromBytes(cut + std::string(kSize, '\0')), {true, {}}).ok());
    EXPECT_TRUE(scan(Image::fromBytes(cut + std::string(kSize, '\x51')), {true, {}}).ok());
}

} // namespace
} // namespace quor::dxf
