#include "host/dxf/image.h"

#include "host/sys/descriptor.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>

namespace quor::dxf {
namespace {

Failure<Error> failure(Error::Kind kind, int systemError) {
    Error error;
    error.kind = kind;
    error.systemError = systemError;
    return fail(std::move(error));
}

// Reads up to size bytes; the count, or -1 with errno set.
ssize_t readAll(int fd, char* buffer, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got = ::read(fd, buffer + done, size - done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return -1;
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return static_cast<ssize_t>(done);
}

} // namespace

void UnmapMemory::operator()(char* memory) const { ::munmap(memory, capacity); }

// Straight from the system: not touched before the file is read into it, and in large pages where there are such.
Image::Buffer Image::allocate(std::size_t size) {
    const std::size_t capacity = size + kPadding;
    void* memory = ::mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return Buffer(nullptr, UnmapMemory{0});
    }
    ::madvise(memory, capacity, MADV_HUGEPAGE);
    return Buffer(static_cast<char*>(memory), UnmapMemory{capacity});
}

Image::Image(Buffer buffer, std::size_t size) : buffer_(std::move(buffer)), size_(size) {
    std::memset(buffer_.get() + size_, '\n', kPadding);
}

Image Image::fromBytes(std::string_view bytes) {
    Buffer buffer = allocate(bytes.size());
    if (!buffer) {
        throw std::bad_alloc();
    }
    std::memcpy(buffer.get(), bytes.data(), bytes.size());
    return Image(std::move(buffer), bytes.size());
}

Result<Image, Error> Image::read(const std::filesystem::path& path) {
    // Without O_NONBLOCK a named pipe would wait for somebody to write into it.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0) {
        return failure(Error::Kind::CannotOpen, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return failure(Error::Kind::CannotOpen, S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    }
    if (status.st_size == 0) {
        return failure(Error::Kind::Empty, 0);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    Buffer buffer = allocate(size);
    if (!buffer) {
        return failure(Error::Kind::Unreadable, ENOMEM);
    }
    const ssize_t got = readAll(file.get(), buffer.get(), size);
    if (got < 0) {
        return failure(Error::Kind::Unreadable, errno);
    }
    return Image(std::move(buffer), static_cast<std::size_t>(got));
}

} // namespace quor::dxf
