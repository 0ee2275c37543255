#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <memory>

#include "ui/Controls.h"
#include "ui/RichText.h"

namespace ostrel::desktop {

/// Where shown controls tell what the user does.
class UserActions {
public:
    virtual ~UserActions() = default;
    /// Carries out an action of the user at a control, if that can be reached, and shows what came of it.
    virtual void Act(Control& control, const std::function<void()>& action) = 0;
};

/// A control of a form on the screen. The model is the truth: what the user does goes there first, and comes
/// back from there.
class ShownControl {
public:
    ShownControl(Control& control, QWidget& widget);
    virtual ~ShownControl() = default;
    ShownControl(const ShownControl&) = delete;
    ShownControl& operator=(const ShownControl&) = delete;

    Control& Model() const { return control_; }
    /// Belongs to its parent widget.
    QWidget& Widget() const { return widget_; }
    /// The label that stands before or above it; null for a kind that has none.
    QLabel* Heading() const { return heading_; }
    /// Asks for no more room than it needs, among many of its kind or beside another.
    virtual void MakeCompact() {}
    /// Shows what the model says now.
    void Sync();

protected:
    virtual void SyncContent() = 0;
    /// Gives it a heading; called by each kind that has one as it is built.
    void AddHeading();
    /// An empty heading takes no room.
    void SyncHeading(const Text& text);

private:
    Control& control_;
    QWidget& widget_;
    QLabel* heading_ = nullptr;
};

// Each makes its widget a child of the dialog, named as the control; the layout moves it where it belongs.

std::unique_ptr<ShownControl> ShowLabel(Label& label, QWidget& dialog);
std::unique_ptr<ShownControl> ShowFrame(FrameBox& frame, QWidget& dialog);
std::unique_ptr<ShownControl> ShowGrid(GridBox& grid, QWidget& dialog);
std::unique_ptr<ShownControl> ShowTextBox(TextBox& box, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowComboBox(ComboBox& box, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowButton(Button& button, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowCheckBox(CheckBox& box, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowOptionButton(OptionButton& option, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowListBox(ListBox& list, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowPicture(PictureBox& picture, QWidget& dialog, UserActions& user);
std::unique_ptr<ShownControl> ShowRichText(RichText& text, QWidget& dialog, UserActions& user);

/// Any control as its kind is shown; null for menus and timers, which have no place in the layout.
std::unique_ptr<ShownControl> ShowControl(Control& control, QWidget& dialog, UserActions& user);

} // namespace ostrel::desktop
