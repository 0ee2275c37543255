#include "help/HelpForms.h"

#include "help/SearchForm.h"

namespace ostrel::help {

std::span<const FormMaker> HelpForms() {
    static constexpr FormMaker Forms[]{MakeForm<SearchForm>};
    return Forms;
}

} // namespace ostrel::help
