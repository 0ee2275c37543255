#include <algorithm>

#include "html/PageDocument.h"
#include "text/CodePage.h"

namespace ostrel::html {

namespace {

constexpr Long SmallestWidth = 40;
constexpr std::size_t LongestText = 50000;

/// Breaks the lines of a page at blanks between its tags. Preformatted text keeps its lines.
class LineWrapper {
public:
    explicit LineWrapper(std::size_t width) : width_(width) {}

    void Add(TextView line) {
        if (line.size() > width_) {
            Break(line);
            return;
        }
        if (preformatted_ && FindText(line, "</pre>") != NotFound) preformatted_ = false;
        output_.append(line).append(LineEnd);
    }
    Text Result() { return std::move(output_); }

private:
    void Break(TextView line) {
        line_.clear();
        start_ = 0;
        while (!line.empty()) {
            const bool isTag = line[0] == '<';
            const TextView part = line.substr(0, isTag ? TagLength(line) : line.find('<'));
            line.remove_prefix(part.size());
            if (isTag || preformatted_)
                line_.append(part);
            else
                Fill(part);
            if (EqualText(part, "<pre>")) preformatted_ = true;
            if (EqualText(part, "</pre>")) preformatted_ = false;
        }
        output_.append(Current()).append(LineEnd);
    }

    static std::size_t TagLength(TextView line) {
        const std::size_t end = line.find('>');
        return end == NotFound ? line.size() : end + 1;
    }

    void Fill(TextView part) {
        std::size_t before = Current().size(); // what the line held before this part
        line_.append(part);
        while (Current().size() > width_) {
            const std::size_t blank = BlankToBreakAt(before);
            if (blank == NotFound) return;
            output_.append(Current().substr(0, blank + 1)).append(LineEnd);
            start_ += blank + 1;
            before -= std::min(before, blank + 1);
        }
    }

    std::size_t BlankToBreakAt(std::size_t before) const {
        const std::size_t blank = width_ > before ? Current().rfind(' ', width_) : NotFound;
        return blank != NotFound ? blank : Current().find(' ', std::max(before, width_));
    }

    /// The output line that is being filled.
    TextView Current() const { return TextView(line_).substr(start_); }

    Text output_;
    Text line_;
    std::size_t start_ = 0; // what of `line_` has gone out
    std::size_t width_;
    bool preformatted_ = false;
};

TextView WithoutLineEnds(TextView line) {
    const std::size_t start = line.find_first_not_of(LineEnd);
    return start == NotFound ? TextView() : line.substr(start, line.find_last_not_of(LineEnd) - start + 1);
}

} // namespace

Rope PageLineWrap(const PageScope& scope, const Rope& text) {
    const Long width = scope.draft.HelpPageWidth;
    if (width < SmallestWidth || text.Size() > LongestText) return text;
    const Text whole = text.ToText();
    LineWrapper wrapper(static_cast<std::size_t>(width));
    for (TextView rest = whole; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\r'), rest.size());
        wrapper.Add(WithoutLineEnds(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        scope.context.GiveWay();
    }
    return wrapper.Result();
}

} // namespace ostrel::html
