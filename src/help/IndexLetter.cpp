#include "help/IndexLetter.h"

#include "text/CodePage.h"

namespace ostrel::help {

namespace {

/// The base letters of the code page's capitals; what has none is empty.
TextView BaseOf(unsigned char capital) {
    switch (capital) {
    case 0x8A:
        return "S";
    case 0x8C:
        return "OE";
    case 0x8E:
        return "Z";
    case 0x9F:
        return "Y";
    default:
        break;
    }
    constexpr TextView fromC0[] = {"A", "A", "A", "A", "A", "A", "AE", "C", "E",  "E", "E",
                                   "E", "I", "I", "I", "I", "D", "N",  "O", "O",  "O", "O",
                                   "O", "",  "O", "U", "U", "U", "U",  "Y", "TH", "SS"};
    return capital >= 0xC0 && capital <= 0xDF ? fromC0[capital - 0xC0] : TextView();
}

bool IsLetter(TextView text) { return !text.empty() && text[0] >= 'A' && text[0] <= 'Z'; }

} // namespace

Text BaseLetters(TextView text) {
    Text result;
    result.reserve(text.size());
    for (const char c : text) {
        const unsigned char capital = UpperByte(c);
        const TextView base = BaseOf(capital);
        if (base.empty())
            result += static_cast<char>(capital);
        else
            result.append(base);
    }
    return result;
}

Text IndexLetter(TextView name) {
    const Text base = BaseLetters(name.substr(0, 1));
    return IsLetter(base) ? base.substr(0, 1) : Text();
}

Text IndexSortKey(TextView name) {
    Text key = BaseLetters(name);
    // "_" and its like stand behind the letters otherwise.
    if (!IsLetter(key)) key.insert(0, 1, ' ');
    return key;
}

} // namespace ostrel::help
