#include "ui/AboutForm.h"
#include "ui/FormTable.h"
#include "ui/MessageBox.h"

namespace ostrel {

namespace {

/// Message boxes are one form, whose buttons differ.
template <MessageButtons Buttons>
std::unique_ptr<Form> MakeMessageBox() {
    return std::make_unique<MessageBox>(MessageKind::Query, Text(), Text(), Buttons);
}

} // namespace

std::span<const FormMaker> UiForms() {
    using enum MessageButtons;
    static constexpr FormMaker Forms[]{
        MakeForm<AboutForm>,         MakeMessageBox<Ok>,
        MakeMessageBox<OkCancel>,    MakeMessageBox<AbortRetryIgnore>,
        MakeMessageBox<YesNoCancel>, MakeMessageBox<YesNo>,
        MakeMessageBox<RetryCancel>,
    };
    return Forms;
}

} // namespace ostrel
