#include "help/IndexPage.h"

#include <array>

#include "html/Elements.h"
#include "html/TableBuilder.h"
#include "text/CodePage.h"

namespace ostrel::help {

namespace {

/// Spacers of the host repeat with each entry; an index ends where it has grown to this size, in bytes.
constexpr std::size_t LargestIndex = std::size_t{256} << 20;

Text OrElse(const Text& text, const Text& fallback) { return text.empty() ? fallback : text; }

/// The index while it is made, entry by entry.
class IndexWriter {
public:
    IndexWriter(const html::PageScope& scope, const IndexLook& look)
        : scope_(scope), font_(OrElse(look.font, scope.draft.HelpFont)),
          letterFont_(OrElse(look.letterFont, font_)), padFont_(html::CreateFontStart({}, "1", {})),
          indent_(OrElse(look.indent, " &nbsp; &nbsp;")), spaceSections_(look.spaceSections),
          rowStart_(html::CreateTableRowStart("VALIGN=\"TOP\"")),
          columnSpacer_(html::CreateTableCell({}, padFont_, OrElse(look.columnSpacer, " &nbsp;"))),
          sectionSpacer_(
              html::CreateTableCell("COLSPAN=\"3\"", padFont_, OrElse(look.sectionSpacer, "&nbsp;"))) {
        rows_ = html::CreateTableStart("CELLSPACING=\"0\" BORDER=\"0\" CELLPADDING=\"0\"");
        rows_.append(LineGap);
    }

    void Add(const IndexEntry& entry) {
        const Text letter = LetterOf(entry);
        const bool section = letter != letter_;
        if (section) BeginSection(letter);
        first_ = false;

        Text head = entry.extra.empty() ? Text() : "<A NAME=\"" + entry.extra + "\">";
        rows_.append(rowStart_);
        if (section) {
            head.append("<B><A NAME=\"").append(letter).append("\">").append(letter).append("</B>");
            rows_.append(html::CreateTableCell({}, letterFont_, head)).append(LineEnd);
            rows_.append(columnSpacer_).append(LineEnd);
        } else {
            head.append("&nbsp;");
            rows_.append(html::CreateTableCell("COLSPAN=\"2\"", padFont_, head)).append(LineEnd);
        }
        Text text = entry.indent ? indent_ : Text();
        if (entry.hyperlink.empty())
            text.append(entry.name);
        else
            html::AppendLinkTitle(scope_, text, entry.hyperlink, entry.name, {}, false, false, false);
        rows_.append(html::CreateTableCell({}, font_, text));
        rows_.append("</TR>").append(LineGap);
    }

    bool Full() const { return rows_.size() >= LargestIndex; }

    Text Result(bool lettersAbove, bool lettersBelow) {
        rows_.append("</TABLE>");
        const Text letters = lettersAbove || lettersBelow ? LetterLine() : Text();
        Text result = lettersAbove ? letters + Text(LineGap) + rows_ : std::move(rows_);
        if (lettersBelow) result.append(LineGap).append(letters);
        return result;
    }

private:
    /// "A" to "Z", or empty.
    Text LetterOf(const IndexEntry& entry) const {
        if (entry.character.empty() && entry.indent) return letter_;
        const Text& name = entry.character.empty() ? entry.name : entry.character;
        Text letter = Upper(TextView(name).substr(0, 1));
        if (letter < "A" || letter > "Z") letter.clear();
        return letter;
    }

    void BeginSection(const Text& letter) {
        letter_ = letter;
        if (!letter.empty()) used_[static_cast<std::size_t>(letter[0] - 'A')] = true;
        if (!spaceSections_ || first_) return;
        rows_.append(rowStart_).append(sectionSpacer_).append("</TR>").append(LineGap);
    }

    Text LetterLine() const {
        Text line;
        for (std::size_t i = 0; i < used_.size(); ++i) {
            if (i > 0) line += ' ';
            const Text letter(1, static_cast<char>('A' + i));
            line += used_[i] ? html::CreateLink(scope_, "#" + letter, letter, true, false, false)
                             : html::CreateStringBold(letter);
        }
        return "<P>" + letterFont_ + line + "</FONT></P>";
    }

    const html::PageScope& scope_;
    Text font_, letterFont_, padFont_, indent_;
    bool spaceSections_;
    Text rowStart_, columnSpacer_, sectionSpacer_;
    Text rows_;
    Text letter_; // of the section that is open
    std::array<bool, 26> used_{};
    bool first_ = true;
};

} // namespace

Text CreateIndex(const html::PageScope& scope, const IndexStore& store, const IndexLook& look) {
    if (store.entries.empty()) return {};
    const RunFlags& run = scope.context.run;
    IndexWriter index(scope, look);
    // What runs in a yield may change the entries, so none is referred to across one.
    for (std::size_t i = 0, count = store.entries.size(); i < count && i < store.entries.size(); ++i) {
        const IndexEntry entry = store.entries[i];
        index.Add(entry);
        scope.context.GiveWay();
        if (run.StopRequested || run.HostStop || index.Full()) break;
    }
    return index.Result(look.lettersAbove, look.lettersBelow);
}

} // namespace ostrel::help
