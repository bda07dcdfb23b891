#include "host/ed/history.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace quor::ed {
namespace {

class HistoryTest : public testing::Test {
protected:
    void TearDown() override { std::filesystem::remove_all(folder_); }
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("quor-history-" + std::to_string(getpid()));
    std::filesystem::path file_ = folder_ / "deep" / "history";
};

TEST_F(HistoryTest, LinesComeBackInTheOrderTheyWereTyped) {
    History(file_).add(L"点光源");
    History(file_).add(L"LIST");
    EXPECT_EQ(History(file_).load(), (std::vector<ZrString>{L"点光源", L"LIST"}));
}

TEST_F(HistoryTest, FileIsForTheUserAlone) {
    History(file_).add(L"LIST");
    EXPECT_EQ(std::filesystem::status(file_).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(HistoryTest, FileThatHasGrownFarTooLongIsCut) {
    std::filesystem::create_directories(file_.parent_path());
    std::ofstream file(file_);
    for (std::size_t i = 0; i <= 2 * History::kMostLines; ++i)
        file << "line " << i << '\n';
    file.close();
    const std::vector<ZrString> lines = History(file_).load();
    ASSERT_EQ(lines.size(), History::kMostLines);
    EXPECT_EQ(lines.back(), L"line 2000");
    EXPECT_LT(std::filesystem::file_size(file_), 11 * (History::kMostLines + 1));
}

TEST_F(HistoryTest, PlaceThatCannotBeWrittenIsNoError) {
    const History history("/proc/nowhere/history");
    history.add(L"LIST");
    EXPECT_TRUE(history.load().empty());
}

} // namespace
} // namespace quor::ed
