#include "text/NumberText.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "text/CodePage.h"

namespace ostrel {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Length of the digits at the start, with one point among them; 0 where there is no digit.
std::size_t MantissaLength(TextView text) {
    std::size_t length = 0;
    bool point = false, digit = false;
    for (; length < text.size(); ++length) {
        if (IsDigit(text[length]))
            digit = true;
        else if (text[length] == '.' && !point)
            point = true;
        else
            break;
    }
    return digit ? length : 0;
}

/// Takes the sign off the front; whether it is a minus.
bool TakeSign(TextView& text) {
    if (text.empty() || (text[0] != '-' && text[0] != '+')) return false;
    const bool minus = text[0] == '-';
    text.remove_prefix(1);
    return minus;
}

} // namespace

Double LeadingNumber(TextView text) {
    text = TrimLeft(text);
    const bool minus = TakeSign(text);
    Double value = 0;
    std::from_chars(text.data(), text.data() + MantissaLength(text), value, std::chars_format::fixed);
    return minus && value != 0 ? -value : value;
}

std::optional<Double> ToDouble(TextView text) {
    text = TrimBlanks(text);
    const bool minus = TakeSign(text);
    if (MantissaLength(text) == 0) return std::nullopt;
    Double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return minus ? -value : value;
}

std::optional<Long> ToLong(TextView text) {
    const std::optional<Double> value = ToDouble(text);
    return value ? ToLong(*value) : std::nullopt;
}

std::optional<Long> ToLong(Double value) {
    const Double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<Long>::min() && whole <= std::numeric_limits<Long>::max()))
        return std::nullopt;
    return static_cast<Long>(whole);
}

std::optional<bool> ToFlag(TextView text) {
    text = TrimBlanks(text);
    if (EqualText(text, "true")) return true;
    if (EqualText(text, "false")) return false;
    const std::optional<Double> value = ToDouble(text);
    if (!value) return std::nullopt;
    return *value != 0;
}

Text FromLong(Long value) {
    Text result;
    AppendLong(result, value);
    return result;
}

void AppendLong(Text& output, long long value) {
    char buffer[24];
    output.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
}

Text FromDouble(Double value) {
    if (value == 0) return "0";
    // The shortest spelling of the value rounded to 15 digits, so that 0.1 + 0.2 reads "0.3".
    char digits[48];
    const auto rounded =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific, 14);
    std::from_chars(digits, rounded.ptr, value);
    const Double size = std::fabs(value);
    const bool plain = size >= 1e-15 && size < 1e15;
    const auto end = std::to_chars(digits, digits + sizeof digits, value,
                                   plain ? std::chars_format::fixed : std::chars_format::scientific);
    return Upper(TextView(digits, static_cast<std::size_t>(end.ptr - digits)));
}

} // namespace ostrel
