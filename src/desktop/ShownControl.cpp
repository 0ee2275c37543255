#include "desktop/ShownControl.h"

#include "desktop/LineText.h"
#include "desktop/QtText.h"

namespace ostrel::desktop {

ShownControl::ShownControl(Control& control, QWidget& widget, Room room)
    : control_(control), widget_(widget), room_(room) {
    widget_.setObjectName(ToQt(control.name));
}

void ShownControl::Sync() {
    if (revision_ == control_.Revision()) return;
    revision_ = control_.Revision();
    // Only its own flags: the toolkit too hides and disables what lies in a frame.
    if (widget_.isHidden() == control_.visible) widget_.setVisible(control_.visible);
    if (widget_.isEnabledTo(widget_.parentWidget()) != control_.enabled) widget_.setEnabled(control_.enabled);
    if (tip_.Follow(control_.tip)) widget_.setToolTip(TipText(*control_.tip));
    SyncContent();
}

void ShownControl::AddHeading() {
    heading_ = new QLabel(widget_.parentWidget());
    heading_->setTextFormat(Qt::PlainText);
    heading_->setBuddy(&widget_);
}

void ShownControl::SyncHeading(const Tracked<Text>& text) {
    if (headingText_.Follow(text)) heading_->setText(ShownLines(*text));
    const bool visible = control_.visible && !text->empty();
    if (heading_->isHidden() == visible) heading_->setVisible(visible);
    if (heading_->isEnabledTo(heading_->parentWidget()) != control_.enabled)
        heading_->setEnabled(control_.enabled);
}

std::unique_ptr<ShownControl> ShowControl(Control& control, QWidget& dialog, UserActions& user) {
    switch (control.kind) {
#define SHOWN(Kind)                                                                                          \
    case ControlKind::Kind:                                                                                  \
        return Show(static_cast<Kind&>(control), dialog, user);
#define UNSHOWN(Kind) case ControlKind::Kind:
#include "ui/ControlKinds.def"
#undef SHOWN
#undef UNSHOWN
        break;
    }
    return nullptr;
}

} // namespace ostrel::desktop
