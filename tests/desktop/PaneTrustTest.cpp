#include <QTest>
#include <QUdpSocket>
#include <QWebEngineDownloadRequest>

#include "desktop/DesktopBench.h"
#include "desktop/LocalServer.h"
#include "desktop/PaneTest.h"

namespace ostrel::test {

void PaneTest::RemoteLoadsOnlyOnline() {
    DesktopBench bench;
    LocalServer server("<TITLE>Remote</TITLE>remote");
    const Text page = bench.Page("p.htm", "<TITLE>p</TITLE><IMG SRC=" + server.Address() +
                                              "i.png><IFRAME SRC=" + server.Address() + "></IFRAME>");
    QVERIFY2(bench.Web().Offline(), "a new control is");
    QVERIFY(bench.Load(page));
    QVERIFY(bench.Load(server.Address()));
    QTest::qWait(300);
    QCOMPARE(server.visits, 0);
    bench.Web().Offline(false);
    QVERIFY(bench.Load(page));
    QVERIFY2(server.visits >= 2, "the picture and the frame");
    QVERIFY(bench.Load(server.Address()));
    QCOMPARE(bench.Web().LocationName(), Text("Remote"));
}

void PaneTest::PagesAreHeldBack() {
    DesktopBench bench;
    bench.directory.Write("data.zip", std::string("PK\3\4 and so on\0\1", 16));
    bench.directory.Write("secret.htm", "<TITLE>s</TITLE>secret");
    const Text page = bench.Page(
        "p.htm", "<TITLE>p</TITLE><A HREF=data.zip DOWNLOAD>d</A><IFRAME SRC=secret.htm></IFRAME>");
    QVERIFY(bench.Load(page));
    bench.Script(R"(window.seen = {};
        const note = (name, promise) => promise.then(() => seen[name] = 'open', () => seen[name] = 'shut');
        try { seen.frame = frames[0].document.body.innerText; } catch (e) { seen.frame = 'shut'; }
        note('fetch', fetch('secret.htm').then(r => r.text()));
        note('request', new Promise((good, bad) => { const x = new XMLHttpRequest();
            x.onload = good; x.onerror = bad; x.open('GET', 'secret.htm'); x.send(); }));
        note('place', new Promise((good, bad) => navigator.geolocation.getCurrentPosition(good, bad)));
        note('notice', Notification.requestPermission().then(p => { if (p !== 'granted') throw p; }));
        seen.paste = document.execCommand('paste') ? 'open' : 'shut'; 0)");
    const auto seen = [&](const char* what) { return bench.Script(QString("seen.") + what).toString(); };
    for (const char* what : {"frame", "fetch", "request", "place", "notice", "paste"}) {
        QVERIFY2(WaitUntil([&] { return !seen(what).isEmpty(); }), what);
        QVERIFY2(seen(what) == "shut", what);
    }
    // Where the engine does not even offer the interface it is shut as well.
    bench.Script(
        "navigator.mediaDevices ? note('camera', navigator.mediaDevices.getUserMedia({video: true})) : seen.camera = 'shut'; 0");
    bench.Script(
        "navigator.clipboard ? note('clipboard', navigator.clipboard.readText()) : seen.clipboard = 'shut'; 0");
    for (const char* what : {"camera", "clipboard"}) {
        QVERIFY2(WaitUntil([&] { return !seen(what).isEmpty(); }), what);
        QVERIFY2(seen(what) == "shut", what);
    }
    bool asked = false, ended = false;
    connect(bench.View().page()->profile(), &QWebEngineProfile::downloadRequested, this,
            [&](QWebEngineDownloadRequest* download) {
                asked = true;
                ended = download->state() == QWebEngineDownloadRequest::DownloadCancelled;
            });
    bench.ClickElement("document.links[0]");
    QVERIFY(WaitUntil([&] { return asked; }));
    QVERIFY(ended);
    QCOMPARE(bench.Web().LocationURL(), page);
}

void PaneTest::DataFilesAreNotRead() {
    DesktopBench bench;
    bench.directory.Write("data.json", R"({"secret": "read"})");
    bench.directory.Write("data.vtt", "WEBVTT\n\n00:00.000 --> 00:10.000\nread\n");
    bench.directory.Write("part.js", "export default 'loaded'");
    QVERIFY(bench.Load(
        bench.Page("p.htm", R"(<TITLE>p</TITLE><VIDEO><TRACK ID=t SRC=data.vtt DEFAULT></VIDEO><SCRIPT>
        const seen = {};
        const note = (name, promise) => promise.then(v => seen[name] = v, () => seen[name] = 'shut');
        note('data', import('./data.json', {assert: {type: 'json'}}).then(m => m.default.secret));
        note('part', import('./part.js').then(m => m.default));
        note('track', new Promise((good, bad) => { t.onload = () => good(t.track.cues[0].text); t.onerror = bad;
            t.track.mode = 'showing'; }));
        </SCRIPT>)")));
    const auto seen = [&](const char* what) { return bench.Script(QString("seen.") + what).toString(); };
    for (const auto& [what, expected] : {std::pair{"data", "shut"}, {"track", "shut"}, {"part", "loaded"}}) {
        QVERIFY2(WaitUntil([&] { return !seen(what).isEmpty(); }), what);
        QCOMPARE(seen(what), QString(expected));
    }
}

void PaneTest::WrittenWindowsGoWithTheirPage() {
    DesktopBench bench;
    const Text b = bench.Page("b.htm");
    QVERIFY(bench.Load(bench.Page("a.htm", "<TITLE>a</TITLE>")));
    auto& windows = bench.widget.Pane().Windows();
    bench.Script("window.own = window.open('', 'own'); own.document.write('<TITLE>own</TITLE>'); "
                 "window.open('b.htm', 'shown'); 0");
    QVERIFY(WaitUntil([&] { return windows.Standing().size() == 2; }));
    QVERIFY(WaitUntil([&] { return windows.Standing()[1]->windowTitle() == "b"; }));
    bench.Script("own.document.title");
    QVERIFY(bench.Load(b));
    QVERIFY(WaitUntil([&] { return windows.Standing().size() == 1; }));
    QCOMPARE(windows.Standing()[0]->windowTitle(), QString("b"));
}

void PaneTest::RemotePagesNameNoFile() {
    DesktopBench bench;
    bench.directory.Write("secret.htm", "<TITLE>secret</TITLE>");
    LocalServer server("<TITLE>Remote</TITLE>remote");
    bench.Web().Offline(false);
    const QString path = QString::fromStdString(bench.directory.Path("secret.htm"));
    for (const char* root : {"file://", "ostrel-frame://files", "ostrel-frame://"}) {
        bench.Load("about:blank");
        QVERIFY(bench.Load(server.Address()));
        bench.Script("location = '" + (root + path) + "'; 0");
        QTest::qWait(300);
        QVERIFY2(bench.Web().LocationName() != "secret", root);
    }
}

void PaneTest::StepsLeadBackFromRemotePages() {
    DesktopBench bench;
    LocalServer server("<TITLE>Remote</TITLE>remote");
    bench.directory.Write("part.htm", "part");
    bench.directory.Write("style.css", "body { color: rgb(1, 2, 3) }");
    const Text b = bench.Page("b.htm"), remote = server.Address();
    const Text a = bench.Page(
        "a.htm", "<TITLE>a</TITLE><LINK REL=stylesheet HREF=style.css><A HREF=b.htm>b</A> <A HREF=" + remote +
                     ">r</A><IFRAME SRC=part.htm></IFRAME>");
    const auto comes = [&](const Text& page) {
        const bool came = bench.Until("DocumentComplete " + page) && bench.Until("DownloadComplete");
        QTest::qWait(20);
        bench.Take();
        return came;
    };
    for (const bool offline : {true, false}) {
        bench.Web().Offline(offline);
        QVERIFY(bench.Load(b) && bench.Load(a));
        bench.ClickElement("document.links[1]");
        QVERIFY(comes(remote));
        bench.Web().GoBack();
        QVERIFY(comes(a));
        QVERIFY2(bench.Script("getComputedStyle(document.body).color").toString() == "rgb(1, 2, 3)",
                 "all its parts have come");
        QCOMPARE(bench.Script("frames.length").toInt(), 1);
        bench.Web().GoForward();
        QVERIFY(comes(remote));
        // A script of the remote page may go back; what the way back shows is closed to it.
        bench.Script("history.back(); 0");
        QVERIFY(comes(a));
        bench.ClickElement("document.links[0]");
        QVERIFY(comes(b));
        QVERIFY(bench.Load(remote));
        QVERIFY(bench.Load(a));
        QCOMPARE(bench.Web().LocationName(), Text("a"));
    }
}

void PaneTest::PagesHaveNoSockets() {
    DesktopBench bench;
    QUdpSocket datagrams;
    datagrams.bind(QHostAddress::AnyIPv4);
    LocalServer server;
    bench.Page("inner.htm", "<SCRIPT>parent.postMessage(typeof RTCPeerConnection, '*')</SCRIPT>");
    QVERIFY(bench.Load(bench.Page("p.htm", "<TITLE>p</TITLE><SCRIPT>onmessage = e => window.inner = e.data; "
                                           "window.early = typeof RTCPeerConnection</SCRIPT>"
                                           "<IFRAME SRC=inner.htm></IFRAME>")));
    QCOMPARE(bench.Script("early").toString(), QString("undefined"));
    QVERIFY(WaitUntil([&] { return bench.Script("window.inner").toString() == "undefined"; }));
    // A frame that is caught in the moment of its making still has the interface; it comes no further.
    bench.Script(QString(R"js(const frame = document.createElement('iframe');
        document.body.append(frame);
        const Peer = frame.contentWindow.RTCPeerConnection;
        if (Peer) {
            window.peer = new Peer({iceServers: [{urls: 'stun:127.0.0.1:%1'}]});
            peer.createDataChannel('x');
            peer.createOffer().then(offer => peer.setLocalDescription(offer));
        }
        new Worker(URL.createObjectURL(new Blob(["new WebTransport('https://127.0.0.1:%1/')"])));
        try { new WebSocket('ws://127.0.0.1:%2/') } catch (e) {} 0)js")
                     .arg(datagrams.localPort())
                     .arg(server.Port()));
    QTest::qWait(1500);
    QVERIFY(!datagrams.hasPendingDatagrams());
    QCOMPARE(server.visits, 0);
}

} // namespace ostrel::test
