#include "console/terminal_keys.h"

#include "console/signals.h"
#include "host/sys/utf8.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace quor::console {

namespace {

constexpr wchar_t kEscape = 27;
// Terminals send the bytes of a key together; nobody types the next key this soon.
constexpr int kSequenceMilliseconds = 50;

// How many bytes the character has that begins with this one; 1 for what begins none.
std::size_t lengthOf(char lead) {
    const int ones = std::countl_one(static_cast<unsigned char>(lead));
    return ones >= 2 && ones <= 4 ? static_cast<std::size_t>(ones) : 1;
}

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

} // namespace

// A byte that cannot continue what stands before it completes it too: then the first byte is an invalid one.
bool TerminalKeys::holdsCharacter() const {
    if (pending_.empty())
        return false;
    const bool broken = std::any_of(pending_.begin() + 1, pending_.end(), [](char c) { return !isContinuation(c); });
    return broken || pending_.size() >= lengthOf(pending_.front());
}

TerminalKeys::Event TerminalKeys::readByte() {
    while (true) {
        if (signals::takeTerminalChange())
            onChange_();
        if (signals::interrupted())
            return Event::Interrupt;
        char byte = 0;
        const ssize_t count = ::read(descriptor_, &byte, 1);
        if (count == 1) {
            pending_.push_back(byte);
            return Event::Byte;
        }
        if (count == 0 || errno != EINTR)
            return Event::End;
    }
}

bool TerminalKeys::sequenceFollows() const {
    pollfd waiting{descriptor_, POLLIN, 0};
    return !pending_.empty() || ::poll(&waiting, 1, kSequenceMilliseconds) > 0;
}

bool TerminalKeys::next(wchar_t& c) {
    while (!holdsCharacter()) {
        const Event event = readByte();
        if (event == Event::Interrupt) {
            signals::forgetInterrupt();
            pending_.clear();
            c = kCtrlC;
            return true;
        }
        if (event == Event::End && pending_.empty())
            return false;
        if (event == Event::End)
            break;
    }
    std::size_t length = 0;
    c = nextUtf8(pending_, length);
    pending_.erase(0, length);
    if (c == kEscape && !sequenceFollows())
        c = kCtrlC;
    return true;
}

} // namespace quor::console
