#include "text/DateText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr TextView MonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};
constexpr TextView DayNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                 "Thursday", "Friday", "Saturday"};

constexpr int DaysToEpoch = 25569; ///< from 30 December 1899 to 1 January 1970
constexpr std::int64_t SecondsOfDay = 86400;

/// Days since 1 January 1970 of a day of the Gregorian calendar; a year starts in March here, so that the
/// leap day is its last.
std::int64_t DaysFromCivil(std::int64_t year, int month, int day) {
    year -= month <= 2;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t ofEra = year - era * 400;
    const std::int64_t ofYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * 146097 + ofEra * 365 + ofEra / 4 - ofEra / 100 + ofYear - 719468;
}

void CivilFromDays(std::int64_t days, DateParts& parts) {
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t ofEra = days - era * 146097;
    const std::int64_t year = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / 146096) / 365;
    const std::int64_t ofYear = ofEra - (365 * year + year / 4 - year / 100);
    const std::int64_t month = (5 * ofYear + 2) / 153;
    parts.day = static_cast<int>(ofYear - (153 * month + 2) / 5 + 1);
    parts.month = static_cast<int>(month < 10 ? month + 3 : month - 9);
    parts.year = static_cast<int>(year + era * 400 + (parts.month <= 2));
}

int DaysOfMonth(int year, int month) {
    if (month == 2) return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

/// Reads a text from its front. Each step takes what it asks for, or leaves the place as it was.
class Reader {
public:
    explicit Reader(TextView text) : text_(text) {}

    bool AtEnd() const { return text_.empty(); }

    std::optional<int> Digits(std::size_t least, std::size_t most) {
        std::size_t length = 0;
        int value = 0;
        while (length < text_.size() && text_[length] >= '0' && text_[length] <= '9') {
            if (length == most) return std::nullopt;
            value = value * 10 + (text_[length++] - '0');
        }
        if (length < least) return std::nullopt;
        text_.remove_prefix(length);
        return value;
    }

    bool Take(TextView word) {
        if (!StartsWithText(text_, word)) return false;
        text_.remove_prefix(word.size());
        return true;
    }

    /// One of the characters, or 0.
    char TakeAny(TextView characters) {
        if (text_.empty() || characters.find(text_[0]) == TextView::npos) return 0;
        const char c = text_[0];
        text_.remove_prefix(1);
        return c;
    }

    bool TakeBlanks() {
        const std::size_t before = text_.size();
        text_ = TrimLeft(text_);
        return text_.size() != before;
    }

    /// A month by its name or the first three letters of it, as a whole word; 0 for none.
    int TakeMonth() {
        std::size_t length = 0;
        while (length < text_.size() && UpperByte(text_[length]) >= 'A' && UpperByte(text_[length]) <= 'Z')
            ++length;
        const TextView word = text_.substr(0, length);
        for (int month = 1; month <= 12; ++month) {
            const TextView name = MonthNames[month - 1];
            if (!EqualText(word, name) && !EqualText(word, name.substr(0, 3))) continue;
            text_.remove_prefix(length);
            return month;
        }
        return 0;
    }

    TextView Rest() const { return text_; }

private:
    TextView text_;
};

std::optional<Date> DayOf(std::optional<int> year, std::optional<int> month, std::optional<int> day) {
    if (!year || !month || !day || *year < 1 || *month < 1 || *month > 12) return std::nullopt;
    if (*day < 1 || *day > DaysOfMonth(*year, *month)) return std::nullopt;
    return MakeDate(*year, *month, *day);
}

/// 2024-3-9, 2024/03/09.
std::optional<Date> YearFirst(Reader& reader) {
    const std::optional<int> year = reader.Digits(4, 4);
    const char delimiter = year ? reader.TakeAny("-/") : 0;
    if (!delimiter) return std::nullopt;
    const std::optional<int> month = reader.Digits(1, 2);
    if (!month || !reader.TakeAny(TextView(&delimiter, 1))) return std::nullopt;
    return DayOf(year, month, reader.Digits(1, 2));
}

/// 25/12/2024, 25.12.2024: only where the first number can't be a month, or is the month's number too.
std::optional<Date> DayFirst(Reader& reader) {
    const std::optional<int> day = reader.Digits(1, 2);
    const char delimiter = day ? reader.TakeAny("-/.") : 0;
    if (!delimiter) return std::nullopt;
    const std::optional<int> month = reader.Digits(1, 2);
    if (!month || !reader.TakeAny(TextView(&delimiter, 1))) return std::nullopt;
    if (*day <= 12 && *day != *month) return std::nullopt;
    return DayOf(reader.Digits(4, 4), month, day);
}

/// 9 March 2024, 9-Mar-2024, Mar 9, 2024.
std::optional<Date> MonthNamed(Reader& reader) {
    const auto separated = [&] {
        const bool blank = reader.TakeBlanks();
        const bool mark = reader.TakeAny("-/,.") != 0;
        reader.TakeBlanks();
        return blank || mark;
    };
    int month = reader.TakeMonth();
    const bool monthFirst = month != 0;
    if (monthFirst && !separated()) return std::nullopt;
    const std::optional<int> day = reader.Digits(1, 2);
    if (!day) return std::nullopt;
    if (!monthFirst) {
        separated();
        month = reader.TakeMonth();
        if (month == 0) return std::nullopt;
    }
    if (!separated()) return std::nullopt;
    return DayOf(reader.Digits(4, 4), month, day);
}

std::optional<double> TimeOfDay(Reader& reader) {
    std::optional<int> hour = reader.Digits(1, 2);
    if (!hour || !reader.Take(":")) return std::nullopt;
    const std::optional<int> minute = reader.Digits(2, 2);
    if (!minute || *minute > 59) return std::nullopt;
    double second = 0;
    if (reader.Take(":")) {
        const std::optional<int> whole = reader.Digits(2, 2);
        if (!whole || *whole > 59) return std::nullopt;
        second = *whole;
        if (reader.Take(".")) {
            const TextView before = reader.Rest();
            if (!reader.Digits(1, 9)) return std::nullopt;
            second += LeadingNumber("0." + Text(before.substr(0, before.size() - reader.Rest().size())));
        }
    }
    reader.TakeBlanks();
    const bool am = reader.Take("AM");
    const bool pm = !am && reader.Take("PM");
    if (am || pm) {
        if (*hour < 1 || *hour > 12) return std::nullopt;
        hour = *hour % 12 + (pm ? 12 : 0);
    }
    if (*hour > 23) return std::nullopt;
    return (*hour * 3600 + *minute * 60 + second) / static_cast<double>(SecondsOfDay);
}

void AppendPadded(Text& output, int value, std::size_t width) {
    const Text digits = FromLong(value);
    if (digits.size() < width) output.append(width - digits.size(), '0');
    output += digits;
}

/// One run of a mask letter; false where it is no part of a date.
bool AppendPart(Text& output, char letter, std::size_t run, const DateParts& parts, int weekDay) {
    const auto name = [&](TextView full) { output += run == 3 ? full.substr(0, 3) : full; };
    const auto number = [&](int value) { AppendPadded(output, value, run); };
    switch (letter) {
    case 'd':
        if (run > 4) return false;
        run > 2 ? name(DayNames[weekDay]) : number(parts.day);
        return true;
    case 'm':
        if (run > 4) return false;
        run > 2 ? name(MonthNames[parts.month - 1]) : number(parts.month);
        return true;
    case 'y':
        if (run != 2 && run != 4) return false;
        number(run == 2 ? parts.year % 100 : parts.year);
        return true;
    case 'h':
    case 'n':
    case 's':
        if (run > 2) return false;
        number(letter == 'h' ? parts.hour : letter == 'n' ? parts.minute : parts.second);
        return true;
    default:
        return false;
    }
}

} // namespace

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
    const std::int64_t days = DaysFromCivil(year, month, day) + DaysToEpoch;
    return {static_cast<double>(days) +
            static_cast<double>(hour * std::int64_t{3600} + minute * std::int64_t{60} + second) /
                static_cast<double>(SecondsOfDay)};
}

DateParts PartsOf(Date date) {
    DateParts parts{};
    // Years -200000 to 200000; what is no number or lies beyond counts as day 0.
    const double serial = std::fabs(date.serial) < 7e7 ? date.serial : 0;
    const auto seconds = static_cast<std::int64_t>(std::floor(serial * SecondsOfDay + 0.5));
    std::int64_t days = seconds / SecondsOfDay;
    std::int64_t rest = seconds % SecondsOfDay;
    if (rest < 0) {
        rest += SecondsOfDay;
        --days;
    }
    CivilFromDays(days - DaysToEpoch, parts);
    parts.hour = static_cast<int>(rest / 3600);
    parts.minute = static_cast<int>(rest / 60 % 60);
    parts.second = static_cast<int>(rest % 60);
    return parts;
}

std::optional<Date> ParseDate(TextView text) {
    text = TrimBlanks(text);
    for (const auto form : {YearFirst, DayFirst, MonthNamed}) {
        Reader reader(text);
        std::optional<Date> date = form(reader);
        if (!date) continue;
        if (reader.AtEnd()) return date;
        const bool blank = reader.TakeBlanks();
        const bool mark = !blank && reader.Take("T");
        const std::optional<double> time = blank || mark ? TimeOfDay(reader) : std::nullopt;
        if (mark) reader.Take("Z");
        if (!time || !reader.AtEnd()) return std::nullopt;
        date->serial += *time;
        return date;
    }
    return std::nullopt;
}

std::optional<Date> ParseTime(TextView text) {
    Reader reader(TrimBlanks(text));
    const std::optional<double> time = TimeOfDay(reader);
    if (!time || !reader.AtEnd()) return std::nullopt;
    return Date{*time};
}

Text FormatDate(Date date, TextView mask) {
    const DateParts parts = PartsOf(date);
    // Day 1 was a Sunday.
    const std::int64_t days = DaysFromCivil(parts.year, parts.month, parts.day) + DaysToEpoch;
    const int weekDay = static_cast<int>(((days - 1) % 7 + 7) % 7);
    Text result;
    for (std::size_t i = 0; i < mask.size();) {
        const auto letter = static_cast<char>(LowerByte(mask[i]));
        std::size_t run = 1;
        while (i + run < mask.size() && static_cast<char>(LowerByte(mask[i + run])) == letter) ++run;
        if (!AppendPart(result, letter, run, parts, weekDay)) result.append(mask, i, run);
        i += run;
    }
    return result;
}

} // namespace ostrel
