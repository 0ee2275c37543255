#pragma once

namespace ostrel::cli {

/// Listens to Ctrl-C while it lives. The press is kept until the process ends, so that it cannot fall between
/// two phases of the work.
class InterruptGuard {
public:
    InterruptGuard();
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;
};

bool Interrupted();
/// Throws `tables::Interruption` where Ctrl-C was pressed.
void ThrowIfInterrupted();

} // namespace ostrel::cli
