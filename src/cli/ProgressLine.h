#pragma once

#include <chrono>
#include <string>

namespace ostrel::cli {

/// One progress line on the terminal. Prints nothing if standard error is not a terminal.
class ProgressLine {
public:
    explicit ProgressLine(bool wanted);
    ~ProgressLine() { Clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Shows the text, unless another one was shown a moment ago.
    void Show(const std::string& text);
    void Clear();

private:
    bool wanted_;
    bool shown_ = false;
    std::chrono::steady_clock::time_point last_{};
};

} // namespace ostrel::cli
