#include "desk/Timings.h"

#include <time.h>
#include <unistd.h>

#include <QEvent>
#include <QFile>
#include <QTimer>
#include <cstdio>

#include "desk/MainWindow.h"

namespace ostrel::desk {

namespace {

/// Returns the start time of this process as the system reports it, so that the loading of libraries is
/// included.
double MillisecondsSinceStart() {
    QFile file("/proc/self/stat");
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QByteArray line = file.readAll();
    // The program's name is in parentheses and may hold any character; the start time is field 22 of the
    // line.
    const QList<QByteArray> words = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr int startWord = 22 - 3;
    const double started =
        words.value(startWord).toDouble() * 1000 / static_cast<double>(sysconf(_SC_CLK_TCK));
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<double>(now.tv_sec) * 1000 + static_cast<double>(now.tv_nsec) / 1e6 - started;
}

void Tell(const char* what) { std::fprintf(stderr, "%s after %.0f ms\n", what, MillisecondsSinceStart()); }

} // namespace

Timings::Timings(MainWindow& window) {
    window.installEventFilter(this);
    const auto tellLoaded = [this](Text&, Text&) {
        if (!std::exchange(loaded_, true)) Tell("page loaded");
    };
    window.Widget().Web().events.DocumentComplete.Listen(tellLoaded);
    window.Widget().Web().events.HelpPageComplete.Listen(tellLoaded);
}

bool Timings::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint && !std::exchange(painted_, true))
        QTimer::singleShot(0, this, [] { Tell("window visible"); });
    return false;
}

} // namespace ostrel::desk
