#include "ui/CommonDialog.h"

#include "services/Paths.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel {

CommonDialog::CommonDialog(Picks what) : Form("CMDialog1", {}), picks(what) {
    for (TextBox* shown : {&Filter, &DefaultExt, &InitDir, &DialogTitle, &Left, &Top}) shown->locked = true;
    OnTop.enabled = false;
}

void CommonDialog::Load() {
    caption = *DialogTitle.text;
    Left.text = FromLong(left);
    Top.text = FromLong(top);
    OnTop.value = onTop;
}

bool CommonDialog::Accept() {
    if (picks == Picks::Colour) return true;
    if (FileName.text->empty()) return false;
    Text path = services::BuildPath(*InitDir.text, *FileName.text);
    const Text& extension = DefaultExt.text;
    const Text lastPart = services::FileName(path);
    if (!extension.empty() && lastPart.find('.') == Text::npos)
        path += extension.starts_with('.') ? extension : "." + extension;
    FileName.text = path;
    return true;
}

DirectoryDialog::DirectoryDialog() : Form("BrowseForFolder", {}) {
    for (TextBox* shown : {&Title, &InitDir, &Flags}) shown->locked = true;
}

} // namespace ostrel
