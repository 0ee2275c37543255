#include "services/TagExtraction.h"

#include <unordered_set>

#include "services/TagClose.h"
#include "text/CodePage.h"

namespace ostrel::services {

namespace {

/// A stretch of the text that was found, and what follows it.
struct Found {
    TextView result;
    TextView remain;
};

/// Finds a phrase again and again in ever shorter ends of one text, and looks at no byte twice.
class Ahead {
public:
    Ahead(TextView text, Text phrase) : text_(text), phrase_(std::move(phrase)) {}

    std::size_t From(std::size_t start) {
        if (!searched_ || (next_ != NotFound && next_ < start)) next_ = FindText(text_, phrase_, start);
        searched_ = true;
        return next_;
    }
    std::size_t Size() const { return phrase_.size(); }

private:
    TextView text_;
    Text phrase_;
    std::size_t next_ = 0;
    bool searched_ = false;
};

/// A walk over all tags of one name. `start` moves to the remainder with each step.
class TagWalk {
public:
    TagWalk(TextView text, TextView tag)
        : text_(text), plain_(text, "<" + Text(tag) + ">"), open_(text, "<" + Text(tag) + " "),
          close_(text, "</" + Text(tag) + ">") {}

    Found Single(bool includeTag) {
        const std::size_t plain = plain_.From(start_);
        // A plain tag wins, even where one with attributes stands before it.
        if (plain != NotFound) return includeTag ? Take(plain, plain + plain_.Size()) : Found{};
        const std::size_t open = open_.From(start_);
        if (open == NotFound) return {};
        const std::size_t close = TagClosePlace(text_, open + open_.Size());
        if (close == NotFound) return {};
        return includeTag ? Take(open, close + 1) : Take(open + open_.Size(), close, close + 1);
    }

    Found Double(bool includeTag) {
        const std::size_t plain = plain_.From(start_);
        const std::size_t open = open_.From(start_);
        const std::size_t close = close_.From(start_);
        if ((plain == NotFound && open == NotFound) || close == NotFound) return {};
        const std::size_t from = plain != NotFound ? plain : open;
        const std::size_t end = close + close_.Size();
        if (includeTag) return Take(close < from ? end : from, end);

        std::size_t content = from + plain_.Size();
        if (open != NotFound) {
            // The next ">" ends the opening tag, also where a plain one has ended already.
            const std::size_t bracket = TagClosePlace(text_.substr(0, close), content);
            if (bracket == NotFound) return {};
            content = bracket + 1;
        } else if (content >= close) {
            return {};
        }
        return Take(content, close, end);
    }

    void GoOn(TextView remain) { start_ = text_.size() - remain.size(); }

private:
    Found Take(std::size_t from, std::size_t to) const { return Take(from, to, to); }
    Found Take(std::size_t from, std::size_t to, std::size_t behind) const {
        return {text_.substr(from, to - from), text_.substr(behind)};
    }

    TextView text_;
    Ahead plain_, open_, close_;
    std::size_t start_ = 0;
};

/// The name="value" pairs of the inside of a tag, one after the other.
class PairReader {
public:
    explicit PairReader(TextView text) : text_(text) {}

    bool Next(TextView& name, TextView& value) {
        const std::size_t equals = text_.find('=');
        if (equals == NotFound) return false;
        name = TrimBlanks(text_.substr(0, equals));
        text_.remove_prefix(equals + 1);
        if (name.empty() || text_.empty() || text_[0] != '"') return false;
        const std::size_t quote = text_.find('"', 1);
        if (quote == NotFound) return false;
        value = text_.substr(1, quote - 1);
        text_ = TrimBlanks(text_.substr(quote + 1));
        return true;
    }

private:
    TextView text_;
};

/// The attributes of a whole tag, or of what is given as attributes already.
TextView InsideOf(TextView tag) {
    tag = TrimBlanks(tag);
    if (!tag.empty() && tag[0] == '<') {
        const std::size_t blank = tag.find(' ');
        if (blank == NotFound) return {};
        tag = TrimBlanks(tag.substr(blank));
    }
    if (!tag.empty() && tag.back() == '>') tag = TrimBlanks(tag.substr(0, tag.size() - 1));
    return tag;
}

TextView AttributeOf(TextView tag, TextView name) {
    constexpr int pairs = 10;
    if (FindText(tag, name) == NotFound) return {};
    PairReader reader(InsideOf(tag));
    TextView found, value;
    for (int i = 0; i < pairs && reader.Next(found, value); ++i)
        if (EqualText(found, name)) return value;
    return {};
}

Found FirstTag(TextView html) {
    const std::size_t open = html.find('<');
    const std::size_t close = open == NotFound ? NotFound : TagClosePlace(html, open + 1);
    if (close == NotFound) return {};
    return {html.substr(open, close - open + 1), html.substr(close + 1)};
}

/// The host may have given the remainder itself, so the result is made before that changes.
Text Deliver(const Found& found, bool trimOutput, Text& remain) {
    Text result(trimOutput ? TrimCrLfView(found.result) : found.result);
    remain = Text(found.remain);
    return result;
}

void Store(Array<Text>& values, Long index, TextView value) {
    if (index > values.Count()) values.Resize(index);
    values.Put(index, Text(value));
}

Long AllValues(TextView html, TextView tag, TextView attribute, Array<Text>& values, Long maximum,
               Text& remain, Found (TagWalk::*step)(bool)) {
    TagWalk walk(TrimCrLfView(html), tag);
    std::unordered_set<TextView> known;
    Long count = 0;
    Found last;
    while (true) {
        last = (walk.*step)(true);
        if (last.result.empty()) break;
        walk.GoOn(last.remain);
        last = FirstTag(last.result);
        const TextView value = last.result.empty() ? TextView{} : AttributeOf(last.result, attribute);
        if (value.empty() || known.contains(value)) continue;
        if (count == maximum) break;
        known.insert(value);
        Store(values, ++count, value);
    }
    remain = Text(last.remain);
    return count;
}

} // namespace

Text ExtractTag(TextView html, Text& remain) { return Deliver(FirstTag(html), false, remain); }

Text ExtractSingleTag(TextView html, TextView tag, bool trimOutput, bool includeTag, Text& remain) {
    return Deliver(TagWalk(html, tag).Single(includeTag), trimOutput, remain);
}

Text ExtractDoubleTag(TextView html, TextView tag, bool trimOutput, bool includeTag, Text& remain) {
    return Deliver(TagWalk(html, tag).Double(includeTag), trimOutput, remain);
}

Text ExtractMetaTag(TextView html, TextView tag, Text& remain) {
    TagWalk walk(html, "META");
    while (true) {
        const Found meta = walk.Single(false);
        const TextView inside = TrimCrLfView(meta.result);
        if (inside.empty()) return Deliver({{}, meta.remain}, false, remain);
        PairReader reader(inside);
        TextView key, value, name, content;
        while (reader.Next(key, value)) {
            if (EqualText(key, "NAME")) name = value;
            if (EqualText(key, "CONTENT")) content = value;
        }
        if (!name.empty() && EqualText(name, tag)) return Deliver({content, meta.remain}, false, remain);
        walk.GoOn(meta.remain);
    }
}

Long ExtractTagValues(TextView tag, Array<Text>& names, Array<Text>& values, Long maximum) {
    PairReader reader(InsideOf(tag));
    TextView name, value;
    Long count = 0;
    while (count < maximum && reader.Next(name, value)) {
        Store(names, ++count, Upper(name));
        Store(values, count, value);
    }
    return count;
}

Text ExtractTagValue(TextView tag, TextView name) { return Text(AttributeOf(tag, name)); }

bool ExtractMetaTagValues(TextView tag, Text& name, Text& content) {
    const TextView trimmed = TrimBlanks(tag);
    const TextView nameValue = AttributeOf(trimmed, "name");
    const TextView contentValue = nameValue.empty() ? TextView{} : AttributeOf(trimmed, "content");
    const bool both = !contentValue.empty();
    Text foundName(both ? nameValue : TextView{});
    content = Text(contentValue);
    name = std::move(foundName);
    return both;
}

Long ExtractAllSingleTagValues(TextView html, TextView tag, TextView attribute, Array<Text>& values,
                               Long maximum, Text& remain) {
    return AllValues(html, tag, attribute, values, maximum, remain, &TagWalk::Single);
}

Long ExtractAllDoubleTagValues(TextView html, TextView tag, TextView attribute, Array<Text>& values,
                               Long maximum, Text& remain) {
    return AllValues(html, tag, attribute, values, maximum, remain, &TagWalk::Double);
}

} // namespace ostrel::services
