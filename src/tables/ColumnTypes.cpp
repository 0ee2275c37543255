#include "tables/ColumnTypes.h"

#include <array>
#include <utility>

#include "text/CodePage.h"
#include "text/DateText.h"

namespace ostrel::tables {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A sign, digits and one point, as the report engine reads its numbers.
bool IsNumber(TextView value) {
    std::size_t i = value.front() == '-' || value.front() == '+' ? 1 : 0;
    const std::size_t first = i;
    while (i < value.size() && IsDigit(value[i])) ++i;
    const std::size_t whole = i - first;
    if (whole > 1 && value[first] == '0') return false;
    if (i == value.size()) return whole > 0;
    if (value[i] != '.') return false;
    const std::size_t point = i++;
    while (i < value.size() && IsDigit(value[i])) ++i;
    return i == value.size() && whole + (i - point - 1) > 0;
}

/// Whether `value` has digits where `shape` has a 0, and the shape's own characters elsewhere.
bool HasShape(TextView value, TextView shape) {
    if (value.size() != shape.size()) return false;
    for (std::size_t i = 0; i < shape.size(); ++i)
        if (shape[i] == '0' ? !IsDigit(value[i]) : value[i] != shape[i]) return false;
    return true;
}

int TwoDigits(TextView value, std::size_t at) { return (value[at] - '0') * 10 + (value[at + 1] - '0'); }

bool IsDate(TextView value) {
    // Fast path for the most common date format in files.
    if (HasShape(value, "0000-00-00") && TwoDigits(value, 8) >= 1 && TwoDigits(value, 8) <= 28) {
        const int month = TwoDigits(value, 5);
        return month >= 1 && month <= 12;
    }
    return value.size() >= 6 && ParseDate(value).has_value();
}

bool IsTime(TextView value) {
    if (HasShape(value, "00:00:00") || HasShape(value, "00:00"))
        return TwoDigits(value, 0) < 24 && TwoDigits(value, 3) < 60 &&
               (value.size() == 5 || TwoDigits(value, 6) < 60);
    return IsDigit(value.front()) && ParseTime(value).has_value();
}

constexpr std::array<std::pair<std::string_view, ColumnType>, 4> TypeNames{{{"text", ColumnType::Text},
                                                                            {"number", ColumnType::Number},
                                                                            {"date", ColumnType::Date},
                                                                            {"time", ColumnType::Time}}};

} // namespace

std::optional<ColumnType> ColumnTypeOfName(std::string_view name) {
    for (const auto& [word, type] : TypeNames)
        if (EqualText(word, name)) return type;
    return std::nullopt;
}

Text SortOrderOf(ColumnType type) {
    switch (type) {
    case ColumnType::Number:
        return "Number";
    case ColumnType::Date:
        return "Date";
    case ColumnType::Time:
        return "Time";
    case ColumnType::Text:
        break;
    }
    return "String";
}

void ColumnTypeFinder::Narrow(Column& column, TextView value) {
    value = TrimBlanks(value);
    if (value.empty()) return;
    column.filled = true;
    std::uint8_t left = 0;
    if ((column.possible & MayBeNumber) && IsNumber(value)) left |= MayBeNumber;
    if ((column.possible & MayBeDate) && IsDate(value)) left |= MayBeDate;
    if ((column.possible & MayBeTime) && IsTime(value)) left |= MayBeTime;
    column.possible = left;
}

std::vector<ColumnType> ColumnTypeFinder::Types() const {
    std::vector<ColumnType> types;
    for (const Column& column : columns_) {
        ColumnType type = ColumnType::Text;
        if (column.filled && (column.possible & MayBeNumber))
            type = ColumnType::Number;
        else if (column.filled && (column.possible & MayBeDate))
            type = ColumnType::Date;
        else if (column.filled && (column.possible & MayBeTime))
            type = ColumnType::Time;
        types.push_back(type);
    }
    return types;
}

} // namespace ostrel::tables
