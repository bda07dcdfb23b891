#include "host/dxf/image.h"

#include "tests/host/dxf/scratch_folder.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quor::dxf {
namespace {

TEST(Image, HoldsTheFileByteForByteWithLineFeedsBehind) {
    const ScratchFolder folder;
    const std::string content = std::string("a\0b\r\n", 5) + std::string(100'000, 'x');
    put(folder / "plan.dxf", content);
    const auto image = Image::read(folder / "plan.dxf");
    ASSERT_TRUE(image.ok());
    EXPECT_EQ(image->bytes(), content);
    EXPECT_EQ(image->data()[image->size()], '\n');
    EXPECT_EQ(image->data()[image->size() + Image::kPadding - 1], '\n');
    EXPECT_EQ(image->bytes(2, 4), "b\r");
}

TEST(Image, MovesWithoutCopying) {
    Image first = Image::fromBytes("abc");
    const char* place = first.data();
    const Image second = std::move(first);
    EXPECT_EQ(second.data(), place);
    EXPECT_EQ(second.bytes(), "abc");
}

TEST(Image, ReadingFailsWithTheReason) {
    const ScratchFolder folder;
    put(folder / "empty.dxf", "");
    ::mkfifo((folder / "pipe").c_str(), 0600);

    const auto missing = Image::read(folder / "missing.dxf");
    EXPECT_EQ(missing.error().kind, Error::Kind::CannotOpen);
    EXPECT_EQ(missing.error().systemError, ENOENT);
    EXPECT_EQ(Image::read(folder / "").error().systemError, EISDIR);
    EXPECT_EQ(Image::read(folder / "pipe").error().kind, Error::Kind::CannotOpen);
    EXPECT_EQ(Image::read(folder / "empty.dxf").error().kind, Error::Kind::Empty);
}

} // namespace
} // namespace quor::dxf
