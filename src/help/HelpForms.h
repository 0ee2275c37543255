#pragma once

#include "ui/FormTable.h"

namespace ostrel::help {

/// The forms of this folder, one row each.
std::span<const FormMaker> HelpForms();

} // namespace ostrel::help
