#include "services/TimeText.h"

#include <algorithm>

#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::services {

namespace {

void AppendTwoDigits(Text& output, Long value) {
    if (value < 10) output += '0';
    AppendLong(output, value);
}

/// A count of the smaller unit as two numbers of two digits, the first not wrapped.
Text InSixties(Long count) {
    count = std::max<Long>(count, 0);
    Text result;
    AppendTwoDigits(result, count / 60);
    result += ':';
    AppendTwoDigits(result, count % 60);
    return result;
}

} // namespace

Text MinutesSeconds(Long seconds) { return InSixties(seconds); }

Text HoursMinutes(Long minutes) { return InSixties(minutes); }

Text HoursMinutesSeconds(Long seconds) {
    if (seconds <= 0) return {};
    Text result = InSixties(seconds / 60);
    result += ':';
    AppendTwoDigits(result, seconds % 60);
    return result;
}

bool IsTime(TextView text, TextView delimiter) {
    constexpr int most = 3;
    if (delimiter.empty()) return false;
    text = TrimBlanks(text);
    int parts = 0;
    while (true) {
        const std::size_t end = FindText(text, delimiter);
        const TextView part = text.substr(0, end);
        if (part.empty() || part.find_first_not_of("0123456789") != NotFound) return false;
        // Only the first part may pass 59.
        if (++parts > most || (parts > 1 && ToLong(part).value_or(60) > 59)) return false;
        if (end == NotFound) return parts > 1;
        text.remove_prefix(end + delimiter.size());
    }
}

} // namespace ostrel::services
