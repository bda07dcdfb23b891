#include "sdk/sys/files.h"

#include "host/sys/path_text.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quor {
namespace {

class PathFileExists : public testing::Test {
protected:
    [[nodiscard]] ZrString inFolder(const char* name) const { return textOf(folder_.path() / name); }
    void make(const char* name) const { std::ofstream(folder_.path() / name) << "x"; }

    test::TemporaryFolder folder_;
};

TEST_F(PathFileExists, AFileExistsAndAnotherNameDoesNot) {
    make("a.ies");

    EXPECT_TRUE(PathFileExistsW(inFolder("a.ies").c_str()));
    EXPECT_FALSE(PathFileExistsW(inFolder("b.ies").c_str()));
    EXPECT_FALSE(PathFileExistsW(inFolder("a.ies/b.ies").c_str()));
}

TEST_F(PathFileExists, AFolderExists) { EXPECT_TRUE(PathFileExistsW(textOf(folder_.path()).c_str())); }

TEST_F(PathFileExists, NamesAreUtf8OnDisk) {
    make("射灯.ies");

    EXPECT_TRUE(PathFileExistsW(inFolder("射灯.ies").c_str()));
}

TEST_F(PathFileExists, ALinkExistsWhenWhatItLeadsToDoes) {
    make("a.ies");
    std::filesystem::create_symlink("a.ies", folder_.path() / "good.ies");
    std::filesystem::create_symlink("none.ies", folder_.path() / "broken.ies");

    EXPECT_TRUE(PathFileExistsW(inFolder("good.ies").c_str()));
    EXPECT_FALSE(PathFileExistsW(inFolder("broken.ies").c_str()));
}

TEST_F(PathFileExists, NoPathAndANameThatNoFileCanHaveDoNotExist) {
    const ZrString endless(100000, L'a');

    EXPECT_FALSE(PathFileExistsW(nullptr));
    EXPECT_FALSE(PathFileExistsW(L""));
    EXPECT_FALSE(PathFileExistsW(endless.c_str()));
}

} // namespace
} // namespace quor
