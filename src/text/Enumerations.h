#pragma once

namespace ostrel {

enum OWHSearchLocation {
    owhSearchNone = 0,
    owhSearchLocal = 1,
    owhSearchRemote = 2,
    owhSearchLocalRemote = 3
};

/// The part of a page that a font is for.
enum OWHFontType {
    owhFontBody = 0,
    owhFontTitle = 1,
    owhFontSubTitle = 2,
    owhFontHeader = 3,
    owhFontFooter = 4,
    owhFontTable = 5,
    owhFontTableHeader = 6
};

enum OWHPatternType {
    owhPatternNone = 0,
    owhPatternRows = 1,
    owhPatternColumns = 2,
    owhPatternCheckers = 3,
    owhPatternAll = 4
};

/// Spacer rows of a table.
enum OWHSpaceType {
    owhSpaceNone = 0,
    owhSpaceSpace = 1,
    owhSpaceHalf = 2,
    owhSpaceLine = 3,
    owhSpaceLineDouble = 4,
    owhSpaceLineThick = 5,
    owhSpaceLineThinThick = 6,
    owhSpaceLineThickThin = 7
};

/// Bits; they may be added together.
enum OWHHeaderLinksPosition {
    owhHeaderLinksTopAbove = 1,
    owhHeaderLinksTopBelow = 2,
    owhHeaderLinksTop = 3,
    owhHeaderLinksBottomAbove = 4,
    owhHeaderLinksBottomBelow = 8,
    owhHeaderLinksBottom = 12
};

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
