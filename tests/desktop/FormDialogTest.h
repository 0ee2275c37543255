#pragma once

#include <QObject>

namespace ostrel::test {

/// The controls of a form: what a user does there reaches the model, and what the model says is seen.
class FormDialogTest final : public QObject {
    Q_OBJECT

private slots:
    void ActionsReachTheModel();
    void ModelIsShown();
    void HandlersChangeOtherControls();
    void WhatCannotBeReachedIsNotWorked();
    void ListsTellOneClickOnce();
    void OptionsExcludeEachOtherInTheirGroup();
    void ChordsReachTheForm();
};

} // namespace ostrel::test
