// How much memory reading takes. This test program counts what is asked of the heap.
#include "tests/host/ies/web_text.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t largestRequest = 0;

}

void* operator new(std::size_t size) {
    largestRequest = std::max(largestRequest, size);
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace quor::ies {
namespace {

// The largest piece of memory that was asked for while the text was read.
std::size_t largestWhileReading(const std::string& text) {
    largestRequest = 0;
    (void)readWeb(text);
    return largestRequest;
}

std::string repeated(const std::string& text, std::size_t times) {
    std::string result;
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

constexpr std::size_t kLittle = std::size_t{64} * 1024;

TEST(Memory, IsInProportionToTheNumbersThatAreThereNotToTheCounts) {
    const std::string text =
        WebText{.header = "1 -1 1 10000 10000 1 2 0 0 0\n", .vertical = "0 .01 .02\n", .horizontal = "", .candela = ""}
            .text();

    EXPECT_LT(largestWhileReading(text), kLittle);
    EXPECT_EQ(refusedText(text).kind, Error::Kind::MissingNumber);
}

TEST(Memory, OfManyPlanesWithoutTheirNumbersIsLittle) {
    std::string planes;
    for (int i = 0; i < 10000; ++i)
        planes += std::to_string(i * 0.036) + "\n";
    const std::string text =
        WebText{.header = "1 -1 1 3 10000 1 2 0 0 0\n", .horizontal = planes, .candela = "1 2 3\n"}.text();

    EXPECT_LE(largestWhileReading(text), 16384 * sizeof(double));
    EXPECT_EQ(refusedText(text).kind, Error::Kind::MissingNumber);
}

TEST(Memory, OfTheTiltIsNotTakenAheadEither) {
    EXPECT_LT(largestWhileReading(WebText{.tilt = "TILT=INCLUDE 1 10000\n"}.text()), kLittle);
}

TEST(Memory, OfAFileOfNothingButKeywordsIsBounded) {
    constexpr std::size_t kMostOfAKeyword = 1024 * sizeof(Keyword);

    EXPECT_LE(largestWhileReading("IESNA91\n" + repeated("[]\n", 100000) + "TILT=NONE\n"), kMostOfAKeyword);
}

} // namespace
} // namespace quor::ies
