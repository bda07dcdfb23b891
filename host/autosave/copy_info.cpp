#include "host/autosave/copy_info.h"

#include "host/sys/settings_text.h"
#include "host/sys/utf8.h"

#include <charconv>

namespace quor::autosave {

namespace {

constexpr const wchar_t* kSection = L"Copy";
constexpr const wchar_t* kPath = L"Path";
constexpr const wchar_t* kTitle = L"Title";
constexpr const wchar_t* kTime = L"Time";

SettingsLines linesOf(std::string_view bytes) {
    SettingsLines lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        lines.push_back(fromUtf8(bytes.substr(0, end)));
        bytes = end == std::string_view::npos ? std::string_view() : bytes.substr(end + 1);
    }
    return lines;
}

std::int64_t numberOf(const ZrString& text) {
    const std::string digits = toUtf8(text);
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

} // namespace

std::string bytesOf(const CopyInfo& info) {
    SettingsLines lines;
    putSetting(lines, kSection, kPath, info.path);
    putSetting(lines, kSection, kTitle, info.title);
    putSetting(lines, kSection, kTime, std::to_wstring(info.time));
    std::string bytes;
    for (const std::wstring& line : lines)
        bytes += toUtf8(line) + '\n';
    return bytes;
}

CopyInfo copyInfoIn(std::string_view bytes) {
    const SettingsLines lines = linesOf(bytes);
    const auto value = [&](const wchar_t* key) { return findSetting(lines, kSection, key).value_or(ZrString()); };
    return {value(kPath), value(kTitle), numberOf(value(kTime))};
}

} // namespace quor::autosave
