#include <unistd.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <optional>

#include "desk/ClosingSignals.h"
#include "desk/CommandLine.h"
#include "desk/MainWindow.h"
#include "desk/Screenshot.h"
#include "desk/Timings.h"

namespace {

using namespace ostrel::desk;

/// Returns the output of --help or --version, which need no screen; empty if neither was given.
QString Answer(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return ReadCommandLine(QCoreApplication::arguments()).answer;
}

} // namespace

int main(int argc, char** argv) {
    // A file that outgrows the user's limit is a failed write, and not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    // The engine does not start with its sandbox as root.
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // Without this the engine prints the graphics driver at every start.
    QLoggingCategory::setFilterRules("qt.webenginecontext.debug=false\nqt.webenginecontext.info=false");
    QCoreApplication::setApplicationName("ostrel-desk");
    if (const QString answer = Answer(argc, argv); !answer.isEmpty()) {
        std::fputs(qPrintable(answer), stdout);
        return 0;
    }
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(ApplicationTitle);

    // The toolkit has taken its own options out of the arguments.
    const CommandLine line = ReadCommandLine(QApplication::arguments());
    if (!line.trouble.isEmpty()) {
        std::fprintf(stderr, "ostrel-desk: %s\n", qPrintable(line.trouble));
        return 2;
    }
    MainWindow window;
    const ClosingSignals closing(window);
    // The browser windows that pages have opened go with it.
    QObject::connect(&window, &MainWindow::Closed, &application, [] { QCoreApplication::exit(0); });
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
