#include "cli/ProgressLine.h"

#include <unistd.h>

#include <cstdio>

namespace ostrel::cli {

ProgressLine::ProgressLine(bool wanted) : wanted_(wanted && isatty(STDERR_FILENO)) {}

void ProgressLine::Show(const std::string& text) {
    if (!wanted_) return;
    const auto now = std::chrono::steady_clock::now();
    if (shown_ && now - last_ < std::chrono::milliseconds(80)) return;
    last_ = now;
    shown_ = true;
    std::fprintf(stderr, "\r\033[K%.100s", text.c_str());
    std::fflush(stderr);
}

void ProgressLine::Clear() {
    if (!shown_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    shown_ = false;
}

} // namespace ostrel::cli
