#include "services/TagText.h"

#include <algorithm>

#include "services/SpecialCharacters.h"
#include "services/TagClose.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::services {

namespace {

constexpr TextView HardBlank = "&nbsp;";

/// How many characters stand before the first one that is special, as a character and its follower show; the
/// last character is followed by a blank.
template <class Special>
std::size_t LengthBefore(TextView text, Special special) {
    std::size_t at = 0;
    // Whole blocks without an exit inside them, which compilers turn into vector code.
    constexpr std::size_t block = 32;
    for (; at + block < text.size(); at += block) {
        unsigned char any = 0;
        for (std::size_t i = 0; i < block; ++i)
            any |= static_cast<unsigned char>(special(text[at + i], text[at + i + 1]));
        if (any) break;
    }
    while (at < text.size() && !special(text[at], at + 1 < text.size() ? text[at + 1] : ' ')) ++at;
    return at;
}

/// What a tag stands for in plain text.
struct Block {
    int breaks = 0;
    int blanks = 0;
    bool listItem = false;
};

/// `start` is the tag's first four characters or fewer, in upper case.
Block BlockOf(TextView start) {
    const auto named = [&](TextView name) {
        return start.size() == 4 && start.substr(0, 3) == name && (start[3] == '>' || start[3] == ' ');
    };
    if (start == "<P>" || start == "</OL" || start == "</UL" || named("<OL") || named("<UL")) return {2, 0};
    if (named("<TR") || named("<BR")) return {1, 0};
    if (named("<LI")) return {1, 0, true};
    if (named("<TD")) return {0, 1};
    return {};
}

/// Which blanks of the source count, and what becomes of them.
struct Rules {
    bool hardBlanks;   ///< "&nbsp;" of the source is a blank
    bool lineBlanks;   ///< CR and LF of the source are blanks, and a run of blanks is one
    bool singleBlanks; ///< a run of blanks of the result is one, wherever it came from
    TextView listIndent;
};

/// Builds the plain text front to back. Breaks and blanks wait until it is known what follows them: next to a
/// break no blank stands, and of a run of breaks two stay.
class PlainText {
public:
    PlainText(const Rules& rules, Text& result) : rules_(rules), result_(result) {}

    void Break(int count) { breaks_ += count; }
    void Blank(std::size_t count) { blanks_ += count; }
    void Put(TextView text) {
        if (text.empty()) return;
        if (breaks_ > 0 || blanks_ > 0) Flush();
        result_.append(text);
    }
    /// Text of the source with no tag in it.
    void Source(TextView text);

private:
    void Flush() {
        if (breaks_ > 0)
            result_.append(breaks_ > 1 ? LineGap : LineEnd);
        else
            result_.append(rules_.singleBlanks ? 1 : blanks_, ' ');
        breaks_ = 0;
        blanks_ = 0;
    }
    bool IsBlank(char c) const { return c == ' ' || (rules_.lineBlanks && (c == '\r' || c == '\n')); }

    const Rules& rules_;
    Text& result_;
    std::size_t breaks_ = 0;
    std::size_t blanks_ = 0;
};

void PlainText::Source(TextView text) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size();) {
        const bool blank = IsBlank(text[i]);
        const bool hard =
            rules_.hardBlanks && text[i] == '&' && text.substr(i, HardBlank.size()) == HardBlank;
        if (!blank && !hard) {
            ++i;
            // Words with lone blanks between them go together.
            if (!rules_.lineBlanks)
                i += LengthBefore(text.substr(i), [](char c, char next) {
                    return (c == '&') | ((c == ' ') & ((next == ' ') | (next == '&')));
                });
            continue;
        }
        Put(text.substr(start, i - start));
        if (hard) {
            i += HardBlank.size();
            ++blanks_;
        } else {
            const std::size_t run = i;
            while (i < text.size() && IsBlank(text[i])) ++i;
            blanks_ += rules_.lineBlanks ? 1 : i - run;
        }
        start = i;
    }
    Put(text.substr(start));
}

/// The first four characters of a tag in upper case, as the block mapping looks at them.
TextView StartOf(TextView tag, const Rules& rules, char (&buffer)[4]) {
    const std::size_t size = std::min<std::size_t>(tag.size(), 4);
    for (std::size_t i = 0; i < size; ++i) buffer[i] = static_cast<char>(UpperByte(tag[i]));
    if (size == 4) {
        const bool line = rules.lineBlanks && (tag[3] == '\r' || tag[3] == '\n');
        const bool hard = rules.hardBlanks && tag.substr(3, HardBlank.size()) == HardBlank;
        if (line || hard) buffer[3] = ' ';
    }
    return {buffer, size};
}

void Scan(TextView html, const Rules& rules, Text& result) {
    PlainText plain(rules, result);
    while (true) {
        const std::size_t open = html.find('<');
        plain.Source(html.substr(0, open));
        if (open == NotFound) return;
        const std::size_t close = TagClosePlace(html, open + 1);
        if (close == NotFound) return;
        char buffer[4];
        const Block block = BlockOf(StartOf(html.substr(open, close - open + 1), rules, buffer));
        plain.Break(block.breaks);
        plain.Blank(static_cast<std::size_t>(block.blanks));
        if (block.listItem) plain.Put(rules.listIndent);
        html.remove_prefix(close + 1);
    }
}

void TrimInPlace(Text& text) {
    const TextView trimmed = TrimCrLfView(text);
    const auto start = static_cast<std::size_t>(trimmed.data() - text.data());
    if (trimmed.empty()) {
        text.clear();
        return;
    }
    text.resize(start + trimmed.size());
    text.erase(0, start);
}

/// Whether a text without tags and hard blanks is its own plain text.
bool IsPlain(TextView text) {
    char last = 0;
    for (const char c : text) {
        if (c == '<' || c == '&' || (c == ' ' && last == ' ')) return false;
        last = c;
    }
    return true;
}

/// The character whose entity starts the text, looked for from row `first` of the table; null for none.
const SpecialCharacter* EntityAt(TextView text, std::size_t first) {
    const auto table = SpecialCharacters();
    for (std::size_t row = first; row < table.size(); ++row)
        if (text.starts_with(table[row].entity)) return &table[row];
    return nullptr;
}

/// Decodes all entities. One after the other in the order of the table, "&nbsp;" would go first and "&amp;"
/// second, so an "&" that comes out of "&amp;" may begin any entity behind those two; nothing else that comes
/// out takes part in a further one.
void DecodeEntities(Text& text) {
    constexpr std::size_t behindAmp = 2;
    std::size_t write = text.find('&');
    if (write == Text::npos) return;
    for (std::size_t read = write; read < text.size();) {
        const TextView rest = TextView(text).substr(read);
        const SpecialCharacter* found = rest[0] == '&' ? EntityAt(rest, 0) : nullptr;
        char character = rest[0];
        std::size_t length = 1;
        if (found) {
            character = found->character;
            length = found->entity.size();
        }
        if (character == '&' && found) {
            // The "&" and what follows "amp;" may spell a further entity.
            text[read + length - 1] = '&';
            if (const SpecialCharacter* inner = EntityAt(rest.substr(length - 1), behindAmp)) {
                character = inner->character;
                length += inner->entity.size() - 1;
            }
        }
        text[write++] = character;
        read += length;
    }
    text.resize(write);
}

} // namespace

std::size_t TagClosePlace(TextView text, std::size_t from) {
    for (; from < text.size(); ++from) {
        if (text[from] == '>') return from;
        if (text[from] != '"') continue;
        from = text.find('"', from + 1);
        if (from == NotFound) break;
    }
    return NotFound;
}

Long FindTagClose(TextView text, Long start) {
    const std::size_t place = TagClosePlace(text, start > 1 ? static_cast<std::size_t>(start - 1) : 0);
    return place == NotFound ? 0 : static_cast<Long>(place + 1);
}

Text StripTags(TextView html) {
    Text result;
    StripTagsInto(html, result);
    return result;
}

void StripTagsInto(TextView html, Text& result) {
    html = TrimCrLfView(html);
    if (IsPlain(html)) {
        result.assign(html);
        return;
    }
    static constexpr Rules rules{true, false, true, {}};
    result.clear();
    result.reserve(html.size());
    Scan(html, rules, result);
    TrimInPlace(result);
}

Text ExtractContent(TextView html, bool removeDouble, bool removeSpecials) {
    const Rules rules{false, removeDouble, false, removeSpecials ? TextView("&nbsp;&nbsp;") : TextView()};
    Text result;
    html = TrimCrLfView(html);
    result.reserve(html.size());
    Scan(html, rules, result);
    if (removeSpecials) DecodeEntities(result);
    TrimInPlace(result);
    return result;
}

Text NormaliseSearchText(TextView text) {
    Text result;
    result.reserve(text.size());
    while (!text.empty()) {
        const char kept = text[0] == '\r' ? ' ' : text[0];
        text.remove_prefix(1);
        if (kept == '\n' || (kept == ' ' && result.ends_with(' '))) continue;
        result += kept;
        if (kept == ' ') continue;
        const std::size_t run = LengthBefore(text, [](unsigned char c, unsigned char next) {
            return (c < ' ') | ((c == ' ') & (next <= ' '));
        });
        result.append(text.substr(0, run));
        text.remove_prefix(run);
    }
    return result;
}

Double CellNumericValue(TextView html) {
    Text text;
    StripTagsInto(html, text);
    return LeadingNumber(text);
}

Long CellTimeSeconds(TextView html) {
    Text text;
    StripTagsInto(html, text);
    const TextView time = TrimBlanks(text);
    const auto colons = std::count(time.begin(), time.end(), ':');
    if (time.find_first_not_of("0123456789:") != NotFound || colons > 2) return 0;
    // Parts weigh 60 times the part behind them, also where some are empty.
    Double seconds = 0, part = 0;
    for (const char c : time) {
        if (c != ':') {
            part = part * 10 + (c - '0');
            continue;
        }
        seconds = (seconds + part) * 60;
        part = 0;
    }
    return ToLong(seconds + part).value_or(0);
}

} // namespace ostrel::services
