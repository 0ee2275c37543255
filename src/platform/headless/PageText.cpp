#include "platform/headless/PageText.h"

#include <algorithm>
#include <cstdlib>

#include "text/CodePage.h"

namespace ostrel::headless {

namespace {

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool IsTag(TextView behindBracket, TextView name) {
    if (!StartsWithText(behindBracket, name)) return false;
    const char next = behindBracket.size() > name.size() ? behindBracket[name.size()] : '>';
    return IsSpace(next) || next == '>' || next == '/';
}

/// The next tag of that name at or behind `from`: where it starts, and behind its ">".
struct TagPlace {
    std::size_t start = NotFound;
    std::size_t end = NotFound;
    explicit operator bool() const { return start != NotFound; }
};

TagPlace FindTag(TextView html, TextView name, std::size_t from) {
    for (std::size_t at = from; (at = html.find('<', at)) != NotFound; ++at) {
        if (!IsTag(html.substr(at + 1), name)) continue;
        const std::size_t close = html.find('>', at);
        return {at, close == NotFound ? html.size() : close + 1};
    }
    return {};
}

/// The value of an attribute inside a tag.
Text Attribute(TextView tag, TextView name) {
    for (std::size_t at = 0; (at = FindText(tag, name, at)) != NotFound; ++at) {
        if (at == 0 || !IsSpace(tag[at - 1])) continue;
        std::size_t place = at + name.size();
        while (place < tag.size() && IsSpace(tag[place])) ++place;
        if (place >= tag.size() || tag[place] != '=') continue;
        ++place;
        while (place < tag.size() && IsSpace(tag[place])) ++place;
        if (place >= tag.size()) return {};
        const char quote = tag[place];
        if (quote == '"' || quote == '\'') {
            const std::size_t close = tag.find(quote, place + 1);
            return Text(tag.substr(place + 1, close == NotFound ? NotFound : close - place - 1));
        }
        const std::size_t end = std::min(tag.find_first_of(" \t\r\n>", place), tag.size());
        return Text(tag.substr(place, end - place));
    }
    return {};
}

/// Decodes the entity at the start of `text`; false if there is no entity.
bool DecodeEntity(TextView text, char& character, std::size_t& length) {
    const std::size_t close = text.substr(0, 10).find(';');
    if (close == NotFound) return false;
    const TextView entity = text.substr(1, close - 1);
    length = close + 1;
    struct Named {
        TextView name;
        char character;
    };
    for (const auto& [name, named] :
         {Named{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"nbsp", ' '}}) {
        if (entity == name) {
            character = named;
            return true;
        }
    }
    if (entity.size() < 2 || entity[0] != '#') return false;
    const bool hexadecimal = entity[1] == 'x' || entity[1] == 'X';
    const Text digits(entity.substr(hexadecimal ? 2 : 1));
    char* end = nullptr;
    const unsigned long scalar = std::strtoul(digits.c_str(), &end, hexadecimal ? 16 : 10);
    if (digits.empty() || *end != 0) return false;
    const auto byte = ByteOfScalar(static_cast<char32_t>(scalar));
    character = byte ? static_cast<char>(*byte) : '?';
    return true;
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const unsigned char upper = UpperByte(c);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

Text DecodeEscapes(TextView text) {
    Text decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
        if (low >= 0) {
            decoded += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

/// Returns the length of a scheme with its colon, or 0. A single letter is a drive.
std::size_t SchemeLength(TextView address) {
    const std::size_t colon = address.find(':');
    if (colon == NotFound || colon < 2) return 0;
    const bool plain = std::all_of(address.begin(), address.begin() + static_cast<std::ptrdiff_t>(colon),
                                   [](char c) { return UpperByte(c) >= 'A' && UpperByte(c) <= 'Z'; });
    return plain ? colon + 1 : 0;
}

} // namespace

Text TitleOf(TextView html) {
    const TagPlace open = FindTag(html, "TITLE", 0);
    if (!open) return {};
    const TagPlace close = FindTag(html, "/TITLE", open.end);
    const TextView raw = html.substr(open.end, close ? close.start - open.end : NotFound);
    Text title;
    bool gap = false;
    for (std::size_t i = 0; i < raw.size();) {
        char c = raw[i];
        std::size_t length = 1;
        if (c == '&' && !DecodeEntity(raw.substr(i), c, length)) length = 1;
        i += length;
        if (IsSpace(c)) {
            gap = !title.empty();
            continue;
        }
        if (gap) title += ' ';
        gap = false;
        title += c;
    }
    return title;
}

std::vector<InnerFrame> FramesOf(TextView html, std::size_t most) {
    std::vector<InnerFrame> frames;
    for (std::size_t at = 0; frames.size() < most && (at = html.find('<', at)) != NotFound;) {
        const TextView rest = html.substr(at + 1);
        const bool comment = rest.starts_with("!--");
        const bool frame = IsTag(rest, "FRAME") || IsTag(rest, "IFRAME");
        if (!comment && !frame) {
            ++at;
            continue;
        }
        const TextView closing = comment ? "-->" : ">";
        const std::size_t close = html.find(closing, at);
        if (close == NotFound) break;
        if (frame) {
            const TextView tag = html.substr(at, close - at);
            if (Text source = Attribute(tag, "SRC"); !source.empty())
                frames.push_back({Attribute(tag, "NAME"), std::move(source)});
        }
        at = close + closing.size();
    }
    return frames;
}

TextView BodyOf(TextView html, bool withTags) {
    const TagPlace open = FindTag(html, "BODY", 0);
    if (!open) return html;
    const TagPlace close = FindTag(html, "/BODY", open.end);
    const std::size_t start = withTags ? open.start : open.end;
    const std::size_t end = !close ? html.size() : withTags ? close.end : close.start;
    return html.substr(start, end - start);
}

Text PlainText(TextView html) {
    Text text;
    bool inside = false;
    for (const char c : html) {
        if (c == '<')
            inside = true;
        else if (c == '>' && inside)
            inside = false;
        else if (!inside)
            text += c;
    }
    return text;
}

Text LocalPath(const Text& address) {
    const std::size_t scheme = SchemeLength(address);
    if (scheme == 0) return address;
    if (!EqualText(TextView(address).substr(0, scheme), "file:")) return {};
    TextView rest = TextView(address).substr(scheme);
    rest = rest.substr(0, rest.find_first_of("?#"));
    while (rest.starts_with('/')) rest.remove_prefix(1);
    Text path = DecodeEscapes(rest);
    std::replace(path.begin(), path.end(), '/', '\\');
    const bool drive = path.size() > 1 && path[1] == ':';
    return drive || path.empty() ? path : "\\" + path;
}

Text ResolveAddress(const Text& page, const Text& address) {
    if (SchemeLength(address) || (address.size() > 1 && address[1] == ':')) return address;
    if (address.starts_with('\\') || address.starts_with('/')) return address;
    const bool isPath = SchemeLength(page) == 0;
    const std::size_t cut = page.find_last_of(isPath ? "\\/" : "/");
    Text relative = address;
    if (isPath) std::replace(relative.begin(), relative.end(), '/', '\\');
    return cut == NotFound ? relative : page.substr(0, cut + 1) + relative;
}

} // namespace ostrel::headless
