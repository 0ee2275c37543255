#include "ui/AboutForm.h"
#include "ui/CommonDialog.h"
#include "ui/FormTable.h"
#include "ui/MessageBox.h"
#include "ui/OpenURLForm.h"
#include "ui/PropertiesForm.h"

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
        MakeForm<AboutForm>,      MakeForm<CommonDialog>,           MakeForm<DirectoryDialog>,
        MakeForm<OpenURLForm>,    MakeForm<PropertiesForm>,         MakeMessageBox<Ok>,
        MakeMessageBox<OkCancel>, MakeMessageBox<AbortRetryIgnore>, MakeMessageBox<YesNoCancel>,
        MakeMessageBox<YesNo>,    MakeMessageBox<RetryCancel>,
    };
    return Forms;
}

} // namespace ostrel
