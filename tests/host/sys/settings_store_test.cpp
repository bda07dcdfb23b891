#include "host/sys/settings_store.h"

#include "host/texts/text.h"

#include <climits>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using quor::SettingsError;
using quor::SettingsStore;

class Settings : public testing::Test {
protected:
    void SetUp() override {
        quor::setLanguage(quor::Language::Chinese);
        std::string name = testing::TempDir() + "settingsXXXXXX";
        folder_ = ::mkdtemp(name.data());
        file_ = folder_ / "settings.ini";
    }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const std::string& text) const { std::ofstream(file_, std::ios::binary) << text; }
    [[nodiscard]] std::string text() const {
        std::ifstream stream(file_, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    fs::path folder_;
    fs::path file_;
};

TEST_F(Settings, AMissingFileHoldsNothingAndIsNoError) {
    SettingsStore store(file_);
    EXPECT_EQ(store.get(L"Dialogs\\Options", L"allowCurSelectDialog"), std::nullopt);
    EXPECT_FALSE(store.readError());
    EXPECT_FALSE(fs::exists(file_));
}

TEST_F(Settings, AValueThatWasSetIsReadByTheNextProcess) {
    ASSERT_FALSE(SettingsStore(file_).setInt(L"Dialogs\\Options", L"allowCurSelectDialog", 1));
    EXPECT_EQ(text(), "[Dialogs\\Options]\nallowCurSelectDialog = 1\n");
    EXPECT_EQ(SettingsStore(file_).getInt(L"dialogs\\OPTIONS", L"ALLOWcurselectdialog"), 1);
}

TEST_F(Settings, CommentsUnknownLinesAndBadBytesSurviveAChange) {
    write("; top\nloose\n\n[A]\n# about x\n  X=1  \ny = 2\n\n[B]\nx = \xFF\n");
    ASSERT_FALSE(SettingsStore(file_).set(L"a", L"x", L"灯"));
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"z", L"3"));
    EXPECT_EQ(text(), "; top\nloose\n\n[A]\n# about x\nX = 灯\ny = 2\nz = 3\n\n[B]\nx = \xFF\n");
}

TEST_F(Settings, WindowsLineEndsAreKept) {
    write("[A]\r\nx = 1\r\n");
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"y", L"2"));
    EXPECT_EQ(text(), "[A]\r\nx = 1\r\ny = 2\r\n");
    EXPECT_EQ(SettingsStore(file_).get(L"A", L"x"), L"1");
}

TEST_F(Settings, TheLastOfTwoEqualKeysCounts) {
    write("[A]\nx = 1\nx = 2\n");
    EXPECT_EQ(SettingsStore(file_).get(L"A", L"x"), L"2");
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"x", L"3"));
    EXPECT_EQ(text(), "[A]\nx = 1\nx = 3\n");
}

class AnyValue : public Settings, public testing::WithParamInterface<std::wstring> {};

TEST_P(AnyValue, ReadsBackAsItWasSet) {
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"x", GetParam()));
    SettingsStore store(file_);
    EXPECT_EQ(store.get(L"A", L"x"), GetParam());
    EXPECT_EQ(store.get(L"B", L"y"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(All, AnyValue,
                         testing::Values(L"", L" ", L" a ", L"a\nb\r\n[B]\ny = 1", L"\t", L"\"", L"\"a\"", L"\"a",
                                         L"C:\\temp\\new", L" C:\\n", L"a = b # c", L"灯光😀", L"\\", L" \\", L"\x01"));

class BrokenQuotes : public Settings, public testing::WithParamInterface<std::string> {};

TEST_P(BrokenQuotes, CountAsPlainText) {
    write("[A]\nx = " + GetParam() + "\n");
    EXPECT_EQ(SettingsStore(file_).get(L"A", L"x"), std::wstring(GetParam().begin(), GetParam().end()));
}

INSTANTIATE_TEST_SUITE_P(All, BrokenQuotes, testing::Values("\"", "\"a", "\"\\\"", "\"\\q\"", "\"a\\\""));

TEST_F(Settings, WholeNumbersAreReadToTheEndsOfTheirRange) {
    SettingsStore store(file_);
    ASSERT_FALSE(store.setInt(L"A", L"low", INT_MIN));
    ASSERT_FALSE(store.setInt(L"A", L"high", INT_MAX));
    EXPECT_EQ(store.getInt(L"A", L"low"), INT_MIN);
    EXPECT_EQ(store.getInt(L"A", L"high"), INT_MAX);
}

TEST_F(Settings, WhatIsNoWholeNumberIsNoNumber) {
    write("[A]\na = 2147483648\nb = 1x\nc =\nd = 1.5\ne = x\n");
    SettingsStore store(file_);
    EXPECT_EQ(store.getInt(L"A", L"a"), std::nullopt);
    EXPECT_EQ(store.getInt(L"A", L"b"), std::nullopt);
    EXPECT_EQ(store.getInt(L"A", L"c"), std::nullopt);
    EXPECT_EQ(store.getInt(L"A", L"d"), std::nullopt);
    EXPECT_EQ(store.getInt(L"A", L"e"), std::nullopt);
    EXPECT_EQ(store.getInt(L"A", L"f"), std::nullopt);
}

struct Name {
    const wchar_t* section;
    const wchar_t* key;
};

class BadName : public Settings, public testing::WithParamInterface<Name> {};

TEST_P(BadName, IsRefusedAndNothingIsWritten) {
    SettingsStore store(file_);
    const auto error = store.set(GetParam().section, GetParam().key, L"1");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, SettingsError::kBadName);
    EXPECT_EQ(store.get(GetParam().section, GetParam().key), std::nullopt);
    EXPECT_FALSE(fs::exists(file_));
}

INSTANTIATE_TEST_SUITE_P(All, BadName,
                         testing::Values(Name{L"", L"x"}, Name{L"A", L""}, Name{L"A]", L"x"}, Name{L"A", L"x=y"},
                                         Name{L"A", L"#x"}, Name{L"A", L";x"}, Name{L"A", L"[x"}, Name{L"A", L" x"},
                                         Name{L"A\n", L"x"}, Name{L"A", L"x\ny"}, Name{L"A\x202E", L"x"},
                                         Name{L"A", L"x\x009B"}));

TEST_F(Settings, MissingFoldersAreMadeForTheUserAlone) {
    file_ = folder_ / "config" / "quor" / "settings.ini";
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"x", L"1"));
    struct stat info = {};
    ASSERT_EQ(::stat((folder_ / "config").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0700U);
    ASSERT_EQ(::stat(file_.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
}

TEST_F(Settings, NoTemporaryFileIsLeftBehind) {
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"x", L"1"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(Settings, WhereTheFolderCannotBeMadeTheValueHoldsForThisProcess) {
    write("a file, no folder");
    SettingsStore store(file_ / "quor" / "settings.ini");
    const auto error = store.set(L"A", L"x", L"1");
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->reason.empty());
    EXPECT_NE(error->message().find(L"settings.ini"), std::wstring::npos);
    EXPECT_EQ(store.get(L"a", L"X"), L"1");
    EXPECT_EQ(text(), "a file, no folder");
}

TEST_F(Settings, MessagesAreInTheLanguageInUse) {
    fs::create_directory(file_);
    const auto error = SettingsStore(file_).readError();
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->message().ends_with(L"settings.ini: 无法读取设置文件，请检查其权限: 这是文件夹，不是文件"));
    quor::setLanguage(quor::Language::English);
    const auto inEnglish = SettingsStore(file_).readError()->message();
    quor::setLanguage(quor::Language::Chinese);
    EXPECT_TRUE(
        inEnglish.ends_with(L": the settings file cannot be read; check its permissions: it is a folder, not a file"));
}

TEST_F(Settings, AFolderInPlaceOfTheFileIsAnErrorAndStays) {
    fs::create_directory(file_);
    SettingsStore store(file_);
    EXPECT_EQ(store.get(L"A", L"x"), std::nullopt);
    ASSERT_TRUE(store.readError());
    EXPECT_EQ(store.readError()->kind, SettingsError::kCannotRead);
    EXPECT_TRUE(store.set(L"A", L"x", L"1"));
    EXPECT_EQ(store.get(L"A", L"x"), L"1");
    EXPECT_TRUE(fs::is_directory(file_));
}

TEST_F(Settings, AFileThatFailsWhileItIsReadIsAnErrorAndStays) {
    fs::create_symlink("/proc/self/mem", file_);
    SettingsStore store(file_);
    EXPECT_EQ(store.get(L"A", L"x"), std::nullopt);
    ASSERT_TRUE(store.readError());
    EXPECT_EQ(store.readError()->reason, "读写设备时出错");
    EXPECT_TRUE(store.set(L"A", L"x", L"1"));
    EXPECT_EQ(store.get(L"A", L"x"), L"1");
}

TEST_F(Settings, APipeInPlaceOfTheFileIsAnErrorAndNobodyWaits) {
    ASSERT_EQ(::mkfifo(file_.c_str(), 0600), 0);
    const auto error = SettingsStore(file_).readError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "它不是普通文件");
}

TEST_F(Settings, AFileBeyondAllSettingsIsAnErrorAndStays) {
    write("");
    fs::resize_file(file_, (16U << 20U) + 1);
    SettingsStore store(file_);
    ASSERT_TRUE(store.readError());
    EXPECT_EQ(store.readError()->reason, "文件过大");
    EXPECT_TRUE(store.set(L"A", L"x", L"1"));
    EXPECT_EQ(fs::file_size(file_), (16U << 20U) + 1);
}

TEST_F(Settings, AnEmptyPathKeepsValuesForThisProcess) {
    SettingsStore store{fs::path()};
    const auto error = store.set(L"A", L"x", L"1");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, SettingsError::kCannotWrite);
    EXPECT_EQ(store.get(L"A", L"x"), L"1");
}

TEST_F(Settings, AValueThatCouldNotBeWrittenIsWrittenWithTheNext) {
    fs::create_directory(file_);
    SettingsStore store(file_);
    ASSERT_TRUE(store.set(L"A", L"x", L"1"));
    fs::remove(file_);
    ASSERT_FALSE(store.set(L"A", L"y", L"2"));
    EXPECT_EQ(text(), "[A]\nx = 1\ny = 2\n");
}

TEST_F(Settings, WhatAnotherProcessWroteMeanwhileSurvives) {
    SettingsStore first(file_);
    ASSERT_FALSE(first.set(L"A", L"x", L"1"));
    ASSERT_FALSE(SettingsStore(file_).set(L"A", L"y", L"2"));
    ASSERT_FALSE(first.set(L"A", L"z", L"3"));
    EXPECT_EQ(text(), "[A]\nx = 1\ny = 2\nz = 3\n");
}

TEST_F(Settings, ALinkToTheFileStaysALink) {
    write("[A]\n");
    fs::create_symlink(file_, folder_ / "link.ini");
    ASSERT_FALSE(SettingsStore(folder_ / "link.ini").set(L"A", L"x", L"1"));
    EXPECT_TRUE(fs::is_symlink(folder_ / "link.ini"));
    EXPECT_EQ(text(), "[A]\nx = 1\n");
}

TEST(SettingsPath, FollowsTheConfigurationFolderElseTheHomeFolder) {
    ::setenv("HOME", "/home/ann", 1);
    ::setenv("XDG_CONFIG_HOME", "/conf", 1);
    EXPECT_EQ(SettingsStore::defaultPath(), "/conf/quor/settings.ini");
    ::setenv("XDG_CONFIG_HOME", "relative", 1);
    EXPECT_EQ(SettingsStore::defaultPath(), "/home/ann/.config/quor/settings.ini");
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(SettingsStore::defaultPath(), "/home/ann/.config/quor/settings.ini");
    ::unsetenv("HOME");
    EXPECT_EQ(SettingsStore::defaultPath(), "");
}

} // namespace
