#include "host/commands/ask.h"

#include "host/sys/utf8.h"

#include <cstdlib>

namespace quor::commands {

namespace {

ZrString trimmed(const ZrString& text) {
    constexpr const wchar_t* kBlanks = L" \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == ZrString::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<ZrString> askText(bool blanks, const ZrString& prompt) {
    ZrString answer;
    if (zredGetString(blanks ? 1 : 0, prompt.c_str(), answer) != RTNORM)
        return std::nullopt;
    return trimmed(answer);
}

} // namespace

void armKeywords(int flags, const wchar_t* words) {
    const ZrString both = ZrString(words) + L" _" + words;
    zredInitGet(flags, both.c_str());
}

std::optional<bool> askYesNo(const ZrString& prompt, bool onEnter) {
    armKeywords(0, L"Yes No");
    ZrString answer;
    const int result = zredGetKword(prompt.c_str(), answer);
    if (result == RTNONE)
        return onEnter;
    if (result != RTNORM)
        return std::nullopt;
    return answer == L"Yes";
}

std::optional<ZrString> askLine(const ZrString& prompt) { return askText(true, prompt); }
std::optional<ZrString> askWord(const ZrString& prompt) { return askText(false, prompt); }

int askUntilTaken(const ZrString& prompt, const std::function<bool(const ZrString&)>& take) {
    while (true) {
        const std::optional<ZrString> answer = askLine(prompt);
        if (!answer)
            return RTCAN;
        if (answer->empty() || take(*answer))
            return RTNORM;
    }
}

std::filesystem::path pathFromText(const ZrString& text) {
    ZrString plain = trimmed(text);
    const bool quoted =
        plain.size() >= 2 && (plain.front() == L'"' || plain.front() == L'\'') && plain.back() == plain.front();
    if (quoted)
        plain = plain.substr(1, plain.size() - 2);
    const char* home = std::getenv("HOME");
    if (home != nullptr && plain.starts_with(L"~/"))
        return std::filesystem::path(home) / toUtf8(std::wstring_view(plain).substr(2));
    return std::filesystem::path(toUtf8(plain));
}

ZrString textOf(const std::filesystem::path& path) { return fromUtf8(path.native()); }

} // namespace quor::commands
