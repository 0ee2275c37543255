#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QVariant>
#include <memory>

#include "desktop/OstrelWebHelpWidget.h"
#include "desktop/QtPane.h"
#include "support/EventLine.h"
#include "support/TemporaryDirectory.h"

namespace ostrel::test {

using Lines = std::vector<Text>;

/// Runs the loop until the condition holds; false after ten seconds without it. Unlike the test library's own
/// wait it lets the loop sleep instead of sleeping beside it, so the engine's answers arrive as they come.
template <class Condition>
bool WaitUntil(Condition holds) {
    constexpr qint64 Patience = 10'000;
    QElapsedTimer time;
    time.start();
    QEventLoop loop;
    QTimer look;
    bool held = false;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        held = holds();
        if (held || time.elapsed() > Patience) loop.quit();
    });
    look.start(2);
    loop.exec();
    return held;
}

/// The component in a window that is shown, with a directory of pages of its own. Its events are written
/// down, but for those whose number depends on how fast the machine is and for the control's trace lines.
class DesktopBench {
public:
    DesktopBench()
        : widget(nullptr, [this](EventBase& event, std::span<const ArgumentRef> arguments) {
              Text line = EventLine(event, arguments);
              for (const TextView noise : {"ProgressChange", "DownloadTime", "StatusTextChange Web Help - ",
                                           "Mouse", "StatusTextChange Opening"})
                  if (line.starts_with(noise)) return;
              log.push_back(std::move(line));
          }) {
        widget.resize(800, 600);
        widget.show();
        // A screen without a window manager gives no window the focus by itself.
        widget.activateWindow();
        (void)QTest::qWaitForWindowActive(&widget);
        // The blank page of the construction.
        WaitUntil([this] { return !Web().Busy() && Web().LocationURL() == "about:blank"; });
        log.clear();
    }

    OstrelWebHelp& Web() { return widget.Web(); }
    QWebEngineView& View() { return widget.Pane().View(); }
    QWidget* Child(const Text& name) { return widget.ChildWidget(name); }

    /// Writes a page and gives its path as the component has it.
    Text Page(const Text& name, const Text& html) {
        directory.Write(name, html);
        return directory.Component(name);
    }
    Text Page(const Text& name) { return Page(name, "<TITLE>" + name.substr(0, 1) + "</TITLE>" + name); }

    /// Waits until a line has come that starts so.
    bool Until(const Text& start) {
        return WaitUntil([&] {
            return std::any_of(log.begin(), log.end(),
                               [&](const Text& line) { return line.starts_with(start); });
        });
    }
    /// All lines since the last taking.
    Lines Take() { return std::exchange(log, {}); }
    /// Loads a page to its end and forgets what was told.
    bool Load(const Text& url) {
        Text error;
        const bool loaded = Web().LoadURL(url, error) && Until("DownloadComplete");
        QTest::qWait(20);
        Take();
        return loaded;
    }
    /// What a script on the page on view comes to.
    QVariant Script(const QString& source) {
        auto answer = std::make_shared<std::optional<QVariant>>();
        View().page()->runJavaScript(source, [answer](const QVariant& value) { *answer = value; });
        WaitUntil([&] { return answer->has_value(); });
        return answer->value_or(QVariant());
    }
    /// A real click in the middle of the element that a script expression gives.
    void ClickElement(const QString& element) {
        const QVariantList place =
            Script("(function() { const e = " + element +
                   "; e.scrollIntoView({block: 'center'}); const r = e.getClientRects()[0]; "
                   "return [r.left + r.width / 2, r.top + r.height / 2]; })()")
                .toList();
        if (place.size() != 2) return;
        QTest::mouseClick(View().focusProxy(), Qt::LeftButton, {}, {place[0].toInt(), place[1].toInt()});
    }
    void Click(const Text& child) { QTest::mouseClick(Child(child), Qt::LeftButton); }

    TemporaryDirectory directory;
    Lines log;
    desktop::OstrelWebHelpWidget widget;
};

/// Compares and tells both where they differ.
inline bool SameLines(const Lines& told, const Lines& expected) {
    if (told == expected) return true;
    for (const Text& line : told) qWarning("told:     %s", line.c_str());
    for (const Text& line : expected) qWarning("expected: %s", line.c_str());
    return false;
}

} // namespace ostrel::test
