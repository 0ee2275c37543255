#include "desk/ClosingSignals.h"

#include <unistd.h>

#include <csignal>

namespace ostrel::desk {

namespace {

constexpr int Signals[] = {SIGTERM, SIGINT, SIGHUP};

/// A handler may do next to nothing, so a byte through a pipe wakes the event loop.
int pipeEnds[2] = {-1, -1};

void Wake(int) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
}

} // namespace

ClosingSignals::ClosingSignals(QWidget& window) {
    if (pipe(pipeEnds) != 0) return;
    arrival_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(arrival_.get(), &QSocketNotifier::activated, &window, [&window] {
        char byte = 0;
        if (read(pipeEnds[0], &byte, 1) == 1) window.close();
    });
    for (const int signal : Signals) std::signal(signal, Wake);
}

ClosingSignals::~ClosingSignals() {
    if (!arrival_) return;
    for (const int signal : Signals) std::signal(signal, SIG_DFL);
    arrival_.reset();
    for (const int end : pipeEnds) close(end);
}

} // namespace ostrel::desk
