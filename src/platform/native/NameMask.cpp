#include "platform/native/NameMask.h"

#include "text/CodePage.h"

namespace ostrel {

namespace {

bool Matches(TextView name, TextView mask) {
    std::size_t n = 0, m = 0;
    std::size_t star = TextView::npos, resume = 0;
    while (n < name.size()) {
        if (m < mask.size() && mask[m] == '*') {
            star = m++;
            resume = n;
        } else if (m < mask.size() && (mask[m] == '?' || UpperByte(mask[m]) == UpperByte(name[n]))) {
            ++m;
            ++n;
        } else if (star != TextView::npos) {
            // Only the last star needs another try: what it takes in, an earlier one need not.
            m = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    while (m < mask.size() && mask[m] == '*') ++m;
    return m == mask.size();
}

} // namespace

bool IsMask(TextView name) { return name.find_first_of("*?") != TextView::npos; }

bool MatchesMask(TextView name, TextView mask) {
    if (Matches(name, mask)) return true;
    return mask.ends_with(".*") && Matches(name, mask.substr(0, mask.size() - 2));
}

} // namespace ostrel
