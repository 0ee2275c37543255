#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "ui/Controls.h"
#include "ui/RichText.h"

namespace ostrel {

/// A key as a form hears it: its name ("B", "F3", "Enter") and what is held with it.
struct KeyStroke {
    Text key;
    bool shift = false;
    bool control = false;
    bool alt = false;
};

/// Where a form of that size stands so that it lies on the screen; one that is larger sticks to the top left.
Bounds FitOnScreen(Bounds form, const Bounds& area);
/// The same in the middle of the screen.
Bounds CentreOnScreen(Bounds form, const Bounds& area);

/// A window as a model: named controls and their handlers, no pixels. A screen shows it, a user works it.
class Form {
public:
    Form(std::string_view formName, Text formCaption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const Text name;
    Text caption;
    Long left = 0, top = 0, width = 0, height = 0;
    Picture icon;
    bool onTop = false;
    /// The control with the focus; null for none.
    Control* focus = nullptr;

    /// Shows it modally and returns when it is closed: whether it was accepted.
    bool Show(Platform& platform);
    bool Open() const { return open_; }
    bool Accepted() const { return accepted_; }

    /// In the order of their declaration.
    const std::vector<Control*>& Controls() const { return controls_; }
    Control* Find(std::string_view controlName) const;
    /// The text that keys and selections go to; null in a form without one.
    RichText* MainText() const;
    /// A field of the form itself: `caption`, its place, the control with the focus.
    virtual FieldValue Look(std::string_view field) const;

    // What a user does to the form.

    void Key(const KeyStroke& stroke);
    /// Brings menu entries up to date before a user sees them.
    virtual void PrepareMenu() {}
    virtual void CloseBox() { Close(); }

    /// Called by each control as it is built.
    void Register(Control& control) { controls_.push_back(&control); }

protected:
    /// Before it stands on the screen.
    virtual void Load() {}
    /// After it is closed, by whatever way.
    virtual void Unload() {}
    /// Checks and takes over what the user entered. False keeps the form open.
    virtual bool Accept() { return true; }
    /// True where the form has handled the key itself.
    virtual bool KeyDown(const KeyStroke&) { return false; }

    /// The OK of a dialog: trims every text box, then closes with success if `Accept` agrees.
    void Finish();
    void Close() { open_ = false; }
    /// Shows the error box, puts the focus on the faulty control, and is False.
    bool Fault(Control& faulty, const Text& message);

    /// The letters of the ticked boxes and chosen options, in the order of `letters`.
    Text Options(TextView letters) const;
    /// Ticks and chooses what has its letter in `options`, in any case.
    void SetOptions(TextView options);

    /// Where the form is shown; null before that.
    Platform* World() const { return platform_; }

private:
    std::vector<Control*> controls_;
    Platform* platform_ = nullptr;
    bool open_ = false;
    bool accepted_ = false;
};

} // namespace ostrel
