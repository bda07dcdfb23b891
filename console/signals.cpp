#include "console/signals.h"

#include <csignal>

namespace quor::console::signals {

namespace {

volatile std::sig_atomic_t interruptMark = 0;
volatile std::sig_atomic_t terminalMark = 0;

void onInterrupt(int) { interruptMark = 1; }
void onTerminal(int) { terminalMark = 1; }

void handle(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = 0; // a waiting read comes back
    sigaction(signal, &action, nullptr);
}

} // namespace

void install() {
    handle(SIGINT, onInterrupt);
    handle(SIGWINCH, onTerminal);
    handle(SIGCONT, onTerminal);
    handle(SIGPIPE, SIG_IGN);
    handle(SIGXFSZ, SIG_IGN);
}

bool interrupted() { return interruptMark != 0; }

void forgetInterrupt() { interruptMark = 0; }

bool takeTerminalChange() {
    const bool changed = terminalMark != 0;
    terminalMark = 0;
    return changed;
}

} // namespace quor::console::signals
