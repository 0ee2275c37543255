#pragma once

namespace ostrel {

/// How the colours of a table's body alternate.
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

} // namespace ostrel
