#include "desktop/QtScreen.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/FormDialog.h"
#include "desktop/LineText.h"
#include "desktop/QtText.h"
#include "desktop/SystemPickers.h"
#include "desktop/Twips.h"
#include "ui/CommonDialog.h"
#include "ui/MessageBox.h"

namespace ostrel::desktop {

namespace {

constexpr double TwipsPerInch = 1440;

Long Rounded(double twips) { return static_cast<Long>(std::lround(twips)); }

QMessageBox::Icon IconOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Error:
        return QMessageBox::Critical;
    case MessageKind::Warn:
        return QMessageBox::Warning;
    case MessageKind::Query:
        return QMessageBox::Question;
    default:
        return QMessageBox::Information;
    }
}

const QScreen& ScreenOf(const QWidget* widget) {
    return widget ? *widget->screen() : *QGuiApplication::primaryScreen();
}

} // namespace

void QtScreen::ShowModal(Form& form) {
    // Pickers of files, colours and directories are the toolkit's own.
    if (auto* common = dynamic_cast<CommonDialog*>(&form)) return ShowPicker(*common, Window());
    if (auto* directory = dynamic_cast<DirectoryDialog*>(&form)) return ShowPicker(*directory, Window());
    // On the heap, since the owner deletes the dialog, possibly while it is shown.
    const QPointer<FormDialog> dialog = new FormDialog(form, Window());
    dialog->exec();
    const std::exception_ptr failure = dialog ? dialog->Failure() : nullptr;
    delete dialog;
    if (failure) std::rethrow_exception(failure);
}

MessageAnswer QtScreen::Message(MessageKind kind, const Text& text, const Text& title,
                                MessageButtons buttons) {
    // Knows the buttons, their order and which of them the close box presses.
    const MessageBox model(kind, text, title, buttons);
    const QPointer<QMessageBox> box =
        new QMessageBox(IconOf(kind), TitleText(title), ShownLines(text), QMessageBox::NoButton, Window());
    box->setTextFormat(Qt::PlainText);
    for (Control* control : model.Controls()) {
        // One role for all keeps them in their order on every desktop.
        QPushButton* button = box->addButton(ToQt(control->name), QMessageBox::ActionRole);
        button->setObjectName(ToQt(control->name));
        QObject::connect(button, &QPushButton::clicked, button, [control] { control->Press(); });
        if (control == model.Controls().front()) box->setDefaultButton(button);
        if (control->purpose == Purpose::Cancel) box->setEscapeButton(button);
    }
    box->exec();
    delete box;
    return model.Answer();
}

Bounds QtScreen::Area() const {
    const QScreen& screen = ScreenOf(widget_);
    const double across = TwipsPerInch / screen.logicalDotsPerInchX();
    const double down = TwipsPerInch / screen.logicalDotsPerInchY();
    const QRect area = screen.availableGeometry();
    return {Rounded(area.x() * across), Rounded(area.y() * down), Rounded(area.width() * across),
            Rounded(area.height() * down)};
}

Extent QtScreen::Pixel() const {
    const QScreen& screen = ScreenOf(widget_);
    return {Rounded(TwipsPerInch / screen.logicalDotsPerInchX()),
            Rounded(TwipsPerInch / screen.logicalDotsPerInchY())};
}

Extent QtScreen::Measure(const Text& text) const {
    // A label that is never shown has the font of those that are, style sheets of the window included.
    QLabel label(widget_);
    label.ensurePolished();
    const QFontMetricsF metrics(label.font(), &label);
    const QStringList lines = ShownLines(text).split('\n');
    double widest = 0;
    for (const QString& line : lines) widest = std::max(widest, metrics.horizontalAdvance(line));
    const Twips twips(label);
    return {Rounded(std::ceil(twips.FromAcross(widest))),
            Rounded(std::ceil(twips.FromDown(metrics.lineSpacing() * static_cast<double>(lines.size()))))};
}

void QtScreen::Beep() { QApplication::beep(); }

void QtScreen::MousePointer(PointerShape shape) {
    // A modal dialog covers the window, so the pointer may be over either.
    for (QWidget* window : {widget_ ? widget_->window() : nullptr, QApplication::activeModalWidget()}) {
        if (!window) continue;
        if (shape == PointerShape::Default)
            window->unsetCursor();
        else
            window->setCursor(CursorOf(static_cast<Long>(shape)));
    }
}

QWidget* QtScreen::Window() const {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return widget_ ? widget_->window() : nullptr;
}

Qt::CursorShape CursorOf(Long shape) {
    static constexpr std::array Shapes{
        Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
        Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
        Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
        Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
    return shape >= 0 && shape < static_cast<Long>(Shapes.size()) ? Shapes[static_cast<std::size_t>(shape)]
                                                                  : Qt::ArrowCursor;
}

} // namespace ostrel::desktop
