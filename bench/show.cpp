// bench-show PAGE [CLICKED]: loads a local page in the engine of the window and writes, in milliseconds and
// megabytes: when rows of it were first seen in the lower half of the window, when all of it was laid out and
// drawn, the longest time for which the page gave no answer between the two, and the most memory that its
// process held. With CLICKED, a CSS selector, that link is clicked then, and the time from the click to the
// first picture of the next page follows.

#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <cstdio>

namespace {

constexpr int LookInterval = 10;
constexpr qint64 LongestWait = 600'000;

/// True once the page is loaded and has been drawn since.
const QString Question =
    "(() => { if (document.readyState === 'complete' && !window.asked) { window.asked = true; "
    "requestAnimationFrame(() => requestAnimationFrame(() => window.drawn = true)); } "
    "return [location.href, window.drawn === true]; })()";

/// The most memory that the page's process has held, in megabytes.
double PeakMemory(const QWebEnginePage& page) {
    QFile file("/proc/" + QString::number(page.renderProcessPid()) + "/status");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
    return 0;
}

/// Whether the lower half of a picture holds text.
bool ShowsRows(const QImage& picture) {
    constexpr int darkest = 110, fewest = 150;
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    int dark = 0;
    for (int y = grey.height() / 2; y < grey.height(); ++y)
        for (int x = 0; x < grey.width(); ++x) dark += grey.constScanLine(y)[x] < darkest;
    return dark >= fewest;
}

/// Watches a view from the moment at which a page is asked for until that page is drawn whole.
class Watch {
public:
    /// `former` is the address that the view leaves.
    Watch(QWebEngineView& view, const QString& former)
        : view_(view), former_(former), before_(view.grab().toImage()) {
        clock_.start();
    }

    void Run() {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [this] { Look(); });
        look.start(LookInterval);
        loop_.exec();
    }

    qint64 picture = 0, done = 0, silence = 0;

private:
    void Look() {
        if (clock_.elapsed() > LongestWait) return loop_.quit();
        // The page that is left stays on view until the next one is drawn.
        if (picture == 0 && arrived_)
            if (const QImage now = view_.grab().toImage(); now != before_ && ShowsRows(now))
                picture = clock_.elapsed();
        if (asking_) return;
        asking_ = true;
        const qint64 asked = clock_.elapsed();
        view_.page()->runJavaScript(Question, [this, asked](const QVariant& answer) {
            asking_ = false;
            const QVariantList told = answer.toList();
            if (told.size() != 2 || told[0].toString() == former_) return;
            if (picture > 0 && asked > picture) silence = std::max(silence, clock_.elapsed() - asked);
            arrived_ = true;
            if (!told[1].toBool() || picture == 0) return;
            done = clock_.elapsed();
            loop_.quit();
        });
    }

    QWebEngineView& view_;
    QString former_;
    QImage before_;
    QElapsedTimer clock_;
    QEventLoop loop_;
    bool asking_ = false, arrived_ = false;
};

} // namespace

int main(int count, char** arguments) {
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(count, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 2) return 2;
    QWebEngineView view;
    view.resize(1100, 750);
    view.show();
    QEventLoop loop;
    QObject::connect(&view, &QWebEngineView::loadFinished, &loop, &QEventLoop::quit);
    // The engine's start is not the page's time.
    view.setHtml("-");
    loop.exec();

    Watch first(view, view.url().toString());
    view.load(QUrl::fromLocalFile(QFileInfo(words[1]).absoluteFilePath()));
    first.Run();
    std::printf("picture %lld done %lld silence %lld memory %.0f", first.picture, first.done, first.silence,
                PeakMemory(*view.page()));
    if (words.size() > 2) {
        Watch next(view, view.url().toString());
        view.page()->runJavaScript("document.querySelector('" + words[2] + "').click()");
        next.Run();
        std::printf(" click %lld", next.picture);
    }
    std::printf("\n");
    return 0;
}
