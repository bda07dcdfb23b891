#include "host/ed/recent_commands.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace quor::ed {
namespace {

using Names = std::vector<ZrString>;

class RecentCommandsTest : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove_all(file_); }
    std::filesystem::path file_ =
        std::filesystem::temp_directory_path() / ("quor-commands-" + std::to_string(getpid()));
};

TEST_F(RecentCommandsTest, LastOneComesFirstAndEachOnce) {
    RecentCommands recent{History(file_)};
    recent.add(L"LINE");
    recent.add(L"LIST");
    recent.add(L"LINE");
    EXPECT_EQ(recent.names(), (Names{L"LINE", L"LIST"}));
}

TEST_F(RecentCommandsTest, NextSessionKnowsThem) {
    RecentCommands first{History(file_)};
    first.add(L"LINE");
    first.add(L"LIST");
    EXPECT_EQ(RecentCommands{History(file_)}.names(), (Names{L"LIST", L"LINE"}));
}

TEST_F(RecentCommandsTest, OnlyTheLastTenAreKept) {
    RecentCommands recent{History(file_)};
    for (wchar_t c = L'A'; c <= L'L'; ++c)
        recent.add(ZrString(1, c));
    EXPECT_EQ(recent.names(), (Names{L"L", L"K", L"J", L"I", L"H", L"G", L"F", L"E", L"D", L"C"}));
}

TEST_F(RecentCommandsTest, WithoutAFileTheyLastForTheSession) {
    RecentCommands recent{History({})};
    recent.add(L"LINE");
    EXPECT_EQ(recent.names(), (Names{L"LINE"}));
}

} // namespace
} // namespace quor::ed
