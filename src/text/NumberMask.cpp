#include <charconv>
#include <cmath>
#include <vector>

#include "text/NumberText.h"

namespace ostrel {

namespace {

/// One step of a mask: a place for a digit, the point, or text that stands as it is.
struct Step {
    enum Kind { Optional, Required, Point, Literal } kind;
    char character = 0;
};

struct Mask {
    std::vector<Step> steps;
    std::size_t point = 0; ///< index of the point's step, or the number of steps
    std::size_t wholePlaces = 0, decimalPlaces = 0;
    int hundreds = 0; ///< how many "%" there are
    bool thousands = false;
};

/// The section of a mask for a value: behind the first ";" for those below 0, behind the second for 0.
TextView SectionFor(TextView mask, Double value, bool& ownSign) {
    std::vector<TextView> sections;
    bool quoted = false;
    std::size_t start = 0;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        if (mask[i] == '"') quoted = !quoted;
        if (!quoted && mask[i] == '\\')
            ++i;
        else if (!quoted && mask[i] == ';') {
            sections.push_back(mask.substr(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(mask.substr(start));
    const std::size_t wanted = value < 0 ? 1 : value == 0 ? 2 : 0;
    if (wanted >= sections.size() || sections[wanted].empty()) return sections[0];
    ownSign = wanted == 1;
    return sections[wanted];
}

Mask Read(TextView text) {
    Mask mask;
    bool pointSeen = false;
    const auto add = [&](Step::Kind kind, char c = 0) { mask.steps.push_back({kind, c}); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '#' || c == '0') {
            add(c == '0' ? Step::Required : Step::Optional);
            ++(pointSeen ? mask.decimalPlaces : mask.wholePlaces);
        } else if (c == '.' && !pointSeen) {
            pointSeen = true;
            mask.point = mask.steps.size();
            add(Step::Point);
        } else if (c == ',' && !pointSeen && mask.wholePlaces > 0) {
            mask.thousands = true;
        } else if (c == '"') {
            for (++i; i < text.size() && text[i] != '"'; ++i) add(Step::Literal, text[i]);
        } else if (c == '\\' && i + 1 < text.size()) {
            add(Step::Literal, text[++i]);
        } else {
            mask.hundreds += c == '%';
            add(Step::Literal, c);
        }
    }
    if (!pointSeen) mask.point = mask.steps.size();
    return mask;
}

/// A value's decimal digits around the point.
struct Digits {
    Text whole;    ///< without leading zeros; empty for 0
    Text decimals; ///< as many as the mask has places
};

/// Rounds half away from zero on the value's 15 significant digits, so that 2.675 becomes 2.68 although the
/// binary number lies just below it.
Digits Round(Double value, int shift, std::size_t places) {
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, 14);
    int exponent = 0;
    const char* power = buffer + 17;
    std::from_chars(*power == '+' ? power + 1 : power, end.ptr, exponent);
    // The digits as a whole number, with the point `exponent + 1` digits from its front.
    Text all(1, buffer[0]);
    all.append(buffer + 2, 14);
    long long front = exponent + 1LL + shift;
    if (front < 0) {
        all.insert(0, static_cast<std::size_t>(-front), '0');
        front = 0;
    }
    const std::size_t kept = static_cast<std::size_t>(front) + places;
    if (kept < all.size()) {
        const bool up = all[kept] >= '5';
        all.resize(kept);
        std::size_t i = kept;
        bool carry = up;
        while (carry && i > 0) {
            --i;
            carry = all[i] == '9';
            all[i] = carry ? '0' : static_cast<char>(all[i] + 1);
        }
        if (carry) {
            all.insert(0, 1, '1');
            ++front;
        }
    } else {
        all.resize(kept, '0');
    }
    Digits digits{all.substr(0, static_cast<std::size_t>(front)),
                  all.substr(static_cast<std::size_t>(front))};
    digits.whole.erase(0, digits.whole.find_first_not_of('0'));
    return digits;
}

/// The whole part, written from its end so that digits meet the places nearest to the point first.
Text WholePart(const Mask& mask, const Text& digits) {
    Text reversed;
    std::size_t left = digits.size(), written = 0, places = mask.wholePlaces;
    const auto put = [&](char digit) {
        if (mask.thousands && written > 0 && written % 3 == 0) reversed += ',';
        reversed += digit;
        ++written;
    };
    for (std::size_t i = mask.point; i-- > 0;) {
        const Step& step = mask.steps[i];
        if (step.kind == Step::Literal) {
            reversed += step.character;
            continue;
        }
        if (left > 0)
            put(digits[--left]);
        else if (step.kind == Step::Required)
            put('0');
        if (--places == 0)
            while (left > 0) put(digits[--left]);
    }
    // A mask such as ".00" has no place for whole digits; they stand in front of the point all the same.
    if (mask.wholePlaces == 0 && mask.point < mask.steps.size()) {
        Text result(reversed.rbegin(), reversed.rend());
        return result + digits;
    }
    return Text(reversed.rbegin(), reversed.rend());
}

/// The point and what follows it. Zeros at the end fall where their places are optional.
Text DecimalPart(const Mask& mask, const Text& digits) {
    Text result;
    std::size_t shown = digits.size(), place = mask.decimalPlaces;
    for (std::size_t i = mask.steps.size(); i-- > mask.point;) {
        if (mask.steps[i].kind == Step::Required) break;
        if (mask.steps[i].kind != Step::Optional) continue;
        if (digits[--place] != '0') break;
        shown = place;
    }
    std::size_t next = 0;
    for (std::size_t i = mask.point; i < mask.steps.size(); ++i) {
        const Step& step = mask.steps[i];
        if (step.kind == Step::Point)
            result += '.';
        else if (step.kind == Step::Literal)
            result += step.character;
        else if (next < shown)
            result += digits[next++];
    }
    return result;
}

} // namespace

Text FormatNumber(Double value, TextView mask) {
    if (mask.empty() || !std::isfinite(value)) return FromDouble(value);
    bool ownSign = false;
    const Mask read = Read(SectionFor(mask, value, ownSign));
    const Digits digits = Round(value, 2 * read.hundreds, read.decimalPlaces);
    Text result = WholePart(read, digits.whole);
    result += DecimalPart(read, digits.decimals);
    const bool zero = digits.whole.empty() && digits.decimals.find_first_not_of('0') == Text::npos;
    if (value < 0 && !zero && !ownSign) result.insert(0, 1, '-');
    return result;
}

} // namespace ostrel
