#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The options of `ostrel report` as given. Columns are not looked up yet.
struct ReportOptions {
    std::string input;
    std::string directory;

    // Reading
    std::string delimiter, encoding = "auto", query, table;
    bool noHeader = false, html = false;

    // Pages
    std::string name, title, footer;
    std::optional<std::string> subTitle;
    bool noSort = false, noRecords = false, noRecordNumbers = false, noCsv = false;
    std::string records; ///< "true", or a list of "name" and "value"; empty for no record pages
    std::string recordTitle;
    bool csvAll = false, recordsAll = false; ///< with the columns that are not shown
    bool overwrite = false, quiet = false;

    // Columns
    std::vector<std::string> hide, sort, type, link, linkTip, width, columnColour, expose;
    std::string recordColumn;
    std::vector<std::string> subRecord;
    bool sortAll = false;

    // Totals
    std::vector<std::string> total, totalTime, totalFormat, breaks;
    bool subTotals = false;

    // Look
    std::string pattern, rowColours, headerColour, background, linkColour, font;
    int border = -1;
    bool plain = false, blankZeros = false, skipBlankRows = false, skipBlankColumns = false;
    bool repeatHeader = false;
    std::vector<std::string> headerLinks;

    std::vector<std::string> set;
};

/// Declares all options with their help on the sub-command.
void DeclareReportOptions(CLI::App& command, ReportOptions& options);

} // namespace ostrel::cli
