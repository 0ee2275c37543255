#pragma once

#include <QObject>

namespace ostrel::test {

/// The window around the controls of a form: how it is arranged, where it stands, and how it ends.
class FormWindowTest final : public QObject {
    Q_OBJECT

private slots:
    void ControlsAreArranged();
    void PicturesAreLoaded();
    void TimersAreSeenAndMayClose();
    void EnterAndTheCloseBox();
    void FaultTakesTheFocusBack();
    void FormsStandWhereTheySay();
    void DialogsStandBesideTheirButton();
    void OwnerMayGoFirst();
    void PickersAreTheSystems();
    void EveryFormCanBeWalked();
    void FailureOfAHandlerReachesTheCaller();
    void AboutBox();
};

} // namespace ostrel::test
