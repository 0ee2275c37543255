#include <unistd.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <optional>

#include "desk/CommandLine.h"
#include "desk/MainWindow.h"
#include "desk/Screenshot.h"
#include "desk/Timings.h"

int main(int argc, char** argv) {
    using namespace ostrel::desk;
    // A file that outgrows the user's limit is a failed write, and not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    // The engine does not start with its sandbox as root.
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // It would tell everybody at every start which graphics it has found.
    QLoggingCategory::setFilterRules("qt.webenginecontext.debug=false\nqt.webenginecontext.info=false");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    QApplication::setApplicationName("ostrel-desk");
    QApplication::setApplicationDisplayName(ApplicationTitle);

    const CommandLine line = ReadCommandLine(QApplication::arguments());
    if (!line.trouble.isEmpty()) {
        std::fprintf(stderr, "ostrel-desk: %s\n", qPrintable(line.trouble));
        return 2;
    }
    if (!line.answer.isEmpty()) {
        std::fputs(qPrintable(line.answer), stdout);
        return 0;
    }

    MainWindow window;
    std::optional<Timings> timings;
    if (line.timings) timings.emplace(window);
    window.show();
    std::optional<Screenshot> screenshot;
    if (!line.screenshot.isEmpty()) screenshot.emplace(window, line.screenshot);
    QTimer::singleShot(0, &window, [&window, &line] {
        if (line.file.isEmpty()) return;
        window.Open(line.file);
        if (!line.output.isEmpty()) window.SetOutputDirectory(line.output);
        if (line.make) window.MakeReport();
    });
    return QApplication::exec();
}
