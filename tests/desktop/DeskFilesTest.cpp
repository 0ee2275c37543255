#include "desktop/DeskFilesTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include "desktop/DeskBench.h"

namespace ostrel::test {

using desk::ColumnsModel;

namespace {

/// The files of the report that hold the text.
QStringList Holding(const DeskBench& bench, const char* text) {
    QStringList names;
    for (const QString& name : QDir(bench.Output()).entryList(QDir::Files | QDir::Hidden)) {
        QFile file(bench.Output() + "/" + name);
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains(text)) names << name;
    }
    return names;
}

/// Makes the report, and answers the question that it asks meanwhile. The result is the question, empty for
/// none.
QString Make(DeskBench& bench, QMessageBox::StandardButton answer = QMessageBox::No) {
    QString question;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        look.stop();
        question = box->text();
        box->button(answer)->click();
    });
    look.start(5);
    bench.Click("make");
    bench.Settle();
    return question;
}

} // namespace

void DeskFilesTest::init() {
    settings_ = std::make_unique<TemporaryDirectory>();
    qputenv("XDG_CONFIG_HOME", settings_->Path().c_str());
}

void DeskFilesTest::HiddenColumnsAreNowhereButWhereAsked() {
    DeskBench bench;
    bench.directory.Write("staff.csv", "Name,Salary\nAnn,471147111\nBob,471147112\n");
    bench.Open("staff.csv");
    bench.Part<QCheckBox>("records")->click();
    auto* names = bench.Part<QComboBox>("recordName");
    names->setCurrentIndex(2);
    auto* columns = bench.Part<QTableView>("columns")->model();
    columns->setData(columns->index(2, ColumnsModel::ShowSection), Qt::Unchecked, Qt::CheckStateRole);
    QCOMPARE(names->currentIndex(), 0);
    QVERIFY(!(names->model()->flags(names->model()->index(2, 0)) & Qt::ItemIsEnabled));
    QVERIFY(bench.Part<QLabel>("consequence")->text().contains("of 1 column "));
    Make(bench);
    QCOMPARE(Holding(bench, "Salary") + Holding(bench, "47114711"), QStringList());
    QVERIFY(Holding(bench, "2 rows, 1 column &middot;").contains("staff.htm"));

    bench.Part<QCheckBox>("csvAll")->click();
    Make(bench);
    QCOMPARE(Holding(bench, "47114711"), QStringList("staff.csv"));
    bench.Part<QCheckBox>("recordsAll")->click();
    names->setCurrentIndex(2);
    Make(bench);
    QCOMPARE(Holding(bench, "<B>47114711"), (QStringList{"staff_Rec_Num_1.htm", "staff_Rec_Num_2.htm"}));
    bench.directory.Write("other.csv", "Name\nFig\n");
    bench.Open("other.csv");
    QVERIFY(!bench.Part<QCheckBox>("recordsAll")->isChecked());
    bench.Open("staff.csv");
    QVERIFY(bench.Part<QCheckBox>("csvAll")->isChecked());
    QCOMPARE(names->currentText(), QString("Salary"));
    // Pages that are no longer part of the report go.
    bench.Part<QCheckBox>("records")->click();
    Make(bench);
    QCOMPARE(QDir(bench.Output()).entryList({"*_Rec_*"}), QStringList());
    QVERIFY(
        bench.Part<QLabel>("noticeSentence")->text().contains("2 files of the last report were taken away."));

    columns->setData(columns->index(0, ColumnsModel::ShowSection), Qt::Unchecked, Qt::CheckStateRole);
    bench.Click("make");
    QVERIFY(bench.window->Trouble().startsWith("No column is shown"));
}

void DeskFilesTest::FilesThatNoReportMadeAreAskedFor() {
    DeskBench bench;
    bench.directory.Write("fruit.csv", "Name\nPear\n");
    bench.Open("fruit.csv");
    QDir().mkpath(bench.Output());
    bench.directory.Write("out/fruit.htm", "mine");
    QVERIFY(Make(bench).contains("\nfruit.htm\n"));
    QCOMPARE(QDir(bench.Output()).entryList(QDir::Files | QDir::Hidden), QStringList("fruit.htm"));
    QCOMPARE(bench.directory.Read("out/fruit.htm"), std::string("mine"));
    QVERIFY(!Make(bench, QMessageBox::Yes).isEmpty());
    QVERIFY(bench.directory.Read("out/fruit.htm") != "mine");
    QCOMPARE(Make(bench), QString());

    // The report of another file of the same name.
    QDir(QString::fromStdString(bench.directory.Path())).mkdir("more");
    bench.directory.Write("more/fruit.csv", "Name\nFig\n");
    bench.Open("more/fruit.csv");
    QVERIFY(Make(bench).contains("was made of another file"));
    QCOMPARE(Holding(bench, "Fig"), QStringList());
}

void DeskFilesTest::FilesOfOneNameGetDirectoriesOfTheirOwn() {
    const TemporaryDirectory kept;
    const auto path = [&](const char* name) { return QString::fromStdString(kept.Path(name)); };
    for (const char* folder : {"a", "b", "c"}) {
        QDir().mkpath(path(folder));
        kept.Write(std::string(folder) + "/fruit.csv", "Name\nPear\n");
    }
    const auto offered = [&](DeskBench& bench, const char* name) {
        bench.window->Open(path(name));
        return bench.Part<QLineEdit>("directory")->text();
    };
    DeskBench bench;
    offered(bench, "a/fruit.csv");
    bench.window->SetOutputDirectory(path("reports/fruit"));
    Make(bench);
    QCOMPARE(offered(bench, "b/fruit.csv"), path("reports/fruit 2")); // the first is that of the file before
    QCOMPARE(offered(bench, "c/fruit.csv"), path("reports/fruit 3"));
    QCOMPARE(offered(bench, "a/fruit.csv"), path("reports/fruit"));
    // What nobody remembers is told by the list beside the pages.
    desk::TableFile file;
    for (const auto& [name, directory] :
         {std::pair{"b/fruit.csv", "reports/fruit 2"}, {"a/fruit.csv", "reports/fruit"}}) {
        file.path = path(name);
        QCOMPARE(desk::FreeDirectory(path("reports"), file, {}), path(directory));
    }
}

} // namespace ostrel::test
