#include "desktop/DeskRunTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTest>

#include "desktop/DeskBench.h"

namespace ostrel::test {

namespace {

/// The longest that the event loop did not turn while this lived.
class LoopWatch {
public:
    LoopWatch() {
        QObject::connect(&timer_, &QTimer::timeout, &timer_,
                         [this] { longest_ = std::max(longest_, clock_.restart()); });
        clock_.start();
        timer_.start(0);
    }
    qint64 Longest() const { return longest_; }

private:
    QTimer timer_;
    QElapsedTimer clock_;
    qint64 longest_ = 0;
};

} // namespace

void DeskRunTest::init() {
    settings_ = std::make_unique<TemporaryDirectory>();
    qputenv("XDG_CONFIG_HOME", settings_->Path().c_str());
}

void DeskRunTest::WindowAnswersDuringARun() {
    DeskBench bench;
    bench.directory.Write("many.csv", ManyRecords(100'000));
    qint64 whileReading = 0, whileMaking = 0;
    {
        const LoopWatch watch;
        bench.Open("many.csv");
        whileReading = watch.Longest();
    }
    {
        const LoopWatch watch;
        bench.window->MakeReport();
        whileMaking = watch.Longest();
    }
    qInfo("100,000 records: longest turn of the loop %lld ms while reading, %lld ms while making 12 pages",
          whileReading, whileMaking);
    QCOMPARE(QDir(bench.Output()).entryList({"*.htm"}, QDir::Files).size(), 12);
    QVERIFY2(whileMaking > 0, "the loop turned inside the run");
    bench.window->Widget().Web().Cancel();
}

void DeskRunTest::StopEndsARun() {
    DeskBench bench;
    bench.directory.Write("many.csv", ManyRecords(100'000));
    bench.Open("many.csv");
    QElapsedTimer sinceStop;
    bool othersClosed = false;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        if (!bench.Part<QWidget>("cmdStop")->isVisible()) return;
        look.stop();
        othersClosed = !bench.Action("open")->isEnabled() && !bench.Action("makeReport")->isEnabled() &&
                       !bench.Part<QWidget>("make")->isEnabled();
        bench.window->Open(QString::fromStdString(bench.directory.Path("many.csv")));
        sinceStop.start();
        bench.Click("cmdStop");
    });
    look.start(10);
    bench.window->MakeReport();
    QVERIFY(sinceStop.isValid());
    const qint64 took = sinceStop.elapsed();
    qInfo("stopped after %lld ms", took);
    QVERIFY(othersClosed);
    QVERIFY2(took < 2000, "the report went on");
    QVERIFY(!bench.window->CurrentWork().Running());
    QVERIFY(bench.window->statusBar()->currentMessage().contains("stopped"));
    QVERIFY(!bench.Part<QWidget>("fraStop")->isVisible());
    QVERIFY(bench.Part<QWidget>("make")->isEnabled());
    QVERIFY(bench.Page() != "many.htm");
}

void DeskRunTest::StopEndsReading() {
    DeskBench bench;
    bench.directory.Write("many.csv", ManyRecords(200'000));
    QTimer::singleShot(30, bench.window.get(), [&] { bench.Action("stop")->trigger(); });
    bench.window->Open(QString::fromStdString(bench.directory.Path("many.csv")));
    QVERIFY(bench.window->statusBar()->currentMessage().contains("Reading many.csv was stopped"));
    QVERIFY(!bench.Part<QWidget>("columns")->isVisible());

    MakeDatabase(bench.directory.Path("long.db"),
                 "CREATE VIEW long AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                 "SELECT count(*) AS many FROM n");
    QTimer::singleShot(50, bench.window.get(), [&] { bench.Action("stop")->trigger(); });
    bench.window->Open(QString::fromStdString(bench.directory.Path("long.db")));
    QVERIFY(bench.window->statusBar()->currentMessage().contains("Reading long.db was stopped"));
}

void DeskRunTest::EscapeEndsAPage() {
    DeskBench bench;
    bench.directory.Write("a.htm", "<TITLE>a</TITLE>");
    std::string rows = "<TITLE>t</TITLE><TABLE>";
    for (int row = 0; row < 100'000; ++row) rows += "<TR><TD>1<TD>2<TD>3<TD>4<TD>5";
    bench.directory.Write("t.htm", rows);
    const QString table = QString::fromStdString(bench.directory.Path("t.htm"));
    auto* notice = bench.Part<QLabel>("paneNotice");
    bench.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
    bench.window->Open(table);
    QVERIFY(WaitUntil([&] { return bench.Page() == "t.htm" && bench.Action("stop")->isEnabled(); }));
    QTest::qWait(500);
    LoopWatch watch;
    QTest::keyClick(bench.View().focusProxy(), Qt::Key_Escape);
    QVERIFY(WaitUntil([&] { return notice->isVisible() && !bench.Action("stop")->isEnabled(); }));
    qInfo("longest turn of the loop %lld ms", watch.Longest());
    bench.Action("home")->trigger();
    QVERIFY(WaitUntil([&] { return bench.Page() == "a.htm" && !notice->isVisible(); }));
}

void DeskRunTest::PagesThatFailAreNamed() {
    DeskBench bench;
    bench.directory.Write("good.csv", "a,b\n1,2\n");
    bench.Open("good.csv");
    for (const char* taken : {"/good_1_U.htm", "/good_2_D.htm"}) QDir().mkpath(bench.Output() + taken);
    bench.Click("make");
    bench.Settle();
    QVERIFY(bench.window->Trouble().startsWith("The report is not complete"));
    const QString details = bench.Part<QPlainTextEdit>("noticeDetails")->toPlainText();
    for (const char* name : {"good_1_U.htm", "good_2_D.htm"})
        QVERIFY2(details.contains(bench.Output() + "/" + name + " can't be written: Is a directory."),
                 qPrintable(details));
    QCOMPARE(bench.Page(), QString("preview.htm"));

    // The file itself is not written over by the report beside it.
    bench.window->SetOutputDirectory(QString::fromStdString(bench.directory.Path()));
    bench.Click("make");
    bench.Settle();
    QVERIFY(bench.window->Trouble().isEmpty());
    QCOMPARE(bench.directory.Read("good.csv"), std::string("a,b\n1,2\n"));
}

void DeskRunTest::CloseEndsTheRunFirst() {
    DeskBench bench;
    bench.directory.Write("many.csv", ManyRecords(50'000));
    bench.Open("many.csv");
    bool refused = false;
    QTimer::singleShot(200, bench.window.get(), [&] { refused = !bench.window->close(); });
    bench.window->MakeReport();
    QVERIFY(refused);
    QVERIFY(bench.window->isVisible());
    QVERIFY(WaitUntil([&] { return !bench.window->isVisible(); }));
    for (const QString& name : QDir(bench.Output()).entryList(QDir::Files))
        if (name.endsWith(".htm")) {
            QFile page(bench.Output() + "/" + name);
            QVERIFY(page.open(QIODevice::ReadOnly));
            QVERIFY2(page.readAll().trimmed().endsWith("</HTML>"), qPrintable(name));
        }
}

} // namespace ostrel::test
