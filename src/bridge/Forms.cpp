#include "bridge/Forms.h"

#include <algorithm>

#include "help/HelpForms.h"

namespace ostrel::bridge {

namespace {

std::vector<FormRow> DescribeForms() {
    std::vector<FormRow> rows;
    for (const FormMaker make : FormMakers()) {
        const std::unique_ptr<Form> form = make();
        auto row = std::find_if(rows.begin(), rows.end(),
                                [&](const FormRow& each) { return each.name == form->name; });
        if (row == rows.end()) row = rows.insert(row, {form->name, form->caption, {}});
        for (const Control* control : form->Controls())
            if (std::find(row->controls.begin(), row->controls.end(), control->name) == row->controls.end())
                row->controls.push_back(control->name);
    }
    return rows;
}

} // namespace

std::vector<FormMaker> FormMakers() {
    std::vector<FormMaker> makers;
    for (const std::span<const FormMaker> table : {UiForms(), help::HelpForms()})
        makers.insert(makers.end(), table.begin(), table.end());
    return makers;
}

std::unique_ptr<Form> MakeFormNamed(const Text& name) {
    for (const FormMaker make : FormMakers())
        if (std::unique_ptr<Form> form = make(); form->name == name) return form;
    return nullptr;
}

const std::vector<FormRow>& AllForms() {
    static const std::vector<FormRow> forms = DescribeForms();
    return forms;
}

const FormRow* FindForm(std::string_view name) {
    const auto& forms = AllForms();
    const auto hit =
        std::find_if(forms.begin(), forms.end(), [&](const FormRow& row) { return row.name == name; });
    return hit == forms.end() ? nullptr : &*hit;
}

} // namespace ostrel::bridge
