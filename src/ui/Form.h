#pragma once

#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "ui/Controls.h"
#include "ui/Placement.h"
#include "ui/RichText.h"

namespace ostrel {

/// A key as a form hears it: its name ("B", "F3", "Enter") and what is held with it.
struct KeyStroke {
    Text key;
    bool shift = false;
    bool control = false;
    bool alt = false;
};

struct Dialogs;

/// The window in which a form is shown, as far as other forms ask about it.
class FormWindow {
public:
    virtual ~FormWindow() = default;
    /// The place of a control in twips, from the top left corner of the window with its frame.
    virtual Bounds PlaceOf(const Control& control) const = 0;
};

/// A window as a model: named controls and their handlers, no pixels. `ShowDialog` shows it, a user works it.
class Form : public Revised {
public:
    Form(std::string_view formName, Text formCaption);
    virtual ~Form() = default;

    const Text name;
    Tracked<Text> caption;
    /// On the screen, in twips. They follow the window.
    Tracked<Long> left{*this}, top{*this}, width{*this}, height{*this};
    Tracked<Picture> icon{*this};
    /// Whether the window stays above all others, from when it is shown.
    bool onTop = false;
    /// The control with the focus; null for none.
    Tracked<Control*> focus{*this};

    bool Open() const { return open_; }
    bool Accepted() const { return accepted_; }

    /// In the order of their declaration.
    const std::vector<Control*>& Controls() const { return controls_; }
    Control* Find(std::string_view controlName) const;
    /// The text that keys and selections go to; null in a form without one.
    RichText* MainText() const { return mainText_; }
    /// The menu that a right click on the main text opens; null in a form without one.
    const Menu* Popup() const { return popup_; }
    /// A field of the form itself: `caption`, its place, the control with the focus.
    virtual FieldValue Look(std::string_view field) const;

    // What a user does to the form.

    void Key(const KeyStroke& stroke);
    /// Brings menu entries up to date before a user sees them.
    virtual void PrepareMenu() {}
    virtual void CloseBox() { Close(); }
    /// The OK of a dialog: puts in order what was entered, then closes with success if `Accept` agrees.
    void Finish();

    // Called by the controls as they are built.

    void Register(Control& control) { controls_.push_back(&control); }
    void RegisterMainText(RichText& text) { mainText_ = &text; }
    void RegisterPopup(const Menu& menu) { popup_ = &menu; }

    /// Set by what shows the form, and null again before that goes.
    void Window(const FormWindow* window) { window_ = window; }
    const FormWindow* Window() const { return window_; }

protected:
    /// Before it stands on the screen.
    virtual void Load() {}
    /// After it is closed, by whatever way.
    virtual void Unload() {}
    /// Checks and takes over what the user entered. False keeps the form open.
    virtual bool Accept() { return true; }
    /// True where the form has handled the key itself.
    virtual bool KeyDown(const KeyStroke&) { return false; }

    void Close() { open_ = false; }
    /// Shows the error box, puts the focus on the faulty control, and is False.
    bool Fault(Control& faulty, const Text& message);

    /// The letters of the ticked boxes and chosen options, in the order of `letters`.
    Text Options(TextView letters) const;
    /// Ticks and chooses what has its letter in `options`, in any case.
    void SetOptions(TextView options);

    /// Shows it modally and returns when it is closed: whether it was accepted.
    bool Show(Platform& platform);

private:
    class Showing;
    friend bool ShowDialog(const Dialogs& dialogs, Form& form, const DialogPlace& place);

    std::vector<Control*> controls_;
    RichText* mainText_ = nullptr;
    const Menu* popup_ = nullptr;
    const FormWindow* window_ = nullptr;
    Platform* platform_ = nullptr;
    bool open_ = false;
    bool accepted_ = false;
};

} // namespace ostrel
