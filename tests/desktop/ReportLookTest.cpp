#include "desktop/ReportLookTest.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <QStandardPaths>
#include <QWebEngineFindTextResult>

#include "cli/ReportRun.h"
#include "desktop/DesktopBench.h"

namespace ostrel::test {

namespace {

constexpr int Records = 450;

/// A table with what makes rows differ: wide texts, blank neighbours, blank rows, long numbers.
std::string Table() {
    std::string csv = "Name,Group,Price,Note,Weight\n";
    for (int i = 1; i <= Records; ++i) {
        const std::string number = std::to_string(i);
        csv += "Article " + number + ",G" + std::to_string(i % 7) + ",";
        csv += i % 11 == 0 ? ",,\n"
                           : number + ".5," + std::string(i % 13 == 0 ? 90 : 5, 'n') + "," + number + "\n";
    }
    return csv;
}

/// A bench with a report of that table.
class LookBench : public DesktopBench {
public:
    explicit LookBench(cli::ReportOptions options = {}) {
        directory.Write("t.csv", Table());
        options.input = directory.Path("t.csv");
        options.directory = directory.Path("out");
        options.quiet = true;
        made = cli::ReportRun(options).Run() == 0;
    }
    bool Show(const Text& page) { return made && Load(directory.Component("out/" + page)); }

    bool made = false;
};

/// How many cells do not begin where the header of their column does, in all groups of rows; and how many
/// rows and spans were looked at.
const QString Misplaced = R"((() => {
    const lefts = [...document.querySelectorAll('thead td, tbody.header td')].map(c => c.getBoundingClientRect().left);
    let misplaced = 0, rows = 0, spans = 0;
    for (const group of document.querySelectorAll('tbody')) group.style.contentVisibility = 'visible';
    for (const row of document.querySelectorAll('tbody tr')) {
        let column = 0;
        ++rows;
        for (const cell of row.cells) {
            if (cell.colSpan > 1 && row.cells.length > 1) ++spans;
            if (Math.abs(cell.getBoundingClientRect().left - lefts[column]) > 0.6) ++misplaced;
            column += cell.colSpan;
        }
    }
    return [misplaced, rows, spans];
})())";

} // namespace

void ReportLookTest::ColumnsLineUp() {
    struct Case {
        const char* name;
        const char* page;
        int fewestSpans;
        void (*choose)(cli::ReportOptions&);
    };
    const std::vector<Case> cases{
        {"plain", "t.htm", 0, [](cli::ReportOptions&) {}},
        {"sub-totals", "t_2_D.htm", 7,
         [](cli::ReportOptions& options) {
             options.total = {"Price", "Weight"};
             options.subTotals = options.repeatHeader = true;
         }},
        {"breaks, links and widths", "t.htm", Records - 1,
         [](cli::ReportOptions& options) {
             options.total = {"Price"};
             options.breaks = {"Group"};
             options.headerLinks = {"Top"};
             options.width = {"Note=60", "Name=20%"};
             options.border = 1;
         }},
        {"hidden columns", "t_3_U.htm", 0,
         [](cli::ReportOptions& options) {
             options.hide = {"Name", "Note"};
             options.total = {"Price"};
             options.noRecordNumbers = true;
         }},
    };
    for (const Case& one : cases) {
        cli::ReportOptions options;
        one.choose(options);
        LookBench bench(options);
        QVERIFY2(bench.Show(one.page), one.name);
        const QVariantList found = bench.Script(Misplaced).toList();
        QCOMPARE(found.size(), 3);
        QVERIFY2(found[0].toInt() == 0, one.name);
        QVERIFY2(found[1].toInt() >= Records, one.name);
        QVERIFY2(found[2].toInt() >= one.fewestSpans, one.name);
    }
}

void ReportLookTest::HeaderStaysAndIsALink() {
    LookBench bench;
    QVERIFY(bench.Show("t_3_D.htm"));
    QCOMPARE(bench.Web().LocationName(), Text("t \x96 sorted by Price, highest first"));
    QCOMPARE(bench.Script("document.querySelector('.order').innerText").toString(),
             QString("sorted by Price, highest first"));
    QCOMPARE(bench.Script("[...document.querySelectorAll('thead td')].map(c => c.innerText.trim()).join('|')")
                 .toString(),
             QString("R/N|Name|Group|Price\u00A0\u25BC|Note|Weight"));
    bench.Script("window.scrollTo(0, 5000)");
    QVERIFY(WaitUntil([&] {
        return bench.Script("Math.abs(document.querySelector('thead').getBoundingClientRect().top) < 1")
            .toBool();
    }));
    // Two pixels inside the corner of the cell, far from its text.
    const QVariantList corner =
        bench
            .Script("(() => { const r = document.querySelectorAll('thead td')[1].getBoundingClientRect(); "
                    "return [r.left + 2, r.bottom - 3]; })()")
            .toList();
    QTest::mouseClick(bench.View().focusProxy(), Qt::LeftButton, {}, {corner[0].toInt(), corner[1].toInt()});
    QVERIFY(bench.Until("DownloadComplete"));
    QCOMPARE(bench.View().url().fileName(), QString("t_1_U.htm"));
}

void ReportLookTest::LinkToARecordMarksItsRow() {
    cli::ReportOptions options;
    options.records = "true";
    LookBench bench(options);
    QVERIFY(bench.Show("t_Rec_Num_300.htm"));
    QVERIFY2(!bench.Script("document.documentElement.outerHTML.includes('content-visibility')").toBool(),
             "record pages do not carry the widths of the table");
    bench.ClickElement("[...document.links].find(a => a.textContent == 'All')");
    QVERIFY(bench.Until("DownloadComplete"));
    QVERIFY(WaitUntil([&] {
        return bench
            .Script("(() => { const anchor = document.querySelector('a:target'); if (!anchor) return false; "
                    "const row = anchor.closest('tr').getBoundingClientRect(); "
                    "return anchor.name == 'Rec_Num_300' && row.bottom < innerHeight && "
                    "row.top >= document.querySelector('thead').getBoundingClientRect().bottom; })()")
            .toBool();
    }));
    QCOMPARE(
        bench
            .Script("(() => { const mark = getComputedStyle(document.querySelector('a:target'), '::before'); "
                    "const row = document.querySelector('a:target').closest('tr').getBoundingClientRect(); "
                    "return Math.abs(parseFloat(mark.width) - row.width) < 2 && mark.backgroundColor != "
                    "'rgba(0, 0, 0, 0)'; })()")
            .toBool(),
        true);
}

void ReportLookTest::RowsOutOfViewAreFoundAndCopied() {
    LookBench bench;
    QVERIFY(bench.Show("t.htm"));
    int found = -1;
    bench.View().findText("Article 449", {},
                          [&](const QWebEngineFindTextResult& result) { found = result.numberOfMatches(); });
    QVERIFY(WaitUntil([&] { return found >= 0; }));
    QCOMPARE(found, 1);
    QVERIFY(WaitUntil([&] { return bench.Script("window.scrollY").toDouble() > 5000; }));

    QGuiApplication::clipboard()->clear();
    bench.View().triggerPageAction(QWebEnginePage::SelectAll);
    bench.View().triggerPageAction(QWebEnginePage::Copy);
    const auto copied = [] { return QGuiApplication::clipboard()->mimeData(); };
    QVERIFY(WaitUntil([&] { return copied() && copied()->hasHtml() && copied()->hasText(); }));
    constexpr int columns = 6;
    QCOMPARE(copied()->text().count('\t'), (Records + 1) * (columns - 1));
    QCOMPARE(copied()->html().count("<table"), 1);
    QCOMPARE(copied()->html().count("<tr"), Records + 1);
}

void ReportLookTest::PaperHoldsEverything() {
    const QString reader = QStandardPaths::findExecutable("pdftotext");
    if (reader.isEmpty()) QSKIP("pdftotext is not there to read what was printed");
    LookBench bench;
    QVERIFY(bench.Show("t.htm"));
    QByteArray pdf;
    bench.View().page()->printToPdf([&](const QByteArray& bytes) { pdf = bytes; });
    QVERIFY(WaitUntil([&] { return !pdf.isEmpty(); }));
    QFile file(QString::fromStdString(bench.directory.Path("t.pdf")));
    QVERIFY(file.open(QFile::WriteOnly) && file.write(pdf) == pdf.size());
    file.close();
    QProcess process;
    process.start(reader, {file.fileName(), "-"});
    QVERIFY(process.waitForFinished());
    const QString text = process.readAllStandardOutput();
    // The last column is what would be cut at the right.
    for (const char* last : {"\n1\n", "\n101\n", "\n449\n"}) QVERIFY2(text.contains(last), last);
    const qsizetype pages = text.count('\f');
    QVERIFY(pages > 1);
    QCOMPARE(text.count("Weight"), pages);
    QCOMPARE(text.count(QRegularExpression("^#\\d+$", QRegularExpression::MultilineOption)), Records);
}

} // namespace ostrel::test
