#include "host/sys/placeholder.h"

#include <gtest/gtest.h>

using quor::sys::placeholderKinds;
using quor::sys::placeholders;

TEST(PlaceholderKinds, AreListedInOrder) { EXPECT_EQ(placeholderKinds(L"%s [%d] <%5.2f> %c"), L"swrc"); }

TEST(PlaceholderKinds, DoNotDependOnWidthOrLength) {
    EXPECT_EQ(placeholderKinds(L"%-10ls %+5ld %.1e"), placeholderKinds(L"%S %u %g"));
}

TEST(PlaceholderKinds, PercentSignsAreNone) { EXPECT_EQ(placeholderKinds(L"100%% 5% %"), L""); }

TEST(PlaceholderKinds, OrderMatters) { EXPECT_NE(placeholderKinds(L"%s %d"), placeholderKinds(L"%d %s")); }

TEST(Placeholders, AreShownAsTheyStand) { EXPECT_EQ(placeholders(L"a %-5s b %.2lf%%"), L"%-5s %.2lf"); }
