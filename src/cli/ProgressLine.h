#pragma once

#include <chrono>
#include <string>

namespace ostrel::cli {

/// One line on the terminal that tells what is being done. Where standard error is no terminal, nothing.
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
