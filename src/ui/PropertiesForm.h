#pragma once

#include "ui/Form.h"

namespace ostrel {

/// A list of names and values to read.
class PropertiesForm final : public Form {
public:
    PropertiesForm();

    /// The header row first.
    GridBox grdData{*this, "grdData"};
    /// Measures texts in the font of the grid.
    Label lblTest{*this, "lblTest"};
    Button cmdClose{*this, "cmdClose", "Close", Purpose::Cancel};
};

} // namespace ostrel
