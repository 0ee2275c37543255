#pragma once

#include <functional>
#include <string_view>
#include <variant>

#include "ui/Fields.h"
#include "ui/Tracked.h"

namespace ostrel {

class Clock;
class Form;

enum class ControlKind {
#define SHOWN(Kind) Kind,
#define UNSHOWN(Kind) Kind,
#include "ui/ControlKinds.def"
#undef SHOWN
#undef UNSHOWN
};

/// What a control is for in its form as a whole.
enum class Purpose {
    None,
    Accept, ///< the OK: Enter presses it
    Cancel, ///< leaves the form as its close box does
    Footer  ///< serves the whole form and stands at its foot, beside what ends it
};

/// What a user gives to a control: a text, a flag, or the number of a line counted from 0.
using UserValue = std::variant<Text, Flag, Long>;
using Handler = std::function<void()>;

/// One named control of a form: what it shows, what it is for and what a user can do to it. It registers with
/// its form in the order of declaration, which is the order of tabs and of layout.
class Control : public Revised {
public:
    Control(Form& form, ControlKind kind, std::string_view name);
    virtual ~Control() = default;

    const ControlKind kind;
    /// An element of a control array is named with its number, as in "cmdInsert(3)".
    const Text name;
    Tracked<Text> tip{*this};
    Tracked<bool> visible{*this, true};
    Tracked<bool> enabled{*this, true};

    // What is said once, before the form is shown.

    /// The frame or menu around it; null for the form itself.
    const Control* container = nullptr;
    /// The control whose row it shares, before or behind it in the order of declaration: a label, a button
    /// that chooses a value, a patch of colour. Null for a row of its own.
    const Control* beside = nullptr;
    Purpose purpose = Purpose::None;
    /// What it adds to the form's option letters while it is ticked; 0 for none.
    char letter = 0;

    Form& Owner() const { return form_; }
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

    // What its form asks of it.

    /// Called when the form is shown, and when it no longer is.
    virtual void BeginShow(Clock&) {}
    virtual void EndShow() {}
    /// Milliseconds until it does something by itself; 0 for never.
    virtual Long Due() const { return 0; }
    /// Puts what the user entered in order, before the form checks and takes it.
    virtual void Tidy() {}
    /// Whether its option letter counts.
    virtual bool Ticked() const { return false; }
    virtual void Tick(bool) {}

protected:
    Form& form_;
};

} // namespace ostrel
