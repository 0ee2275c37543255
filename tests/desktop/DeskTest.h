#pragma once

#include <QObject>
#include <memory>

#include "support/TemporaryDirectory.h"

namespace ostrel::test {

/// The application as its user works it.
class DeskTest final : public QObject {
    Q_OBJECT

private slots:
    /// Every function finds the settings of a first start.
    void init();

    void ReportIsWalkedByClicks();
    void OptionsShapeTheReport();
    void DatabaseTableIsChosen();
    void FaultyFileIsTold_data();
    void FaultyFileIsTold();
    void FaultyDirectoryIsToldAtItsField();
    void StateComesBack();
    void HelpPagesAreShownByClicks();
    void DroppedFileOpens();
    void CommandLineIsRead_data();
    void CommandLineIsRead();

private:
    std::unique_ptr<ostrel::test::TemporaryDirectory> settings_;
};

} // namespace ostrel::test
