#include "host/commands/progress.h"

#include "tests/support/silent_front_end.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace quor::commands {

namespace {

// Keeps what it is told.
class Teller : public test::SilentFrontEnd {
public:
    void progress(std::wstring_view, double fraction) override { told.push_back(fraction); }

    std::vector<double> told;
};

class BrokenFrontEnd : public test::SilentFrontEnd {
public:
    void progress(std::wstring_view, double) override { throw std::runtime_error("the display is gone"); }
};

void go(Progress& progress, int steps) {
    for (int i = 0; i < steps; ++i)
        progress.step();
}

TEST(TheProgress, IsToldNowAndThenAndAtTheEnd) {
    Teller front;
    {
        Progress progress(front, L"Reading", 4096);
        go(progress, 4096);
    }

    EXPECT_EQ(front.told, std::vector<double>({0.25, 0.5, 0.75, 1}));
}

TEST(TheProgress, OfLittleWorkIsToldAtItsEndOnly) {
    Teller front;
    {
        Progress progress(front, L"Reading", 1023);
        go(progress, 1023);
    }

    EXPECT_EQ(front.told, std::vector<double>({1}));
}

TEST(TheProgress, IsTakenAwayFromABrokenDisplayWithoutEndingTheProgram) {
    BrokenFrontEnd front;

    EXPECT_NO_THROW(Progress(front, L"Reading", 1));
}

TEST(TheProgress, LetsTheErrorThroughThatBrokeTheWorkOff) {
    BrokenFrontEnd front;
    const auto work = [&] {
        const Progress progress(front, L"Reading", 1);
        throw std::logic_error("of the work");
    };

    EXPECT_THROW(work(), std::logic_error);
}

} // namespace

} // namespace quor::commands
