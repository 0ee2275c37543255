#pragma once

#include <string_view>
#include <vector>

#include "text/Text.h"

namespace ostrel::bridge {

/// What is known of a form without showing it.
struct FormRow {
    Text name;
    Text caption;
    std::vector<Text> controls;
};

/// Every form of the component.
const std::vector<FormRow>& AllForms();
/// The row of that exact name, or null.
const FormRow* FindForm(std::string_view name);

} // namespace ostrel::bridge
