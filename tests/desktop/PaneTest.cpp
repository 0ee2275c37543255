#include "desktop/PaneTest.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/DesktopBench.h"
#include "desktop/LocalServer.h"
#include "text/NumberText.h"

namespace ostrel::test {

namespace {

/// Resident memory of this process and of the engine's processes below it, in megabytes.
double ResidentMegabytes() {
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid());
    QList<QByteArray> processes{own};
    double pages = 0;
    for (qsizetype i = 0; i < processes.size(); ++i) {
        const QString root = "/proc/" + QString::fromLatin1(processes[i]);
        QFile memory(root + "/statm");
        if (memory.open(QFile::ReadOnly)) pages += memory.readAll().split(' ').value(1).toDouble();
        QFile children(root + "/task/" + QString::fromLatin1(processes[i]) + "/children");
        if (children.open(QFile::ReadOnly)) processes += children.readAll().simplified().split(' ');
        processes.removeAll(QByteArray());
    }
    return pages * 4096 / 1e6;
}

} // namespace

void PaneTest::LoadTellsInOrder() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm"), b = bench.Page("b.htm");
    Text error;
    QVERIFY(bench.Web().LoadURL(a, error));
    QVERIFY(bench.Web().Busy());
    QVERIFY2(bench.log.empty(), "nothing is told from inside the call");
    QVERIFY(bench.Until("DownloadComplete"));
    QVERIFY(SameLines(bench.Take(),
                      {"BeforeNavigate2 " + a + "  False", "DownloadBegin", "NavigateComplete2 " + a,
                       "TitleChange a", "ForwardState False", "BackState True", "StatusTextChange done",
                       "DocumentComplete " + a + " a", "DownloadComplete"}));
    QCOMPARE(bench.Web().LocationURL(), a);
    QCOMPARE(bench.Web().LocationName(), Text("a"));
    QCOMPARE(bench.Web().ReadyState(), 4);
    QVERIFY(!bench.Web().Busy());
    QVERIFY(bench.Web().LoadURL(b, error));
    QVERIFY(bench.Until("DownloadComplete"));
    QVERIFY2(SameLines(bench.Take(), {"BeforeNavigate2 " + b + "  False", "DownloadBegin",
                                      "NavigateComplete2 " + b, "TitleChange b", "StatusTextChange done",
                                      "DocumentComplete " + b + " b", "DownloadComplete"}),
             "states that stay are not told again");
    QVERIFY(bench.Web().LoadURL(b, error));
    QTest::qWait(100);
    QVERIFY2(bench.log.empty(), "the page on view is not loaded again");
}

void PaneTest::VetoRaisesNoDownload() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm", "<TITLE>a</TITLE><A HREF=b.htm>b</A>"), b = bench.Page("b.htm");
    QVERIFY(bench.Load(a));
    const int token =
        bench.Web().events.BeforeNavigate2.Listen([](Text&, Text&, Flag& cancel) { cancel = true; });
    Text error;
    bench.Web().LoadURL(b, error);
    QVERIFY(bench.Until("BeforeNavigate2"));
    QTest::qWait(200);
    bench.ClickElement("document.links[0]");
    QTest::qWait(200);
    bench.Web().GoBack();
    QTest::qWait(200);
    QVERIFY(SameLines(bench.Take(), {"BeforeNavigate2 " + b + "  True", "BeforeNavigate2 " + b + "  True",
                                     "BeforeNavigate2 about:blank  True"}));
    QCOMPARE(bench.Web().LocationURL(), a);
    QVERIFY(!bench.Web().Busy());
    bench.Web().events.BeforeNavigate2.End(token);
    QVERIFY(bench.Load(b));
}

void PaneTest::LastOfTwoRequestsLoads() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm"), b = bench.Page("b.htm"), c = bench.Page("c.htm");
    Text error;
    bench.Web().LoadURL(a, error);
    bench.Web().LoadURL(b, error);
    QVERIFY(bench.Until("DownloadComplete"));
    QTest::qWait(100);
    QVERIFY(SameLines(bench.Take(),
                      {"BeforeNavigate2 " + b + "  False", "DownloadBegin", "NavigateComplete2 " + b,
                       "TitleChange b", "ForwardState False", "BackState True", "StatusTextChange done",
                       "DocumentComplete " + b + " b", "DownloadComplete"}));
    // A listener that sends the pane elsewhere replaces the load that it hears of.
    const int token = bench.Web().events.BeforeNavigate2.Listen([&](Text& url, Text&, Flag&) {
        if (url == a) bench.Web().LoadURL(c, error);
    });
    bench.Web().LoadURL(a, error);
    QVERIFY(bench.Until("DocumentComplete"));
    QTest::qWait(100);
    QCOMPARE(bench.Web().LocationURL(), c);
    bench.Web().events.BeforeNavigate2.End(token);
}

void PaneTest::FramesStaySilent() {
    DesktopBench bench;
    bench.Page("a.htm");
    bench.Page("b.htm");
    const Text page =
        bench.Page("f.htm", "<TITLE>f</TITLE><IFRAME NAME=in SRC=a.htm></IFRAME><IFRAME SRC=b.htm></IFRAME>");
    Text error;
    bench.Web().LoadURL(page, error);
    QVERIFY(bench.Until("DownloadComplete"));
    QTest::qWait(100);
    QVERIFY(SameLines(bench.Take(),
                      {"BeforeNavigate2 " + page + "  False", "DownloadBegin", "NavigateComplete2 " + page,
                       "TitleChange f", "ForwardState False", "BackState True", "StatusTextChange done",
                       "DocumentComplete " + page + " f", "DownloadComplete"}));
}

void PaneTest::RefreshEndsWithDone() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    QVERIFY(bench.Load(a));
    for (const auto refresh :
         {&OstrelWebHelp::Refresh, &OstrelWebHelp::RefreshCompletely, &OstrelWebHelp::RefreshIfExpired}) {
        bench.Page("a.htm", "<TITLE>new</TITLE>new");
        (bench.Web().*refresh)();
        QVERIFY(bench.Web().ToolbarButtonEnabled("stop"));
        QVERIFY(!bench.Web().ToolbarButtonEnabled("refresh"));
        QVERIFY(bench.Until("DownloadComplete"));
        Lines expected{"DownloadBegin", "TitleChange new", "RefreshComplete " + a + " new",
                       "StatusTextChange done", "DownloadComplete"};
        // The title is told once, and the status text "done" as well where no other came between.
        const Lines told = bench.Take();
        if (refresh != &OstrelWebHelp::Refresh) std::erase(expected, "TitleChange new");
        QVERIFY(SameLines(told, expected));
        QVERIFY(!bench.Web().ToolbarButtonEnabled("stop"));
        QVERIFY(bench.Web().ToolbarButtonEnabled("refresh"));
        QCOMPARE(bench.Script("document.body.innerText").toString().trimmed(), QString("new"));
    }
}

void PaneTest::HistoryReportsStates() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm"), b = bench.Page("b.htm");
    QVERIFY(bench.Load(a));
    QVERIFY(bench.Load(b));
    const auto step = [&](bool back) {
        back ? bench.Web().GoBack() : bench.Web().GoForward();
        if (!bench.Until("DownloadComplete")) qWarning("no end");
        return bench.Take();
    };
    QVERIFY(
        SameLines(step(true), {"BeforeNavigate2 " + a + "  False", "DownloadBegin", "NavigateComplete2 " + a,
                               "TitleChange a", "ForwardState True", "StatusTextChange done",
                               "DocumentComplete " + a + " a", "DownloadComplete"}));
    QVERIFY(SameLines(step(true),
                      {"BeforeNavigate2 about:blank  False", "DownloadBegin", "NavigateComplete2 about:blank",
                       "TitleChange about:blank", "BackState False", "StatusTextChange done",
                       "DocumentComplete about:blank about:blank", "DownloadComplete"}));
    QVERIFY(
        SameLines(step(false), {"BeforeNavigate2 " + a + "  False", "DownloadBegin", "NavigateComplete2 " + a,
                                "TitleChange a", "BackState True", "StatusTextChange done",
                                "DocumentComplete " + a + " a", "DownloadComplete"}));
    bench.Web().GoBack();
    QVERIFY(bench.Until("DownloadComplete"));
    bench.Take();
    bench.Web().GoBack();
    QTest::qWait(100);
    QVERIFY2(bench.log.empty(), "there is nothing before the first page");
}

void PaneTest::StepsInsidePageComplete() {
    DesktopBench bench;
    const Text a =
        bench.Page("a.htm", "<TITLE>a</TITLE><A HREF=#x>x</A><P STYLE='margin-top:3000px' ID=x>here");
    QVERIFY(bench.Load(a));
    bench.ClickElement("document.links[0]");
    QVERIFY(bench.Until("DocumentComplete"));
    QTest::qWait(50);
    // The mouse is on the link, so the status text tells where it leads.
    const auto withoutStatus = [&] {
        Lines lines = bench.Take();
        std::erase_if(lines, [](const Text& line) { return line.starts_with("StatusTextChange"); });
        return lines;
    };
    QVERIFY(SameLines(withoutStatus(), {"NavigateComplete2 " + a + "#x", "DocumentComplete " + a + "#x a"}));
    QCOMPARE(bench.Web().LocationURL(), a + "#x");
    Text error;
    bench.Web().LoadURL(a + "#", error);
    QVERIFY(bench.Until("DocumentComplete"));
    bench.Take();
    bench.Web().LoadURL(a + "#x", error);
    QVERIFY(bench.Until("DocumentComplete"));
    QVERIFY(SameLines(withoutStatus(), {"BeforeNavigate2 " + a + "#x  False", "NavigateComplete2 " + a + "#x",
                                        "DocumentComplete " + a + "#x a"}));
    QVERIFY(!bench.Web().Busy());
    QVERIFY(bench.Script("window.scrollY").toDouble() > 1000);
}

void PaneTest::MissingPageIsTold() {
    DesktopBench bench;
    const Text missing = bench.directory.Component("missing.htm");
    Text error;
    QVERIFY(bench.Web().LoadURL(missing, error));
    QVERIFY(bench.Until("DownloadComplete"));
    const Lines told = bench.Take();
    QVERIFY(std::count(told.begin(), told.end(), "StatusTextChange Can't open page " + missing) == 1);
    QVERIFY(std::count(told.begin(), told.end(), "StatusTextChange done") == 0);
    QVERIFY(!bench.Web().Busy());
    QVERIFY2(bench.Web().ToolbarButtonEnabled("refresh"), "it can be tried again");
    bench.Page("missing.htm");
    bench.Web().RefreshCompletely();
    QVERIFY(bench.Until("RefreshComplete"));
    QCOMPARE(bench.Web().LocationName(), Text("m"));
    for (const char* nonsense : {"D:\\x.htm", "mailto:a@b", "nonsense:x", "\\\\server\\share\\a.htm"}) {
        bench.Take();
        bench.Web().LoadURL(nonsense, error);
        QVERIFY2(bench.Until(Text("StatusTextChange Can't open page ") + nonsense), nonsense);
        QVERIFY2(!bench.Web().Busy(), nonsense);
    }
}

void PaneTest::HelpPageCompletes() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm", "<TITLE>a</TITLE><A HREF=b.htm>b</A>"), b = bench.Page("b.htm");
    bench.Web().DirectoryHelp(bench.directory.Component());
    bench.Web().HelpDelay(20);
    Text error;
    QVERIFY(bench.Web().HelpPageLoad("b.htm", error));
    QVERIFY(bench.Web().HelpPageLoad("a.htm", error));
    QVERIFY(bench.Until("DownloadComplete"));
    QVERIFY(SameLines(bench.Take(),
                      {"HelpPageBegin " + a, "BeforeNavigate2 " + a + "  False", "DownloadBegin",
                       "NavigateComplete2 " + a, "TitleChange a", "ForwardState False", "BackState True",
                       "StatusTextChange done", "HelpPageComplete " + a + " a", "DownloadComplete"}));
    QCOMPARE(bench.Web().HelpPageCurrent(), a);
    bench.ClickElement("document.links[0]");
    QVERIFY(bench.Until("HelpPageComplete " + b));
    QCOMPARE(bench.Web().HelpPageCurrent(), b);
    bench.Web().HelpPart2("<P>Internal");
    QVERIFY(bench.Web().HelpPageLoadInternal(error));
    bench.Take();
    QVERIFY(bench.Until("DownloadComplete"));
    QVERIFY(bench.Script("document.body.innerText").toString().contains("Internal"));
}

void PaneTest::NamesOfPagesComeBack() {
    DesktopBench bench;
    bench.Page("a.htm");
    bench.directory.Write("with space #1 100% \xC3\xA9.htm", "<TITLE>odd</TITLE>");
    const Text directory = bench.directory.Component();
    Text slashed = directory;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    for (const Text& name : {directory + "\\a.htm", "file:///" + slashed + "/a.htm",
                             "file://" + slashed.substr(2) + "/a.htm", slashed.substr(2) + "/a.htm",
                             directory + "\\with space #1 100% \xE9.htm", directory + "\\a.htm#part"}) {
        QVERIFY2(bench.Load(name), name.c_str());
        QCOMPARE(bench.Web().LocationURL(), name);
        QVERIFY2(!bench.Web().LocationName().starts_with("file"), name.c_str());
        bench.Load("about:blank");
    }
}

void PaneTest::StopEndsLoad() {
    DesktopBench bench;
    LocalServer server;
    bench.Web().Offline(false);
    bench.Web().ToolbarVisible(true);
    Text error;
    bench.Web().LoadURL(server.Address(), error);
    QVERIFY(WaitUntil([&] { return server.visits > 0; }));
    QVERIFY(bench.Web().Busy());
    bench.widget.Sync();
    bench.Click("cmdStop2");
    QVERIFY(bench.Until("DownloadComplete"));
    QTest::qWait(200);
    QVERIFY(SameLines(bench.Take(),
                      {"BeforeNavigate2 " + server.Address() + "  False", "DownloadBegin",
                       "ToolbarClick Stop False", "StatusTextChange Cancel...", "DownloadComplete"}));
    QVERIFY(!bench.Web().Busy());
    QVERIFY2(bench.Load(bench.Page("a.htm")), "the pane goes on");
}

void PaneTest::TargetsAreFound() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    const Text b = bench.Page("b.htm", "<TITLE>b</TITLE><SCRIPT>parent.postMessage('b', '*')</SCRIPT>");
    const Text page =
        bench.Page("f.htm", "<TITLE>f</TITLE><SCRIPT>onmessage = e => window.heard = e.data</SCRIPT>"
                            "<IFRAME NAME=inner SRC=a.htm></IFRAME><A TARGET=_blank HREF=b.htm>new</A>");
    QVERIFY(bench.Load(page));
    Text error;
    QVERIFY(bench.Web().LoadURLToTarget(b, "inner", error));
    QVERIFY(WaitUntil([&] { return bench.Script("window.heard").toString() == "b"; }));
    QCOMPARE(bench.Web().LocationURL(), page);
    QVERIFY2(bench.Take().empty(), "a frame is nobody's business");
    auto& windows = bench.widget.Pane().Windows();
    QVERIFY(windows.Standing().empty());

    QVERIFY(bench.Web().LoadURLToTarget(b, "_blank", error));
    QVERIFY(bench.Until("NewWindow2"));
    QCOMPARE(windows.Standing().size(), std::size_t{1});
    QVERIFY(WaitUntil([&] { return windows.Standing()[0]->windowTitle() == "b"; }));
    QVERIFY(bench.Web().LoadURLToTarget(a, "elsewhere", error));
    QVERIFY(WaitUntil([&] { return windows.Standing().size() == 2; }));
    bench.ClickElement("document.links[0]");
    QVERIFY(WaitUntil([&] { return windows.Standing().size() == 3; }));
    windows.Standing()[0]->close();
    QTRY_COMPARE(windows.Standing().size(), std::size_t{2});
    QVERIFY(bench.Web().LoadURLToTarget(a, "_self", error));
    QVERIFY(bench.Until("DocumentComplete " + a));
}

void PaneTest::FindsAndZooms() {
    DesktopBench bench;
    QVERIFY(bench.Load(bench.Page("a.htm", "<TITLE>a</TITLE>pear apple pear")));
    bench.View().setFocus();
    QTest::keyClick(&bench.widget, Qt::Key_F, Qt::ControlModifier);
    auto* text = bench.widget.findChild<QLineEdit*>("findText");
    QVERIFY(text && text->isVisible());
    QTest::keyClicks(text, "pear");
    auto* bar = bench.widget.findChild<QWidget*>("findBar");
    const auto shows = [&](const QString& wanted) {
        return WaitUntil([&] {
            for (const QLabel* label : bar->findChildren<QLabel*>())
                if (label->text() == wanted) return true;
            return false;
        });
    };
    QVERIFY(shows("1 / 2"));
    QTest::keyClick(text, Qt::Key_Return);
    QVERIFY(shows("2 / 2"));
    QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(shows("1 / 2"));
    QTest::keyClicks(text, "x");
    QVERIFY(shows("none"));
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!bar->isVisible());

    const auto zoom = [&] { return qRound(bench.View().zoomFactor() * 100); };
    QTest::keyClick(&bench.widget, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(zoom(), 110);
    QTest::keyClick(&bench.widget, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&bench.widget, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(zoom(), 91);
    QTest::keyClick(&bench.widget, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(zoom(), 100);
}

void PaneTest::DocumentTextIsRead() {
    DesktopBench bench;
    QVERIFY(bench.Load(bench.Page("a.htm", "<TITLE>a</TITLE><BODY ID=x><B>bold</B></BODY>")));
    const BrowserPane& pane = bench.widget.Pane();
    QCOMPARE(pane.DocumentText("innertext"), Text("bold"));
    QCOMPARE(pane.DocumentText("innerhtml"), Text("<b>bold</b>"));
    QCOMPARE(pane.DocumentText("outerhtml"), Text("<body id=\"x\"><b>bold</b></body>"));
    QCOMPARE(pane.DocumentText("title"), Text());
}

void PaneTest::ManyLoadsKeepNothing() {
    DesktopBench bench;
    Text html = "<TITLE>t</TITLE><TABLE>";
    for (int row = 0; row < 300; ++row) html += "<TR><TD>some cell<TD>another cell<TD>and a third</TR>";
    const Text pages[] = {bench.Page("a.htm", html), bench.Page("b.htm", html)};
    const auto load = [&](int count) {
        Text error;
        for (int i = 0; i < count; ++i) {
            bench.Take();
            bench.Web().LoadURL(pages[i % 2], error);
            if (!bench.Until("DownloadComplete")) return false;
        }
        return true;
    };
    QVERIFY(load(40));
    const double before = ResidentMegabytes();
    QVERIFY(load(200));
    QTest::qWait(500);
    const double after = ResidentMegabytes();
    qInfo("200 loads: %.0f MB before, %.0f MB after", before, after);
    QVERIFY(after < before * 1.15 + 20);
}

void PaneTest::PagesArePrintedWhole() {
    const QString reader = QStandardPaths::findExecutable("pdftotext");
    if (reader.isEmpty()) QSKIP("pdftotext is not there to read what was printed");
    DesktopBench bench;
    constexpr int Pages = 6;
    for (int i = 1; i <= Pages; ++i)
        bench.Page("p" + FromLong(i) + ".htm", "<P>Content " + FromLong(i) + "</P>");
    const Text before = bench.Page("p1.html", "<P>Other ending</P>");
    bench.directory.Write("note.txt", "");
    QVERIFY(bench.Load(before));
    QTemporaryDir paper;
    bench.widget.Pane().Printer().SetPdfDirectory(paper.path());
    bench.Web().DirectoryHelp(bench.directory.Component());
    Text error;
    QVERIFY(bench.Web().PrintSelectedPages("*.htm*", "", error));
    QCOMPARE(error, Text());
    QCOMPARE(QDir(paper.path()).entryList(QDir::Files).size(), Pages + 1);
    const auto content = [&](const QString& name) {
        QProcess process;
        process.start(reader, {paper.filePath(name), "-"});
        (void)process.waitForFinished();
        return QString(process.readAllStandardOutput()).simplified();
    };
    for (int i = 1; i <= Pages; ++i)
        QCOMPARE(content(QString("p%1.pdf").arg(i)), QString("Content %1").arg(i));
    QCOMPARE(content("p1.html.pdf"), QString("Other ending"));
    QVERIFY(WaitUntil([&] { return !bench.Web().Busy() && bench.Web().LocationURL() == before; }));
    // A directory that is gone is reported in the pane, and the call returns.
    bench.widget.Pane().Printer().SetPdfDirectory(paper.filePath("gone"));
    bench.Web().PrintPage();
    QVERIFY(bench.widget.findChild<QLabel*>("paneNotice")->text().contains("can't be written"));
}

} // namespace ostrel::test
