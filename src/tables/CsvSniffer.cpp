#include "tables/CsvSniffer.h"

#include <cstddef>

namespace ostrel::tables {

namespace {

struct Fit {
    std::size_t columns = 0;
    std::size_t records = 0; ///< read in all
    std::size_t alike = 0;   ///< with as many values as the first
};

Fit Measure(std::string_view head, char delimiter) {
    constexpr std::size_t enough = 200;
    Fit fit;
    std::size_t values = 1;
    bool quoted = false, atStart = true, anything = false;
    for (std::size_t i = 0; i < head.size() && fit.records < enough; ++i) {
        const char c = head[i];
        if (quoted) {
            if (c == '"') quoted = false; // a doubled quote opens again at once
            continue;
        }
        if (c == '\r' || c == '\n') {
            if (anything) {
                if (fit.records == 0) fit.columns = values;
                ++fit.records;
                fit.alike += values == fit.columns;
            }
            values = 1;
            atStart = true;
            anything = false;
            continue;
        }
        anything = true;
        if (c == delimiter) {
            ++values;
            atStart = true;
        } else {
            // A quote inside a value is a plain character, but for the second of a doubled one.
            if (c == '"' && (atStart || head[i - 1] == '"')) quoted = true;
            atStart = false;
        }
    }
    if (fit.records == 0) fit = {values, 1, 1};
    return fit;
}

} // namespace

char SniffDelimiter(std::string_view head) {
    char best = ',';
    Fit bestFit;
    for (char candidate : {',', ';', '\t', '|'}) {
        const Fit fit = Measure(head, candidate);
        if (fit.columns < 2) continue;
        const std::size_t share = fit.alike * (bestFit.records ? bestFit.records : 1);
        const std::size_t bestShare = bestFit.alike * fit.records;
        if (bestFit.columns == 0 || share > bestShare ||
            (share == bestShare && fit.columns > bestFit.columns)) {
            best = candidate;
            bestFit = fit;
        }
    }
    return best;
}

} // namespace ostrel::tables
