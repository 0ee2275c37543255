#pragma once

#include <memory>
#include <span>

#include "ui/Form.h"

namespace ostrel {

/// Makes a form as it is before anybody fills it, to describe and to test it.
using FormMaker = std::unique_ptr<Form> (*)();

template <class AnyForm>
std::unique_ptr<Form> MakeForm() {
    return std::make_unique<AnyForm>();
}

/// The forms of this folder, one row each. Every folder with forms has such a table.
std::span<const FormMaker> UiForms();

} // namespace ostrel
