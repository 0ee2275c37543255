#include "bridge/Values.h"

#include <array>
#include <cmath>
#include <limits>

#include "text/CodePage.h"
#include "text/DateText.h"

namespace ostrel::bridge {

namespace {

[[noreturn]] void Refuse(const Place& place, const std::string& what) {
    throw Refusal(place.Words() + " must be " + what + ".");
}

std::string HexScalar(char32_t scalar) {
    std::string digits;
    for (; scalar != 0 || digits.size() < 4; scalar >>= 4)
        digits.insert(digits.begin(), "0123456789ABCDEF"[scalar & 15]);
    return digits;
}

template <class Whole>
Whole ReadWhole(const Json& json, const Place& place) {
    constexpr auto lowest = std::numeric_limits<Whole>::min();
    constexpr auto highest = std::numeric_limits<Whole>::max();
    if (json.is_number()) {
        // Exact for every whole number that could be in range.
        const double number = json.get<double>();
        if (number >= lowest && number <= highest && number == std::floor(number))
            return static_cast<Whole>(number);
    }
    Refuse(place, "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
}

bool IsLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int DaysOfMonth(int year, int month) {
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

/// Reads the digits of "YYYY-MM-DDTHH:MM:SS". Returns false for any other form.
bool SplitDate(std::string_view text, DateParts& parts) {
    constexpr std::string_view form = "0000-00-00T00:00:00";
    if (text.size() != form.size()) return false;
    std::array<int, 6> numbers{};
    std::size_t number = 0;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] != '0') {
            if (text[i] != form[i]) return false;
            ++number;
        } else {
            if (text[i] < '0' || text[i] > '9') return false;
            numbers[number] = numbers[number] * 10 + (text[i] - '0');
        }
    }
    parts = {numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]};
    return parts.year >= 100 && parts.month >= 1 && parts.month <= 12 && parts.day >= 1 &&
           parts.day <= DaysOfMonth(parts.year, parts.month) && parts.hour < 24 && parts.minute < 60 &&
           parts.second < 60;
}

} // namespace

std::string Place::Words() const {
    std::string words(name);
    if (row > 0) words += "(" + std::to_string(row) + (column > 0 ? ", " + std::to_string(column) : "") + ")";
    return words;
}

void Read(const Json& json, const Place& place, Text& value) {
    if (!json.is_string()) Refuse(place, "a text");
    char32_t offender = 0;
    auto text = FromUtf8(json.get_ref<const std::string&>(), &offender);
    if (!text) throw Refusal("Character U+" + HexScalar(offender) + " is not in the code page.");
    value = std::move(*text);
}

void Read(const Json& json, const Place& place, Flag& value) {
    if (json.is_boolean()) {
        value = json.get<bool>();
        return;
    }
    const double number = json.is_number() ? json.get<double>() : 1;
    if (number != 0 && number != -1) Refuse(place, "true or false");
    value = number != 0;
}

void Read(const Json& json, const Place& place, Integer& value) { value = ReadWhole<Integer>(json, place); }

void Read(const Json& json, const Place& place, Long& value) { value = ReadWhole<Long>(json, place); }

void Read(const Json& json, const Place& place, Single& value) {
    const double number = json.is_number() ? json.get<double>() : HUGE_VAL;
    if (std::abs(number) > std::numeric_limits<Single>::max()) Refuse(place, "a number of single precision");
    value = static_cast<Single>(number);
}

void Read(const Json& json, const Place& place, Double& value) {
    if (!json.is_number()) Refuse(place, "a number");
    value = json.get<double>();
}

void Read(const Json& json, const Place& place, Date& value) {
    DateParts parts{};
    if (!json.is_string() || !SplitDate(json.get_ref<const std::string&>(), parts))
        Refuse(place, "a date in the form YYYY-MM-DDTHH:MM:SS");
    value = MakeDate(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second);
}

void Read(const Json& json, const Place& place, Picture& value) {
    if (json.is_null())
        value = {};
    else if (json.is_string())
        Read(json, place, value.path);
    else
        Refuse(place, "the path of a picture or null");
}

void Read(const Json& json, const Place& place, Variant& value) {
    if (json.is_number()) {
        value = json.get<double>();
    } else if (json.is_string()) {
        Read(json, place, value.emplace<Text>());
    } else {
        Refuse(place, "a text or a number");
    }
}

void RequireArray(const Json& json, const Place& place) {
    if (!json.is_array() || json.size() > static_cast<std::size_t>(std::numeric_limits<Long>::max()))
        Refuse(place, "an array");
}

void Write(JsonWriter& writer, const Date& value) {
    const DateParts parts = PartsOf(value);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", parts.year, parts.month, parts.day,
                  parts.hour, parts.minute, parts.second);
    writer.Utf8(text);
}

void Write(JsonWriter& writer, const Picture& value) {
    if (value.path.empty())
        writer.Null();
    else
        writer.String(value.path);
}

void Write(JsonWriter& writer, const Variant& value) {
    std::visit([&](const auto& held) { Write(writer, held); }, value);
}

} // namespace ostrel::bridge
