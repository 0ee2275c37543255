#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "desktop/DeskFilesTest.h"
#include "desktop/DeskRunTest.h"
#include "desktop/DeskTest.h"
#include "desktop/FormDialogTest.h"
#include "desktop/FormWindowTest.h"
#include "desktop/MainTextTest.h"
#include "desktop/PaneTest.h"
#include "desktop/QtScreenTest.h"
#include "desktop/ReportLookTest.h"
#include "desktop/ToolbarGlyphsTest.h"
#include "desktop/WidgetTest.h"

namespace {

/// Runs the functions of one class; the first argument of the program may name the only class to run.
template <class Tests>
int Run(const QStringList& arguments) {
    Tests tests;
    QStringList own = arguments;
    if (own.size() > 1 && own[1].endsWith("Test")) {
        if (!QString::fromLatin1(tests.metaObject()->className()).endsWith(own[1])) return 0;
        own.removeAt(1);
    }
    return QTest::qExec(&tests, own);
}

} // namespace

int main(int argc, char** argv) {
    // The settings of whoever runs the tests stay as they are.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    int failures = 0;
    failures += Run<ostrel::test::ToolbarGlyphsTest>(arguments);
    failures += Run<ostrel::test::FormDialogTest>(arguments);
    failures += Run<ostrel::test::FormWindowTest>(arguments);
    failures += Run<ostrel::test::MainTextTest>(arguments);
    failures += Run<ostrel::test::QtScreenTest>(arguments);
    failures += Run<ostrel::test::WidgetTest>(arguments);
    failures += Run<ostrel::test::PaneTest>(arguments);
    failures += Run<ostrel::test::ReportLookTest>(arguments);
    failures += Run<ostrel::test::DeskTest>(arguments);
    failures += Run<ostrel::test::DeskRunTest>(arguments);
    failures += Run<ostrel::test::DeskFilesTest>(arguments);
    return failures == 0 ? 0 : 1;
}
