#include "host/sys/settings_text.h"

#include <algorithm>
#include <iterator>

#include "host/sys/case_fold.h"
#include "host/sys/trim.h"
#include "host/sys/visible_text.h"

namespace quor {
namespace {

constexpr std::size_t none = static_cast<std::size_t>(-1);

bool isName(std::wstring_view name) {
    return !name.empty() && trimmed(name) == name && std::none_of(name.begin(), name.end(), isControl);
}

// The name of a section line; nothing for another line.
std::optional<std::wstring_view> sectionOf(std::wstring_view line) {
    line = trimmed(line);
    if (line.size() < 2 || line.front() != L'[' || line.back() != L']')
        return std::nullopt;
    return trimmed(line.substr(1, line.size() - 2));
}

struct KeyValue {
    std::wstring_view key;
    std::wstring_view value; // as written
};

std::optional<KeyValue> keyValueOf(std::wstring_view line) {
    const std::size_t equals = line.find(L'=');
    const std::wstring_view key = trimmed(line.substr(0, std::min(equals, line.size())));
    if (equals == std::wstring_view::npos || !isSettingsKey(key))
        return std::nullopt;
    return KeyValue{key, trimmed(line.substr(equals + 1))};
}

struct EscapeRow {
    wchar_t character;
    wchar_t letter; // behind the backslash
};

constexpr EscapeRow escapes[] = {{L'\n', L'n'}, {L'\r', L'r'}, {L'\t', L't'}, {L'\\', L'\\'}, {L'"', L'"'}};

// In quotes only where the plain text would not read back.
std::wstring writeValue(std::wstring_view value) {
    const bool isPlain = (value.empty() || value.front() != L'"') && trimmed(value) == value &&
                         std::none_of(value.begin(), value.end(), isControl);
    if (isPlain)
        return std::wstring(value);
    std::wstring text = L"\"";
    for (const wchar_t c : value) {
        const auto* row =
            std::find_if(std::begin(escapes), std::end(escapes), [c](const EscapeRow& e) { return e.character == c; });
        if (row != std::end(escapes))
            text.append({L'\\', row->letter});
        else
            text.push_back(c);
    }
    return text + L'"';
}

// A value in quotes without them; one whose quotes or escapes are broken counts as plain text.
std::wstring readValue(std::wstring_view written) {
    if (written.size() < 2 || written.front() != L'"' || written.back() != L'"')
        return std::wstring(written);
    std::wstring value;
    for (std::size_t at = 1; at + 1 < written.size(); ++at) {
        if (written[at] != L'\\') {
            value.push_back(written[at]);
            continue;
        }
        const wchar_t letter = written[++at];
        const auto* row = std::find_if(std::begin(escapes), std::end(escapes),
                                       [letter](const EscapeRow& e) { return e.letter == letter; });
        if (row == std::end(escapes) || at + 1 == written.size())
            return std::wstring(written);
        value.push_back(row->character);
    }
    return value;
}

// Where a key stands, and where a new line of its section would go.
struct Place {
    std::size_t line = none;   // of the key
    std::size_t behind = none; // behind the last line of the section that is not blank
};

Place findPlace(const SettingsLines& lines, std::wstring_view section, std::wstring_view key) {
    Place place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto name = sectionOf(lines[i]))
            inside = equalFolded(*name, section);
        if (!inside)
            continue;
        if (!trimmed(lines[i]).empty())
            place.behind = i + 1;
        const auto pair = keyValueOf(lines[i]);
        if (pair && equalFolded(pair->key, key))
            place.line = i;
    }
    return place;
}

} // namespace

bool isSettingsSection(std::wstring_view name) { return isName(name) && name.find(L']') == std::wstring_view::npos; }

bool isSettingsKey(std::wstring_view name) {
    constexpr std::wstring_view otherLines = L"#;[";
    return isName(name) && name.find(L'=') == std::wstring_view::npos &&
           otherLines.find(name.front()) == std::wstring_view::npos;
}

std::optional<std::wstring> findSetting(const SettingsLines& lines, std::wstring_view section, std::wstring_view key) {
    const Place place = findPlace(lines, section, key);
    if (place.line == none)
        return std::nullopt;
    return readValue(keyValueOf(lines[place.line])->value);
}

void putSetting(SettingsLines& lines, std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    const Place place = findPlace(lines, section, key);
    // A file with "\r\n" keeps its line ends.
    const bool hasReturns = !lines.empty() && !lines.front().empty() && lines.front().back() == L'\r';
    const std::wstring end = hasReturns ? L"\r" : L"";
    if (place.line != none) {
        const std::wstring written(keyValueOf(lines[place.line])->key);
        lines[place.line] = written + L" = " + writeValue(value) + end;
        return;
    }
    const std::wstring line = std::wstring(key) + L" = " + writeValue(value) + end;
    if (place.behind != none) {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place.behind), line);
        return;
    }
    if (!lines.empty() && !trimmed(lines.back()).empty())
        lines.push_back(end);
    lines.push_back(L"[" + std::wstring(section) + L"]" + end);
    lines.push_back(line);
}

} // namespace quor
