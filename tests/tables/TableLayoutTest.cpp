#include <gtest/gtest.h>

#include "control/OstrelWebHelp.h"
#include "platform/headless/HeadlessPlatform.h"
#include "tables/ColumnWidths.h"
#include "tables/CsvSource.h"
#include "tables/PageHeads.h"
#include "tables/ReportStyle.h"
#include "tables/TextWidth.h"

namespace ostrel::test {

namespace {

struct Bench {
    explicit Bench(const std::string& csv, tables::Markup markup = tables::Markup::Escape) : table(markup) {
        web.InitProperties();
        web.PageReset();
        tables::MemorySource source(csv);
        tables::CsvSource rows(source, {}, true);
        tables::ReadTable(rows, table);
    }
    tables::TableLayout Layout() { return tables::LayOutTable(table, web); }

    Platform platform = MakeHeadlessPlatform(true);
    OstrelWebHelp web{platform};
    tables::InputTable table;
};

std::string Rows(int count, const std::string& row) {
    std::string rows;
    for (int i = 0; i < count; ++i) rows += row;
    return rows;
}

} // namespace

TEST(TextWidthTest, CountsCharactersAndNotMarkup) {
    struct Row {
        Text html;
        double line, word;
    };
    for (const auto& [html, line, word] : std::vector<Row>{
             {"", 0, 0},
             {"0000", 4, 4},
             {"<B>00</B>", 2, 2},
             {"00<BR>0", 2, 2},
             {"000<br>00000", 5, 5},
             {"00-00", 4.6, 2.6},
             {"0&amp;0", 3.15, 3.15},
             {"&#20013;", 1.8, 1.8},
             {"0&0", 3.2, 3.2},
             {"00<B", 2, 2},
         }) {
        EXPECT_NEAR(tables::MeasureHtml(html).line, line, 0.06) << html;
        EXPECT_NEAR(tables::MeasureHtml(html).word, word, 0.06) << html;
    }
}

TEST(TableLayoutTest, WidthsComeFromWhatColumnsHold) {
    Bench bench("Id,Text,Rare,LongNameOfAColumn\n" + Rows(99, "1,short text,a,b\n") + "1234567890," +
                std::string(300, 'x') + "," + std::string(300, 'y') + ",b\n");
    const auto columns = bench.Layout().columns;
    ASSERT_EQ(columns.size(), 4U);
    EXPECT_GT(columns[0].wanted, 10) << "numbers are never broken, however rare the longest";
    EXPECT_LT(columns[0].wanted, 13);
    for (const int text : {1, 2}) EXPECT_LE(columns[text].wanted, 36) << "one value of a hundred may wrap";
    EXPECT_GT(columns[1].wanted, 10);
    EXPECT_GT(columns[3].wanted, 17) << "a word of the header stays whole";
    EXPECT_EQ(columns[0].least, columns[0].wanted);
    EXPECT_LT(columns[1].least, columns[1].wanted) << "texts may wrap in a narrow window";
    EXPECT_LT(bench.Layout().lines, 1.5);
}

TEST(TableLayoutTest, FollowsTheOptions) {
    Bench bench("A,B,C,D\n" + Rows(20, "1,2,x,4\n"));
    bench.web.PageTableRecordNumber(true);
    bench.web.PageTableColumnHide(2, true);
    bench.web.PageTableColumnWidth(1, "120");
    bench.web.PageTableColumnWidth(3, "20%");
    bench.web.PageTableColumnWidth(4, "1em; }");
    bench.web.PageTableColumnTotal(4, true);
    const auto layout = bench.Layout();
    ASSERT_EQ(layout.columns.size(), 4U) << "the record number, and three of four columns";
    EXPECT_EQ(layout.columns[1].given, "120px");
    EXPECT_EQ(layout.columns[2].given, "(100vw - 4em) * 0.2");
    EXPECT_EQ(layout.columns[3].given, "") << "only numbers and percents go into a style sheet";
    EXPECT_EQ(layout.legendColumn, 2);
    EXPECT_EQ(layout.legendColumns, 2);
    bench.web.PageTableSpace(true);
    EXPECT_TRUE(bench.Layout().columns.empty()) << "spaces between columns leave a plain table";
    for (const char* cell :
         {"<TABLE><TR><TD>x</TABLE>", "<img src=a.png>", "<B STYLE=width:900px>x</B>", "<", "<pre"}) {
        Bench boxes(std::string("A\n") + cell + "\n", tables::Markup::Html);
        EXPECT_TRUE(boxes.Layout().columns.empty()) << cell;
    }
    Bench marked("A\n<A HREF=x><B>1</B></A><BR>2 <SPAN TITLE=y>z</SPAN>\n", tables::Markup::Html);
    EXPECT_EQ(marked.Layout().columns.size(), 1U);
    EXPECT_EQ(Bench("A\n<IMG>\n").Layout().columns.size(), 1U) << "text that only looks like it";
}

TEST(TableLayoutTest, GroupsHoldAnEvenNumberOfRows) {
    for (const auto& [columns, rows] :
         std::vector<std::pair<std::size_t, Long>>{{1, 100}, {12, 100}, {13, 92}, {100, 12}, {5000, 10}})
        EXPECT_EQ(tables::RowsOfGroup({.columns = std::vector<tables::TableLayout::Column>(columns)}), rows)
            << columns;
}

TEST(PageHeadsTest, TitlesTellTheOrder) {
    Bench bench("Name,Price,Day,Price\n" + Rows(2, "x,1,2024-03-01,2\n"));
    for (Long column = 1; column <= 4; ++column) {
        bench.web.PageTableColumnSort(column, true);
        bench.web.PageTableColumnOrder(
            column, tables::SortOrderOf(bench.table.types[static_cast<std::size_t>(column - 1)]));
    }
    bench.web.PageTableColumnOrder(4, "other");
    const tables::PageHeads heads(bench.table, bench.web, "record style");
    const auto order = [&](Text type, Text sortBy, Flag up) {
        Text title = "T", body;
        Long record = 0;
        bench.web.events.PageCreateTableTitle(type, title, body, sortBy, up, record);
        const std::size_t at = title.find("sorted by ");
        return at == Text::npos ? title : title.substr(at + 10, title.rfind("</SPAN>") - at - 10);
    };
    EXPECT_EQ(order("Main", "Record Number", true), "T");
    EXPECT_EQ(order("Main", "Record Number", false), "record number, last record first");
    EXPECT_EQ(order("Sort", "Name", true), "Name, A to Z");
    EXPECT_EQ(order("Sort", "Name", false), "Name, Z to A");
    EXPECT_EQ(order("Sort", "Price", true), "Price, lowest first");
    EXPECT_EQ(order("Sort", "Price", false), "Price, highest first");
    EXPECT_EQ(order("Sort", "Day", false), "Day, latest first");
    EXPECT_EQ(order("Sort", "Price", true), "Price, upward") << "the second column of that name";
    EXPECT_EQ(order("Separate", "Field Name", true), "T");
    EXPECT_EQ(bench.web.HelpMeta(), "record style");
}

} // namespace ostrel::test
