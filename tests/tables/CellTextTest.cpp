#include "tables/CellText.h"

#include <vector>

#include <gtest/gtest.h>

#include "tables/CellStore.h"

namespace ostrel::tables {
namespace {

PackedCell Stored(CellStore& store, std::string_view value, TextEncoding encoding) {
    unsigned traits = TraitNone;
    for (char c : value) traits |= TraitsOfByte[static_cast<unsigned char>(c)];
    store.Append(value.data(), value.size());
    EXPECT_TRUE(store.EndCell(traits, encoding));
    return store.Cells()[store.Count() - 1];
}

TEST(CellStore, HoldsPlainValueAndHtml) {
    struct Row {
        std::string value;
        Text plain, html;
    };
    CellStore store;
    for (const auto& [value, plain, html] : std::vector<Row>{
             {"Oslo", "Oslo", "Oslo"},
             {"a b c", "a b c", "a b c"},
             {"0.00", "0.00", "0.00"},
             {"R&D <b> \"x\" 'y'", "R&D <b> \"x\" 'y'", "R&amp;D &lt;b&gt; &quot;x&quot; 'y'"},
             {"&amp;", "&amp;", "&amp;amp;"},
             {"a\r\nb\nc\rd", "a\r\nb\nc\rd", "a<BR>b<BR>c<BR>d"},
             {"\n\n", "\n\n", "<BR><BR>"},
             {"\r\r\n", "\r\r\n", "<BR><BR>"},
             {" a", " a", "&nbsp;a"},
             {"a ", "a ", "a&nbsp;"},
             {"a   b", "a   b", "a &nbsp;&nbsp;b"},
             {"a \n b", "a \n b", "a&nbsp;<BR>&nbsp;b"},
             {"  ", "  ", "  "},
             {"caf\xC3\xA9 \xE2\x82\xAC", "caf\xE9 \x80", "caf\xE9 \x80"},
             {"\xE4\xB8\xAD&\xF0\x9F\x98\x80", "&#20013;&&#128512;", "&#20013;&amp;&#128512;"},
             {"\xC2\x80", "&#65533;", "&#65533;"}, // a browser would read &#128; as the euro sign
             {"\xC2\x81", "\x81", "\x81"},
         }) {
        const PackedCell cell = Stored(store, value, TextEncoding::Utf8);
        EXPECT_EQ(cell.Plain(), plain) << value;
        EXPECT_EQ(cell.Html(), html) << value;
    }
    EXPECT_EQ(Stored(store, "\x80\xE9 \xC3\xA9", TextEncoding::Windows1252).Html(), "\x80\xE9 \xC3\xA9");
    store.Append("\xE9", 1);
    EXPECT_FALSE(store.EndCell(TraitHigh, TextEncoding::Utf8));
    EXPECT_EQ(Stored(store, "next", TextEncoding::Utf8).Plain(), "next");
}

TEST(CellStore, KeepsTheMarkupOfHtml) {
    CellStore store(Markup::Html);
    const PackedCell cell = Stored(store, "<B>caf\xC3\xA9</B> &amp; \xE4\xB8\xAD", TextEncoding::Utf8);
    EXPECT_EQ(cell.Html(), "<B>caf\xE9</B> &amp; &#20013;");
    EXPECT_EQ(cell.Plain(), "caf\xE9 &amp; &#20013;"); // entities stay, as in every stripped cell
}

TEST(CellStore, KeepsEarlyCellsInPlaceAsItGrows) {
    CellStore store;
    const std::string large(std::size_t{60} << 20, 'x');
    Stored(store, "first & foremost", TextEncoding::Utf8);
    for (int i = 0; i < 6; ++i) Stored(store, large, TextEncoding::Utf8);
    Stored(store, "last", TextEncoding::Utf8);
    EXPECT_EQ(store.Cells()[0].Plain(), "first & foremost");
    EXPECT_EQ(store.Cells()[0].Html(), "first &amp; foremost");
    for (std::size_t i = 1; i <= 6; ++i) EXPECT_EQ(store.Cells()[i].Html(), large);
    EXPECT_EQ(store.Cells()[7].Html(), "last");
}

} // namespace
} // namespace ostrel::tables
