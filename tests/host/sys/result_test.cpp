#include "host/sys/result.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace quor {
namespace {

Result<int, std::string> half(int number) {
    if (number % 2 != 0) {
        return fail(std::string("odd"));
    }
    return number / 2;
}

TEST(Result, HoldsAValue) {
    const auto result = half(4);
    EXPECT_TRUE(result.ok());
    EXPECT_EQ(*result, 2);
    EXPECT_EQ(result.valueOr(9), 2);
}

TEST(Result, HoldsAnError) {
    const auto result = half(3);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.error(), "odd");
    EXPECT_EQ(result.valueOr(9), 9);
}

TEST(Result, ValueAndErrorMayBeOfOneType) {
    const Result<std::string, std::string> good = std::string("a");
    const Result<std::string, std::string> bad = fail(std::string("b"));
    EXPECT_TRUE(good.ok());
    EXPECT_FALSE(bad.ok());
}

TEST(Result, AValueThatCannotBeCopiedIsMovedOut) {
    Result<std::unique_ptr<int>, std::string> result = std::make_unique<int>(7);
    const std::unique_ptr<int> moved = std::move(result).value();
    EXPECT_EQ(*moved, 7);
}

TEST(Result, SuccessWithoutValue) {
    const Result<void, int> good;
    const Result<void, int> bad = fail(5);
    EXPECT_TRUE(good.ok());
    EXPECT_FALSE(bad.ok());
    EXPECT_EQ(bad.error(), 5);
}

} // namespace
} // namespace quor
