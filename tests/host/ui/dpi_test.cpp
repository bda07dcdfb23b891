#include "host/ui/dpi.h"

#include "sdk/ui/dpi.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

class ScreenDpi : public testing::Test {
protected:
    ~ScreenDpi() override { ui::setScreenDpi(ui::kReferenceDpi); }
};

TEST_F(ScreenDpi, IsNinetySixAtFirst) {
    EXPECT_EQ(ZkUiGetDisplayScale(), 1.0);
    EXPECT_EQ(ZkUiGetCtrlDPISize(25), 25);
}

TEST_F(ScreenDpi, ScalesLengthsToTheNearestPixel) {
    ui::setScreenDpi(144);

    EXPECT_EQ(ZkUiGetDisplayScale(), 1.5);
    EXPECT_EQ(ZkUiGetCtrlDPISize(20), 30);
    EXPECT_EQ(ZkUiGetCtrlDPISize(3), 5);
    EXPECT_EQ(ZkUiGetCtrlDPISize(-20), -30);
}

TEST_F(ScreenDpi, IgnoresValuesThatNoScreenHas) {
    ui::setScreenDpi(192);

    ui::setScreenDpi(0);

    EXPECT_EQ(ZkUiGetDisplayScale(), 2.0);
}

} // namespace
} // namespace quor
