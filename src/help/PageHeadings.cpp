#include "help/PageHeadings.h"

#include <algorithm>

#include "services/TagClose.h"
#include "services/TagExtraction.h"
#include "services/TagText.h"
#include "text/CodePage.h"
#include "text/TextSearch.h"

namespace ostrel::help {

namespace {

constexpr std::size_t LongestHeading = 4096;

/// The name of an element: what follows the "<" of its tag.
TextView ElementName(TextView tag) {
    tag.remove_prefix(1);
    const auto end = std::find_if(tag.begin(), tag.end(),
                                  [](char c) { return c <= ' ' || c == '>' || c == '/' || c == '<'; });
    return tag.substr(0, static_cast<std::size_t>(end - tag.begin()));
}

/// The name that an element gives its place, or an empty text.
Text AnchorOf(TextView tag) {
    if (tag.size() > LongestHeading) return {};
    Text anchor = services::ExtractTagValue(tag, "ID");
    if (anchor.empty() && EqualText(ElementName(tag), "A")) anchor = services::ExtractTagValue(tag, "NAME");
    return anchor;
}

/// The level of a heading by its element's name; 0 for another element.
Long LevelOf(TextView name) {
    const bool heading = name.size() == 2 && UpperByte(name[0]) == 'H' && name[1] >= '1' && name[1] <= '6';
    return heading ? name[1] - '0' : 0;
}

Text PlainHeading(TextView html) {
    // Generated pages end their headings with a mark that links to the heading itself.
    Text text(html);
    for (const TextView mark : {"#", "\xB6", "&#182;", "&para;"})
        text = ReplaceAll(text, ">" + Text(mark) + "</", "></");
    return Text(TrimBlanks(services::NormaliseSearchText(services::StripTags(text))));
}

bool HoldsText(TextView between) {
    return std::any_of(between.begin(), between.end(),
                       [](char c) { return static_cast<unsigned char>(c) > ' '; });
}

/// The anchor of the first element that has one.
Text AnchorInside(TextView html) {
    for (std::size_t open = 0; (open = html.find('<', open)) != NotFound; ++open) {
        const std::size_t close = services::TagClosePlace(html, open);
        if (close == NotFound) break;
        Text anchor = AnchorOf(html.substr(open, close + 1 - open));
        if (!anchor.empty()) return anchor;
        open = close;
    }
    return {};
}

} // namespace

std::vector<PageHeading> PageHeadings(TextView html, Long lowestLevel) {
    std::vector<PageHeading> headings;
    Text before; // the anchor of an element that has begun, with no text since
    std::size_t at = 0;
    for (std::size_t open; (open = html.find('<', at)) != NotFound;) {
        if (!before.empty() && HoldsText(html.substr(at, open - at))) before.clear();
        if (html.substr(open, 4) == "<!--") {
            const std::size_t end = html.find("-->", open);
            if (end == NotFound) break;
            at = end + 3;
            continue;
        }
        const std::size_t close = services::TagClosePlace(html, open);
        if (close == NotFound) break;
        const TextView tag = html.substr(open, close + 1 - open);
        const TextView name = ElementName(tag);
        at = close + 1;
        if (EqualText(name, "SCRIPT") || EqualText(name, "STYLE")) {
            at = FindText(html, name[1] == 'C' || name[1] == 'c' ? "</SCRIPT" : "</STYLE", at);
            if (at == NotFound) break;
            continue;
        }
        const Long level = LevelOf(name);
        if (level == 0) {
            if (Text anchor = AnchorOf(tag); !anchor.empty()) before = std::move(anchor);
            continue;
        }
        const TextView inside = html.substr(at, LongestHeading);
        const std::size_t end = FindText(inside, Text("</H") + static_cast<char>('0' + level));
        if (end == NotFound) continue;
        const TextView content = inside.substr(0, end);
        at += end;
        PageHeading heading{level, AnchorOf(tag), PlainHeading(content)};
        if (heading.anchor.empty()) heading.anchor = AnchorInside(content);
        if (heading.anchor.empty()) heading.anchor = std::move(before);
        before.clear();
        if (level <= lowestLevel && !heading.text.empty()) headings.push_back(std::move(heading));
    }
    return headings;
}

} // namespace ostrel::help
