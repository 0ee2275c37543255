#include "cli/ReportLook.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cli/CellText.h"
#include "cli/Usage.h"
#include "text/CodePage.h"
#include "text/Enumerations.h"

namespace ostrel::cli {

namespace {

constexpr const char* DefaultHeaderColour = "#DCE4EE";
constexpr const char* DefaultTotalColour = "#EDF1F6";
constexpr const char* DefaultRowColour = "#F5F7FA";
constexpr const char* DefaultLinkColour = "#1F5FA8";
constexpr const char* DefaultFont =
    "\"Segoe UI\", \"Helvetica Neue\", Helvetica, Arial, \"Liberation Sans\", sans-serif";

/// A word that goes into attributes and style sheets, where quotes and brackets would do harm.
Text SafeWord(const std::string& option, const std::string& word) {
    if (word.find_first_of("\"<>{};&\r\n") != std::string::npos)
        throw UsageError(option + " " + word + ": quotes, brackets and semicolons can't be part of it.");
    return PlainArgument(word);
}

/// Padding, stripes and lines by a style sheet, since attributes would have to stand in every cell.
Text StyleSheet(const Text& font, const Text& headerColour, const Text& linkColour, bool striped) {
    Text style = "<META NAME=\"viewport\" CONTENT=\"width=device-width\">\r\n<STYLE>\r\n";
    style += "body { margin: 2em; color: #1F2933; font: 14px/1.45 " + font + "; }\r\n";
    style += "p { margin: 0.4em 0; }\r\n";
    style += "table { margin: 1.2em 0; font: inherit; font-variant-numeric: tabular-nums; "
             "border-collapse: separate; }\r\n";
    style += "td { padding: 0.3em 0.8em; vertical-align: top; border-bottom: 1px solid #E1E6EC; }\r\n";
    style +=
        "td[bgcolor=\"" + headerColour +
        "\"] { position: sticky; top: 0; vertical-align: bottom; border-bottom: 1px solid #A9B6C6; }\r\n";
    if (striped)
        style += Text("tr:nth-child(odd) td:not([bgcolor]) { background: ") + DefaultRowColour + "; }\r\n";
    style += "tr:hover td:not([bgcolor]) { background: #E9F1FB; }\r\n";
    style += "td[align=right] { white-space: nowrap; }\r\n";
    style += "a[href] { color: " + linkColour + "; text-decoration: none; }\r\n";
    style += "a[href]:hover { text-decoration: underline; }\r\n";
    style += "</STYLE>";
    return style;
}

void ApplyDefaultLook(const ReportOptions& options, OstrelWebHelp& web) {
    const Text font = options.font.empty() ? Text(DefaultFont) : SafeWord("--font", options.font);
    const Text linkColour =
        options.linkColour.empty() ? Text(DefaultLinkColour) : SafeWord("--link-colour", options.linkColour);
    if (options.headerColour.empty()) web.PageTableHeaderBGColor(DefaultHeaderColour);
    web.PageMeta(StyleSheet(font, web.PageTableHeaderBGColor(), linkColour, options.pattern.empty()));
    web.PageFontSizeSet(owhFontTitle, "6");
    web.PageFontBoldSet(owhFontTitle, true);
    web.PageFontColourSet(owhFontSubTitle, "#52606D");
    web.PageFontColourSet(owhFontFooter, "#52606D");
    // The style sheet does what edges and vertical alignment would say again in every cell.
    web.PageTableAddLeft("");
    web.PageTableAddRight("");
    web.PageTableVAlign("");
    web.PageTableHeaderVAlign("");
    web.PageTableHeaderBelow(owhSpaceNone);
    web.PageTableTotalAbove(owhSpaceNone);
    web.PageTableTotalBreakAbove(owhSpaceNone);
    web.PageTableTotalSortAbove(owhSpaceNone);
    for (auto let : {static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalColour),
                     static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalBreakColour),
                     static_cast<void (OstrelWebHelp::*)(Text)>(&OstrelWebHelp::PageTableTotalSortColour)})
        (web.*let)(DefaultTotalColour);
    web.PageTableTotalBold(true);
}

void ApplyPattern(const ReportOptions& options, OstrelWebHelp& web) {
    constexpr std::array<std::string_view, 5> names{"none", "rows", "columns", "checkers", "all"};
    std::string first = "#FFFFFF", second = DefaultRowColour;
    if (!options.rowColours.empty()) {
        const std::size_t comma = options.rowColours.find(',');
        first = options.rowColours.substr(0, comma);
        second = comma == std::string::npos ? "" : options.rowColours.substr(comma + 1);
    }
    if (options.pattern.empty() && options.rowColours.empty()) return;
    Long pattern = owhPatternRows;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (EqualText(names[i], options.pattern)) pattern = static_cast<Long>(i);
    if (pattern == owhPatternAll && options.rowColours.empty()) first = second;
    web.PageTableBodyPattern(pattern);
    web.PageTableBodyColor(SafeWord("--row-colours", first));
    web.PageTableBodyColor2(SafeWord("--row-colours", second));
}

void AddHeaderLinks(const ReportOptions& options, OstrelWebHelp& web) {
    for (const std::string& word : options.headerLinks) {
        const std::size_t equals = word.find('=');
        const Text link = equals == std::string::npos ? Text() : HtmlArgument(word.substr(equals + 1));
        Text error;
        // A name with a target goes out as it stands, one without through the encoding of special characters.
        const std::string name = word.substr(0, equals);
        if (!web.PageTableHeaderLinksAdd(link.empty() ? PlainArgument(name) : HtmlArgument(name), link, error,
                                         "", false, 0, 1))
            throw UsageError("--header-link " + word + ": " + error);
    }
    if (!options.headerLinks.empty()) web.PageTableHeaderLinksShow(true, false, false, options.repeatHeader);
}

} // namespace

void ApplyLook(const ReportOptions& options, OstrelWebHelp& web) {
    if (!options.headerColour.empty())
        web.PageTableHeaderBGColor(SafeWord("--header-colour", options.headerColour));
    if (options.plain) {
        if (!options.font.empty())
            web.PageFont(web.CreateFontStart(SafeWord("--font", options.font), "", ""));
        web.PageLinkColour(SafeWord("--link-colour", options.linkColour));
    } else {
        ApplyDefaultLook(options, web);
    }
    if (!options.background.empty()) web.PageBackgroundColour(SafeWord("--background", options.background));
    ApplyPattern(options, web);
    if (options.border >= 0) web.PageTableBorder(options.border);
    web.PageTableHeaderRepeat(options.repeatHeader);
    web.PageTableZeroBlank(options.blankZeros);
    web.PageTableIgnoreBlankRows(options.skipBlankRows);
    web.PageTableIgnoreBlankColumns(options.skipBlankColumns);
    web.PageAnchorTop("top");
    web.PageAnchorBottom("bottom");
    AddHeaderLinks(options, web);
}

} // namespace ostrel::cli
