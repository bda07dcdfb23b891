#include "host/ed/recall.h"

#include <gtest/gtest.h>

namespace quor::ed {
namespace {

TEST(RecallTest, UpGoesBackLineByLineAndStopsAtTheOldest) {
    Recall recall({L"LINE", L"LIST"});
    EXPECT_EQ(*recall.older(L""), L"LIST");
    EXPECT_EQ(*recall.older(L""), L"LINE");
    EXPECT_EQ(recall.older(L""), nullptr);
}

TEST(RecallTest, DownComesBackToWhatWasTyped) {
    Recall recall({L"LINE", L"LIST"});
    (void)recall.older(L"SA");
    (void)recall.older(L"LIST");
    EXPECT_EQ(*recall.newer(), L"LIST");
    EXPECT_EQ(*recall.newer(), L"SA");
    EXPECT_EQ(recall.newer(), nullptr);
}

TEST(RecallTest, NewLineIsTheFirstToComeBack) {
    Recall recall({L"LINE", L"LIST"});
    (void)recall.older(L"");
    EXPECT_TRUE(recall.add(L"SAVE"));
    EXPECT_EQ(*recall.older(L""), L"SAVE");
}

TEST(RecallTest, SameLineTwiceIsKeptOnce) {
    Recall recall({L"LINE"});
    EXPECT_FALSE(recall.add(L"LINE"));
    EXPECT_EQ(*recall.older(L""), L"LINE");
    EXPECT_EQ(recall.older(L""), nullptr);
}

TEST(RecallTest, BlanksAreNotKept) {
    Recall recall;
    EXPECT_FALSE(recall.add(L" "));
    EXPECT_EQ(recall.older(L""), nullptr);
}

} // namespace
} // namespace quor::ed
