#include <QApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "desktop/DesktopBench.h"
#include "desktop/LocalServer.h"
#include "desktop/PaneTest.h"

namespace ostrel::test {

void PaneTest::WhatHasComeBeforeAStopCompletes() {
    DesktopBench bench;
    LocalServer server("<TITLE>t</TITLE>text<IMG SRC=/never>");
    bench.Web().Offline(false);
    Text error;
    const Text completed = "DocumentComplete " + server.Address();
    for (const bool byPage : {false, true}) {
        bench.Web().LoadURL(server.Address(), error);
        QVERIFY(bench.Until("NavigateComplete2") && WaitUntil([&] { return server.visits >= 2; }));
        QVERIFY(bench.Web().Busy());
        if (byPage)
            bench.Script("window.stop(); 0");
        else
            bench.Web().Cancel();
        QVERIFY2(bench.Until(completed), byPage ? "stopped by the page" : "stopped by the host");
        QVERIFY(bench.Until("DownloadComplete"));
        QVERIFY(bench.Web().ToolbarButtonEnabled("refresh") && !bench.Web().ToolbarButtonEnabled("stop"));
        bench.Take();
        QVERIFY(bench.Load("about:blank"));
        server.visits = 0;
    }
    bench.Web().LoadURL(server.Address(), error);
    QVERIFY(bench.Until("NavigateComplete2"));
    bench.Web().Cancel();
    bench.Web().Refresh();
    bench.Take();
    QVERIFY(bench.Until("DownloadBegin"));
    bench.Web().Cancel();
    QVERIFY2(bench.Until(completed), "a refresh that is stopped");
    QVERIFY(bench.Web().ToolbarButtonEnabled("refresh"));
}

void PaneTest::RefreshThatFailsCompletes() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    QVERIFY(bench.Load(a));
    QFile::remove(QString::fromStdString(bench.directory.Path("a.htm")));
    bench.Web().Refresh();
    QVERIFY(bench.Until("StatusTextChange Can't open page " + a));
    QVERIFY(bench.Until("DocumentComplete " + a));
    QVERIFY(bench.Web().ToolbarButtonEnabled("refresh"));
    QVERIFY(!bench.Web().ToolbarButtonEnabled("stop"));
}

void PaneTest::PageThatLeadsOnAsks() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm", "<TITLE>a</TITLE><SCRIPT>location = 'b.htm'</SCRIPT>"),
               b = bench.Page("b.htm");
    Text error;
    bench.Web().LoadURL(a, error);
    QVERIFY(bench.Until("DocumentComplete " + b));
    QTest::qWait(50);
    QVERIFY(
        SameLines(bench.Take(),
                  {"BeforeNavigate2 " + a + "  False", "DownloadBegin", "NavigateComplete2 " + a,
                   "TitleChange a", "BeforeNavigate2 " + b + "  False", "DownloadComplete", "DownloadBegin",
                   "NavigateComplete2 " + b, "TitleChange b", "ForwardState False", "BackState True",
                   "StatusTextChange done", "DocumentComplete " + b + " b", "DownloadComplete"}));
    bench.Web().events.BeforeNavigate2.Listen([&](Text& url, Text&, Flag& cancel) { cancel = url == b; });
    bench.Web().LoadURL(a, error);
    QVERIFY2(bench.Until("DocumentComplete " + a), "the page stays that may not lead on");
    QVERIFY(!bench.Web().Busy());
}

void PaneTest::LoadThatIsNotReplacedGoesOn() {
    DesktopBench bench;
    LocalServer server("<TITLE>t</TITLE>text<IMG SRC=/never>");
    bench.Web().Offline(false);
    Text error;
    bench.Web().LoadURL(server.Address(), error);
    QVERIFY(bench.Until("TitleChange t"));
    QTest::qWait(500);
    bench.Web().events.BeforeNavigate2.Listen([](Text&, Text&, Flag& cancel) { cancel = true; });
    bench.Take();
    bench.Web().LoadURL(bench.Page("a.htm"), error);
    bench.Web().GoBack();
    QTest::qWait(200);
    for (const Text& line : bench.Take()) QVERIFY2(line.starts_with("BeforeNavigate2"), line.c_str());
    QVERIFY2(bench.Web().Busy(), "what was forbidden has ended nothing");
    bench.Web().LoadURL("javascript:window.stop()", error);
    QVERIFY(bench.Until("DocumentComplete " + server.Address()));
    QVERIFY2(WaitUntil([&] { return !bench.Web().Busy(); }), "a script's address is no load");
}

void PaneTest::PagesWithoutEndAreEnded() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    int messages = 0;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
        if (QWidget* message = QApplication::activeModalWidget()) messages += message->close() ? 1 : 0;
    });
    closer.start(5);
    for (const char* script : {"while (true) {}", "while (true) alert('again');"}) {
        Text error;
        QVERIFY(bench.Web().LoadURL(
            bench.Page("x.htm", Text("<TITLE>x</TITLE><SCRIPT>") + script + "</SCRIPT>"), error));
        QVERIFY2(bench.Until("NavigateComplete2"), script);
        QTest::qWait(1000);
        bench.Web().Cancel();
        QSignalSpy ended(bench.View().page(), &QWebEnginePage::renderProcessTerminated);
        QVERIFY2(WaitUntil([&] { return !ended.empty(); }), script);
        bench.Take();
        QVERIFY2(bench.Load(a), script);
        QCOMPARE(bench.Web().LocationURL(), a);
    }
    QCOMPARE(messages, 10);
    QTest::qWait(600);
    QVERIFY(bench.Load(bench.Page("y.htm", "<TITLE>y</TITLE><SCRIPT>alert('once')</SCRIPT>")));
    QCOMPARE(messages, 11);
    bench.Web().Cancel();
    QTest::qWait(5000);
    QVERIFY2(!bench.Script("1 + 1").isNull(), "a page that answers stays");
}

} // namespace ostrel::test
