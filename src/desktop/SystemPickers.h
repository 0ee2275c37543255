#pragma once

class QWidget;

namespace ostrel {
class CommonDialog;
class DirectoryDialog;
} // namespace ostrel

namespace ostrel::desktop {

// The toolkit's own pickers in the place of forms. Each takes what the user picks over into its form and
// closes that.

void ShowPicker(CommonDialog& form, QWidget* parent);
void ShowPicker(DirectoryDialog& form, QWidget* parent);

} // namespace ostrel::desktop
