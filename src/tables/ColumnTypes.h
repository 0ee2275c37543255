#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "text/Text.h"

namespace ostrel::tables {

/// What the values of a column are, which settles how they are aligned and sorted.
enum class ColumnType : std::uint8_t { Text, Number, Date, Time };

/// The type of that name ("text", "number", "date", "time"), ignoring case.
std::optional<ColumnType> ColumnTypeOfName(std::string_view name);
/// The sort type of the report engine.
Text SortOrderOf(ColumnType type);

/// Finds out what the columns of a table hold: a column has a type where every value of it that is not blank
/// is of that type. Numbers with leading zeros are codes, so they count as text.
class ColumnTypeFinder {
public:
    void Start(std::size_t columns) { columns_.assign(columns, Column{}); }
    void Look(std::size_t column, TextView value) {
        Column& state = columns_[column];
        if (state.possible != 0 && !value.empty()) Narrow(state, value);
    }
    std::vector<ColumnType> Types() const;

private:
    static constexpr std::uint8_t MayBeNumber = 1, MayBeDate = 2, MayBeTime = 4;
    struct Column {
        std::uint8_t possible = MayBeNumber | MayBeDate | MayBeTime;
        bool filled = false;
    };
    static void Narrow(Column& column, TextView value);

    std::vector<Column> columns_;
};

} // namespace ostrel::tables
