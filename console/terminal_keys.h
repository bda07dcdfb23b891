// Characters from a terminal: UTF-8 whatever the locale, with Ctrl+C among them.
#pragma once

#include <functional>
#include <string>

namespace quor::console {

class TerminalKeys {
public:
    static constexpr wchar_t kCtrlC = 3;

    // `onChange` is called when the terminal has another size, or comes back after a pause.
    TerminalKeys(int descriptor, std::function<void()> onChange)
        : descriptor_(descriptor), onChange_(std::move(onChange)) {}

    // Waits for the next character; false at the end of input. A byte that is no UTF-8 comes as its escape. The Esc key
    // comes as Ctrl+C; an escape that begins the sequence of another key comes as it is.
    bool next(wchar_t& c);

private:
    enum class Event { Byte, Interrupt, End };
    Event readByte();
    [[nodiscard]] bool sequenceFollows() const;
    [[nodiscard]] bool holdsCharacter() const;

    int descriptor_;
    std::function<void()> onChange_;
    std::string pending_;
};

} // namespace quor::console
