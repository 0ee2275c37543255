#include "desktop/DeskTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include "desk/CommandLine.h"
#include "desktop/DeskBench.h"
#include "desktop/FormBench.h"

namespace ostrel::test {

using desk::ColumnsModel;

namespace {

/// The first records of the earthquakes in the examples.
std::string Earthquakes(int records) {
    std::ifstream file(OSTREL_EXAMPLES_DIR "/earthquakes.csv");
    std::string csv, line;
    for (int i = 0; i <= records && std::getline(file, line); ++i) csv += line + "\n";
    return csv;
}

/// A real click on the check box of a column; row 0 is that of all columns.
void ClickColumn(const DeskBench& bench, int row, ColumnsModel::Section section) {
    auto* view = bench.Part<QTableView>("columns");
    const QModelIndex index = view->model()->index(row, section);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

} // namespace

void DeskTest::init() {
    settings_ = std::make_unique<TemporaryDirectory>();
    qputenv("XDG_CONFIG_HOME", settings_->Path().c_str());
}

void DeskTest::ReportIsWalkedByClicks() {
    DeskBench bench;
    QVERIFY(bench.window->windowTitle().startsWith("Welcome"));
    bench.directory.Write("quakes.csv", Earthquakes(40));
    bench.Open("quakes.csv");
    QCOMPARE(bench.Page(), QString("preview.htm"));
    bench.Part<QCheckBox>("records")->click();
    bench.Click("make");
    QVERIFY(bench.Settle());
    QCOMPARE(bench.Page(), QString("quakes.htm"));
    QCOMPARE(bench.window->windowTitle(), QString("quakes — Ostrel Desk"));

    QCOMPARE(bench.Follow("Magnitude"), QString("quakes_3_U.htm"));
    const QVariantList magnitudes = bench
                                        .Script("[...document.querySelectorAll('tr')].slice(1)"
                                                ".map(row => parseFloat(row.cells[3].textContent))")
                                        .toList();
    QCOMPARE(magnitudes.size(), 40);
    QVERIFY(
        std::is_sorted(magnitudes.begin(), magnitudes.end(), [](const QVariant& left, const QVariant& right) {
            return left.toDouble() < right.toDouble();
        }));
    struct Row {
        const char *link, *page, *shows, *title = "quakes";
    };
    for (const auto& [link, page, shows, title] : {Row{"Magnitude\u00A0\u25B2", "quakes_3_D.htm", "R/N",
                                                       "quakes – sorted by Magnitude, highest first"},
                                                   {"#2", "quakes_Rec_Num_2.htm", "Record - 2"},
                                                   {"Next", "quakes_Rec_Num_3.htm", "Record - 3"},
                                                   {"Last", "quakes_Rec_Num_40.htm", "Record - 40"},
                                                   {"All", "quakes.htm", "R/N"}}) {
        QCOMPARE(bench.Follow(link), QString(page));
        QCOMPARE(bench.window->windowTitle(), QString(title) + " — Ostrel Desk");
        QVERIFY2(bench.Script("document.body.innerText").toString().contains(shows), link);
    }
    QCOMPARE(bench.View().url().fragment(), QString("Rec_Num_40"));

    bench.Click("cmdBack");
    QVERIFY(WaitUntil([&] { return bench.Page() == "quakes_Rec_Num_40.htm"; }));
    QVERIFY(WaitUntil([&] { return bench.Action("forward")->isEnabled(); }));
    bench.Action("toolbar")->setChecked(false);
    bench.Action("back")->trigger();
    QVERIFY(WaitUntil([&] { return bench.Page() == "quakes_Rec_Num_3.htm"; }));
    bench.Settle();
    bench.Action("toolbar")->setChecked(true);
    bench.window->Widget().Sync();
    bench.Click("cmdHome");
    QVERIFY(WaitUntil([&] { return bench.Page() == "quakes.htm"; }));
}

void DeskTest::FocusStaysWithThePage() {
    DeskBench bench;
    bench.directory.Write("prices.csv", "Name,Price\nPear,2.5\n");
    bench.Open("prices.csv");
    bench.Action("address")->setChecked(true);
    bench.window->Widget().Sync();
    bench.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
    auto* line = bench.Part<QLineEdit>("txtURL");
    line->setFocus();
    line->selectAll();
    // The engine shows its page of what is blocked in another widget than the page before.
    const QWidget* before = bench.View().focusProxy();
    QTest::keyClicks(line, "http://127.0.0.1:9/");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(WaitUntil([&] { return bench.View().focusProxy() != before; }));
    QVERIFY(bench.Settle());
    QVERIFY(WaitUntil([&] { return bench.View().focusProxy()->hasFocus(); }));
}

void DeskTest::OptionsShapeTheReport() {
    DeskBench bench;
    bench.directory.Write("prices.csv", "Name,Price,Code\nPear,2.5,1\nApple,1,2\nPlum,0.25,3\n");
    bench.Open("prices.csv");
    // Texts that are taken for numbers are sorted so, and never summed.
    auto* columns = bench.Part<QTableView>("columns")->model();
    columns->setData(columns->index(1, ColumnsModel::KindSection),
                     static_cast<int>(tables::ColumnType::Number));
    QVERIFY(!columns->flags(columns->index(1, ColumnsModel::TotalSection)).testFlag(Qt::ItemIsEnabled));
    columns->setData(columns->index(1, ColumnsModel::KindSection),
                     static_cast<int>(tables::ColumnType::Text));
    bench.Part<QLineEdit>("title")->setText("Fruit & more");
    ClickColumn(bench, 0, ColumnsModel::SortSection); // none is sorted
    ClickColumn(bench, 1, ColumnsModel::SortSection); // but the name
    ClickColumn(bench, 3, ColumnsModel::ShowSection);
    ClickColumn(bench, 2, ColumnsModel::TotalSection);
    bench.Action("makeReport")->trigger();
    QVERIFY(bench.Settle());
    QCOMPARE(bench.directory.Names(), (std::set<std::string>{"out", "prices.csv"}));

    QStringList made = QDir(bench.Output()).entryList(QDir::Files);
    QCOMPARE(made,
             (QStringList{"prices.csv", "prices.htm", "prices_1_D.htm", "prices_1_U.htm", "prices_D.htm"}));
    QCOMPARE(bench.View().title(), QString("Fruit & more"));
    const QString text = bench.Script("document.body.textContent").toString();
    QVERIFY2(text.contains("3.75"), qPrintable(text));
    QVERIFY(!text.contains("Code"));
    QVERIFY(text.contains("3 rows, 2 columns"));

    // What has been chosen for one file does not go to the next.
    bench.directory.Write("other.csv", "Name,Price\nPear,2.5\n");
    bench.Open("other.csv");
    QCOMPARE(bench.Part<QLineEdit>("title")->text(), QString("other"));
    bench.Open("prices.csv");
    QCOMPARE(bench.Part<QLineEdit>("title")->text(), QString("Fruit & more"));
}

void DeskTest::TableLinkIsLeftToOthers() {
    DeskBench bench;
    bench.directory.Write("prices.csv", "Name,Price\nPear,2.5\n");
    bench.Open("prices.csv");
    bench.Action("makeReport")->trigger();
    QVERIFY(bench.Settle());
    QDesktopServices::setUrlHandler("file", this, "OpenElsewhere");
    bench.ClickLink("prices.csv");
    QVERIFY(WaitUntil([&] { return !opened_.isEmpty(); }));
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(opened_.toLocalFile(), bench.Output() + "/prices.csv");
    QCOMPARE(bench.Page(), QString("prices.htm"));
    QVERIFY2(WaitUntil([&] { return !bench.Part<QWidget>("cmdStop2")->isEnabled(); }), "nothing loads");

    // What is no page at all is refused in words.
    bench.directory.Write("data.zip", std::string("PK\3\4 and so on\0\1", 16));
    Text error;
    bench.window->Widget().Web().LoadURL(bench.directory.Component("data.zip"), error);
    QVERIFY(
        WaitUntil([&] { return bench.window->statusBar()->currentMessage().contains("Can't open page"); }));
    QVERIFY(WaitUntil([&] { return !bench.Part<QWidget>("cmdStop2")->isEnabled(); }));
    QVERIFY(bench.Action("refresh")->isEnabled());
}

void DeskTest::DatabaseTableIsChosen() {
    DeskBench bench;
    MakeDatabase(bench.directory.Path("shop.db"),
                 "CREATE TABLE bare(name); CREATE TABLE customers(name, city);"
                 "CREATE TABLE items(name, price, stock);"
                 "INSERT INTO customers VALUES ('Ann', 'Bern'); INSERT INTO items VALUES ('Pen', 1.5, 7);");
    bench.Open("shop.db");
    auto* tables = bench.Part<QComboBox>("tables");
    QVERIFY(tables->isVisible());
    QCOMPARE(tables->count(), 3);
    QCOMPARE(tables->currentText(), QString("customers"));
    QCOMPARE(bench.Part<QTableView>("columns")->model()->rowCount(), 3);
    tables->setFocus();
    QTest::keyClick(tables, Qt::Key_Up);
    QVERIFY(bench.window->Trouble().contains("the table has no rows."));
    QCOMPARE(tables->currentText(), QString("customers"));
    QTest::keyClick(tables, Qt::Key_Down);
    QCOMPARE(bench.Part<QTableView>("columns")->model()->rowCount(), 4);
    bench.window->SetOutputDirectory(bench.Output());
    bench.Click("make");
    QVERIFY(bench.Settle());
    QCOMPARE(bench.Page(), QString("shop_items.htm"));
    QCOMPARE(bench.View().title(), QString("shop items"));
}

void DeskTest::FaultyFileIsTold_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("ragged") << QByteArray("a,b\n1,2\n3\n") << "line 3: the row has 1 value where";
    QTest::newRow("empty") << QByteArray("") << "is empty.";
    QTest::newRow("header alone") << QByteArray("a,b\n") << "there is a header and no row below it.";
    QTest::newRow("not text") << QByteArray("a,b\n1,\0\n", 8) << "this is not text.";
    QTest::newRow("torn database") << QByteArray("SQLite format 3\0garbage", 23) << "file is not a database";
}

void DeskTest::FaultyFileIsTold() {
    QFETCH(QByteArray, content);
    QFETCH(QString, sentence);
    DeskBench bench;
    bench.directory.Write("good.csv", "a,b\n1,2\n");
    bench.Open("good.csv");
    bench.directory.Write("bad.csv", content.toStdString());
    bench.Open("bad.csv");
    QVERIFY2(bench.window->Trouble().contains(sentence), qPrintable(bench.window->Trouble()));
    QVERIFY(bench.Part<QWidget>("noticeSentence")->isVisible());
    // The former file stays open.
    QVERIFY(bench.Part<QWidget>("make")->isVisible());
    bench.Open("missing.csv");
    QVERIFY(bench.window->Trouble().contains("missing.csv can't be read: No such file"));
    bench.Open("good.csv");
    QVERIFY(!bench.Part<QWidget>("noticeSentence")->isVisible());
}

void DeskTest::FaultyDirectoryIsToldAtItsField() {
    DeskBench bench;
    bench.directory.Write("good.csv", "a,b\n1,2\n");
    bench.Open("good.csv");
    auto* field = bench.Part<QLineEdit>("directory");
    auto* trouble = bench.Part<QLabel>("directoryTrouble");
    for (const auto& [directory, sentence] :
         {std::pair{QString::fromStdString(bench.directory.Path("good.csv/out")), "Not a directory"},
          {QString(), "needs a directory"}}) {
        field->setText(directory);
        QVERIFY(!trouble->isVisible());
        bench.Click("make");
        QVERIFY2(trouble->isVisible() && trouble->text().contains(sentence), qPrintable(trouble->text()));
    }
    QCOMPARE(bench.directory.Names(), std::set<std::string>{"good.csv"});
}

void DeskTest::StateComesBack() {
    TemporaryDirectory kept;
    kept.Write("fruit.csv", "Name,Price\nPear,2.5\nApple,1\n");
    kept.Write("gone.csv", "a\n1\n");
    const QString fruit = QString::fromStdString(kept.Path("fruit.csv"));
    {
        DeskBench bench;
        bench.window->Open(QString::fromStdString(kept.Path("gone.csv")));
        bench.window->Open(fruit);
        bench.window->SetOutputDirectory(QString::fromStdString(kept.Path("reports/fruit")));
        bench.Part<QCheckBox>("records")->click();
        bench.Part<QComboBox>("recordName")->setCurrentIndex(1);
        ClickColumn(bench, 2, ColumnsModel::TotalSection);
        bench.Action("address")->trigger();
        bench.Click("make");
        bench.Settle();
        bench.window->resize(720, 560);
        QVERIFY(bench.window->close());
    }
    QFile::remove(QString::fromStdString(kept.Path("gone.csv")));
    DeskBench bench;
    QCOMPARE(bench.window->size(), QSize(720, 560));
    QVERIFY(bench.Action("address")->isChecked());
    QVERIFY(bench.Part<QWidget>("txtURL")->isVisible());
    auto* recent = bench.Part<QMenu>("recent");
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().value(0)->text(), fruit);
    for (const QAction* action : recent->actions()) QVERIFY(!action->text().contains("gone.csv"));
    recent->actions().front()->trigger();
    bench.Settle();
    QVERIFY(bench.Part<QCheckBox>("records")->isChecked());
    QCOMPARE(bench.Part<QComboBox>("recordName")->currentText(), QString("Name"));
    const auto* columns = bench.Part<QTableView>("columns")->model();
    QCOMPARE(columns->index(2, ColumnsModel::TotalSection).data(Qt::CheckStateRole).toInt(),
             int(Qt::Checked));
    // The next file's report goes beside the last one.
    bench.directory.Write("nuts.csv", "Name\nHazel\n");
    bench.window->Open(QString::fromStdString(bench.directory.Path("nuts.csv")));
    QCOMPARE(bench.Part<QLineEdit>("directory")->text(), QString::fromStdString(kept.Path("reports/nuts")));
    bench.Action("address")->trigger();
}

void DeskTest::HelpPagesAreShownByClicks() {
    DeskBench bench;
    bench.directory.Write("index.html", "<title>The beginning</title><a href=\"more.htm\">further</a>");
    bench.directory.Write("more.htm", "<TITLE>Dogs &amp; cats</TITLE>animals");
    bench.directory.Write("plain.htm", "no title");
    bench.window->Open(QString::fromStdString(bench.directory.Path()));
    bench.Settle();
    QCOMPARE(bench.Page(), QString("index.html"));
    auto* list = bench.Part<QListView>("helpPages");
    QStringList titles;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        titles << list->model()->index(row, 0).data().toString();
    QCOMPARE(titles, (QStringList{"The beginning", "Dogs & cats", "plain.htm"}));
    const auto click = [&](int row) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    };
    click(2);
    QVERIFY(WaitUntil([&] { return bench.Page() == "plain.htm"; }));
    click(0);
    QVERIFY(WaitUntil([&] { return bench.Page() == "index.html"; }));
    bench.Settle();
    QCOMPARE(bench.Follow("further"), QString("more.htm"));
    QCOMPARE(list->currentIndex().row(), 1);
    click(0);
    QVERIFY(WaitUntil([&] { return bench.Page() == "index.html"; }));
    bench.Settle();
    click(1);
    QVERIFY(WaitUntil([&] { return bench.Page() == "more.htm"; }));
    bench.Settle();
    bench.Click("cmdHome");
    QVERIFY(WaitUntil([&] { return bench.Page() == "index.html"; }));
}

void DeskTest::DirectoryOpensOnItsMainPage_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("first");
    const auto row = [](const char* name, const QStringList& names, const char* first) {
        QTest::newRow(name) << names << first;
    };
    row("an index", {"a.htm", "a_D.htm", "Index.HTM"}, "Index.HTM");
    row("a report",
        {"about.htm", "sales.htm", "sales_3_U.htm", "sales_3_D.htm", "sales_D.htm", "sales_Rec_Num_2.htm"},
        "sales.htm");
    row("one page down alone", {"2023.htm", "y_2024.htm", "y_2024_D.htm"}, "y_2024.htm");
    row("a page named like a sorted one", {"a.htm", "b.htm", "b_D.htm", "b_D_1_U.htm"}, "b.htm");
    row("no report", {"c_D.htm", "d__U.htm", "d_x_U.htm", "d.htm"}, "c_D.htm");
    row("the report that was made last", {"a.htm", "a_1_U.htm", "b.htm", ".b.ostrel"}, "b.htm");
}

void DeskTest::DirectoryOpensOnItsMainPage() {
    QFETCH(QStringList, names);
    QFETCH(QString, first);
    TemporaryDirectory directory;
    for (const QString& name : names) directory.Write(name.toStdString(), "Ostrel report files 1\n");
    desk::HelpPagesModel model;
    QVERIFY(model.Fill(QString::fromStdString(directory.Path())));
    QCOMPARE(model.FirstPage(), first);
}

void DeskTest::HelpPagesAreSearched() {
    DeskBench bench;
    QVERIFY(!bench.Action("search")->isEnabled());
    bench.directory.Write("a.htm", "<HEAD><TITLE>Apples</TITLE></HEAD>green");
    bench.directory.Write("b.htm", "<HEAD><TITLE>Pears</TITLE></HEAD><BODY>green pears</BODY>");
    bench.Open("");
    const auto search = [&](const char* phrase) {
        FormBench::Attend<QDialog>([&](QDialog& dialog) {
            FormBench::Find<QLineEdit>(dialog, "txtSearch")->setFocus();
            QTest::keyClicks(FormBench::Find<QLineEdit>(dialog, "txtSearch"), phrase);
            FormBench::Click(dialog, "cmdOK");
        });
        bench.Action("search")->trigger();
        bench.Settle();
        return bench.Script("document.body.innerText").toString();
    };
    QVERIFY(search("pears").contains("100.0"));
    QCOMPARE(bench.Follow("Pears"), QString("b.htm"));
    // What was written since the last search is found.
    bench.directory.Write("c.htm", "<HEAD><TITLE>Plums</TITLE></HEAD><BODY>pears as well</BODY>");
    QVERIFY(search("").contains("Plums"));
    FormBench::Attend<QDialog>([](QDialog& dialog) {
        const auto* table = FormBench::Find<QTableWidget>(dialog, "grdData");
        QCOMPARE(table->item(0, 0)->text(), QString("Name:"));
        QCOMPARE(table->item(0, 1)->text(), QString("Search Results"));
        FormBench::Click(dialog, "cmdClose");
    });
    bench.Action("properties")->trigger();
}

void DeskTest::OptionsComeBackFromHelpPages() {
    DeskBench bench;
    bench.directory.Write("fruit.csv", "Name,Price\nPear,2.5\n");
    QDir().mkpath(QString::fromStdString(bench.directory.Path("help")));
    bench.directory.Write("help/start.htm", "<TITLE>Start</TITLE>");
    bench.Open("fruit.csv");
    QVERIFY(!bench.Action("reportOptions")->isEnabled());
    bench.window->SetOutputDirectory({});
    bench.window->Open(QString::fromStdString(bench.directory.Path("help")));
    bench.Settle();
    QVERIFY(bench.Part<QWidget>("helpPages")->isVisible() && !bench.Part<QWidget>("make")->isVisible());
    QVERIFY(!bench.Action("makeReport")->isEnabled());
    bench.Action("panel")->setChecked(false);
    bench.Action("reportOptions")->trigger();
    QVERIFY(bench.Part<QWidget>("make")->isVisible() && !bench.Action("reportOptions")->isEnabled());
    bench.Action("makeReport")->trigger();
    QVERIFY(bench.Part<QWidget>("directoryTrouble")->isVisible());
    bench.Click("cmdHome");
    QVERIFY(WaitUntil([&] { return bench.Page() == "preview.htm"; }));
    bench.Action("helpPagesPanel")->trigger();
    QVERIFY(bench.Part<QWidget>("helpPages")->isVisible() && !bench.Action("makeReport")->isEnabled());
    bench.Click("cmdHome");
    QVERIFY(WaitUntil([&] { return bench.Page() == "start.htm"; }));
}

void DeskTest::DroppedFileOpens() {
    DeskBench bench;
    bench.directory.Write("dropped.csv", "a,b\n1,2\n");
    // What is dragged over the page goes to the window around it.
    QWidget* taker = bench.View().focusProxy();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(bench.directory.Path("dropped.csv")))});
    QDragEnterEvent enter(QPoint(500, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(taker, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(500, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(taker, &drop);
    QVERIFY(WaitUntil([&] { return bench.Part<QLabel>("fileName")->text() == "dropped.csv"; }));

    QMimeData word;
    word.setText("dropped.csv");
    QDragEnterEvent refused(QPoint(500, 300), Qt::CopyAction, &word, Qt::LeftButton, {});
    QApplication::sendEvent(taker, &refused);
    QVERIFY(!refused.isAccepted());
}

void DeskTest::CommandLineIsRead_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("trouble");
    QTest::newRow("nothing") << QStringList{} << "";
    QTest::newRow("all") << QStringList{"a.csv",        "--make", "--output", "o",
                                        "--screenshot", "s.png",  "--timings"}
                         << "";
    QTest::newRow("two files") << QStringList{"a.csv", "b.csv"} << "There is one FILE too many.";
    QTest::newRow("unknown") << QStringList{"--fast"} << "Unknown option 'fast'.";
    QTest::newRow("nothing to make") << QStringList{"--make"} << "--make needs a FILE.";
    QTest::newRow("no directory") << QStringList{"a.csv", "--output="} << "--output needs a name.";
}

void DeskTest::CommandLineIsRead() {
    QFETCH(QStringList, words);
    QFETCH(QString, trouble);
    const desk::CommandLine line = desk::ReadCommandLine(QStringList{"ostrel-desk"} + words);
    QCOMPARE(line.trouble, trouble);
    if (!trouble.isEmpty()) return;
    QCOMPARE(line.file, words.value(0));
    QCOMPARE(line.make, words.contains("--make"));
    QCOMPARE(line.output, QString(line.make ? "o" : ""));
    QCOMPARE(line.screenshot, QString(line.make ? "s.png" : ""));
    QCOMPARE(line.timings, line.make);
}

} // namespace ostrel::test
