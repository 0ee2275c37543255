#include "desktop/ShownControl.h"

#include "desktop/LineText.h"
#include "desktop/QtText.h"

namespace ostrel::desktop {

ShownControl::ShownControl(Control& control, QWidget& widget) : control_(control), widget_(widget) {
    widget_.setObjectName(ToQt(control.name));
}

void ShownControl::Sync() {
    // Only its own flags: the toolkit too hides and disables what lies in a frame.
    if (widget_.isHidden() == control_.visible) widget_.setVisible(control_.visible);
    if (widget_.isEnabledTo(widget_.parentWidget()) != control_.enabled) widget_.setEnabled(control_.enabled);
    if (const QString tip = TipText(control_.tip); widget_.toolTip() != tip) widget_.setToolTip(tip);
    SyncContent();
}

void ShownControl::AddHeading() {
    heading_ = new QLabel(widget_.parentWidget());
    heading_->setTextFormat(Qt::PlainText);
    heading_->setBuddy(&widget_);
}

void ShownControl::SyncHeading(const Text& text) {
    if (const QString shown = ShownLines(text); heading_->text() != shown) heading_->setText(shown);
    const bool visible = control_.visible && !text.empty();
    if (heading_->isHidden() == visible) heading_->setVisible(visible);
    if (heading_->isEnabledTo(heading_->parentWidget()) != control_.enabled)
        heading_->setEnabled(control_.enabled);
}

std::unique_ptr<ShownControl> ShowControl(Control& control, QWidget& dialog, UserActions& user) {
    switch (control.kind) {
    case ControlKind::Label:
        return ShowLabel(static_cast<Label&>(control), dialog);
    case ControlKind::TextBox:
        return ShowTextBox(static_cast<TextBox&>(control), dialog, user);
    case ControlKind::RichText:
        return ShowRichText(static_cast<RichText&>(control), dialog, user);
    case ControlKind::CheckBox:
        return ShowCheckBox(static_cast<CheckBox&>(control), dialog, user);
    case ControlKind::OptionButton:
        return ShowOptionButton(static_cast<OptionButton&>(control), dialog, user);
    case ControlKind::ListBox:
        return ShowListBox(static_cast<ListBox&>(control), dialog, user);
    case ControlKind::ComboBox:
        return ShowComboBox(static_cast<ComboBox&>(control), dialog, user);
    case ControlKind::Button:
        return ShowButton(static_cast<Button&>(control), dialog, user);
    case ControlKind::PictureBox:
        return ShowPicture(static_cast<PictureBox&>(control), dialog, user);
    case ControlKind::Frame:
        return ShowFrame(static_cast<FrameBox&>(control), dialog);
    case ControlKind::Grid:
        return ShowGrid(static_cast<GridBox&>(control), dialog);
    case ControlKind::Menu:
    case ControlKind::MenuItem:
    case ControlKind::Timer:
        break;
    }
    return nullptr;
}

} // namespace ostrel::desktop
