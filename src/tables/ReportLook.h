#pragma once

#include <memory>
#include <optional>

#include "control/OstrelWebHelp.h"
#include "tables/PageHeads.h"

namespace ostrel::tables {

/// How the pages of a report look: the default look and the user's changes to it. The texts are written
/// into attributes and style sheets unchanged, so they must hold no quotes, brackets and semicolons.
struct Look {
    /// The two colours of the body, and which of its cells have which.
    struct Pattern {
        Long pattern = 0; ///< one of `owhPatternNone` to `owhPatternAll`
        Text colour, second;
    };

    bool plain = false; ///< the component's own defaults instead of the default look
    Text font, headerColour, background, linkColour; ///< empty for those of the default look
    bool striped = true; ///< every second row has a colour of its own, where the look is not plain
    std::optional<Pattern> pattern;
    std::optional<Long> border;
    bool repeatHeader = false, blankZeros = false, skipBlankRows = false, skipBlankColumns = false;
};

/// Sets fonts, colours and patterns of the pages.
void ApplyLook(const Look& look, OstrelWebHelp& web);

/// What of the look depends on the table and on all other options, for the run that follows: widths of
/// columns, marks of sorted columns and titles of sorted pages. Null where the look is to be plain.
std::unique_ptr<PageHeads> ApplyTableLook(const Look& look, const InputTable& table, OstrelWebHelp& web);

} // namespace ostrel::tables
