#include "host/sys/whole_file.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>

namespace quor {

Result<OpenFile, int> openFile(const std::filesystem::path& path, FileKinds kinds) {
    constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NOCTTY;
    // Without O_NONBLOCK a named pipe would wait for somebody to write into it.
    const int waiting = kinds == FileKinds::Regular ? O_NONBLOCK : 0;
    OpenFile file{Descriptor(::open(path.c_str(), kFlags | waiting))};
    if (!file.descriptor.isOpen() || ::fstat(file.descriptor.get(), &file.status) != 0)
        return fail(errno == ENXIO ? ENODEV : int{errno}); // a socket, a device that is not there
    if (S_ISDIR(file.status.st_mode))
        return fail(EISDIR);
    if (kinds == FileKinds::Regular && !S_ISREG(file.status.st_mode))
        return fail(ENODEV);
    return file;
}

Result<std::string, int> readToEnd(const OpenFile& file, std::size_t limit) {
    constexpr std::size_t kSmallest = 4096; // some files hold more than the size that is told of them
    const auto expected = static_cast<std::size_t>(std::max<off_t>(file.status.st_size, 0));
    if (S_ISREG(file.status.st_mode) && expected > limit)
        return fail(EFBIG);
    std::string bytes;
    std::size_t done = 0;
    // One more than expected shows the end without a second look.
    bytes.resize(std::min(std::max(expected, kSmallest), limit) + 1);
    while (done <= limit) {
        const ssize_t got = ::read(file.descriptor.get(), bytes.data() + done, bytes.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return fail(int{errno});
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
        if (done == bytes.size())
            bytes.resize(std::min(2 * done, limit + 1));
    }
    if (done > limit)
        return fail(EFBIG);
    bytes.resize(done);
    return bytes;
}

Result<std::string, int> readWholeFile(const std::filesystem::path& path, std::size_t limit, FileKinds kinds) {
    const Result<OpenFile, int> file = openFile(path, kinds);
    return file ? readToEnd(*file, limit) : Result<std::string, int>(fail(int{file.error()}));
}

} // namespace quor
