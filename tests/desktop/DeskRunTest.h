#pragma once

#include <QObject>
#include <memory>

#include "support/TemporaryDirectory.h"

namespace ostrel::test {

/// Work that lasts, in the application's window: how it is stopped, and what it tells when it fails.
class DeskRunTest final : public QObject {
    Q_OBJECT

private slots:
    /// Every function finds the settings of a first start.
    void init();

    void WindowAnswersDuringARun();
    void StopEndsARun();
    void StopEndsReading();
    void EscapeEndsAPage();
    void PagesThatFailAreNamed();
    void CloseEndsTheRunFirst();

private:
    std::unique_ptr<TemporaryDirectory> settings_;
};

} // namespace ostrel::test
