#pragma once

#include <sqlite3.h>

#include <QAction>
#include <QWebEngineView>

#include "desk/MainWindow.h"
#include "desktop/DesktopBench.h"

namespace ostrel::test {

/// The application's window with a directory of its own for what it reads and writes.
class DeskBench {
public:
    explicit DeskBench(bool shown = true) : window(std::make_unique<desk::MainWindow>()) {
        if (shown) window->show();
        Settle();
    }
    ~DeskBench() {
        if (window) window->close();
    }

    /// Waits until nothing loads.
    bool Settle() {
        return WaitUntil([this] {
            OstrelWebHelp& web = window->Widget().Web();
            return !window->CurrentWork().Running() && !web.Busy() && web.ReadyState() == 4 &&
                   web.HelpPageNext().empty();
        });
    }
    /// Opens a file of the directory and gives the report a place in it.
    void Open(const std::string& name) {
        window->Open(QString::fromStdString(directory.Path(name)));
        window->SetOutputDirectory(Output());
        Settle();
    }
    QString Output() const { return QString::fromStdString(directory.Path("out")); }

    template <class Widget>
    Widget* Part(const char* name) const {
        return window->findChild<Widget*>(name);
    }
    void Click(const char* name) const { QTest::mouseClick(Part<QWidget>(name), Qt::LeftButton); }
    QAction* Action(const char* name) const { return Part<QAction>(name); }

    QWebEngineView& View() const { return window->Widget().Pane().View(); }
    /// The file on view.
    QString Page() const { return View().url().fileName(); }
    QVariant Script(const QString& source) const {
        std::optional<QVariant> answer;
        View().page()->runJavaScript(source, [&](const QVariant& value) { answer = value; });
        WaitUntil([&] { return answer.has_value(); });
        return answer.value_or(QVariant());
    }
    /// A real click on the link of that text; false where there is none.
    bool ClickLink(const QString& text) {
        const QVariantList place =
            Script("(function() { const a = [...document.querySelectorAll('a[href]')].find(a => "
                   "a.textContent.trim() == '" +
                   text +
                   "'); if (!a) return []; a.scrollIntoView({block: 'center'}); const r = "
                   "a.getBoundingClientRect(); return [r.left + r.width / 2, r.top + r.height / 2]; })()")
                .toList();
        if (place.size() != 2) return false;
        QTest::mouseClick(View().focusProxy(), Qt::LeftButton, {}, {place[0].toInt(), place[1].toInt()});
        return true;
    }
    /// The page that such a click leads to.
    QString Follow(const QString& text) {
        const QUrl before = View().url();
        if (!ClickLink(text)) return "no link " + text;
        WaitUntil([&] { return View().url() != before; });
        Settle();
        return Page();
    }

    TemporaryDirectory directory;
    std::unique_ptr<desk::MainWindow> window;
};

/// A SQLite database as the statements leave it.
inline void MakeDatabase(const std::string& path, const char* sql) {
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    QCOMPARE(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
}

/// A CSV file with that many records of five columns.
inline std::string ManyRecords(int count) {
    std::string csv = "Number,Name,Price,Day,Place\n";
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        csv += number + ",Article " + std::to_string(i * 7919LL % 100'003) + "," +
               std::to_string(i * 37LL % 1000) + ".5,2024-03-" + (i % 18 < 9 ? "0" : "") +
               std::to_string(i % 18 + 1) + ",Place " + std::to_string(i % 50) + "\n";
    }
    return csv;
}

} // namespace ostrel::test
