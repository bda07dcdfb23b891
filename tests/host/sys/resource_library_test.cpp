#include "host/sys/resource_library.h"

#include "host/sys/problem_report.h"
#include "host/texts/text.h"

#include <gtest/gtest.h>

#include <fstream>

using quor::sys::ResourceLibrary;
using quor::sys::ResourceModule;
using quor::sys::ResourceProblem;

namespace {

struct Reading {
    ResourceModule module{"pack.txt"};
    std::vector<ResourceProblem> problems;

    explicit Reading(std::string_view bytes) { module.read(bytes, problems); }
    ZrString text(unsigned number) const { return module.find(number) != nullptr ? *module.find(number) : L"-"; }
};

// A resource folder with one English module.
class ResourceFolder : public testing::Test {
protected:
    ResourceFolder() {
        quor::setLanguage(quor::Language::Chinese);
        std::filesystem::create_directories(folder_ / "lang" / "en");
        std::ofstream(folder_ / "lang" / "en" / "pack.txt") << "1 = \"one %d\"\n2 = \"two %s\"\n";
    }
    ~ResourceFolder() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path folder_ = testing::TempDir() + "quor_resources";
};

} // namespace

TEST(ResourceModule, ReadsNumbersAndTexts) {
    const Reading reading("1 = \"one\"\n 4294967295=\"光源\" # the last\r\n\n# comment\n3 = \"\"");
    EXPECT_TRUE(reading.problems.empty());
    EXPECT_EQ(reading.text(1), L"one");
    EXPECT_EQ(reading.text(4294967295U), L"光源");
    EXPECT_EQ(reading.text(3), L"");
    EXPECT_EQ(reading.text(2), L"-");
}

TEST(ResourceModule, ReadsEscapes) {
    const Reading reading(R"(1 = "\n\t\"\\\x41\u5149#")");
    EXPECT_EQ(reading.text(1), L"\n\t\"\\A光#");
}

TEST(ResourceModule, SkipsAByteOrderMark) {
    EXPECT_EQ(Reading("\xEF\xBB\xBF"
                      "1 = \"one\"")
                  .text(1),
              L"one");
}

TEST(ResourceModule, WrongLineIsReportedWithItsNumberAndTheOthersCount) {
    const Reading reading("1 = \"one\"\nx = \"no\"\n3 = \"three\"");
    ASSERT_EQ(reading.problems.size(), 1U);
    EXPECT_EQ(reading.problems[0].line, 2);
    EXPECT_EQ(reading.problems[0].file, "pack.txt");
    EXPECT_EQ(reading.text(3), L"three");
}

class WrongResourceLine : public testing::TestWithParam<const char*> {};

TEST_P(WrongResourceLine, IsLeftOut) {
    const Reading reading(GetParam());
    EXPECT_EQ(reading.problems.size(), 1U);
    EXPECT_EQ(reading.module.size(), 0U);
}

INSTANTIATE_TEST_SUITE_P(All, WrongResourceLine,
                         testing::Values("= \"a\"", "-1 = \"a\"", "4294967296 = \"a\"", "1 \"a\"", "1 = a", "1 = \"a",
                                         "1 = \"a\\\"", "1 = \"a\" b", "1 = \"\\q\"", "1 = \"\\x4\"", "1 = \"\\u123g\"",
                                         "1 = \"\\ud800\"", "1 = \"\\x00\"", "1 = \"\xFF\""));

TEST(ResourceModule, SecondTextOfANumberIsRefused) {
    const Reading reading("1 = \"one\"\n1 = \"again\"");
    ASSERT_EQ(reading.problems.size(), 1U);
    EXPECT_EQ(reading.problems[0].line, 2);
    EXPECT_EQ(reading.text(1), L"one");
}

TEST(ResourceModule, TextWithOtherPlaceholdersIsTakenOut) {
    Reading reading("1 = \"one %d\"\n2 = \"two %s\"\n3 = \"three\"");
    const ZwResourceText builtIn[] = {{1, L"一 %d"}, {2, L"二 %d"}, {4, L"四 %s"}};
    reading.module.check(builtIn, reading.problems);
    ASSERT_EQ(reading.problems.size(), 1U);
    EXPECT_EQ(reading.problems[0].line, 2);
    EXPECT_EQ(reading.text(1), L"one %d");
    EXPECT_EQ(reading.text(2), L"-");
    EXPECT_EQ(reading.text(3), L"three");
}

TEST_F(ResourceFolder, ModuleIsLoadedOnce) {
    ResourceLibrary library(folder_, L"en");
    const ZwResourceHandle first = library.load(L"pack");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(library.load(L"pack"), first);
}

TEST_F(ResourceFolder, LanguageWithoutTheModuleHasNone) {
    ResourceLibrary library(folder_, L"zh");
    EXPECT_EQ(library.load(L"pack"), nullptr);
    EXPECT_TRUE(library.problems().empty());
}

TEST_F(ResourceFolder, NameThatLeadsOutOfTheFolderIsNoModule) {
    EXPECT_EQ(ResourceLibrary(folder_, L"zh").load(L"../en/pack"), nullptr);
    EXPECT_EQ(ResourceLibrary(folder_ / "lang" / "zh", L"..").load(L"pack"), nullptr);
}

TEST_F(ResourceFolder, FolderInPlaceOfAFileIsReported) {
    std::filesystem::create_directories(folder_ / "lang" / "en" / "odd.txt");
    ResourceLibrary library(folder_, L"en");
    EXPECT_EQ(library.load(L"odd"), nullptr);
    ASSERT_EQ(library.problems().size(), 1U);
    EXPECT_EQ(library.problems()[0].reason, L"无法读取文件(这是文件夹，不是文件)，改用内置文本");
}

TEST_F(ResourceFolder, FileThatFailsWhileItIsReadIsReported) {
    std::filesystem::create_symlink("/proc/self/mem", folder_ / "lang" / "en" / "odd.txt");
    ResourceLibrary library(folder_, L"en");
    EXPECT_EQ(library.load(L"odd"), nullptr);
    ASSERT_EQ(library.problems().size(), 1U);
    EXPECT_EQ(library.problems()[0].reason, L"无法读取文件(读写设备时出错)，改用内置文本");
}

TEST_F(ResourceFolder, WhatIsRefusedGoesToTheReporterWithoutControlCharacters) {
    std::ofstream(folder_ / "lang" / "en" / "od\x1B.txt") << "1 = \"one\" \x1B[2J\n";
    std::vector<ZrString> reported;
    quor::setProblemReporter([&](const ZrString& message) { reported.push_back(message); });
    EXPECT_NE(ResourceLibrary(folder_, L"en").load(L"od\x1B"), nullptr);
    quor::setProblemReporter(nullptr);
    ASSERT_EQ(reported.size(), 1U);
    EXPECT_TRUE(reported[0].ends_with(L"od^[.txt，第 1 行: 文本之后有多余字符“^[[2J”，已忽略该行"));
}

TEST_F(ResourceFolder, CheckAnswersHowManyTextsWereTakenOut) {
    ResourceLibrary library(folder_, L"en");
    const ZwResourceHandle module = library.load(L"pack");
    const ZwResourceText builtIn[] = {{1, L"%s"}, {2, L"%d"}};
    EXPECT_EQ(library.check(module, builtIn), 2);
    EXPECT_EQ(library.check(nullptr, builtIn), 0);
    EXPECT_EQ(library.problems().size(), 2U);
}

TEST_F(ResourceFolder, HandleOutlivesTheLibrary) {
    const ZwResourceHandle module = ResourceLibrary(folder_, L"en").load(L"pack");
    wchar_t buffer[20];
    EXPECT_EQ(LoadStringW(module, 1, buffer, 20), 6);
    EXPECT_STREQ(buffer, L"one %d");
}

TEST_F(ResourceFolder, LoadStringCutsAtTheSizeOfTheBuffer) {
    ResourceLibrary library(folder_, L"en");
    wchar_t buffer[4] = {};
    EXPECT_EQ(LoadStringW(library.load(L"pack"), 1, buffer, 4), 3);
    EXPECT_STREQ(buffer, L"one");
    EXPECT_EQ(LoadStringW(library.load(L"pack"), 1, buffer, 1), 0);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(LoadStringW(library.load(L"pack"), 1, buffer, 0), 0);
}

TEST(LoadString, NullHandleGivesAnEmptyText) {
    wchar_t buffer[4] = L"abc";
    EXPECT_EQ(LoadStringW(nullptr, 1, buffer, 4), 0);
    EXPECT_STREQ(buffer, L"");
}
