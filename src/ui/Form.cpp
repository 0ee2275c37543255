#include "ui/Form.h"

#include <algorithm>

#include "text/CodePage.h"

namespace ostrel {

/// The time in which a form is on the screen. It ends however showing it ends.
class Form::Showing {
public:
    Showing(Form& form, Platform& platform) : form_(form) {
        form_.platform_ = &platform;
        form_.accepted_ = false;
        form_.open_ = true;
        for (Control* control : form_.controls_) {
            if (!form_.focus && control->TakesFocus() && control->Reachable()) form_.focus = control;
            control->BeginShow(*platform.clock);
        }
    }
    ~Showing() {
        form_.open_ = false;
        for (Control* control : form_.controls_) control->EndShow();
    }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

private:
    Form& form_;
};

Form::Form(std::string_view formName, Text formCaption)
    : name(formName), caption(*this, std::move(formCaption)) {}

bool Form::Show(Platform& platform) {
    {
        const Showing showing(*this, platform);
        Load();
        if (open_) platform.screen->ShowModal(*this);
    }
    Unload();
    return accepted_;
}

Control* Form::Find(std::string_view controlName) const {
    for (Control* control : controls_)
        if (control->name == controlName) return control;
    return nullptr;
}

FieldValue Form::Look(std::string_view field) const {
    if (field == "caption") return *caption;
    if (field == "left") return *left;
    if (field == "top") return *top;
    if (field == "width") return *width;
    if (field == "height") return *height;
    if (field == "focus") return focus ? focus->name : Text();
    return {};
}

void Form::Key(const KeyStroke& stroke) {
    if (KeyDown(stroke)) return;
    RichText* text = MainText();
    if (!text || text->locked || stroke.control || stroke.alt) return;
    if (stroke.key == "Enter") {
        text->Type(text->SelStart(), text->SelLength(), LineEnd);
    } else if (stroke.key.size() == 1) {
        text->Type(text->SelStart(), text->SelLength(), stroke.shift ? Upper(stroke.key) : Lower(stroke.key));
    }
}

void Form::Finish() {
    for (Control* control : controls_) control->Tidy();
    if (!Accept()) return;
    accepted_ = true;
    open_ = false;
}

bool Form::Fault(Control& faulty, const Text& message) {
    if (platform_)
        platform_->screen->Message(MessageKind::Error, message, *caption + " Error", MessageButtons::Ok);
    focus = &faulty;
    return false;
}

Text Form::Options(TextView letters) const {
    Text options;
    for (const char letter : letters)
        if (std::any_of(controls_.begin(), controls_.end(), [letter](const Control* control) {
                return control->letter == letter && control->Ticked();
            }))
            options += letter;
    return options;
}

void Form::SetOptions(TextView options) {
    for (Control* control : controls_)
        if (control->letter) control->Tick(FindText(options, TextView(&control->letter, 1)) != NotFound);
}

} // namespace ostrel
