#include "cli/Interrupt.h"

#include <csignal>

#include "tables/InputError.h"

namespace ostrel::cli {

namespace {

volatile std::sig_atomic_t pressed = 0;

extern "C" void OnInterrupt(int) { pressed = 1; }

} // namespace

InterruptGuard::InterruptGuard() {
#if defined(_WIN32)
    std::signal(SIGINT, OnInterrupt);
#else
    // Without SA_RESTART a blocking read of standard input returns with EINTR.
    struct sigaction action {};
    action.sa_handler = OnInterrupt;
    sigaction(SIGINT, &action, nullptr);
#endif
}

InterruptGuard::~InterruptGuard() { std::signal(SIGINT, SIG_DFL); }

bool Interrupted() { return pressed != 0; }

void ThrowIfInterrupted() {
    if (Interrupted()) throw tables::Interruption{};
}

} // namespace ostrel::cli
