// A whole drawing file in memory, exactly as it stands on disk.
#pragma once

#include "host/dxf/error.h"
#include "host/sys/result.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quor::dxf {

// Gives pages back to the system.
struct UnmapMemory {
    std::size_t capacity = 0;
    void operator()(char* memory) const;
};

class Image {
public:
    // Bytes behind the file's own that may be read; they hold line feeds, so that a search for a line end always ends.
    static constexpr std::size_t kPadding = 64;

    Image() = default;

    [[nodiscard]] static Result<Image, Error> read(const std::filesystem::path& path);
    [[nodiscard]] static Image fromBytes(std::string_view bytes);

    [[nodiscard]] const char* data() const { return buffer_.get(); }
    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] std::string_view bytes() const { return {buffer_.get(), size_}; }
    [[nodiscard]] std::string_view bytes(std::size_t begin, std::size_t end) const {
        return bytes().substr(begin, end - begin);
    }

private:
    using Buffer = std::unique_ptr<char, UnmapMemory>;

    static Buffer allocate(std::size_t size);
    Image(Buffer buffer, std::size_t size);

    Buffer buffer_;
    std::size_t size_ = 0;
};

} // namespace quor::dxf
