#include "desktop/FormWindowTest.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <cmath>
#include <memory>
#include <stdexcept>

#include "bridge/Forms.h"
#include "desktop/EveryKindForm.h"
#include "desktop/FormBench.h"
#include "desktop/Twips.h"
#include "support/TemporaryDirectory.h"
#include "ui/AboutForm.h"
#include "ui/CommonDialog.h"
#include "ui/CommonDialogs.h"

namespace ostrel::test {

void FormWindowTest::TimersAreSeenAndMayClose() {
    class TimedForm final : public Form {
    public:
        TimedForm() : Form("frmTimed", "Timed") { timer.Start(); }
        using Form::Close;
        Label count{*this, "lblCount", ""};
        int ticks = 0;
        FormTimer timer{*this, "tmrCount", 40, [this] {
                            count.caption = "tick " + std::to_string(++ticks);
                            if (ticks < 12) return;
                            timer.Stop();
                            Close();
                        }};
    };
    FormBench bench;
    TimedForm form;
    QString seen;
    bool closedByItself = false;
    bench.Show(form, [&](QDialog& dialog) {
        auto* label = FormBench::Find<QLabel>(dialog, "lblCount");
        QTRY_VERIFY(label->text().startsWith("tick"));
        seen = label->text();
        closedByItself = QTest::qWaitFor([&dialog] { return !dialog.isVisible(); }, 5000);
    });
    QVERIFY(!seen.isEmpty());
    QVERIFY(closedByItself);
    QCOMPARE(form.ticks, 12);
}

void FormWindowTest::EnterAndTheCloseBox() {
    FormBench bench;
    EveryKindForm form;
    QVERIFY(bench.Show(form, [](QDialog& dialog) {
        QTest::keyClick(FormBench::Find<QLineEdit>(dialog, "txtLine"), Qt::Key_Return);
    }));
    QCOMPARE(std::exchange(form.log, {}), Text("ok;"));
    for (const char* name : {"txtInner", "chkTick", "cboFixed", "lisLines"}) {
        QVERIFY2(bench.Show(form,
                            [name](QDialog& dialog) {
                                QTest::keyClick(FormBench::Find<QWidget>(dialog, name), Qt::Key_Enter);
                            }),
                 name);
        QCOMPARE(std::exchange(form.log, {}), Text("ok;"));
    }
    QVERIFY(!bench.Show(form, [&form](QDialog& dialog) {
        form.ok.enabled = false;
        QTest::keyClick(FormBench::Find<QLineEdit>(dialog, "txtLine"), Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        form.refusesClose = true;
        QTest::keyClick(FormBench::Find<QLineEdit>(dialog, "txtLine"), Qt::Key_Escape);
        QVERIFY(!dialog.close());
        QVERIFY(dialog.isVisible());
        form.refusesClose = false;
        QTest::keyClick(FormBench::Find<QListWidget>(dialog, "lisLines"), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }));
    QCOMPARE(form.log, Text("box;box;box;"));
}

void FormWindowTest::FaultTakesTheFocusBack() {
    class NameForm final : public Form {
    public:
        NameForm() : Form("frmName", "Name") {}
        TextBox other{*this, "txtOther", "Other"};
        TextBox name{*this, "txtName", "Name"};
        Button ok{*this, "cmdOK", "OK", Purpose::Accept};
        bool Accept() override { return !name.text->empty() || Fault(name, "Must Enter a Name."); }
    };
    FormBench bench;
    NameForm form;
    QString told;
    const bool accepted = bench.Show(form, [&](QDialog& dialog) {
        FormBench::Attend<QMessageBox>([&](QMessageBox& box) {
            told = box.windowTitle() + ": " + box.text();
            QVERIFY(box.parentWidget() == &dialog);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        FormBench::Click(dialog, "cmdOK");
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.focusWidget()->objectName(), QString("txtName"));
        QTest::keyClicks(dialog.focusWidget(), "  me ");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(accepted);
    QCOMPARE(*form.name.text, Text("me"));
    // The toolkit puts its own title on some platforms.
    QVERIFY2(told.endsWith(": Must Enter a Name.") && told.startsWith("Name Error"), qPrintable(told));
}

void FormWindowTest::FormsStandWhereTheySay() {
    FormBench bench;
    const desktop::Twips twips(bench.owner);
    EveryKindForm form;
    form.left = 1500;
    form.top = 600;
    form.width = 7500;
    bench.properties.DialogOnTop = true;
    bench.Show(form, [&](QDialog& dialog) {
        QCOMPARE(dialog.pos(), QPoint(twips.Across(1500), twips.Down(600)));
        QCOMPARE(dialog.width(), twips.Across(7500));
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(dialog.isModal());
        dialog.resize(dialog.width() + 20, dialog.height() + 30);
        dialog.move(130, 60);
        QTRY_COMPARE(*form.left, Long(std::lround(twips.FromAcross(130))));
        QCOMPARE(*form.height, Long(std::lround(twips.FromDown(dialog.height()))));
        form.top = 1500;
        QTRY_COMPARE(dialog.y(), twips.Down(1500));
    });
    bench.properties.DialogOnTop = false;
    EveryKindForm centred;
    bench.Show(centred, [&](QDialog& dialog) {
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        const QPoint off = dialog.geometry().center() - bench.owner.geometry().center();
        QVERIFY2(qAbs(off.x()) < 40, qPrintable(QString::number(off.x())));
    });
    EveryKindForm far;
    far.left = 1'000'000;
    bench.Show(far, [](QDialog& dialog) {
        const QRect screen = dialog.screen()->availableGeometry();
        constexpr int Border = 16;
        QVERIFY(dialog.geometry().right() <= screen.right() + Border);
        QVERIFY(dialog.geometry().left() >= screen.left());
    });
}

void FormWindowTest::OwnerMayGoFirst() {
    FormBench bench;
    EveryKindForm form;
    auto owner = std::make_unique<QWidget>();
    owner->show();
    bench.platform.screen = std::make_unique<desktop::QtScreen>(*owner);
    bool gone = false;
    QTimer::singleShot(50, [&] {
        owner.reset();
        gone = true;
    });
    QVERIFY(!ShowDialog(bench.dialogs, form, At{}));
    QVERIFY(gone);
}

void FormWindowTest::FailureOfAHandlerReachesTheCaller() {
    FormBench bench;
    EveryKindForm form;
    form.button.onClick = [] { throw std::runtime_error("failed"); };
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, bench.Show(form, [](QDialog& dialog) {
        FormBench::Click(dialog, "cmdButton(1)");
        QVERIFY(!dialog.isVisible());
    }));
    QVERIFY(!form.Open());
}

void FormWindowTest::AboutBox() {
    FormBench bench;
    AboutForm form({"Program <1>", 1, 2, 3, "", "What it does.", "No warranty."});
    const bool accepted = bench.Show(form, [](QDialog& dialog) {
        QCOMPARE(FormBench::Find<QLabel>(dialog, "lblProgram")->text(), QString("Program <1>"));
        QCOMPARE(FormBench::Find<QLabel>(dialog, "lblVersion")->text(), QString("Version 1.2.3"));
        QVERIFY(!FormBench::Find<QLabel>(dialog, "lblCreated")->isVisible());
        QVERIFY(FormBench::Find<QLabel>(dialog, "lblDisclaimer")->isVisible());
        FormBench::Click(dialog, "cmdOK");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(accepted);
}

void FormWindowTest::ControlsAreArranged() {
    class RowsForm final : public Form {
    public:
        RowsForm() : Form("frmRows", "Rows") {
            inner.container = &frame;
            choose.beside = patch.beside = &colour;
            before.beside = &unit;
            up.beside = &lines;
        }
        TextBox colour{*this, "txtColour", "Colour"};
        Button choose{*this, "cmdColour", "..."};
        PictureBox patch{*this, "picColour"};
        TextBox size{*this, "txtSize", "A longer label"};
        Label before{*this, "lblBefore", "Before"};
        ComboBox unit{*this, "cboUnit"};
        FrameBox frame{*this, "fraFrame", "Frame"};
        TextBox inner{*this, "txtInner", "Inner"};
        CheckBox bold{*this, "chkBold", "Bold"};
        CheckBox italic{*this, "chkItalic", "Italic"};
        ListBox lines{*this, "lisLines"};
        Button up{*this, "cmdUp", "Up"};
        Button clear{*this, "cmdClear", "Clear", Purpose::Footer};
        Button ok{*this, "cmdEnd", "OK", Purpose::Accept};
        Button cancel{*this, "cmdCancel", "Cancel", Purpose::Cancel};
    };
    FormBench bench;
    RowsForm form;
    bench.Show(form, [&form](QDialog& dialog) {
        const auto place = [&dialog](const char* name) {
            const QWidget* widget = FormBench::Find<QWidget>(dialog, name);
            return QRect(widget->mapTo(&dialog, QPoint(0, 0)), widget->size());
        };
        const auto rightOf = [&place](const char* right, const char* left) {
            return place(right).left() > place(left).right() &&
                   qAbs(place(right).center().y() - place(left).center().y()) <= 3;
        };
        const auto below = [&place](const char* lower, const char* upper) {
            return place(lower).top() > place(upper).bottom();
        };
        QVERIFY(rightOf("cmdColour", "txtColour"));
        QVERIFY(rightOf("picColour", "cmdColour"));
        QVERIFY(below("txtSize", "txtColour"));
        QCOMPARE(place("txtSize").left(), place("txtColour").left());
        QVERIFY(rightOf("cboUnit", "lblBefore"));
        QCOMPARE(place("cboUnit").left(), place("txtSize").left());
        QVERIFY(place("fraFrame").contains(place("txtInner")));
        QVERIFY(rightOf("chkItalic", "chkBold"));
        QVERIFY(below("chkBold", "fraFrame"));
        QVERIFY(below("cmdEnd", "lisLines"));
        QVERIFY(rightOf("cmdEnd", "cmdClear"));
        QVERIFY(rightOf("cmdCancel", "cmdEnd"));
        QCOMPARE(place("cmdCancel").right(), place("cmdUp").right());
        QVERIFY(place("cmdUp").left() > place("lisLines").right());
        QCOMPARE(place("cmdUp").top(), place("lisLines").top());
        // What is hidden leaves no gap, and a list takes what a larger window gives.
        const int before = place("chkBold").top();
        const int height = place("lisLines").height();
        form.frame.visible = false;
        dialog.resize(dialog.width(), dialog.height() + 100);
        QTRY_VERIFY(place("chkBold").top() < before - 40);
        QVERIFY(place("lisLines").height() >= height + 100);
    });
}

void FormWindowTest::EveryFormCanBeWalked() {
    FormBench bench;
    for (const FormMaker make : bridge::FormMakers()) {
        const std::unique_ptr<Form> form = make();
        // The toolkit's own pickers are walked by the toolkit's tests.
        if (dynamic_cast<CommonDialog*>(form.get()) || dynamic_cast<DirectoryDialog*>(form.get())) continue;
        bool walked = false;
        bench.Show(*form, [&](QDialog& dialog) {
            QVERIFY(dialog.isVisible());
            QStringList stops, reached;
            for (const Control* control : form->Controls()) {
                const auto* widget = dialog.findChild<QWidget*>(desktop::ToQt(control->name));
                // Of options that exclude each other the chosen one is the stop.
                const auto* option = dynamic_cast<const OptionButton*>(control);
                if (option && !option->value) continue;
                const bool isStop = control->TakesFocus() && control->Reachable() && widget &&
                                    widget->focusPolicy() & Qt::TabFocus;
                if (isStop) stops += desktop::ToQt(control->name);
            }
            QVERIFY(!stops.isEmpty());
            for (qsizetype i = 0; i < stops.size(); ++i) {
                reached += dialog.focusWidget()->objectName();
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(reached, stops);
            QCOMPARE(dialog.focusWidget()->objectName(), stops.front());
            walked = true;
        });
        QVERIFY2(walked, form->name.c_str());
    }
}

void FormWindowTest::PickersAreTheSystems() {
    FormBench bench;
    QTemporaryDir directory;
    const Text start =
        "C:" + Text(QDir::toNativeSeparators(directory.path()).replace('/', '\\').toStdString());
    FilePick pick;
    pick.filter = "All Files|*.*|Text Files|*.txt; *.log";
    pick.filterIndex = 2;
    pick.directory = start;
    pick.defaultExtension = "txt";
    FormBench::Attend<QDialog>([&](QDialog& window) {
        auto& dialog = *qobject_cast<QFileDialog*>(&window);
        QCOMPARE(dialog.windowTitle(), "Open");
        QCOMPARE(dialog.nameFilters(), (QStringList{"All Files (*)", "Text Files (*.txt *.log)"}));
        QCOMPARE(dialog.selectedNameFilter(), dialog.nameFilters().last());
        QCOMPARE(dialog.directory().path(), directory.path());
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("new");
        window.accept();
    });
    const Text picked = PickFile(bench.dialogs, At{}, pick);
    QVERIFY2(picked == start + "\\new.txt", picked.c_str());
    QCOMPARE(pick.directory, start + "\\");
    FormBench::Attend<QDialog>([](QDialog& window) { window.reject(); });
    QCOMPARE(PickDirectory(bench.dialogs, At{}, "Where", start, 0), Text());
    FormBench::Attend<QDialog>([](QDialog& window) {
        qobject_cast<QColorDialog*>(&window)->setCurrentColor(QColor(1, 2, 3));
        window.accept();
    });
    QCOMPARE(PickColour(bench.dialogs, At{}), Long{0x030201});
}

void FormWindowTest::DialogsStandBesideTheirButton() {
    class SmallForm final : public Form {
    public:
        SmallForm() : Form("frmSmall", "Small") {}
        Button ok{*this, "cmdOK", "OK", Purpose::Accept};
    };
    FormBench bench;
    EveryKindForm form;
    form.left = form.top = 1500;
    bench.Show(form, [&](QDialog& dialog) {
        const desktop::Twips twips(dialog);
        const QPoint button = FormBench::Find<QWidget>(dialog, "cmdOK")->mapToGlobal(QPoint(0, 0));
        SmallForm small;
        FormBench::Attend<QDialog>([&](QDialog& inner) {
            QVERIFY(qAbs(inner.x() - button.x() - twips.Across(120)) <= 1);
            QVERIFY(qAbs(inner.y() - button.y() + twips.Down(1200)) <= 1);
        });
        ShowDialog(bench.dialogs, small, Beside{form.ok});
    });
    QVERIFY(!form.Window());
}

void FormWindowTest::PicturesAreLoaded() {
    const TemporaryDirectory directory;
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(QColor(200, 10, 20));
    QVERIFY(image.save(desktop::ToQt(directory.Path("red.png"))));
    FormBench bench;
    EveryKindForm form;
    form.patch.picture = bench.properties.Icon = {directory.Component("red.png")};
    bench.Show(form, [&](QDialog& dialog) {
        auto* view = FormBench::Find<QWidget>(dialog, "picPatch");
        QCOMPARE(view->size(), QSize(30, 20));
        QCOMPARE(view->grab().toImage().pixelColor(15, 10), QColor(200, 10, 20));
        QCOMPARE(dialog.windowIcon().pixmap(30, 20).toImage().pixelColor(15, 10), QColor(200, 10, 20));
        form.patch.picture = {directory.Component("missing.png")};
        QTRY_COMPARE(view->grab().toImage().pixelColor(15, 10), QColor(0xEE, 0x44, 0x22));
    });
}

} // namespace ostrel::test
