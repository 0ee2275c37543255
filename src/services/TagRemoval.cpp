#include <algorithm>
#include <cstring>

#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

/// A text that is cut at two places which only move forward: its front, where all before a cut leaves it for
/// good, and a gap, which lies where the last cut behind the front was made. Each byte is moved once at most,
/// however many cuts there are. Places count from 0, without the gap.
class GapText {
public:
    explicit GapText(Text text) : text_(std::move(text)) {}

    std::size_t Front() const { return front_; }
    std::size_t Gap() const { return gap_; }

    /// Finds ignoring case, also across the gap.
    std::size_t Find(TextView phrase, std::size_t from) const {
        if (from < gap_) {
            const TextView head = TextView(text_).substr(0, gap_);
            if (const std::size_t hit = FindText(head, phrase, from); hit != NotFound) return hit;
            const std::size_t seam = std::max(from, gap_ - std::min(gap_, phrase.size() - 1));
            const Text joint = Text(head.substr(seam)).append(text_, gap_ + gapSize_, phrase.size() - 1);
            if (const std::size_t hit = FindText(joint, phrase); hit != NotFound) return seam + hit;
            from = gap_;
        }
        const std::size_t hit = FindText(text_, phrase, from + gapSize_);
        return hit == NotFound ? NotFound : hit - gapSize_;
    }

    void CutAtFront(std::size_t from, std::size_t to, Text& output) {
        if (to > gap_) MoveGap(to);
        output.append(text_, front_, from - front_);
        front_ = to;
    }

    /// `to` must not lie before the gap.
    void CutAtGap(std::size_t from, std::size_t to) {
        if (from > gap_) MoveGap(from);
        gap_ = from;
        gapSize_ += to - from;
    }

    void AppendRest(Text& output) const {
        output.append(text_, front_, gap_ - front_).append(text_, gap_ + gapSize_);
    }

private:
    void MoveGap(std::size_t to) {
        std::memmove(text_.data() + gap_, text_.data() + gap_ + gapSize_, to - gap_);
        gap_ = to;
    }

    Text text_;
    std::size_t front_ = 0;
    std::size_t gap_ = 0;
    std::size_t gapSize_ = 0;
};

/// Leaves of each run of blanks behind the marker one.
Text SingleBlanksBehind(Text text, TextView marker) {
    const Text wanted = Text(marker) + "  ";
    while (true) {
        std::size_t hit = FindExact(text, wanted);
        if (hit == NotFound) return text;
        Text result;
        result.reserve(text.size());
        std::size_t start = 0;
        for (; hit != NotFound; hit = FindExact(text, wanted, start)) {
            result.append(text, start, hit + wanted.size() - 1 - start);
            start = std::min(text.find_first_not_of(' ', hit + wanted.size()), text.size());
        }
        text = result.append(text, start);
    }
}

} // namespace

Text RemoveComments(TextView html, bool trimBlanks) {
    constexpr TextView open = "<!-- ", close = " -->";
    if (trimBlanks) html = TrimBlanks(html);
    Text result;
    result.reserve(html.size());
    std::size_t start = 0;
    while (true) {
        const std::size_t from = FindExact(html, open, start);
        result.append(html.substr(start, from == NotFound ? NotFound : from - start));
        if (from == NotFound) return result;
        // From the opening itself, so that the two may share a blank.
        const std::size_t to = FindText(html, close, from);
        if (to == NotFound) return result;
        start = to + close.size();
    }
}

Text RemoveBetweenTags(TextView html, TextView tag, TextView tagEnd, bool trimBlanks) {
    if (trimBlanks) html = TrimBlanks(html);
    const Text open = "<" + Text(tag) + ">";
    const Text close = tagEnd.empty() ? "</" + Text(tag) + ">" : "<" + Text(tagEnd) + ">";
    Text result;
    result.reserve(html.size());
    std::size_t start = 0;
    while (true) {
        const std::size_t from = FindText(html, open, start);
        const std::size_t to = from == NotFound ? NotFound : FindText(html, close, from);
        if (to == NotFound) return result.append(html.substr(start));
        result.append(html.substr(start, from - start));
        start = to + close.size();
    }
}

Text RemoveDoubleTag(TextView html, TextView tag, TextView subTag, bool trimBlanks) {
    if (trimBlanks) html = TrimBlanks(html);
    const Text name = "<" + Text(tag);
    const Text close = "</" + Text(tag) + ">";
    if (subTag.empty()) return ReplaceAll(ReplaceAll(html, name + ">", {}), close, {});

    const Text open = name + " " + Text(subTag);
    GapText text(SingleBlanksBehind(Text(html), name));
    Text result;
    while (true) {
        const std::size_t from = text.Find(open, text.Front());
        const std::size_t end = from == NotFound ? NotFound : text.Find(">", from + 2);
        if (end == NotFound) break;
        text.CutAtFront(from, end + 1, result);
        // Up to the gap the text is known to hold no closing tag, but one may have come together there.
        const std::size_t known = text.Gap() - std::min(text.Gap(), close.size() - 1);
        const std::size_t closing = text.Find(close, std::max(text.Front(), known));
        if (closing == NotFound) break;
        text.CutAtGap(closing, closing + close.size());
    }
    text.AppendRest(result);
    return result;
}

} // namespace ostrel::services
