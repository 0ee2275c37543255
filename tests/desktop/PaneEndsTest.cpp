#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QWebEngineHistory>

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

void PaneTest::LayoutWithoutEndIsEnded() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    Text rows = "<TITLE>t</TITLE><TABLE>", error;
    for (int row = 0; row < 150'000; ++row) rows += "<TR><TD>1<TD>2<TD>3<TD>4<TD>5<TD>6<TD>7<TD>8<TD>9<TD>10";
    const Text table = bench.Page("t.htm", rows);
    auto* notice = bench.widget.findChild<QLabel*>("paneNotice");
    const auto begin = [&] {
        const bool begun =
            bench.Load(a) && bench.Web().LoadURL(table, error) && bench.Until("NavigateComplete2 " + table);
        QTest::qWait(1000);
        bench.Take();
        return begun && bench.Web().Busy() && bench.Web().ToolbarButtonEnabled("stop");
    };
    QSignalSpy ended(bench.View().page(), &QWebEnginePage::renderProcessTerminated);
    const auto stop = [&] {
        ended.clear();
        bench.Web().Cancel();
        const bool stopped =
            bench.Until("DocumentComplete " + table) && WaitUntil([&] { return !ended.empty(); });
        bench.Take();
        return stopped && notice->isVisible() && !bench.Web().Busy() && bench.Web().LocationURL() == table;
    };
    const auto comes = [&] {
        return bench.Until("DocumentComplete " + a) && bench.Script("document.title") == "a" &&
               !notice->isVisible();
    };
    QVERIFY(begin() && stop());
    bench.Web().Refresh();
    QVERIFY(bench.Until("DownloadBegin"));
    QTest::qWait(1000);
    QVERIFY2(!notice->isVisible() && stop(), "the same again after a refresh");
    bench.Web().GoBack();
    QVERIFY2(comes(), "back");
    const auto* history = bench.View().page()->history();
    for (const bool stopped : {true, false}) {
        QVERIFY(begin());
        const int place = history->currentItemIndex();
        if (stopped) bench.Web().Cancel();
        stopped ? bench.Web().LoadURL(a, error) : bench.Web().GoBack();
        QVERIFY2(comes(), "another page before the end");
        QCOMPARE(std::count(bench.log.begin(), bench.log.end(), "BeforeNavigate2 " + a + "  False"), 1);
        QCOMPARE(history->currentItemIndex(), stopped ? place + 1 : place - 1);
    }
}

void PaneTest::PageIsDoneWhenItIsLaidOut() {
    DesktopBench bench;
    const Text a = bench.Page("a.htm");
    const Text page =
        bench.Page("p.htm", "<TITLE>p</TITLE><BODY><SCRIPT>onload = () => document.body.innerHTML = "
                            "'<TABLE>' + '<TR><TD>1<TD>2<TD>3<TD>4<TD>5'.repeat(20000)</SCRIPT>");
    for (const bool stopped : {false, true}) {
        QVERIFY(bench.Load(a));
        QSignalSpy loaded(bench.View().page(), &QWebEnginePage::loadFinished);
        Text error;
        QVERIFY(bench.Web().LoadURL(page, error));
        QVERIFY(WaitUntil([&] { return !loaded.empty(); }));
        QVERIFY(bench.Web().Busy() && bench.Web().ToolbarButtonEnabled("stop"));
        if (stopped) bench.Web().Cancel();
        QVERIFY(bench.Until("DocumentComplete " + page));
        QVERIFY(!bench.Web().Busy() && !bench.Web().ToolbarButtonEnabled("stop"));
        bench.Take();
    }
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
