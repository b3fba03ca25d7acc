#include "platform/interrupt.h"

#include <csignal>

#ifdef _WIN32
#include <io.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace swiftroll::platform {
namespace {

// A signal handler can reach nothing else.
volatile std::sig_atomic_t interrupted = 0;

void NoteInterrupt(int signal) {
    interrupted = 1;
    std::signal(signal, SIG_DFL);
}

}  // namespace

void CatchInterrupts() { std::signal(SIGINT, NoteInterrupt); }

bool WasInterrupted() { return interrupted != 0; }

bool ErrorIsTerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(2) != 0;
#endif
}

int TerminalColumns() {
#ifndef _WIN32
    winsize size{};
    if (ioctl(2, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
#endif
    return 80;
}

}  // namespace swiftroll::platform
