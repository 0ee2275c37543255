#include "desk/Screenshot.h"

#include <QCoreApplication>
#include <QPixmap>
#include <cstdio>

#include "desk/MainWindow.h"

namespace ostrel::desk {

namespace {

constexpr int LookInterval = 50;
/// The engine paints a page a little after it reports the load.
constexpr qint64 QuietTime = 700;
constexpr qint64 LongestWait = 120'000;

} // namespace

Screenshot::Screenshot(MainWindow& window, QString file) : window_(window), file_(std::move(file)) {
    connect(&timer_, &QTimer::timeout, this, &Screenshot::Look);
    timer_.start(LookInterval);
    running_.start();
    quiet_.start();
}

void Screenshot::Look() {
    OstrelWebHelp& web = window_.Widget().Web();
    constexpr Long complete = 4;
    if (window_.CurrentWork().Running() || web.Busy() || web.ReadyState() != complete ||
        !web.HelpPageNext().empty())
        quiet_.restart();
    if (quiet_.elapsed() >= QuietTime || running_.elapsed() >= LongestWait) Take();
}

void Screenshot::Take() {
    timer_.stop();
    const bool inTime = running_.elapsed() < LongestWait;
    const bool saved = window_.grab().save(file_, "PNG");
    const QString trouble = !inTime  ? "The page was not loaded in time."
                            : !saved ? file_ + " can't be written."
                                     : window_.Trouble();
    if (!trouble.isEmpty()) std::fprintf(stderr, "ostrel-desk: %s\n", qPrintable(trouble));
    QCoreApplication::exit(trouble.isEmpty() ? 0 : 1);
}

} // namespace ostrel::desk
