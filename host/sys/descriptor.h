// Owns an open file of the system.
#pragma once

#include <unistd.h>
#include <utility>

namespace quor {

class Descriptor {
public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() { (void)close(); }

    [[nodiscard]] int get() const { return fd_; }
    [[nodiscard]] bool isOpen() const { return fd_ >= 0; }
    // False with errno when closing fails, which is how some systems tell of a failed write.
    [[nodiscard]] bool close() { return fd_ < 0 || ::close(std::exchange(fd_, -1)) == 0; }

private:
    int fd_;
};

} // namespace quor
