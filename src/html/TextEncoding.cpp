#include <array>

#include "html/Elements.h"
#include "services/SpecialCharacters.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsUpperLetter(char c) { return c >= 'A' && c <= 'Z'; }

using ByteTexts = std::array<TextView, 256>;

/// The entity of each byte; empty for the bytes that stand for themselves.
const ByteTexts& Entities() {
    static const ByteTexts table = [] {
        ByteTexts entities;
        for (const services::SpecialCharacter& special : services::SpecialCharacters()) {
            TextView& entity = entities[static_cast<unsigned char>(special.character)];
            if (special.character != ' ' && entity.empty()) entity = special.entity;
        }
        return entities;
    }();
    return table;
}

/// The hexadecimal form of each byte that may not stand in an address. The comma has that of the apostrophe,
/// on which searches rely.
const ByteTexts& AddressCodes() {
    static const ByteTexts table = [] {
        ByteTexts codes;
        constexpr struct {
            char character;
            TextView code;
        } rows[] = {{' ', "%20"}, {'/', "%2F"}, {'?', "%3F"}, {':', "%3A"},  {';', "%3B"}, {'&', "%26"},
                    {'@', "%40"}, {'=', "%3D"}, {'#', "%23"}, {'%', "%25"},  {'>', "%3E"}, {'<', "%3C"},
                    {'{', "%7B"}, {'}', "%7D"}, {'[', "%5B"}, {']', "%5D"},  {'"', "%22"}, {',', "%27"},
                    {'`', "%60"}, {'^', "%5E"}, {'~', "%7E"}, {'\\', "%5C"}, {'|', "%7C"}};
        for (const auto& row : rows) codes[static_cast<unsigned char>(row.character)] = row.code;
        return codes;
    }();
    return table;
}

void AppendEncoded(Text& output, TextView text, const ByteTexts& codes) {
    for (const char c : text) {
        const TextView code = codes[static_cast<unsigned char>(c)];
        if (code.empty())
            output.push_back(c);
        else
            output.append(code);
    }
}

} // namespace

Text CreateAnchorName(TextView name) {
    const Text plain = services::StripTags(name);
    Text result;
    for (const char c : TrimBlanks(plain)) {
        const char upper = static_cast<char>(UpperByte(c));
        const bool kept = IsUpperLetter(upper) || IsDigit(upper) || upper == '.';
        if (kept)
            result.push_back(upper);
        else if (result.empty() || result.back() != '-')
            result.push_back('-');
    }
    if (!result.empty() && !IsUpperLetter(result[0])) result.insert(0, "X-");
    return result;
}

Text CreateString(TextView text, bool bold, bool italic, bool underline) {
    if (text.empty()) return {};
    Text result;
    result.reserve(text.size() + 21);
    if (bold) result.append("<B>");
    if (italic) result.append("<I>");
    if (underline) result.append("<U>");
    AppendEncoded(result, text, Entities());
    if (underline) result.append("</U>");
    if (italic) result.append("</I>");
    if (bold) result.append("</B>");
    return result;
}

Text CreateStringURL(TextView text) {
    Text result;
    result.reserve(text.size());
    AppendEncoded(result, text, AddressCodes());
    return result;
}

Text CreateStringJavaScript(TextView text) {
    if (text.empty()) return {};
    constexpr TextView join = "' + '";
    Text script;
    bool split = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        switch (c) {
        case '"':
        case '\'':
            script.append("\\").push_back(c);
            split = false;
            break;
        case '\r':
            script.append("\\n");
            split = false;
            break;
        case '\n':
            break;
        case '@':
        case ':':
        case '.':
        case '_':
            if (split)
                script.append(1, c).append(join);
            else if (i == 0)
                script.append("'").append(1, c).append(join);
            else if (i + 1 < text.size())
                script.append(join).append(1, c).append(join);
            else
                script.append(join).append(1, c);
            split = true;
            break;
        default:
            script.push_back(c);
            split = false;
        }
    }
    return "<SCRIPT language=\"JavaScript\"><!-- Begin\r\ndocument.write('" + script +
           "');\r\n// End --></SCRIPT>";
}

Text CreateParagraphsFromText(TextView text, bool breaks, bool multiple, bool ignoreReturn,
                              bool ignoreLineFeed) {
    if (text.empty()) return {};
    const TextView lineBreak = breaks ? "<BR>\r\n" : "</P>\r\n\r\n<P>";
    const ByteTexts& entities = Entities();
    Text result = "<P>";
    result.reserve(text.size() + 16);
    bool behindBreak = false;
    for (const char c : text) {
        if (c == '\n' || c == '\r') {
            const bool dropped = c == '\n' ? ignoreLineFeed : ignoreReturn;
            if (dropped || (!multiple && behindBreak)) continue;
            result.append(lineBreak);
            behindBreak = true;
        } else {
            AppendEncoded(result, TextView(&c, 1), entities);
            behindBreak = false;
        }
    }
    return result.append("</P>");
}

} // namespace ostrel::html
