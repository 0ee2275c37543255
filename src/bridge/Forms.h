#pragma once

#include <string_view>
#include <vector>

#include "ui/FormTable.h"

namespace ostrel::bridge {

/// What is known of a form without showing it.
struct FormRow {
    Text name;
    Text caption;
    std::vector<Text> controls;
};

/// Every form of the component, from the tables of the folders.
std::vector<FormMaker> FormMakers();
/// The same, described. Forms of one name that differ in their controls are one row with all of them.
const std::vector<FormRow>& AllForms();
/// Makes the form of that exact name, as nobody has filled it; null where there is none.
std::unique_ptr<Form> MakeFormNamed(const Text& name);
/// The row of that exact name, or null.
const FormRow* FindForm(std::string_view name);

} // namespace ostrel::bridge
