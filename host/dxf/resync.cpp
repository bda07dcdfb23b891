#include "host/dxf/resync.h"

#include <algorithm>

namespace quor::dxf {
namespace {

constexpr std::size_t kLongestName = 64;

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isNameCharacter(char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '$'; }

bool isRecordName(std::string_view name) {
    return name.size() >= 2 && name.size() <= kLongestName && std::all_of(name.begin(), name.end(), isNameCharacter) &&
           std::any_of(name.begin(), name.end(), isLetter);
}

} // namespace

std::size_t findPlausibleTag(std::string_view file, std::size_t from, bool inHeader) {
    std::size_t previousBegin = from;
    std::string_view previous;
    for (std::size_t at = from; at < file.size();) {
        const std::size_t end = std::min(file.find('\n', at), file.size());
        const std::string_view line = trimmed(file.substr(at, end - at));
        const bool record = previous == "0" && isRecordName(line);
        const bool variable = inHeader && previous == "9" && line.size() > 1 && line.front() == '$';
        if (record || variable) {
            return previousBegin;
        }
        previous = line;
        previousBegin = at;
        at = end + 1;
    }
    return file.size();
}

std::size_t findPlausibleBinaryTag(std::string_view file, Form form, std::size_t from) {
    const std::size_t codeSize = form == Form::Binary16 ? 2 : 1;
    for (std::size_t at = file.find('\0', from); at != std::string_view::npos; at = file.find('\0', at + 1)) {
        if (codeSize == 2 && (at + 1 >= file.size() || file[at + 1] != 0)) {
            continue;
        }
        const std::string_view rest = file.substr(std::min(at + codeSize, file.size()), kLongestName + 1);
        const std::size_t length = rest.find('\0');
        if (length != std::string_view::npos && isRecordName(rest.substr(0, length))) {
            return at;
        }
    }
    return file.size();
}

} // namespace quor::dxf
