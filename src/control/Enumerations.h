#pragma once

// The numbers that hosts know by name.

#include "help/SearchLocation.h"
#include "html/FontType.h"
#include "tablepages/TableTypes.h"

namespace ostrel {

enum OBTabStopType {
    obTabStopAll = 0,
    obTabStopTextBox = 1,
    obTabStopTextBoxLocked = 2,
    obTabStopCommandButton = 3,
    obTabStopVisibleEnabled = 4,
    obTabStopHiddenDisabled = 5,
    obTabStopCheckBox = 6,
    obTabStopComboBox = 7,
    obTabStopComboBoxLocked = 8,
    obTabStopHScrollBar = 9,
    obTabStopVScrollBar = 10,
    obTabStopListBox = 11,
    obTabStopOptionButton = 12,
    obTabStopPictureBox = 13
};

} // namespace ostrel
