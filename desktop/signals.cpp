#include "desktop/signals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace quor::desktop {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// What a handler may do is little: it writes a byte, and the event loop reads it.
std::array<int, 2> ends{-1, -1};

void onSignal(int number) {
    const int before = errno;
    const auto byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, 1);
    errno = before;
}

} // namespace

Signals::Signals(std::function<void(int)> wanted) : wanted_(std::move(wanted)) {
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
    char number = 0;
    while (ends[1] >= 0 && ::read(ends[1], &number, 1) > 0)
        wanted_(number);
}

} // namespace quor::desktop
