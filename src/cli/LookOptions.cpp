#include "cli/LookOptions.h"

#include <array>
#include <string_view>

#include "cli/Usage.h"
#include "tablepages/TableTypes.h"
#include "tables/CellText.h"
#include "tables/ReportStyle.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

/// Checks a word for use in attributes and style sheets, which must hold no quotes and brackets.
Text SafeWord(const std::string& option, const std::string& word) {
    if (word.find_first_of("\"<>{};&\r\n") != std::string::npos)
        throw UsageError(option + " " + word + ": quotes, brackets and semicolons can't be part of it.");
    return tables::PlainArgument(word);
}

std::optional<tables::Look::Pattern> PatternOf(const ReportOptions& options) {
    constexpr std::array<std::string_view, 5> names{"none", "rows", "columns", "checkers", "all"};
    if (options.pattern.empty() && options.rowColours.empty()) return std::nullopt;
    std::string first = "#FFFFFF", second = tables::StripeColour;
    if (!options.rowColours.empty()) {
        const std::size_t comma = options.rowColours.find(',');
        first = options.rowColours.substr(0, comma);
        second = comma == std::string::npos ? "" : options.rowColours.substr(comma + 1);
    }
    Long pattern = owhPatternRows;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (EqualText(names[i], options.pattern)) pattern = static_cast<Long>(i);
    if (pattern == owhPatternAll && options.rowColours.empty()) first = second;
    return tables::Look::Pattern{pattern, SafeWord("--row-colours", first),
                                 SafeWord("--row-colours", second)};
}

} // namespace

tables::Look LookOf(const ReportOptions& options) {
    tables::Look look;
    look.plain = options.plain;
    look.headerColour = SafeWord("--header-colour", options.headerColour);
    look.font = SafeWord("--font", options.font);
    look.linkColour = SafeWord("--link-colour", options.linkColour);
    look.background = SafeWord("--background", options.background);
    look.striped = options.pattern.empty();
    look.pattern = PatternOf(options);
    if (options.border >= 0) look.border = options.border;
    look.repeatHeader = options.repeatHeader;
    look.blankZeros = options.blankZeros;
    look.skipBlankRows = options.skipBlankRows;
    look.skipBlankColumns = options.skipBlankColumns;
    return look;
}

void AddHeaderLinks(const ReportOptions& options, OstrelWebHelp& web) {
    for (const std::string& word : options.headerLinks) {
        const std::size_t equals = word.find('=');
        const Text link =
            equals == std::string::npos ? Text() : tables::HtmlArgument(word.substr(equals + 1));
        Text error;
        // A name with a target is written unchanged; one without is encoded.
        const std::string name = word.substr(0, equals);
        if (!web.PageTableHeaderLinksAdd(link.empty() ? tables::PlainArgument(name)
                                                      : tables::HtmlArgument(name),
                                         link, error, "", false, 0, 1))
            throw UsageError("--header-link " + word + ": " + error);
    }
    if (!options.headerLinks.empty()) web.PageTableHeaderLinksShow(true, false, false, options.repeatHeader);
}

} // namespace ostrel::cli
