#include "desktop/SystemPickers.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QPointer>

#include "desktop/QtText.h"
#include "desktop/Twips.h"
#include "platform/native/NativePaths.h"
#include "text/NumberText.h"
#include "ui/CommonDialog.h"

namespace ostrel::desktop {

namespace {

QString SystemPath(const Text& path) {
    const auto system = NativePaths().ToSystem(path);
    return system ? QString::fromStdString(*system) : QString();
}

Text ComponentPath(const QString& path) {
    return NativePaths::FromSystem(path.toStdString()).value_or(Text());
}

/// Pairs of a label and a mask such as "Texts|*.txt; *.log" as the toolkit writes them.
QStringList NameFilters(const Text& filter) {
    const QStringList parts = ToQt(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString mask = parts[i + 1];
        // Here "*.*" would ask for a point in the name.
        mask = mask.replace("*.*", "*").replace(';', ' ').simplified();
        filters += parts[i] + " (" + mask + ")";
    }
    return filters;
}

/// Shows the toolkit's dialog at the form's place. False where it is cancelled, or goes with its parent.
bool Run(QDialog* dialog, const Form& form) {
    const QPointer<QDialog> shown = dialog;
    dialog->setObjectName(ToQt(form.name));
    dialog->setWindowTitle(ToQt(*form.caption));
    dialog->setWindowFlag(Qt::WindowStaysOnTopHint, form.onTop);
    const Twips twips(*dialog);
    dialog->move(twips.Across(form.left), twips.Down(form.top));
    return dialog->exec() == QDialog::Accepted && shown;
}

void PickColour(CommonDialog& form, QWidget* parent) {
    const Long before = ToLong(*form.Color.text).value_or(0);
    const QPointer<QColorDialog> dialog =
        new QColorDialog(QColor(before & 0xFF, before >> 8 & 0xFF, before >> 16 & 0xFF), parent);
    const bool accepted = Run(dialog, form);
    if (accepted) {
        const QColor colour = dialog->currentColor();
        form.Color.text = FromLong(colour.red() | colour.green() << 8 | colour.blue() << 16);
    }
    delete dialog;
    accepted ? form.Finish() : form.CloseBox();
}

void PickFile(CommonDialog& form, QWidget* parent) {
    const QPointer<QFileDialog> dialog = new QFileDialog(parent);
    const bool saves = form.picks == CommonDialog::Picks::FileToSave;
    dialog->setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::AnyFile);
    // The component asks its own question before it replaces a file.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    const QStringList filters = NameFilters(*form.Filter.text);
    dialog->setNameFilters(filters);
    const Long index = ToLong(*form.FilterIndex.text).value_or(1);
    if (index >= 1 && index <= filters.size()) dialog->selectNameFilter(filters[index - 1]);
    dialog->setDefaultSuffix(ToQt(*form.DefaultExt.text));
    if (!form.InitDir.text->empty()) dialog->setDirectory(SystemPath(*form.InitDir.text));
    const Text name = form.FileName.text->substr(form.FileName.text->rfind('\\') + 1);
    if (!name.empty()) dialog->selectFile(ToQt(name));
    const bool accepted = Run(dialog, form) && !dialog->selectedFiles().isEmpty();
    if (accepted) form.FileName.text = ComponentPath(dialog->selectedFiles().first());
    delete dialog;
    if (accepted) form.Finish();
    // A name that the code page lacks is no path of the component.
    if (form.Open()) form.CloseBox();
}

} // namespace

void ShowPicker(CommonDialog& form, QWidget* parent) {
    form.picks == CommonDialog::Picks::Colour ? PickColour(form, parent) : PickFile(form, parent);
}

void ShowPicker(DirectoryDialog& form, QWidget* parent) {
    const QPointer<QFileDialog> dialog = new QFileDialog(parent);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    if (!form.InitDir.text->empty()) dialog->setDirectory(SystemPath(*form.InitDir.text));
    const bool accepted = Run(dialog, form) && !dialog->selectedFiles().isEmpty();
    if (accepted) form.Path.text = ComponentPath(dialog->selectedFiles().first());
    delete dialog;
    accepted ? form.Finish() : form.CloseBox();
}

} // namespace ostrel::desktop
