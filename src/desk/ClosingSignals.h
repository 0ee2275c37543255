#pragma once

#include <QSocketNotifier>
#include <QWidget>
#include <memory>

namespace ostrel::desk {

/// Turns SIGINT, SIGTERM and SIGHUP into the closing of a window, so that its work ends first and no work
/// files stay behind. One at a time.
class ClosingSignals {
public:
    explicit ClosingSignals(QWidget& window);
    ~ClosingSignals();
    ClosingSignals(const ClosingSignals&) = delete;
    ClosingSignals& operator=(const ClosingSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> arrival_;
};

} // namespace ostrel::desk
