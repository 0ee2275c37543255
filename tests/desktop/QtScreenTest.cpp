#include "desktop/QtScreenTest.h"

#include <QClipboard>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/FormBench.h"
#include "desktop/QtClipboard.h"
#include "desktop/Twips.h"

namespace ostrel::test {

namespace {

/// The buttons from left to right.
QString ButtonsOf(const QMessageBox& box) {
    QList<QAbstractButton*> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(), [](const QAbstractButton* left, const QAbstractButton* right) {
        return left->x() < right->x();
    });
    QStringList names;
    for (const QAbstractButton* button : buttons) names += button->text();
    return names.join(' ');
}

} // namespace

void QtScreenTest::MessagesAnswer() {
    enum How { Click, Escape, CloseBox, Enter };
    struct Row {
        Long buttons;
        const char* names;
        How how;
        const char* pressed;
        Long answer;
    };
    FormBench bench;
    for (const auto& [buttons, names, how, pressed, answer] : std::vector<Row>{
             {0, "OK", Click, "OK", 1},
             {0, "OK", Escape, "", 1},
             {0, "OK", CloseBox, "", 1},
             {0, "OK", Enter, "", 1},
             {1, "OK Cancel", Click, "OK", 1},
             {1, "OK Cancel", Click, "Cancel", 2},
             {1, "OK Cancel", Escape, "", 2},
             {1, "OK Cancel", Enter, "", 1},
             {2, "Abort Retry Ignore", Click, "Abort", 3},
             {2, "Abort Retry Ignore", Click, "Retry", 4},
             {2, "Abort Retry Ignore", Click, "Ignore", 5},
             {2, "Abort Retry Ignore", Escape, "", 3},
             {2, "Abort Retry Ignore", CloseBox, "", 3},
             {3, "Yes No Cancel", Click, "Yes", 6},
             {3, "Yes No Cancel", Click, "No", 7},
             {3, "Yes No Cancel", Click, "Cancel", 2},
             {3, "Yes No Cancel", Escape, "", 7},
             {4, "Yes No", Click, "Yes", 6},
             {4, "Yes No", Click, "No", 7},
             {4, "Yes No", Escape, "", 7},
             {4, "Yes No", CloseBox, "", 7},
             {5, "Retry Cancel", Click, "Retry", 4},
             {5, "Retry Cancel", Click, "Cancel", 2},
             {5, "Retry Cancel", Escape, "", 2},
         }) {
        QString shown;
        FormBench::Attend<QMessageBox>([&, how = how, pressed = pressed](QMessageBox& box) {
            shown = ButtonsOf(box);
            if (how == Click) QTest::mouseClick(box.findChild<QPushButton*>(pressed), Qt::LeftButton);
            if (how == Escape) QTest::keyClick(&box, Qt::Key_Escape);
            if (how == CloseBox) box.close();
            if (how == Enter) QTest::keyClick(&box, Qt::Key_Return);
            QVERIFY2(!box.isVisible(), pressed);
        });
        const auto given = static_cast<Long>(bench.platform.screen->Message(
            MessageKind::Info, "Text", "Title", static_cast<MessageButtons>(buttons)));
        const QString row = QString("%1 by %2 \"%3\"").arg(names).arg(how).arg(pressed);
        QVERIFY2(given == answer, qPrintable(QString("%1: %2").arg(row).arg(given)));
        QCOMPARE(shown, QString(names));
    }
}

void QtScreenTest::MessagesLookLikeTheirKind() {
    FormBench bench;
    for (const auto& [kind, icon] : std::vector<std::pair<MessageKind, QMessageBox::Icon>>{
             {MessageKind::Error, QMessageBox::Critical},
             {MessageKind::Info, QMessageBox::Information},
             {MessageKind::Warn, QMessageBox::Warning},
             {MessageKind::Query, QMessageBox::Question},
         }) {
        bool attended = false;
        FormBench::Attend<QMessageBox>([&attended, icon = icon](QMessageBox& box) {
            attended = true;
            QCOMPARE(box.icon(), icon);
            QCOMPARE(box.windowTitle(), QString("Title"));
            QCOMPARE(box.text(), QString::fromUtf8("caf\u00e9 <B>\nline"));
            QCOMPARE(box.textFormat(), Qt::PlainText);
        });
        bench.platform.screen->Message(kind, "caf\xE9 <B>\r\nline", "Title", MessageButtons::Ok);
        QVERIFY(attended);
    }
}

void QtScreenTest::MessagesBelongToTheDialogOnTop() {
    FormBench bench;
    QWidget* owner = nullptr;
    FormBench::Attend<QMessageBox>([&](QMessageBox& box) {
        owner = box.parentWidget();
        FormBench::Attend<QMessageBox>(
            [&box](QMessageBox& second) { QVERIFY(second.parentWidget() == &box); });
        bench.platform.screen->Message(MessageKind::Info, "Second", "", MessageButtons::Ok);
    });
    bench.platform.screen->Message(MessageKind::Info, "First", "", MessageButtons::Ok);
    QVERIFY(owner == &bench.owner);
}

void QtScreenTest::PointersHaveTheirShapes() {
    for (const auto& [shape, cursor] :
         std::vector<std::pair<Long, Qt::CursorShape>>{{0, Qt::ArrowCursor},
                                                       {1, Qt::ArrowCursor},
                                                       {2, Qt::CrossCursor},
                                                       {3, Qt::IBeamCursor},
                                                       {4, Qt::ArrowCursor},
                                                       {5, Qt::SizeAllCursor},
                                                       {6, Qt::SizeBDiagCursor},
                                                       {7, Qt::SizeVerCursor},
                                                       {8, Qt::SizeFDiagCursor},
                                                       {9, Qt::SizeHorCursor},
                                                       {10, Qt::UpArrowCursor},
                                                       {11, Qt::WaitCursor},
                                                       {12, Qt::ForbiddenCursor},
                                                       {13, Qt::BusyCursor},
                                                       {14, Qt::WhatsThisCursor},
                                                       {15, Qt::SizeAllCursor},
                                                       {16, Qt::ArrowCursor},
                                                       {99, Qt::ArrowCursor},
                                                       {-1, Qt::ArrowCursor}})
        QVERIFY2(desktop::CursorOf(shape) == cursor, qPrintable(QString::number(shape)));
}

void QtScreenTest::PointerOfTheWindow() {
    FormBench bench;
    bench.platform.screen->MousePointer(PointerShape::Hourglass);
    QCOMPARE(bench.owner.cursor().shape(), Qt::WaitCursor);
    bench.platform.screen->MousePointer(PointerShape::Default);
    QCOMPARE(bench.owner.cursor().shape(), Qt::ArrowCursor);
    FormBench::Attend<QMessageBox>([&bench](QMessageBox& box) {
        bench.platform.screen->MousePointer(PointerShape{2});
        QCOMPARE(box.cursor().shape(), Qt::CrossCursor);
    });
    bench.platform.screen->Message(MessageKind::Info, "Text", "", MessageButtons::Ok);
    QCOMPARE(bench.owner.cursor().shape(), Qt::CrossCursor);
}

void QtScreenTest::LengthsAreTwips() {
    FormBench bench;
    const Screen& screen = *bench.platform.screen;
    const desktop::Twips twips(bench.owner);
    const Bounds area = screen.Area();
    const QRect pixels = bench.owner.screen()->availableGeometry();
    QCOMPARE(twips.Rectangle(area.left, area.top, area.width, area.height), pixels);
    QCOMPARE(screen.Pixel().width, Long(std::lround(twips.FromAcross(1))));
    QCOMPARE(screen.Pixel().height, Long(std::lround(twips.FromDown(1))));
    const Extent one = screen.Measure("xx"), two = screen.Measure("xx\r\nxxxx\r\n");
    QVERIFY(one.width > 0);
    QCOMPARE(two.width, screen.Measure("xxxx").width);
    QVERIFY(two.width > one.width);
    QVERIFY(qAbs(two.height - 3 * one.height) <= 2);
    QCOMPARE(screen.Measure("").width, Long(0));
    QCOMPARE(screen.Measure("").height, one.height);
    QFont large = bench.owner.font();
    large.setPointSize(large.pointSize() * 2);
    bench.owner.setFont(large);
    QVERIFY(screen.Measure("xx").width > one.width);
}

void QtScreenTest::ClipboardHasTheComponentsLines() {
    desktop::QtClipboard clipboard;
    QApplication::clipboard()->setText(QString::fromUtf8("caf\u00e9\nb\r\nc \u03b1"));
    QCOMPARE(clipboard.GetText(), Text("caf\xE9\r\nb\r\nc ?"));
    clipboard.SetText("\x80\r\nx");
    QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8("\u20ac\nx"));
    QCOMPARE(clipboard.GetText(), Text("\x80\r\nx"));
    clipboard.Clear();
    QCOMPARE(clipboard.GetText(), Text());
}

} // namespace ostrel::test
