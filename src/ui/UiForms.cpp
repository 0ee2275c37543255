#include "ui/AboutForm.h"
#include "ui/FormTable.h"
#include "ui/MessageBox.h"

namespace ostrel {

namespace {

/// Message boxes are one form, whose buttons differ.
template <Long Buttons>
std::unique_ptr<Form> MakeMessageBox() {
    return std::make_unique<MessageBox>(MessageKind::Query, Text(), Text(), Buttons);
}

} // namespace

std::span<const FormMaker> UiForms() {
    static constexpr FormMaker Forms[]{
        MakeMessageBox<0>, MakeMessageBox<1>, MakeMessageBox<2>,   MakeMessageBox<3>,
        MakeMessageBox<4>, MakeMessageBox<5>, MakeForm<AboutForm>,
    };
    return Forms;
}

} // namespace ostrel
