#include "light/lightcmd/replies.h"

#include <gtest/gtest.h>

namespace quor::light {
namespace {

TEST(CheckReplyLength, AReplyOf259CharactersIsAnAnswer) {
    EXPECT_EQ(checkReplyLength(RTNORM, ZrString(259, L'字')), RTNORM);
}

TEST(CheckReplyLength, AReplyOf260CharactersIsTooLong) {
    EXPECT_EQ(checkReplyLength(RTNORM, ZrString(260, L'字')), replyTooLong);
}

TEST(CheckReplyLength, AnEmptyReplyIsAnAnswer) { EXPECT_EQ(checkReplyLength(RTNORM, L""), RTNORM); }

TEST(CheckReplyLength, OtherResultsStay) {
    EXPECT_EQ(checkReplyLength(RTCAN, L""), RTCAN);
    EXPECT_EQ(checkReplyLength(RTNONE, L""), RTNONE);
    EXPECT_EQ(checkReplyLength(RTERROR, L"abc"), RTERROR);
}

TEST(CutTo, ALongerReplyLosesWhatIsBehindTheLimit) {
    ZrString reply = L"abcd";

    cutTo(reply, 3);

    EXPECT_EQ(reply, L"abc");
}

TEST(CutTo, AReplyWithinTheLimitStays) {
    ZrString reply = L"abc";

    cutTo(reply, 3);

    EXPECT_EQ(reply, L"abc");
}

} // namespace
} // namespace quor::light
