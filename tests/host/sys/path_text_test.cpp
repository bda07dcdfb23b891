#include "host/sys/path_text.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace quor {
namespace {

namespace fs = std::filesystem;

TEST(PathFromText, TakesBlanksAndQuotationMarksOff) {
    EXPECT_EQ(pathFromText(L"  a b.dxf \t"), fs::path("a b.dxf"));
    EXPECT_EQ(pathFromText(L"\"a b.dxf\""), fs::path("a b.dxf"));
    EXPECT_EQ(pathFromText(L"'a.dxf'"), fs::path("a.dxf"));
}

TEST(PathFromText, AQuotationMarkOnOneSideBelongsToTheName) {
    EXPECT_EQ(pathFromText(L"\"a.dxf"), fs::path("\"a.dxf"));
    EXPECT_EQ(pathFromText(L"\""), fs::path("\""));
}

TEST(PathFromText, KeepsChineseNames) { EXPECT_EQ(pathFromText(L"办公室.dxf").native(), "办公室.dxf"); }

TEST(PathFromText, ATildeBeforeASlashIsTheHomeFolder) {
    const char* home = std::getenv("HOME");
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(pathFromText(L"~/a.dxf"), fs::path(home) / "a.dxf");
    EXPECT_EQ(pathFromText(L"~a.dxf"), fs::path("~a.dxf"));
}

TEST(AbsolutePath, StartsAtTheWorkingFolderAndHasNoDots) {
    EXPECT_EQ(absolutePath("a/./b/../c.ies"), fs::current_path() / "a" / "c.ies");
    EXPECT_EQ(absolutePath("/lamps/../a.ies"), fs::path("/a.ies"));
}

} // namespace
} // namespace quor
