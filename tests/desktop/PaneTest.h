#pragma once

#include <QObject>

namespace ostrel::test {

/// The real engine behind the pane: what it tells, in which order, and what it refuses.
class PaneTest final : public QObject {
    Q_OBJECT

private slots:
    void LoadTellsInOrder();
    void VetoRaisesNoDownload();
    void LastOfTwoRequestsLoads();
    void FramesStaySilent();
    void RefreshEndsWithDone();
    void HistoryReportsStates();
    void StepsInsidePageComplete();
    void MissingPageIsTold();
    void HelpPageCompletes();
    void NamesOfPagesComeBack();
    void StopEndsLoad();
    void WhatHasComeBeforeAStopCompletes();
    void RefreshThatFailsCompletes();
    void PageThatLeadsOnAsks();
    void LoadThatIsNotReplacedGoesOn();
    void LayoutWithoutEndIsEnded();
    void PageIsDoneWhenItIsLaidOut();
    void PagesWithoutEndAreEnded();
    void RemoteLoadsOnlyOnline();
    void TargetsAreFound();
    void PagesAreHeldBack();
    void DataFilesAreNotRead();
    void WrittenWindowsGoWithTheirPage();
    void RemotePagesNameNoFile();
    void StepsLeadBackFromRemotePages();
    void PagesHaveNoSockets();
    void FindsAndZooms();
    void DocumentTextIsRead();
    void PagesArePrintedWhole();
    void ManyLoadsKeepNothing();
};

} // namespace ostrel::test
