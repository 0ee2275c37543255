#pragma once

#include <functional>
#include <string_view>
#include <variant>

#include "ui/Fields.h"

namespace ostrel {

class Form;

enum class ControlKind {
    Label,
    TextBox,
    RichText,
    CheckBox,
    OptionButton,
    ListBox,
    ComboBox,
    Button,
    PictureBox,
    Frame,
    Grid,
    Menu,
    MenuItem,
    Timer
};

/// What a user gives to a control: a text, a flag, or the number of a line counted from 0.
using UserValue = std::variant<Text, Flag, Long>;
using Handler = std::function<void()>;

/// One named control of a form: what it shows and what a user can do to it. It registers with its form in the
/// order of declaration, which is the order of tabs and of layout.
class Control {
public:
    Control(Form& form, ControlKind kind, std::string_view name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const ControlKind kind;
    /// An element of a control array is named with its number, as in "cmdInsert(3)".
    const Text name;
    Text tip;
    bool visible = true;
    bool enabled = true;
    /// The frame or menu around it; null for the form itself.
    const Control* container = nullptr;

    /// Seen by the user: visible, and so is everything around it.
    bool Shown() const { return visible && (!container || container->Shown()); }
    /// A user can work it: shown, enabled, and so is everything around it.
    bool Reachable() const { return visible && enabled && (!container || container->Reachable()); }

    // What a user does. Only a reachable control is asked.

    virtual void Press() {}
    virtual void DoublePress() { Press(); }
    /// False where the value is of no use to it.
    virtual bool Enter(const UserValue&) { return false; }

    /// What the user sees of it.
    virtual Fields Look() const;
    /// Can hold the focus.
    virtual bool TakesFocus() const { return true; }

protected:
    Form& form_;
};

} // namespace ostrel
