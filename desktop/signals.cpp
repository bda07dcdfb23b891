#include "desktop/signals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace quor::desktop {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// What a handler may do is little: it writes a byte, and the event loop reads it.
std::array<int, 2> ends{-1, -1};

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, 1);
}

} // namespace

Signals::Signals(std::function<void()> wanted) : wanted_(std::move(wanted)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0)
        return; // the system ends the program the usual way then
    notifier_ = std::make_unique<QSocketNotifier>(ends[1], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &Signals::read);
    for (const int number : kSignals)
        std::signal(number, onSignal);
}

Signals::~Signals() {
    for (const int number : kSignals)
        std::signal(number, SIG_DFL);
    notifier_.reset();
    for (int& end : ends)
        if (end >= 0)
            ::close(std::exchange(end, -1));
}

void Signals::read() {
    char byte = 0;
    while (::read(ends[1], &byte, 1) > 0) {
    }
    wanted_();
}

} // namespace quor::desktop
