#pragma once

#include "help/IndexStore.h"
#include "html/PageScope.h"

namespace ostrel::help {

/// How an index looks. Fonts are font start tags; where a text is empty its default is used.
struct IndexLook {
    Text font;       ///< of entries; `HelpFont` by default
    Text letterFont; ///< of the letters; that of the entries by default
    Flag spaceSections;
    Text sectionSpacer, columnSpacer, indent; ///< HTML; hard spaces by default
    Flag lettersAbove, lettersBelow;          ///< whether a line of letters stands above, below
};

/// Returns the index as HTML: a table with a section for each letter, and lines of letters that lead to them.
/// Empty without entries. It gives way after each entry and ends there at a stop, with what it has.
Text CreateIndex(const html::PageScope& scope, const IndexStore& store, const IndexLook& look);

} // namespace ostrel::help
