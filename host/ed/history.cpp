#include "host/ed/history.h"

#include "host/sys/utf8.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace quor::ed {

namespace {

// What was typed may be private: the file and its folder are for the user alone.
void append(const fs::path& file, const std::string& bytes, int flags) {
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | flags, 0600);
    if (descriptor < 0)
        return;
    [[maybe_unused]] const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    ::close(descriptor);
}

} // namespace

fs::path History::defaultFile() {
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/')
        return fs::path(state) / "quor" / "history";
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0')
        return {};
    return fs::path(home) / ".local" / "state" / "quor" / "history";
}

std::vector<ZrString> History::load() const {
    std::vector<ZrString> lines;
    std::ifstream file(file_, std::ios::binary);
    for (std::string line; std::getline(file, line);)
        if (!line.empty())
            lines.push_back(fromUtf8(line));
    if (lines.size() <= kMostLines)
        return lines;
    const bool farTooLong = lines.size() > 2 * kMostLines;
    lines.erase(lines.begin(), lines.end() - kMostLines);
    if (farTooLong) {
        std::string bytes;
        for (const ZrString& line : lines)
            bytes += toUtf8(line) + '\n';
        append(file_, bytes, O_TRUNC);
    }
    return lines;
}

void History::add(std::wstring_view line) const {
    if (!file_.empty())
        append(file_, toUtf8(line) + '\n', O_APPEND);
}

} // namespace quor::ed
