#include "ui/CommonDialogs.h"

#include "services/Paths.h"
#include "text/NumberText.h"
#include "ui/CommonDialog.h"
#include "ui/DialogFilters.h"

namespace ostrel {

namespace {

/// A text as systems take it, which ends at its first null character.
Text UpToNull(const Text& text) { return text.substr(0, text.find('\0')); }

} // namespace

Text PickFile(const Dialogs& dialogs, const DialogPlace& place, FilePick& pick) {
    CommonDialog form(pick.save ? CommonDialog::Picks::FileToSave : CommonDialog::Picks::FileToOpen);
    form.DialogTitle.text = Text(pick.save ? "Save As" : "Open");
    form.Filter.text = pick.filter.empty() ? Text(DialogDefaultFilter) : pick.filter;
    form.FilterIndex.text = FromLong(pick.filterIndex);
    form.DefaultExt.text = pick.defaultExtension;
    form.FileName.text = pick.fileName;
    form.InitDir.text = pick.directory.empty() ? services::FileDirectory(pick.fileName) : pick.directory;
    if (!ShowDialog(dialogs, form, place)) return {};
    pick.directory = services::FileDirectory(*form.FileName.text);
    return form.FileName.text;
}

Long PickColour(const Dialogs& dialogs, const DialogPlace& place) {
    CommonDialog form(CommonDialog::Picks::Colour);
    form.DialogTitle.text = Text("Colour");
    form.Color.text = Text("0");
    if (!ShowDialog(dialogs, form, place)) return -1;
    return ToLong(*form.Color.text).value_or(0);
}

Text PickDirectory(const Dialogs& dialogs, const DialogPlace& place, const Text& title, const Text& start,
                   Long flags) {
    DirectoryDialog form;
    form.caption = UpToNull(title);
    form.Title.text = UpToNull(title);
    form.InitDir.text = start;
    form.Path.text = start;
    form.Flags.text = FromLong(flags);
    return ShowDialog(dialogs, form, place) ? UpToNull(form.Path.text) : Text();
}

} // namespace ostrel
