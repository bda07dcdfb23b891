#include "console/progress_line.h"

#include <gtest/gtest.h>

namespace quor::console {
namespace {

using namespace std::chrono_literals;
using Action = ProgressMeter::Action;

class ProgressTest : public testing::Test {
protected:
    ProgressMeter::Clock clock() {
        return [this] { return now_; };
    }
    ProgressMeter::Time now_{};
};

TEST_F(ProgressTest, NothingIsShownWithinTheFirstSecond) {
    ProgressMeter meter(clock());
    EXPECT_EQ(meter.update(0.1), Action::Nothing);
    now_ += 999ms;
    EXPECT_EQ(meter.update(0.9), Action::Nothing);
    EXPECT_EQ(meter.update(1), Action::Nothing);
}

TEST_F(ProgressTest, AfterASecondItIsDrawnTenTimesASecond) {
    ProgressMeter meter(clock());
    EXPECT_EQ(meter.update(0.1), Action::Nothing);
    now_ += 1000ms;
    EXPECT_EQ(meter.update(0.2), Action::Draw);
    now_ += 99ms;
    EXPECT_EQ(meter.update(0.3), Action::Nothing);
    now_ += 1ms;
    EXPECT_EQ(meter.update(0.4), Action::Draw);
}

TEST_F(ProgressTest, TheEndTakesItAwayAndTheNextWorkStartsAnew) {
    ProgressMeter meter(clock());
    EXPECT_EQ(meter.update(0), Action::Nothing);
    now_ += 1000ms;
    EXPECT_EQ(meter.update(0.5), Action::Draw);
    EXPECT_EQ(meter.update(1), Action::Remove);
    EXPECT_EQ(meter.update(0), Action::Nothing);
    now_ += 500ms;
    EXPECT_EQ(meter.update(0.5), Action::Nothing);
}

TEST_F(ProgressTest, LineIsClearedBeforeOutputIsWritten) {
    std::string screen;
    const ByteSink sink = [&](std::string_view bytes) {
        screen += bytes;
        return 0;
    };
    Output output(sink);
    ProgressLine line(sink, &output, clock());

    line.update(L"灯光.scr", 0.1);
    now_ += 1000ms;
    line.update(L"灯光.scr", 0.426);
    output.print(L"找到 1 个\n");
    output.flush();

    EXPECT_EQ(screen, "\r\x1b[K灯光.scr 42%\r\x1b[K找到 1 个\n");
}

TEST_F(ProgressTest, LineIsNotDrawnBehindHalfALineOfOutput) {
    std::string screen;
    const ByteSink sink = [&](std::string_view bytes) {
        screen += bytes;
        return 0;
    };
    Output output(sink);
    ProgressLine line(sink, &output, clock());
    output.print(L"命令: ");
    output.flush();

    line.update(L"x", 0.1);
    now_ += 1000ms;
    line.update(L"x", 0.5);

    EXPECT_EQ(screen, "命令: ");
}

} // namespace
} // namespace quor::console
