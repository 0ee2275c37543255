#include "html/SeparatePage.h"

#include <algorithm>

#include "text/CodePage.h"

namespace ostrel::html {

namespace {

Text LettersOf(TextView name) {
    Text letters;
    for (const char c : name) {
        const unsigned char lower = LowerByte(c);
        if (lower >= 'a' && lower <= 'z') letters.push_back(static_cast<char>(lower));
    }
    return letters;
}

} // namespace

Text SeparatePageValue(const SeparatePage& page, TextView fieldName) {
    const Text wanted = LettersOf(fieldName);
    if (wanted.empty()) return {};
    const Long count = std::min(page.fields, page.names.Count());
    for (Long i = 1; i <= count; ++i)
        if (LettersOf(*page.names.Find(i)) == wanted) return page.values.Get(i);
    return {};
}

} // namespace ostrel::html
