// bench-typing: measures the main text of a form in a window against the bare edit control of the toolkit,
// both without the toolkit's history. Prints lines of a name and a figure: seconds of CPU time for opening a
// text and for a key in its middle, or bytes of memory for one of text.

#include <malloc.h>

#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTimer>
#include <algorithm>

#include "desktop/QtClock.h"
#include "desktop/QtScreen.h"
#include "desktop/QtText.h"
#include "plain.h"
#include "ui/Dialogs.h"

using namespace ostrel;

namespace {

constexpr int Keys = 31;

class EditForm final : public Form {
public:
    EditForm() : Form("frmEdit", "Edit") {}
    RichText text{*this, "rtfText"};
};

double Memory() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Print(const std::string& name, const std::string& size, double figure) {
    std::printf("%s.%s %.9f\n", name.c_str(), size.c_str(), figure);
    std::fflush(stdout);
}

/// What one key costs from its press to the drawn window, at the caret.
double KeyCost(QPlainTextEdit& edit) {
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        const double start = plain::CpuSeconds();
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
        QApplication::sendEvent(&edit, &press);
        QApplication::processEvents();
        times.push_back(plain::CpuSeconds() - start);
    }
    return Median(std::move(times));
}

void Settle(QWidget& window) {
    window.resize(800, 600);
    window.show();
    QApplication::processEvents();
}

/// Lines of all lengths up to the longest.
Text Lines(std::size_t size, std::size_t longest) {
    Text text;
    text.reserve(size);
    for (std::size_t length = longest; text.size() + length + 2 <= size;
         length = length > 1 ? length * 7919 % (longest + 1) : longest) {
        for (std::size_t i = 0; i < length; ++i) text += static_cast<char>(i % 9 == 8 ? ' ' : 'a' + i % 26);
        text += LineEnd;
    }
    return text;
}

double MeasureBare(const Text& text, const std::string& size) {
    const double before = Memory();
    const double start = plain::CpuSeconds();
    QPlainTextEdit edit;
    edit.setUndoRedoEnabled(false);
    edit.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit.setPlainText(desktop::ToQt(text));
    Settle(edit);
    Print("open-bare", size, plain::CpuSeconds() - start);
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(edit.document()->characterCount() / 2);
    edit.setTextCursor(cursor);
    QApplication::processEvents();
    Print("key-bare", size, KeyCost(edit));
    malloc_trim(0);
    return Memory() - before;
}

double MeasureForm(const Text& text, const std::string& size) {
    const double before = Memory();
    double memory = 0;
    QWidget owner;
    Platform platform;
    platform.clock = std::make_unique<desktop::QtClock>();
    platform.screen = std::make_unique<desktop::QtScreen>(owner);
    EditForm form;
    const double start = plain::CpuSeconds();
    form.text.Content(text);
    QTimer::singleShot(0, [&] {
        auto& dialog = *static_cast<QDialog*>(QApplication::activeModalWidget());
        Settle(dialog);
        Print("open", size, plain::CpuSeconds() - start);
        form.text.Select(static_cast<Long>(text.size() / 2), 0);
        QApplication::processEvents();
        Print("key", size, KeyCost(*dialog.findChild<QPlainTextEdit*>("rtfText")));
        malloc_trim(0);
        memory = Memory() - before;
        dialog.done(0);
    });
    Events events;
    RunFlags run;
    const Context context{events, platform, run};
    ShowDialog({context, DialogProperties()}, form, At{});
    return memory;
}

void MeasureModel(const Text& text, const std::string& size) {
    EditForm form;
    form.text.Content(text);
    form.text.Select(static_cast<Long>(text.size() / 2), 0);
    std::vector<double> times;
    for (int i = 0; i < Keys; ++i) {
        const double start = plain::CpuSeconds();
        form.text.ReplaceSelection("<B>");
        times.push_back(plain::CpuSeconds() - start);
    }
    Print("insert-at-selection", size, Median(std::move(times)));
}

void Measure(const std::string& size, const Text& text) {
    MeasureModel(text, size);
    const double bare = MeasureBare(text, size);
    const double form = MeasureForm(text, size);
    Print("memory", size, (form - bare) / static_cast<double>(text.size()));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const std::size_t megabytes : {1, 8, 64})
        // Room is left below the most that a buffer holds.
        Measure(std::to_string(megabytes), Lines((megabytes << 20) - 65536, 1000));
    Measure("line", Lines(std::size_t{1} << 20, (std::size_t{1} << 20) - 2));
}
