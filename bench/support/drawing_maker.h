// Drawings of any size for the benchmarks.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace quor::bench {

// What a drawing is made of: lines, polylines of six vertices, faces and circles in turn, or lines alone.
enum class Entities { Mixed, Lines };

// A drawing (AC1027, ASCII, CRLF) with that many entities in model space on ten layers. The same count always gives the
// same bytes.
[[nodiscard]] std::string makeDrawing(std::size_t count, Entities entities = Entities::Mixed);

// A folder for files, there as long as the object.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    // Writes a file and answers its path.
    [[nodiscard]] std::filesystem::path write(const std::string& name, const std::string& bytes) const;

private:
    std::filesystem::path path_;
};

} // namespace quor::bench
