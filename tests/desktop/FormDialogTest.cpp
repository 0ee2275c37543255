#include "desktop/FormDialogTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "desktop/EveryKindForm.h"
#include "desktop/FormBench.h"

namespace ostrel::test {

namespace {

using User = std::function<void(QDialog&)>;

} // namespace

void FormDialogTest::ActionsReachTheModel() {
    struct Row {
        const char* name;
        User act;
        Text log;
    };
    const auto click = [](const char* name) -> User {
        return [name](QDialog& dialog) { FormBench::Click(dialog, name); };
    };
    const auto type = [](const char* name, const QString& keys) -> User {
        return
            [name, keys](QDialog& dialog) { QTest::keyClicks(FormBench::Find<QWidget>(dialog, name), keys); };
    };
    const auto key = [](const char* name, Qt::Key pressed) -> User {
        return [name, pressed](QDialog& dialog) {
            QTest::keyClick(FormBench::Find<QWidget>(dialog, name), pressed);
        };
    };
    FormBench bench;
    for (const auto& [name, act, log] : std::vector<Row>{
             {"nothing", [](QDialog&) {}, ""},
             {"typing", type("txtLine", "ab"), "line=a;line=ab;"},
             {"other characters",
              [](QDialog& dialog) {
                  FormBench::Commit(FormBench::Find<QWidget>(dialog, "txtLine"),
                                    QString::fromUtf8("\u20ac\u03b1"));
              },
              "line=\x80?;"},
             {"typing in lines", type("txtLines", "x"), "lines=xone\r\ntwo;"},
             {"Enter in lines", key("txtLines", Qt::Key_Return), "lines=\r\none\r\ntwo;"},
             {"inside a frame", type("txtInner", "i"), "inner=i;"},
             {"a tick", click("chkTick"), "tick=1;"},
             {"the space key", key("chkTick", Qt::Key_Space), "tick=1;"},
             {"an option", click("optSecond"), "second;"},
             {"a button", click("cmdButton(1)"), "button;"},
             {"Enter on a button", key("cmdButton(1)", Qt::Key_Return), "button;"},
             {"a patch", click("picPatch"), "patch;"},
             {"a combo box, typing", type("cboTyped", "1x"), "typed=1;typed=1x;"},
             {"a combo box, a line typed", type("cboTyped", "12pt"), "typed=1;typed=12;typed=12p;pick=12pt;"},
             {"a combo box, picking", key("cboFixed", Qt::Key_End), "fixed=12pt;"},
             {"a list by keys", key("lisLines", Qt::Key_Down), "list=0;"},
             {"a label", [](QDialog& dialog) { FormBench::Click(dialog, "lblText"); }, ""},
         }) {
        EveryKindForm form;
        bench.Show(form, act);
        QVERIFY2(form.log == log, qPrintable(QString("%1: %2").arg(name, desktop::ToQt(form.log))));
    }
}

void FormDialogTest::ModelIsShown() {
    FormBench bench;
    EveryKindForm form;
    form.line.text = "caf\xE9";
    form.button.tip = "<B>bold</B>";
    form.typed.text = "own";
    form.fixed.Show(1);
    form.second.value = form.tick.value = true;
    form.list.index = 1;
    form.frame.enabled = false;
    form.lines.visible = false;
    form.line.locked = true;
    form.caption = "Title [*]";
    bench.Show(form, [](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Title [*][*]"));
        QCOMPARE(FormBench::Find<QLineEdit>(dialog, "txtLine")->text(), QString::fromUtf8("caf\u00e9"));
        QVERIFY(FormBench::Find<QLineEdit>(dialog, "txtLine")->isReadOnly());
        QVERIFY(FormBench::Find<QPushButton>(dialog, "cmdButton(1)")->toolTip().contains("&lt;B&gt;"));
        QCOMPARE(FormBench::Find<QComboBox>(dialog, "cboTyped")->currentText(), QString("own"));
        QCOMPARE(FormBench::Find<QComboBox>(dialog, "cboFixed")->currentText(), QString("10pt"));
        QVERIFY(FormBench::Find<QCheckBox>(dialog, "chkTick")->isChecked());
        QVERIFY(FormBench::Find<QRadioButton>(dialog, "optSecond")->isChecked());
        QVERIFY(!FormBench::Find<QRadioButton>(dialog, "optFirst")->isChecked());
        QCOMPARE(FormBench::Find<QListWidget>(dialog, "lisLines")->currentItem()->text(), QString("beta"));
        QVERIFY(!FormBench::Find<QLineEdit>(dialog, "txtInner")->isEnabled());
        QCOMPARE(FormBench::Find<QGroupBox>(dialog, "fraFrame")->title(), QString("Frame"));
        QVERIFY(!FormBench::Find<QPlainTextEdit>(dialog, "txtLines")->isVisible());
        QCOMPARE(FormBench::Find<QLabel>(dialog, "lblText")->text(), QString("Some <text>"));
        const auto* table = FormBench::Find<QTableWidget>(dialog, "grdGrid");
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->horizontalHeaderItem(1)->text(), QString("Value"));
        QCOMPARE(table->item(0, 1)->text(), QString("<B>"));
        QCOMPARE(table->item(1, 1)->text(), QString());
        auto* patch = FormBench::Find<QAbstractButton>(dialog, "picPatch");
        const QImage picture = patch->grab().toImage();
        QCOMPARE(picture.pixelColor(picture.rect().center()), QColor(0xEE, 0x44, 0x22));
        // A frame stands around its controls, and a label before its box.
        QCOMPARE(FormBench::Find<QLineEdit>(dialog, "txtInner")->parentWidget()->objectName(),
                 QString("fraFrame"));
        const auto labels = dialog.findChildren<QLabel*>();
        const auto label = std::find_if(labels.begin(), labels.end(),
                                        [](const QLabel* each) { return each->text() == "Line"; });
        QVERIFY(label != labels.end());
        QVERIFY((*label)->geometry().right() <
                FormBench::Find<QLineEdit>(dialog, "txtLine")->geometry().left());
    });
}

void FormDialogTest::HandlersChangeOtherControls() {
    FormBench bench;
    EveryKindForm form;
    form.button.onClick = [&form] {
        form.line.text = "from the button";
        form.list.items = {"delta"};
        form.list.index = 0;
        form.typed.items.Change().push_back("14pt");
        form.typed.Show(3);
        form.frame.visible = false;
        form.tick.enabled = false;
        form.grid.rows.Change().resize(2);
        form.caption = "Other";
        form.button.caption = "Again";
        form.patch.colour = 0x00FF00;
        form.focus = &form.lines;
    };
    bench.Show(form, [&form](QDialog& dialog) {
        FormBench::Click(dialog, "cmdButton(1)");
        QCOMPARE(FormBench::Find<QLineEdit>(dialog, "txtLine")->text(), QString("from the button"));
        QCOMPARE(FormBench::Find<QListWidget>(dialog, "lisLines")->currentItem()->text(), QString("delta"));
        QCOMPARE(FormBench::Find<QComboBox>(dialog, "cboTyped")->currentText(), QString("14pt"));
        QVERIFY(!FormBench::Find<QLineEdit>(dialog, "txtInner")->isVisible());
        QVERIFY(!FormBench::Find<QCheckBox>(dialog, "chkTick")->isEnabled());
        QCOMPARE(FormBench::Find<QTableWidget>(dialog, "grdGrid")->rowCount(), 1);
        QCOMPARE(dialog.windowTitle(), QString("Other"));
        QCOMPARE(FormBench::Find<QPushButton>(dialog, "cmdButton(1)")->text(), QString("Again"));
        const QImage patch = FormBench::Find<QWidget>(dialog, "picPatch")->grab().toImage();
        QCOMPARE(patch.pixelColor(patch.rect().center()), QColor(0, 255, 0));
        QCOMPARE(dialog.focusWidget()->objectName(), QString("txtLines"));
        QTest::mouseClick(FormBench::Find<QLineEdit>(dialog, "txtLine"), Qt::LeftButton);
        QCOMPARE(form.focus->name, Text("txtLine"));
    });
    // What the handler of a box makes of the typed text is what stands there, with the caret where it was.
    form.line.onChange = [&form] { form.line.text = form.line.text->substr(0, 3); };
    form.line.text = "abc";
    bench.Show(form, [](QDialog& dialog) {
        auto* edit = FormBench::Find<QLineEdit>(dialog, "txtLine");
        edit->setFocus();
        edit->setCursorPosition(1);
        QTest::keyClicks(edit, "x");
        QCOMPARE(edit->text(), QString("axb"));
        QCOMPARE(edit->cursorPosition(), 2);
        auto* lines = FormBench::Find<QPlainTextEdit>(dialog, "txtLines");
        lines->setFocus();
        FormBench::Commit(lines, QString::fromUtf8("\u03b1"));
        QCOMPARE(lines->toPlainText(), QString("?one\ntwo"));
        QTest::keyClicks(lines, "b");
        QCOMPARE(lines->toPlainText(), QString("?bone\ntwo"));
    });
    form.lines.onChange = [&form] { form.lines.text = *form.lines.text + "!"; };
    bench.Show(form, [](QDialog& dialog) {
        auto* lines = FormBench::Find<QPlainTextEdit>(dialog, "txtLines");
        lines->setFocus();
        QTest::keyClicks(lines, "c");
        QCOMPARE(lines->toPlainText(), QString("c?bone\ntwo!"));
        QCOMPARE(lines->textCursor().position(), 1);
    });
}

void FormDialogTest::WhatCannotBeReachedIsNotWorked() {
    FormBench bench;
    EveryKindForm form;
    form.typed.locked = true;
    form.fixed.locked = true;
    bench.Show(form, [&form](QDialog& dialog) {
        // Changed by a timer a moment ago, and not shown yet.
        form.button.enabled = false;
        form.inner.enabled = false;
        form.patch.visible = false;
        FormBench::Click(dialog, "cmdButton(1)");
        QTest::keyClicks(FormBench::Find<QLineEdit>(dialog, "txtInner"), "x");
        FormBench::Click(dialog, "picPatch");
        QTest::keyClicks(FormBench::Find<QComboBox>(dialog, "cboTyped"), "x");
        QTest::keyClick(FormBench::Find<QComboBox>(dialog, "cboFixed"), Qt::Key_End);
        QCOMPARE(form.log, Text());
        QCOMPARE(FormBench::Find<QLineEdit>(dialog, "txtInner")->text(), QString());
        QCOMPARE(FormBench::Find<QComboBox>(dialog, "cboFixed")->currentText(), QString());
    });
}

void FormDialogTest::ListsTellOneClickOnce() {
    FormBench bench;
    EveryKindForm form;
    form.list.items = {"one\tfirst", "a longer one\tsecond"};
    bench.Show(form, [&form](QDialog& dialog) {
        auto* list = FormBench::Find<QListWidget>(dialog, "lisLines");
        const auto place = [list](int row) { return list->visualItemRect(list->item(row)).center(); };
        const auto take = [&form] { return std::exchange(form.log, {}); };
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(1));
        QCOMPARE(take(), Text("list=1;"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(1));
        QCOMPARE(take(), Text("list=1;"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {20, list->viewport()->height() - 3});
        QCOMPARE(take(), Text());
        // A press, a release, and the second press that makes it a double click.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(0));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place(0));
        QVERIFY(take().ends_with("double;"));
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(take(), Text("list=1;"));
        // What is pressed and let go elsewhere is not chosen.
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place(0));
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, {20, list->viewport()->height() - 3});
        QCOMPARE(take(), Text());
        QCOMPARE(list->currentRow(), 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(1));
        QCOMPARE(take(), Text("list=1;"));
    });
}

void FormDialogTest::OptionsExcludeEachOtherInTheirGroup() {
    class OptionsForm final : public Form {
    public:
        OptionsForm() : Form("frmOptions", "Options") {
            c.group = 1;
            d.container = e.container = &frame;
        }
        OptionButton a{*this, "optA", "A"}, b{*this, "optB", "B"}, c{*this, "optC", "C"};
        FrameBox frame{*this, "fraFrame", "Frame"};
        OptionButton d{*this, "optD", "D"}, e{*this, "optE", "E"};
    };
    FormBench bench;
    OptionsForm form;
    bench.Show(form, [&form](QDialog& dialog) {
        const auto chosen = [&] {
            QString model, shown;
            for (const OptionButton* each : {&form.a, &form.b, &form.c, &form.d, &form.e}) {
                if (each->value) model += desktop::ToQt(*each->caption);
                const auto* radio = dialog.findChild<QRadioButton*>(desktop::ToQt(each->name));
                if (radio->isChecked()) shown += radio->text();
            }
            return model == shown ? model : model + " is shown as " + shown;
        };
        QCOMPARE(chosen(), QString());
        for (const auto& [name, expected] : std::vector<std::pair<const char*, const char*>>{
                 {"optA", "A"}, {"optC", "AC"}, {"optB", "BC"}, {"optD", "BCD"}, {"optE", "BCE"}}) {
            FormBench::Click(dialog, name);
            QCOMPARE(chosen(), QString(expected));
        }
        form.b.value = form.e.value = false;
        QTRY_COMPARE(chosen(), QString("C"));
    });
}

void FormDialogTest::ChordsReachTheForm() {
    FormBench bench;
    EveryKindForm form;
    bench.Show(form, [&form](QDialog& dialog) {
        auto* edit = FormBench::Find<QLineEdit>(dialog, "txtLine");
        QTest::keyClick(edit, Qt::Key_F3);
        QTest::keyClick(edit, Qt::Key_B, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_F4, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_Control, Qt::ControlModifier);
        QTest::keyClicks(edit, "a");
        QCOMPARE(form.keys, Text("F3;Ctrl+B;Ctrl+Shift+F4;"));
        QCOMPARE(form.log, Text("line=a;"));
    });
}

} // namespace ostrel::test
