#include "console/terminal_keys.h"

#include <gtest/gtest.h>

#include <string_view>
#include <unistd.h>

using quor::console::TerminalKeys;

namespace {

constexpr wchar_t kEscape = 27;

// Keys from a pipe that stays open, as a terminal does.
class Keys : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(pipe(ends_), 0); }
    void TearDown() override {
        close(ends_[0]);
        close(ends_[1]);
    }
    void type(std::string_view bytes) const {
        ASSERT_EQ(write(ends_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    std::wstring next(std::size_t count) {
        TerminalKeys keys(ends_[0], [] {});
        std::wstring read(count, L'?');
        for (wchar_t& c : read)
            keys.next(c);
        return read;
    }

    int ends_[2] = {-1, -1};
};

TEST_F(Keys, EscAloneIsCtrlC) {
    type("\x1b");
    EXPECT_EQ(next(1), std::wstring(1, TerminalKeys::kCtrlC));
}

TEST_F(Keys, EscAtTheStartOfASequenceStaysAsItIs) {
    type("\x1b[A");
    EXPECT_EQ(next(3), std::wstring({kEscape, L'[', L'A'}));
}

TEST_F(Keys, EscBehindOtherKeysIsCtrlCToo) {
    type("灯\x1b");
    EXPECT_EQ(next(2), std::wstring({L'灯', TerminalKeys::kCtrlC}));
}

} // namespace
