#pragma once

#include <QObject>
#include <QUrl>
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
    void FocusStaysWithThePage();
    void OptionsShapeTheReport();
    void TableLinkIsLeftToOthers();
    void DatabaseTableIsChosen();
    void FaultyFileIsTold_data();
    void FaultyFileIsTold();
    void FaultyDirectoryIsToldAtItsField();
    void StateComesBack();
    void HelpPagesAreShownByClicks();
    void DirectoryOpensOnItsMainPage_data();
    void DirectoryOpensOnItsMainPage();
    void HelpPagesAreSearched();
    void OptionsComeBackFromHelpPages();
    void DroppedFileOpens();
    void CommandLineIsRead_data();
    void CommandLineIsRead();

public slots:
    /// Stands in for the desktop's program for files.
    void OpenElsewhere(const QUrl& url) { opened_ = url; }

private:
    std::unique_ptr<TemporaryDirectory> settings_;
    QUrl opened_;
};

} // namespace ostrel::test
