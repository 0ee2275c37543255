#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "cli/ReportOptions.h"
#include "control/OstrelWebHelp.h"
#include "tables/InputTable.h"

namespace ostrel::cli {

/// Finds columns by name or number. A name from the header takes precedence over a number.
class ColumnFinder {
public:
    explicit ColumnFinder(const tables::InputTable& table) : table_(table) {}

    /// The number of a column, from 1. Throws `InputError` if there is no column of that name, where several
    /// have it, or where options do not reach so far.
    Long Find(std::string_view option, std::string_view word) const;
    /// Takes `COLUMN=VALUE` apart; a name may itself hold "=". Throws `UsageError` where there is no "=".
    std::pair<Long, std::string> Split(std::string_view option, std::string_view word) const;

private:
    Long Lookup(std::string_view word, bool& ambiguous) const;
    [[noreturn]] void Fail(std::string_view option, const std::string& sentence) const;

    const tables::InputTable& table_;
};

/// Applies the options for single columns: types, sorts, links, totals and so on. Types that are given
/// replace those that were found. Throws `InputError` and `UsageError`.
void ApplyColumnOptions(const ReportOptions& options, tables::InputTable& table, OstrelWebHelp& web);

/// Throws `InputError` where no column is shown, and where one that is not shown would name the records.
void CheckShownColumns(const ReportOptions& options, const tables::InputTable& table,
                       const OstrelWebHelp& web);

/// Where sorted pages are named by their columns: throws `InputError` for a name that cannot be part of a
/// file's name, and for two columns that would share a page.
void CheckPageNames(const tables::InputTable& table, const OstrelWebHelp& web);

} // namespace ostrel::cli
