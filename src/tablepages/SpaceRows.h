#pragma once

#include "tablepages/GridRow.h"
#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// Backgrounds of the first, the last and the middle row of a rule between rows.
struct SpaceColours {
    TextView top, bottom, middle;
};

/// What a cell that covers so many columns states as its span: spacer columns count too.
Long SpanOf(const TableOptions& options, Long columns);

/// Adds the rows of an `OWHSpaceType` across `columns` cells; none for an unknown type.
void AddSpaceRows(GridRows& rows, const TableOptions& options, Long columns, Long spaceType,
                  const SpaceColours& colours = {});

} // namespace ostrel::tablepages
