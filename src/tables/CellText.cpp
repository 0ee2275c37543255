#include "tables/CellText.h"

#include <algorithm>

#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tables {

namespace {

constexpr CellTraits BuildTraits() {
    CellTraits traits{};
    for (std::size_t i = 0x80; i < 0x100; ++i) traits[i] = TraitHigh;
    for (char c : {'&', '<', '>', '"'}) traits[static_cast<unsigned char>(c)] = TraitMarkup;
    traits['\r'] = traits['\n'] = TraitBreak;
    traits[' '] = TraitBlank;
    return traits;
}

void AppendReference(Text& output, char32_t scalar) {
    // Browsers read references to these control characters as the code page's printable ones.
    if (scalar >= 0x80 && scalar < 0xA0) scalar = 0xFFFD;
    output += "&#";
    AppendLong(output, static_cast<long long>(scalar));
    output += ';';
}

/// Decodes into `plain`, and the same encoded as HTML into `html`.
class CellEncoder {
public:
    CellEncoder(Text& plain, Text& html) : plain_(plain), html_(html) {}

    bool Run(std::string_view value, bool utf8) {
        const bool blank = value.find_first_not_of(' ') == std::string_view::npos;
        for (std::size_t i = 0; i < value.size();) {
            const char c = value[i];
            if (utf8 && static_cast<unsigned char>(c) >= 0x80) {
                const std::optional<char32_t> scalar = NextScalar(value, i);
                if (!scalar) return false;
                AddScalar(*scalar);
                continue;
            }
            ++i;
            plain_ += c;
            if (c == ' ' && !blank)
                AddBlank(i == value.size() || value[i] == '\r' || value[i] == '\n');
            else if (c == '\n' && i >= 2 && value[i - 2] == '\r')
                continue;
            else
                AddByte(c);
        }
        return true;
    }

private:
    void AddScalar(char32_t scalar) {
        swallows_ = false;
        if (const auto byte = ByteOfScalar(scalar)) {
            plain_ += static_cast<char>(*byte);
            html_ += static_cast<char>(*byte);
        } else {
            AppendReference(plain_, scalar);
            AppendReference(html_, scalar);
        }
    }

    void AddBlank(bool last) {
        html_ += swallows_ || last ? "&nbsp;" : " ";
        swallows_ = true;
    }

    void AddByte(char c) {
        swallows_ = c == '\r' || c == '\n';
        switch (c) {
        case '&':
            html_ += "&amp;";
            break;
        case '<':
            html_ += "&lt;";
            break;
        case '>':
            html_ += "&gt;";
            break;
        case '"':
            html_ += "&quot;";
            break;
        case '\r':
        case '\n':
            html_ += "<BR>";
            break;
        default:
            html_ += c;
        }
    }

    Text& plain_;
    Text& html_;
    bool swallows_ = true; ///< a browser would drop a blank here
};

/// HTML from outside keeps its markup; only its characters are brought into the code page.
bool DecodeHtml(std::string_view value, bool utf8, Text& html) {
    for (std::size_t i = 0; i < value.size();) {
        if (!utf8 || static_cast<unsigned char>(value[i]) < 0x80) {
            html += value[i++];
            continue;
        }
        const std::optional<char32_t> scalar = NextScalar(value, i);
        if (!scalar) return false;
        if (const auto byte = ByteOfScalar(*scalar))
            html += static_cast<char>(*byte);
        else
            AppendReference(html, *scalar);
    }
    return true;
}

} // namespace

constinit const CellTraits TraitsOfByte = BuildTraits();

TextEncoding GuessEncoding(std::string_view bytes) {
    long long balance = 0;
    for (std::size_t i = 0; i < bytes.size();) {
        if (static_cast<unsigned char>(bytes[i]) < 0x80) {
            ++i;
            continue;
        }
        if (NextScalar(bytes, i))
            ++balance;
        else if (bytes.size() - i >= 3) // a sequence cut off at the end is inconclusive
            --balance;
    }
    return balance > 0 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

bool EncodeCell(std::string_view value, TextEncoding encoding, Markup markup, Text& plain, Text& html) {
    plain.clear();
    html.clear();
    const bool utf8 = encoding == TextEncoding::Utf8;
    if (markup == Markup::Escape) return CellEncoder(plain, html).Run(value, utf8);
    if (!DecodeHtml(value, utf8, html)) return false;
    services::StripTagsInto(html, plain);
    return true;
}

namespace {

void EncodeArgument(std::string_view word, Text& plain, Text& html) {
    if (!EncodeCell(word, TextEncoding::Utf8, Markup::Escape, plain, html))
        EncodeCell(word, TextEncoding::Windows1252, Markup::Escape, plain, html);
}

} // namespace

Text PlainArgument(std::string_view word) {
    Text plain, html;
    EncodeArgument(word, plain, html);
    return plain;
}

Text HtmlArgument(std::string_view word) {
    Text plain, html;
    EncodeArgument(word, plain, html);
    return html;
}

Text HtmlOfPage(std::string_view bytes) {
    Text html;
    html.reserve(bytes.size());
    const auto high = std::find_if(bytes.begin(), bytes.end(), [](char c) { return c < 0; });
    const std::string_view rest = bytes.substr(static_cast<std::size_t>(high - bytes.begin()));
    if (GuessEncoding(rest) == TextEncoding::Utf8 && DecodeHtml(bytes, true, html)) return html;
    return Text(bytes);
}

} // namespace ostrel::tables
