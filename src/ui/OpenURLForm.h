#pragma once

#include "ui/Dialogs.h"

namespace ostrel {

/// Asks for the address of a page, typed or picked among the files.
class OpenURLForm final : public Form {
public:
    /// `dialogs` show the picker; null for a form that is only described. `program` is the name that the user
    /// knows the program by.
    explicit OpenURLForm(const Dialogs* dialogs = nullptr, const Text& program = {});

    Label lblURL{*this, "lblURL"};
    TextBox txtURL{*this, "txtURL"};
    Button cmdURL{*this, "cmdURL", "Browse...", [this] { Browse(); }};
    Button cmdOK{*this, "cmdOK", "OK", Purpose::Accept};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Purpose::Cancel};

private:
    void Browse();

    const Dialogs* dialogs_;
};

} // namespace ostrel
