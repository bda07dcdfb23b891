#include "host/autosave/copy_info.h"

#include "host/autosave/pace.h"

#include <gtest/gtest.h>

namespace quor::autosave {
namespace {

TEST(CopyInfoTest, EveryValueComesBackAsItWas) {
    const CopyInfo info{L"/home/图/a = b\n# \xDC80 .dxf", L" 平面\t\"1\" ", 1795318000};
    const CopyInfo read = copyInfoIn(bytesOf(info));
    EXPECT_EQ(read.path, info.path);
    EXPECT_EQ(read.title, info.title);
    EXPECT_EQ(read.time, info.time);
}

TEST(CopyInfoTest, IsReadableText) {
    const std::string text = bytesOf({L"/plans/a.dxf", L"a.dxf", 7});
    EXPECT_NE(text.find("Path = /plans/a.dxf\n"), std::string::npos);
}

TEST(CopyInfoTest, WhatIsNoSuchTextIsEmpty) {
    const CopyInfo read = copyInfoIn("\x00\xFFnonsense");
    EXPECT_TRUE(read.path.empty());
    EXPECT_EQ(read.time, 0);
}

TEST(PaceTest, ASmallDrawingIsCopiedAfterTwoSeconds) { EXPECT_EQ(waitAfter(0.01, 600), 2); }

TEST(PaceTest, ALargeOneTakesATwentiethOfTheTime) { EXPECT_EQ(waitAfter(1.5, 600), 30); }

TEST(PaceTest, TheLongestTimeHoldsWhateverItCosts) { EXPECT_EQ(waitAfter(60, 600), 600); }

} // namespace
} // namespace quor::autosave
