#include "host/commands/ask.h"

#include "host/sys/trim.h"

namespace quor::commands {

namespace {

std::optional<ZrString> askText(bool blanks, const ZrString& prompt) {
    ZrString answer;
    if (zredGetString(blanks ? 1 : 0, prompt.c_str(), answer) != RTNORM)
        return std::nullopt;
    return ZrString(trimmed(answer));
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

} // namespace quor::commands
