#pragma once

#include <QObject>

namespace ostrel::test {

/// Pages of reports with the default look in the real engine.
class ReportLookTest final : public QObject {
    Q_OBJECT

private slots:
    void ColumnsLineUp();
    void HeaderStaysAndIsALink();
    void LinkToARecordMarksItsRow();
    void RowsOutOfViewAreFoundAndCopied();
    void PaperHoldsEverything();
};

} // namespace ostrel::test
