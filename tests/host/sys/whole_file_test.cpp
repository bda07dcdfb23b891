#include "host/sys/whole_file.h"

#include "tests/support/test_session.h"

#include <cerrno>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <gtest/gtest.h>

namespace quor {
namespace {

constexpr std::size_t kPlenty = 1U << 20;

// A socket in the file system, there as long as the object.
class Socket {
public:
    [[nodiscard]] std::filesystem::path bind(const std::filesystem::path& path) const {
        sockaddr_un address{AF_UNIX, {}};
        path.native().copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(socket_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        return path;
    }

private:
    Descriptor socket_{::socket(AF_UNIX, SOCK_STREAM, 0)};
};

class WholeFile : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path write(const std::string& text) const {
        std::ofstream(file_, std::ios::binary) << text;
        return file_;
    }
    [[nodiscard]] std::filesystem::path makePipe() const {
        EXPECT_EQ(::mkfifo(file_.c_str(), 0600), 0);
        return file_;
    }

    Socket socket_;
    test::TemporaryFolder folder_;
    std::filesystem::path file_ = folder_.path() / "file";
};

TEST_F(WholeFile, IsReadByteForByte) {
    const std::string text("a\r\n\0\xFF", 5);
    EXPECT_EQ(*readWholeFile(write(text), kPlenty), text);
}

TEST_F(WholeFile, IsReadWhenItIsEmpty) { EXPECT_EQ(*readWholeFile(write(""), kPlenty), ""); }

TEST_F(WholeFile, IsReadWhenItIsAsLargeAsTheLimit) {
    const std::string text(10'000, 'x');
    EXPECT_EQ(*readWholeFile(write(text), text.size()), text);
}

TEST_F(WholeFile, OfOneByteMoreThanTheLimitIsTooLarge) {
    EXPECT_EQ(readWholeFile(write(std::string(10'001, 'x')), 10'000).error(), EFBIG);
    EXPECT_EQ(readWholeFile(write("x"), 0).error(), EFBIG);
}

TEST_F(WholeFile, IsReadWhereTheSystemTellsNoSize) {
    const Result<std::string, int> text = readWholeFile("/proc/self/status", kPlenty);
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->starts_with("Name:"));
}

TEST_F(WholeFile, WithoutASizeIsTooLargeBeyondTheLimit) {
    EXPECT_EQ(readWholeFile("/proc/self/status", 10).error(), EFBIG);
}

TEST_F(WholeFile, ThatIsNotThereIsAnError) { EXPECT_EQ(readWholeFile(file_, kPlenty).error(), ENOENT); }

TEST_F(WholeFile, BehindAFileInPlaceOfAFolderIsAnError) {
    EXPECT_EQ(readWholeFile(write("x") / "y", kPlenty).error(), ENOTDIR);
}

TEST_F(WholeFile, ThatIsAFolderIsAnError) {
    EXPECT_EQ(readWholeFile(folder_.path(), kPlenty).error(), EISDIR);
    EXPECT_EQ(readWholeFile(folder_.path(), kPlenty, FileKinds::All).error(), EISDIR);
}

TEST_F(WholeFile, ThatFailsWhileItIsReadIsAnError) {
    EXPECT_EQ(readWholeFile("/proc/self/mem", kPlenty).error(), EIO);
    EXPECT_EQ(readWholeFile("/proc/self/mem", kPlenty, FileKinds::All).error(), EIO);
}

TEST_F(WholeFile, ThatIsAPipeOrADeviceIsRefusedWithoutWaiting) {
    EXPECT_EQ(readWholeFile(makePipe(), kPlenty).error(), ENODEV);
    EXPECT_EQ(readWholeFile("/dev/zero", kPlenty).error(), ENODEV);
    EXPECT_EQ(readWholeFile(socket_.bind(folder_.path() / "socket"), kPlenty).error(), ENODEV);
}

TEST_F(WholeFile, ThatIsAPipeIsReadToItsEndWhereAllKindsAreWanted) {
    const std::filesystem::path pipe = makePipe();
    std::thread writer([&] { std::ofstream(pipe) << "piped"; });
    const Result<std::string, int> text = readWholeFile(pipe, kPlenty, FileKinds::All);
    writer.join();
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, "piped");
}

TEST_F(WholeFile, ThatNeverEndsIsTooLarge) {
    EXPECT_EQ(readWholeFile("/dev/zero", 100'000, FileKinds::All).error(), EFBIG);
}

TEST_F(WholeFile, IsLeftOpenToBeLookedAt) {
    const Result<OpenFile, int> file = openFile(write("abc"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->status.st_size, 3);
    EXPECT_EQ(*readToEnd(*file, kPlenty), "abc");
}

TEST(Descriptor, ClosesItsFileWithItsLife) {
    int number = -1;
    {
        const Descriptor null(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        number = null.get();
        ASSERT_TRUE(null.isOpen());
    }
    EXPECT_EQ(::fcntl(number, F_GETFD), -1);
    EXPECT_EQ(errno, EBADF);
}

TEST(Descriptor, ThatWasMovedFromOwnsNothing) {
    Descriptor first(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    const int number = first.get();
    const Descriptor second(std::move(first));
    EXPECT_EQ(second.get(), number);
    EXPECT_FALSE(first.isOpen()); // NOLINT(bugprone-use-after-move)
    EXPECT_TRUE(first.close());
    EXPECT_NE(::fcntl(number, F_GETFD), -1);
}

} // namespace
} // namespace quor
