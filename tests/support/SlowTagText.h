#pragma once

#include "services/SpecialCharacters.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel::test {

/// The slow way: whole texts replaced round by round until nothing changes.
struct SlowTagText {
    static void ReplaceRounds(Text& text, bool blanks) {
        for (Text before; before != text;) {
            before = text;
            text = ReplaceAll(text, " <BR>", "<BR>");
            text = ReplaceAll(text, "<BR> ", "<BR>");
            text = ReplaceAll(text, "<BR><BR><BR>", "<BR><BR>");
            if (blanks) text = ReplaceAll(text, "  ", " ");
        }
    }
    static Text Mapped(const Text& tag, bool indent) {
        const Text start = Upper(tag.substr(0, 4));
        for (const char* two : {"<P>", "<OL>", "<OL ", "<UL>", "<UL ", "</OL", "</UL"})
            if (start == two) return "<BR><BR>";
        for (const char* one : {"<TR>", "<TR ", "<BR>", "<BR "})
            if (start == one) return "<BR>";
        if (start == "<LI>" || start == "<LI ") return indent ? "<BR>&nbsp;&nbsp;" : "<BR>";
        return start == "<TD>" || start == "<TD " ? " " : "";
    }
    static Text Scan(Text text, bool indent) {
        Text result;
        while (true) {
            const std::size_t open = text.find('<');
            if (open == Text::npos) return result + text;
            result += text.substr(0, open);
            const Long close = services::FindTagClose(text, static_cast<Long>(open) + 2);
            if (close == 0) return result;
            result += Mapped(text.substr(open, static_cast<std::size_t>(close) - open), indent);
            text = text.substr(static_cast<std::size_t>(close));
        }
    }
    static Text StripTags(const Text& html) {
        Text text = TrimCrLf(Scan(TrimCrLf(ReplaceAll(html, "&nbsp;", " ")), false));
        ReplaceRounds(text, true);
        return TrimCrLf(ReplaceAllText(text, "<BR>", "\r\n"));
    }
    static Text ExtractContent(const Text& html, bool removeDouble, bool removeSpecials) {
        Text text = TrimCrLf(html);
        if (removeDouble) {
            text = ReplaceAll(ReplaceAll(text, "\r", " "), "\n", " ");
            while (text.find("  ") != Text::npos) text = ReplaceAll(text, "  ", " ");
        }
        text = TrimCrLf(Scan(text, removeSpecials));
        ReplaceRounds(text, false);
        text = ReplaceAllText(text, "<BR>", "\r\n");
        if (removeSpecials)
            for (const auto& [character, entity] : services::SpecialCharacters())
                text = ReplaceAll(text, entity, Text(1, character));
        return TrimCrLf(text);
    }
    static Text RemoveDoubleTag(Text text, const Text& tag, const Text& subTag) {
        const Text close = "</" + tag + ">";
        while (text.find("<" + tag + "  ") != Text::npos)
            text = ReplaceAll(text, "<" + tag + "  ", "<" + tag + " ");
        for (std::size_t position = 0;;) {
            position = FindText(text, "<" + tag + " " + subTag, position);
            if (position == NotFound) return text;
            const std::size_t end = text.find('>', position + 2);
            if (end == NotFound) return text;
            text.erase(position, end + 1 - position);
            const std::size_t closing = FindText(text, close, position);
            if (closing == NotFound) return text;
            text.erase(closing, close.size());
        }
    }
};

} // namespace ostrel::test
