#include "cli/ReportOptions.h"

#include <CLI/CLI.hpp>

namespace ostrel::cli {

namespace {

const std::string Colour = "COLOUR";

void DeclareReading(CLI::App& command, ReportOptions& options) {
    const std::string group = "Reading";
    command
        .add_option("--delimiter", options.delimiter,
                    "Character between values, or comma, semicolon, tab, pipe; found out where not given")
        ->group(group);
    command
        .add_option("--encoding", options.encoding,
                    "utf-8, windows-1252, or auto to find it out (the default)")
        ->check(CLI::IsMember({"auto", "utf-8", "utf8", "windows-1252", "cp1252"}, CLI::ignore_case))
        ->group(group);
    command.add_flag("--no-header", options.noHeader, "The first row is data; columns are called by number")
        ->group(group);
    command.add_flag("--html", options.html, "Take the cells as HTML, without escaping")->group(group);
    auto* query = command.add_option("--query", options.query, "SELECT to run on a SQLite database")
                      ->type_name("SQL")
                      ->group(group);
    command.add_option("--table", options.table, "Table of a SQLite database; needed where it has several")
        ->type_name("TABLE")
        ->excludes(query)
        ->group(group);
}

void DeclarePages(CLI::App& command, ReportOptions& options) {
    const std::string group = "Pages";
    command
        .add_option("--title", options.title, "Title of every page; the name of the input where not given")
        ->group(group);
    command.add_option("--sub-title", options.subTitle, "Line under the title; \"\" for none")->group(group);
    command.add_option("--footer", options.footer, "Paragraph at the foot of every page")->group(group);
    command.add_option("--name", options.name, "Name of the main page without its extension")->group(group);
    command.add_flag("--no-sort", options.noSort, "No pages sorted by a column or by record number")
        ->group(group);
    command.add_flag("--no-records", options.noRecords, "No page for each record (the default)")
        ->group(group);
    command.add_flag("--no-record-numbers", options.noRecordNumbers, "No column of record numbers")
        ->group(group);
    command.add_flag("--no-csv", options.noCsv, "No CSV file beside the page")->group(group);
    command.add_flag("--csv-all", options.csvAll, "The CSV file holds the hidden columns as well")
        ->group(group);
    command
        .add_flag("--records", options.records,
                  "A page for each record; --records=name, =value or =name,value adds variants sorted by the "
                  "fields' names and values")
        ->group(group);
    command.add_option("--record-title", options.recordTitle, "Column that names the record on its page")
        ->type_name("COLUMN")
        ->group(group);
    command
        .add_flag("--records-all", options.recordsAll,
                  "The pages of the records show the hidden columns as well")
        ->group(group);
    command
        .add_flag("--overwrite", options.overwrite,
                  "Replace files in the directory that no report made; without it they end the run")
        ->group(group);
    command.add_flag("--quiet,-q", options.quiet, "No progress and no summary")->group(group);
}

/// An option that may be given several times, with one word each time.
CLI::Option* Repeated(CLI::App& command, const std::string& name, std::vector<std::string>& target,
                      const std::string& help, const std::string& type, const std::string& group) {
    return command.add_option(name, target, help)
        ->type_name(type)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->group(group);
}

void DeclareColumns(CLI::App& command, ReportOptions& options) {
    const std::string group =
        "Columns (COLUMN is a name from the header, or a number from 1; repeat an option "
        "for several)";
    Repeated(command, "--hide", options.hide, "Leave the column out of everything", "COLUMN", group);
    auto* sort =
        Repeated(command, "--sort", options.sort,
                 "Make sorted pages for this column; all columns have them where not given", "COLUMN", group);
    command.add_flag("--sort-all", options.sortAll, "Make sorted pages for every column (the default)")
        ->excludes(sort)
        ->group(group);
    Repeated(command, "--type", options.type,
             "What the column holds: text, number, date or time; found out where not given", "COLUMN=TYPE",
             group);
    Repeated(command, "--link", options.link,
             "Make the cells links to PREFIX.CELL, such as makers.htm#Maker for the anchors of --expose",
             "COLUMN=PREFIX", group);
    Repeated(command, "--link-tip", options.linkTip, "Tool tip of these links", "COLUMN=TEXT", group);
    Repeated(command, "--width", options.width, "Width of the column, in pixels or percent", "COLUMN=WIDTH",
             group);
    Repeated(command, "--column-colour,--column-color", options.columnColour, "Background of the column",
             "COLUMN=COLOUR", group);
    Repeated(command, "--expose", options.expose,
             "Give each value an anchor NAME.VALUE on the page sorted up, for links from elsewhere", "COLUMN",
             group);
    command
        .add_option("--record-column", options.recordColumn,
                    "Column with record numbers such as 7 or, for the rows of one record, 7.1, 7.2, ...")
        ->type_name("COLUMN")
        ->group(group);
    Repeated(command, "--sub-record", options.subRecord, "The column differs from row to row of one record",
             "COLUMN", group);
}

void DeclareTotals(CLI::App& command, ReportOptions& options) {
    const std::string group = "Totals";
    Repeated(command, "--total", options.total, "Sum up the column as numbers", "COLUMN", group);
    Repeated(command, "--total-time", options.totalTime, "Sum up the column as times (1:02:03)", "COLUMN",
             group);
    Repeated(command, "--total-format", options.totalFormat,
             "Format of the sums: a mask such as #.00 or 0.0, or auto for the places of the values (the "
             "default); with COLUMN= in front for one column",
             "[COLUMN=]FORMAT", group);
    Repeated(command, "--break", options.breaks, "A sub-total wherever the value of this column changes",
             "COLUMN", group);
    command.add_flag("--sub-totals", options.subTotals, "Sub-totals by value on the sorted pages")
        ->group(group);
}

void DeclareLook(CLI::App& command, ReportOptions& options) {
    const std::string group = "Look";
    command
        .add_option("--pattern", options.pattern, "Colours of the body: none, rows, columns, checkers, all")
        ->check(CLI::IsMember({"none", "rows", "columns", "checkers", "all"}, CLI::ignore_case))
        ->group(group);
    command.add_option("--row-colours,--row-colors", options.rowColours, "The two colours of the pattern")
        ->type_name("COLOUR,COLOUR")
        ->group(group);
    command.add_option("--header-colour,--header-color", options.headerColour, "Background of the header")
        ->type_name(Colour)
        ->group(group);
    command.add_option("--background", options.background, "Background of the pages")
        ->type_name(Colour)
        ->group(group);
    command.add_option("--link-colour,--link-color", options.linkColour, "Colour of links")
        ->type_name(Colour)
        ->group(group);
    command.add_option("--font", options.font, "Font of the pages, such as \"Georgia, serif\"")
        ->type_name("FACE")
        ->group(group);
    command.add_option("--border", options.border, "Width of the table's border in pixels")
        ->check(CLI::Range(0, 100))
        ->group(group);
    command.add_flag("--plain", options.plain, "Without the default look: the component's own defaults")
        ->group(group);
    command.add_flag("--blank-zeros", options.blankZeros, "Show zeros as empty cells")->group(group);
    command.add_flag("--skip-blank-rows", options.skipBlankRows, "Leave out rows without a value")
        ->group(group);
    command.add_flag("--skip-blank-columns", options.skipBlankColumns, "Leave out columns without a value")
        ->group(group);
    command.add_flag("--repeat-header", options.repeatHeader, "The header again below the table")
        ->group(group);
    Repeated(command, "--header-link", options.headerLinks,
             "A link above the table; a NAME of Excel, Top or Bottom alone leads there", "NAME[=URL]", group);
    Repeated(command, "--set", options.set,
             "Any property by its name, such as PageTableBorder=1 or PageTableColumnWidth(2)=20%; wins over "
             "all else. ostrel reference lists them",
             "NAME=VALUE", group);
}

const char* const Examples = R"(Examples:
  ostrel report sales.csv -o out
      out/sales.htm, a page sorted up and one sorted down for each column, and out/sales.csv
  ostrel report sales.csv -o out --title "Sales 2024" --hide Id --total Price --total-format "#.00"
  ostrel report sales.csv -o out --no-sort --no-record-numbers --no-csv
      the main page alone
  ostrel report shop.db -o out --query "SELECT name, price FROM items ORDER BY name"
  ostrel report staff.csv -o out --records=name,value --record-title Name --sort Name --sort Hired
  grep Oslo trips.csv | ostrel report - -o out --no-header --type 3=date

Exit status: 0 all is well; 1 the input is no good, files that no report made are in the way, or a page could not
be written; 2 the command line is not understood; 130 interrupted by Ctrl-C.)";

} // namespace

void DeclareReportOptions(CLI::App& command, ReportOptions& options) {
    command.add_option("INPUT", options.input, "CSV file, SQLite database, or - for CSV from standard input")
        ->required()
        ->type_name("");
    command.add_option("-o,--output", options.directory, "Directory of the pages; made where it is missing")
        ->required()
        ->type_name("DIRECTORY");
    DeclareReading(command, options);
    DeclarePages(command, options);
    DeclareColumns(command, options);
    DeclareTotals(command, options);
    DeclareLook(command, options);
    command.footer(Examples);
}

} // namespace ostrel::cli
