#pragma once

#include <QObject>
#include <memory>

#include "support/TemporaryDirectory.h"

namespace ostrel::test {

/// What the application writes, replaces and leaves alone.
class DeskFilesTest final : public QObject {
    Q_OBJECT

private slots:
    /// Every function finds the settings of a first start.
    void init();

    void HiddenColumnsAreNowhereButWhereAsked();
    void FilesThatNoReportMadeAreAskedFor();
    void FilesOfOneNameGetDirectoriesOfTheirOwn();

private:
    std::unique_ptr<TemporaryDirectory> settings_;
};

} // namespace ostrel::test
