#include "bridge/Forms.h"

#include <algorithm>

#include "ui/AboutForm.h"
#include "ui/MessageBox.h"

namespace ostrel::bridge {

namespace {

FormRow RowOf(const Form& form) {
    FormRow row{form.name, form.caption, {}};
    for (const Control* control : form.Controls()) row.controls.push_back(control->name);
    return row;
}

/// Message boxes of all sorts are one form; each sort has buttons of its own.
FormRow MessageBoxRow() {
    FormRow all;
    for (Long buttons = 0; buttons <= 5; ++buttons) {
        const FormRow row =
            RowOf(MessageBox(MessageKind::Query, "", "", static_cast<MessageButtons>(buttons)));
        all.name = row.name;
        for (const Text& control : row.controls)
            if (std::find(all.controls.begin(), all.controls.end(), control) == all.controls.end())
                all.controls.push_back(control);
    }
    return all;
}

} // namespace

const std::vector<FormRow>& AllForms() {
    static const std::vector<FormRow> forms{MessageBoxRow(), RowOf(AboutForm({}))};
    return forms;
}

const FormRow* FindForm(std::string_view name) {
    const auto& forms = AllForms();
    const auto hit =
        std::find_if(forms.begin(), forms.end(), [&](const FormRow& row) { return row.name == name; });
    return hit == forms.end() ? nullptr : &*hit;
}

} // namespace ostrel::bridge
