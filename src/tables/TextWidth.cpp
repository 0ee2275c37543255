#include "tables/TextWidth.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "text/CodePage.h"

namespace ostrel::tables {

namespace {

/// Thousandths of the font size. Helvetica's, which most sans-serif fonts follow within a few percent once
/// they are divided by the width of their own digits.
constexpr std::array<std::uint16_t, 95> AsciiWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr double DigitWidth = 556;
constexpr double AccentedWidth = 640;
/// Most characters outside the code page that tables hold are ideographs, as wide as the font is high.
constexpr double ForeignWidth = 1000;

double WidthOf(unsigned char c) {
    if (c >= 0x80) return AccentedWidth;
    return c >= 0x20 && c < 0x7F ? AsciiWidths[c - 0x20] : 0;
}

/// Returns the length of the character reference at the start of `html`, or 0.
std::size_t ReferenceLength(TextView html) {
    constexpr std::size_t longest = 10;
    const std::size_t end = html.substr(0, longest).find(';');
    return end == TextView::npos || end < 2 ? 0 : end + 1;
}

class Ruler {
public:
    void Add(double width) {
        line_ += width;
        word_ += width;
    }
    void EndWord() {
        longest_.word = std::max(longest_.word, word_ / DigitWidth);
        word_ = 0;
    }
    void EndLine() {
        EndWord();
        longest_.line = std::max(longest_.line, line_ / DigitWidth);
        line_ = 0;
    }
    const TextWidth& Longest() const { return longest_; }

private:
    double line_ = 0, word_ = 0;
    TextWidth longest_;
};

} // namespace

TextWidth MeasureHtml(TextView html) {
    Ruler ruler;
    for (std::size_t i = 0; i < html.size();) {
        const char c = html[i];
        if (c == '<') {
            if (StartsWithText(html.substr(i), "<BR")) ruler.EndLine();
            const std::size_t end = html.find('>', i);
            if (end == TextView::npos) break;
            i = end + 1;
        } else if (const std::size_t reference = c == '&' ? ReferenceLength(html.substr(i)) : 0;
                   reference > 0) {
            ruler.Add(html[i + 1] == '#' ? ForeignWidth : AccentedWidth);
            i += reference;
        } else {
            ruler.Add(WidthOf(static_cast<unsigned char>(c)));
            if (c == ' ' || c == '-') ruler.EndWord();
            ++i;
        }
    }
    ruler.EndLine();
    return ruler.Longest();
}

} // namespace ostrel::tables
