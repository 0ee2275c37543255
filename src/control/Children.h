#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "control/ToolbarAction.h"
#include "ui/Fields.h"

namespace ostrel {

enum class ChildKind { Control, PictureBox, Browser, CommandButton, Label, TextBox, Frame };

/// One visual child of the control as a model: numbers and texts, no pixels. Places are twips inside the
/// child around it.
struct Child {
    Child(ChildKind kindOfChild, std::string_view childName, const Child* around, Long w = 0, Long h = 0)
        : kind(kindOfChild), name(childName), parent(around), width(w), height(h) {}

    const ChildKind kind;
    const Text name;
    /// The child around it; null for the control itself.
    const Child* parent;
    Long left = 0, top = 0, width, height;
    bool visible = true;
    bool enabled = true;
    Text caption;
    Text text;
    Text tip;
    bool locked = false;
    /// Shape of the mouse pointer: 0 default, 1 arrow, 11 hourglass.
    Long pointer = 0;
    Picture picture;

    /// Seen by the user: visible, and so is everything around it.
    bool Shown() const { return visible && (!parent || parent->Shown()); }
    bool Reachable() const { return Shown() && enabled; }
    /// The fields that this kind of child has.
    Fields Look() const;
};

/// All visual children. Both the layout and whoever shows or works the control read the same numbers here.
/// The sizes that no layout sets are fixed: the glyphs of the toolbar are 16 pixels of 15 twips high, the
/// address box 19, "Go" is 32 pixels wide, the stop panel 280 by 80.
class Children {
public:
    Children();
    Children(const Children&) = delete;
    Children& operator=(const Children&) = delete;

    /// The control itself, of the size that its container gives it.
    Child control{ChildKind::Control, "", nullptr, 9600, 7200};
    Child picBrowser{ChildKind::PictureBox, "picBrowser", &control};
    Child brwBrowser{ChildKind::Browser, "brwBrowser", &picBrowser};
    Child picToolbar{ChildKind::PictureBox, "picToolbar", &picBrowser};
    Child lblURL{ChildKind::Label, "lblURL", &picToolbar};
    Child txtURL{ChildKind::TextBox, "txtURL", &picToolbar, 0, 285};
    Child cmdURL{ChildKind::CommandButton, "cmdURL", &picToolbar, 480, 285};
    /// Hidden; its height is that of a glyph.
    Child picTest{ChildKind::PictureBox, "picTest", &picBrowser, 240, 240};
    Child fraStop{ChildKind::Frame, "fraStop", &picBrowser, 4200, 1200};
    Child cmdStop{ChildKind::CommandButton, "cmdStop", &fraStop, 1200, 375};
    Child picGauge{ChildKind::PictureBox, "picGauge", &fraStop, 3960, 255};
    Child picGauge2{ChildKind::PictureBox, "picGauge2", &picGauge, 0, 255};

    Child& Default(ToolbarAction action) { return *defaults_[static_cast<std::size_t>(action)]; }
    const Child& Default(ToolbarAction action) const { return *defaults_[static_cast<std::size_t>(action)]; }

    /// Returns `cmdButton(number)`, counted from 1, or null.
    const Child* UserButton(Long number) const;
    Child* UserButton(Long number) { return const_cast<Child*>(std::as_const(*this).UserButton(number)); }
    Long UserButtons() const { return static_cast<Long>(users_.size()); }
    /// Makes the next user button, hidden and without a picture.
    Child& AddUserButton();
    void ClearUserButtons() { users_.clear(); }

    /// Returns the child of that name, "" being the control, or null.
    const Child* Find(std::string_view name) const;
    Child* Find(std::string_view name) { return const_cast<Child*>(std::as_const(*this).Find(name)); }
    /// Everything but the control itself, from the back to the front.
    std::vector<const Child*> All() const;

private:
    std::array<std::unique_ptr<Child>, ActionCount> defaults_;
    Child template_{ChildKind::CommandButton, "cmdButton(0)", &picToolbar};
    std::vector<std::unique_ptr<Child>> users_;
};

} // namespace ostrel
