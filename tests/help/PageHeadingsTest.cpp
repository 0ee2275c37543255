#include <gtest/gtest.h>

#include "help/PageHeadings.h"
#include "text/NumberText.h"

namespace {

using namespace ostrel;

/// The headings as "level anchor text" on a line each.
Text Shown(TextView html, Long lowest) {
    Text shown;
    for (const help::PageHeading& heading : help::PageHeadings(html, lowest))
        shown += FromLong(heading.level) + " " + heading.anchor + " " + heading.text + "\n";
    return shown;
}

TEST(PageHeadings, FindsTextsAndAnchors) {
    const struct {
        Text html;
        Long lowest;
        Text shown;
    } rows[] = {
        {"<h1>One</h1><H2 id=\"b\">Two <I>x</I></H2><h3>Three</h3>", 2, "1  One\n2 b Two x\n"},
        {"<section id=\"s\">\n<h2>In</h2><p>text<h2>Next</h2>", 2, "2 s In\n2  Next\n"},
        {"<a name=\"n\"></a><h1>A</h1><div id=\"d\">text<h1>B</h1>", 1, "1 n A\n1  B\n"},
        {"<h2><a id=\"i\">Inner</a><a href=\"#i\">#</a></h2><h2>C#</h2>", 6, "2 i Inner\n2  C#\n"},
        {"<h2>Mark<a href=\"#m\">\xB6</a></h2>", 6, "2  Mark\n"},
        {"<!-- <h1>no</h1> --><script>\"<h1>no</h1>\"</SCRIPT><style><h1></style><h1>yes</h1>", 6,
         "1  yes\n"},
        {"<h1></h1><h1>no end<h2>kept</h2>", 6, "2  kept\n"},
        {"<h7>x</h7><hr>y</hr><h1 title=\"a>b\">t</h1>", 6, "1  t\n"},
        {"<h1>" + Text(5000, 'x') + "</h1><h1>short</h1>", 6, "1  short\n"},
        {"<script><h1>x</h1>", 6, ""},
        {"<h1", 6, ""},
    };
    for (const auto& [html, lowest, shown] : rows) EXPECT_EQ(Shown(html, lowest), shown) << html;
}

} // namespace
