#include "desktop/MainTextTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <random>

#include "desktop/DocumentLines.h"
#include "desktop/FormBench.h"
#include "desktop/FormDialog.h"
#include "desktop/LineText.h"

namespace ostrel::test {

namespace {

class EditForm final : public Form {
public:
    EditForm() : Form("frmEdit", "Edit") {
        text.onChange = [this] { ++changes; };
        text.onSelect = [this] { ++selections; };
    }
    RichText text{*this, "rtfText"};
    Menu menu{*this, "mnuPopup"};
    MenuItem cut{*this, menu, "mnuCut", "Cut", [this] { text.ReplaceSelection(""); }};
    MenuItem line{*this, menu, "mnuLine", "-"};
    MenuItem insert{*this, menu, "mnuInsert", "Insert"};
    MenuItem one{*this, insert, "mnuOne", "One", [this] { text.ReplaceSelection("1"); }};
    MenuItem hidden{*this, menu, "mnuHidden", "Hidden"};
    int changes = 0, selections = 0;
    Text keys;

    void PrepareMenu() override {
        cut.enabled = text.SelLength() > 0;
        hidden.visible = false;
    }
    bool KeyDown(const KeyStroke& stroke) override {
        keys += (stroke.control ? "Ctrl+" : "") + stroke.key + ";";
        if (stroke.key != "Enter" || !stroke.control) return stroke.key != "Enter";
        text.ReplaceSelection("<BR>\r\n");
        return true;
    }
};

QPlainTextEdit& EditOf(const QDialog& dialog) { return *FormBench::Find<QPlainTextEdit>(dialog, "rtfText"); }

/// Both selections, as start and length in the model.
QString SelectionOf(const EditForm& form) {
    return QString("%1+%2").arg(form.text.SelStart()).arg(form.text.SelLength());
}

} // namespace

void MainTextTest::PositionsOfLines() {
    QTextDocument document;
    desktop::DocumentLines lines(document);
    lines.Show(0, 0, "a\r\n\r\nb\nc\rd\r\n");
    QCOMPARE(document.toRawText().replace(QChar::ParagraphSeparator, '|'), QString("a||b|c|d|"));
    const std::vector<int> raw{0, 1, 1, 2, 2, 3, 4, 5, 6, 7, 8, 8, 9};
    for (Long position = 0; position < static_cast<Long>(raw.size()); ++position)
        QCOMPARE(lines.ToDocument(position), raw[static_cast<std::size_t>(position)]);
    const std::vector<Long> model{0, 1, 3, 5, 6, 7, 8, 9, 10, 12};
    for (int position = 0; position < static_cast<int>(model.size()); ++position)
        QCOMPARE(lines.ToModel(position), model[static_cast<std::size_t>(position)]);
}

void MainTextTest::ChangesBetweenTexts() {
    struct Row {
        QString before, after;
        int latest, start, removed;
        QString inserted;
    };
    for (const auto& [before, after, latest, start, removed, inserted] : std::vector<Row>{
             {"abc", "abc", 9, 3, 0, ""},
             {"aaa", "aaaa", 1, 1, 0, "a"},
             {"aaa", "aaaa", 9, 3, 0, "a"},
             {"aaa", "aa", 1, 1, 1, ""},
             {"abcd", "aXd", 9, 1, 2, "X"},
             {"abcd", "abXd", 0, 0, 3, "abX"},
             {"", "x", 0, 0, 0, "x"},
             {"x", "", 1, 0, 1, ""},
         }) {
        const desktop::TextChange change = desktop::ChangeBetween(before, after, latest);
        QCOMPARE(QString("%1 %2 %3").arg(change.start).arg(change.removed).arg(change.inserted),
                 QString("%1 %2 %3").arg(start).arg(removed).arg(inserted));
        QCOMPARE(change.Empty(), before == after);
    }
}

void MainTextTest::TypingReachesTheModel() {
    FormBench bench;
    EditForm form;
    form.text.Content("one\r\ntwo");
    form.text.Select(5, 0);
    form.changes = 0;
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        QVERIFY(!edit.document()->isUndoAvailable());
        QTest::keyClicks(&edit, "ab");
        QCOMPARE(form.text.Content(), Text("one\r\nabtwo"));
        QCOMPARE(form.changes, 2);
        QCOMPARE(SelectionOf(form), QString("7+0"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(form.text.Content(), Text("one\r\nab\r\ntwo"));
        QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(form.text.Content(), Text("one\r\nab\r\n\r\ntwo"));
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(form.text.Content(), Text("one\r\natwo"));
        QTest::keyClick(&edit, Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(SelectionOf(form), QString("0+6"));
        QTest::keyClicks(&edit, "X");
        QCOMPARE(form.text.Content(), Text("Xtwo"));
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY2(form.text.Content().starts_with("one\r\n"), form.text.Content().c_str());
        QApplication::clipboard()->setText("p\nq");
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(form.text.Content(), Text("p\r\nq"));
        FormBench::Commit(&edit, QString::fromUtf8("\u03b1"));
        QCOMPARE(form.text.Content(), Text("p\r\nq?"));
        QCOMPARE(edit.toPlainText(), QString("p\nq?"));
    });
}

void MainTextTest::EveryByteStandsAsItIs() {
    FormBench bench;
    EditForm form;
    Text all;
    for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
    form.text.Content(all + "\r\n\r\nend");
    const Text before = form.text.Content();
    form.text.Select(static_cast<Long>(before.size()), 0);
    bench.Show(form, [&](QDialog& dialog) {
        QTest::qWait(120);
        QCOMPARE(form.text.Content(), before);
        QTest::keyClicks(&EditOf(dialog), "!");
        QCOMPARE(form.text.Content(), before + "!");
    });
}

void MainTextTest::EditsFromBothSides() {
    FormBench bench;
    EditForm form;
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        std::mt19937 random(1);
        const auto below = [&random](qsizetype limit) {
            return static_cast<int>(random() % static_cast<unsigned>(limit));
        };
        // Line ends of all kinds, which edits part and join.
        const std::vector<Text> pieces{"", "a", "\r", "\n", "\r\n", "b\r", "\nc", "\r\r\n", "d\r\ne\n"};
        const QStringList typed{"", "x", "\n", "y\nz"};
        std::uint64_t seen = 0;
        for (int turn = 0; turn < 3000; ++turn) {
            Text expected = form.text.Content();
            if (turn % 3 == 0) {
                const int at = below(form.text.Buffer().Size() + 1), removed = below(4);
                const Text& piece = pieces[static_cast<std::size_t>(below(9))];
                expected.replace(static_cast<std::size_t>(at), static_cast<std::size_t>(removed), piece);
                form.text.Replace(at, removed, piece);
                form.text.Colour(below(50), below(9), below(3));
            } else {
                const int size = edit.document()->characterCount() - 1;
                const int start = below(size + 1), end = std::min(start + below(4), size);
                const QString& keys = typed[below(4)];
                // Where the model has changed meanwhile, the user meant a text that is gone.
                if (seen == form.text.Buffer().Revision()) {
                    std::vector<std::size_t> places;
                    for (std::size_t at = 0; at <= expected.size(); ++at)
                        if (at == 0 || expected.compare(at - 1, 2, "\r\n") != 0) places.push_back(at);
                    // A line end that is typed over one is the same line end.
                    const desktop::TextChange change = desktop::ChangeBetween(
                        desktop::ShownLines(expected).mid(start, end - start), keys, size);
                    const std::size_t first = static_cast<std::size_t>(start + change.start);
                    const std::size_t behind = first + static_cast<std::size_t>(change.removed);
                    expected.replace(places[first], places[behind] - places[first],
                                     desktop::ModelLines(change.inserted));
                }
                QTextCursor cursor(edit.document());
                cursor.setPosition(start);
                cursor.setPosition(end, QTextCursor::KeepAnchor);
                cursor.insertText(keys);
                seen = form.text.Buffer().Revision();
            }
            QCOMPARE(form.text.Content(), expected);
            if (turn % 5 == 0 && form.text.Undo()) form.text.Redo();
            if (turn % 4 == 0) continue;
            static_cast<desktop::FormDialog&>(dialog).Sync();
            seen = form.text.Buffer().Revision();
            QCOMPARE(edit.toPlainText(), desktop::ShownLines(expected));
        }
    });
}

void MainTextTest::CopiesKeepEveryCharacter() {
    FormBench bench;
    EditForm form;
    const Text odd = "a\xA0\rb\r\nc";
    form.text.Content(odd + "|");
    bench.Show(form, [&](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        const auto all = static_cast<Long>(odd.size());
        const auto press = [&edit](Qt::Key key) { QTest::keyClick(&edit, key, Qt::ControlModifier); };
        form.text.Select(0, all);
        QTRY_VERIFY(edit.textCursor().hasSelection());
        press(Qt::Key_C);
        QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
        press(Qt::Key_V);
        QCOMPARE(form.text.Content(), odd + "|" + odd);
        press(Qt::Key_Z);
        QCOMPARE(form.text.Content(), odd + "|");
        press(Qt::Key_Z);
        QCOMPARE(form.text.Content(), odd + "|");
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(form.text.Content(), odd + "|" + odd);
        QMimeData dragged;
        dragged.setText(QString("c\u00A0\r"));
        const QPoint start = edit.cursorRect(QTextCursor(edit.document())).center();
        QDragEnterEvent enter(start, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(edit.viewport(), &enter);
        QDropEvent drop(start, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(edit.viewport(), &drop);
        QCOMPARE(form.text.Content(), "c\xA0\r" + odd + "|" + odd);
        press(Qt::Key_Z);
        QCOMPARE(form.text.Content(), odd + "|" + odd);
        form.text.Select(0, all);
        QTRY_VERIFY(edit.textCursor().hasSelection());
        press(Qt::Key_X);
        QCOMPARE(form.text.Content(), "|" + odd);
        QCOMPARE(QApplication::clipboard()->text(), QString("a\u00A0\rb\nc"));
        // Letters of one run are one step; a character of no code page is shown as what it became.
        QTest::keyClicks(&edit, "xyz");
        press(Qt::Key_Z);
        QCOMPARE(form.text.Content(), "|" + odd);
        FormBench::Commit(&edit, QString::fromUtf8("\U0001F600"));
        QCOMPARE(form.text.Content(), "?|" + odd);
        QCOMPARE(edit.toPlainText().left(2), QString("?|"));
    });
}

void MainTextTest::SelectionsGoBothWays() {
    FormBench bench;
    EditForm form;
    form.text.Content("one\r\ntwo\r\nthree");
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        form.selections = 0;
        QTest::keyClick(&edit, Qt::Key_Down);
        QCOMPARE(SelectionOf(form), QString("5+0"));
        QTest::keyClick(&edit, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(SelectionOf(form), QString("5+3"));
        QCOMPARE(form.selections, 2);
        form.text.Select(10, 2);
        QTRY_COMPARE(edit.textCursor().selectedText(), QString("th"));
        QCOMPARE(form.selections, 3);
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(SelectionOf(form), QString("0+15"));
        // A selection made backwards keeps its moving end.
        form.text.Select(2, 0);
        QTRY_COMPARE(edit.textCursor().position(), 2);
        QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
        QTest::qWait(120);
        QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(SelectionOf(form), QString("0+2"));
    });
}

void MainTextTest::ModelMayAnswerAnEdit() {
    FormBench bench;
    EditForm form;
    form.text.onChange = [&form] {
        if (form.text.Content() == "ab") form.text.Content("other\r\ntext");
    };
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        QTest::keyClicks(&edit, "ab");
        QCOMPARE(edit.toPlainText(), QString("other\ntext"));
        QCOMPARE(SelectionOf(form), QString("0+0"));
        form.text.Select(5, 2);
        form.text.ReplaceSelection("-");
        QTRY_COMPARE(edit.toPlainText(), QString("other-text"));
        QCOMPARE(edit.textCursor().position(), 6);
    });
}

void MainTextTest::ChordsReachTheFormFirst() {
    FormBench bench;
    EditForm form;
    form.text.Content("word");
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        for (const Qt::Key key : {Qt::Key_B, Qt::Key_U, Qt::Key_K, Qt::Key_F1})
            QTest::keyClick(&edit, key, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_F3);
        QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
        QTest::keyClicks(&edit, "!");
        QCOMPARE(form.keys, Text("Ctrl+B;Ctrl+U;Ctrl+K;Ctrl+F1;F3;"));
        QCOMPARE(form.text.Content(), Text("!word"));
        QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(form.text.Content(), Text("!<BR>\r\nword"));
        QCOMPARE(edit.toPlainText(), QString("!<BR>\nword"));
    });
}

void MainTextTest::LockedTextStays() {
    FormBench bench;
    EditForm form;
    form.text.Content("word");
    form.text.locked = true;
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        QTest::keyClicks(&edit, "x");
        QTest::keyClick(&edit, Qt::Key_Return);
        QTest::keyClick(&edit, Qt::Key_F3);
        QCOMPARE(form.text.Content(), Text("word"));
        QCOMPARE(edit.toPlainText(), QString("word"));
        QCOMPARE(form.keys, Text("Enter;F3;"));
        form.text.locked = false;
        QTRY_VERIFY(!edit.isReadOnly());
        QTest::keyClicks(&edit, "x");
        QCOMPARE(form.text.Content(), Text("xword"));
    });
}

void MainTextTest::ColoursAreShown() {
    FormBench bench;
    EditForm form;
    form.text.Content("ab\r\ncdef");
    form.text.Colour(0, 1, 0x0000FF);
    form.text.Colour(1, 5, 0xFF0000);
    bench.Show(form, [&form](QDialog& dialog) {
        const auto shown = [&dialog](int line) {
            QString all;
            for (const auto& range : EditOf(dialog).document()->findBlockByNumber(line).layout()->formats())
                all += QString("%1+%2 %3;")
                           .arg(range.start)
                           .arg(range.length)
                           .arg(range.format.foreground().color().name());
            return all;
        };
        QCOMPARE(shown(0), QString("0+1 #ff0000;1+1 #0000ff;"));
        QCOMPARE(shown(1), QString("0+2 #0000ff;"));
        QVERIFY(!EditOf(dialog).document()->isUndoAvailable());
        form.text.Colour(0, 6, 0);
        form.text.Colour(6, 2, 0x008000);
        QTRY_COMPARE(shown(1), QString("2+2 #008000;"));
        QCOMPARE(shown(0), QString());
        form.text.Colour(0, 8, 0);
        QTRY_COMPARE(shown(1), QString());
    });
}

void MainTextTest::MenuOpensOverTheText() {
    FormBench bench;
    EditForm form;
    form.text.Content("word");
    bench.Show(form, [&form](QDialog& dialog) {
        QPlainTextEdit& edit = EditOf(dialog);
        QString seen;
        const auto choose = [&](const std::vector<Qt::Key>& keys) {
            QTimer::singleShot(0, [&seen, keys] {
                QWidget* popup = QApplication::activePopupWidget();
                QVERIFY(popup);
                for (const QAction* action : popup->actions())
                    seen += (action->isSeparator() ? "-" : action->text()) +
                            (action->isEnabled() ? ";" : " off;");
                for (const Qt::Key key : keys) QTest::keyClick(QApplication::activePopupWidget(), key);
                while (QWidget* left = QApplication::activePopupWidget()) left->close();
            });
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                    edit.viewport()->mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(edit.viewport(), &event);
            return std::exchange(seen, {});
        };
        QCOMPARE(choose({Qt::Key_Down}), QString("Cut off;-;Insert;"));
        QCOMPARE(form.text.Content(), Text("word"));
        form.text.Select(0, 3);
        QCOMPARE(choose({Qt::Key_Down, Qt::Key_Return}), QString("Cut;-;Insert;"));
        QCOMPARE(form.text.Content(), Text("d"));
        QCOMPARE(edit.toPlainText(), QString("d"));
        choose({Qt::Key_Up, Qt::Key_Right, Qt::Key_Return});
        QCOMPARE(form.text.Content(), Text("1d"));
    });
}

} // namespace ostrel::test
