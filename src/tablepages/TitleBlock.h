#pragma once

#include "html/PageScope.h"
#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// What a table page tells of itself at its head.
struct TitleText {
    TextView type; ///< "Main", "Sort" or "Separate"
    TextView title;
    TextView body;
    TextView sortBy;
    bool sortUp = true;
    TextView prefix; ///< stands in front of all
    Long record = 0;
};

/// Sets the first part of a table page; the host may change title and body.
void SetTitleBlock(const html::PageScope& scope, const TitleText& text);

/// The attributes of the TABLE tag; empty for the builder's own.
Text TableTags(const TableOptions& options);

} // namespace ostrel::tablepages
