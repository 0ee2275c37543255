#include "ui/Form.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "text/CodePage.h"

namespace ostrel {

namespace {

/// The letter and the state of a check box or option button; null for other kinds and where it has no letter.
bool* LetteredValue(Control& control, char& letter) {
    bool* value = nullptr;
    if (control.kind == ControlKind::CheckBox) {
        auto& box = static_cast<CheckBox&>(control);
        letter = box.letter;
        value = &box.value;
    } else if (control.kind == ControlKind::OptionButton) {
        auto& option = static_cast<OptionButton&>(control);
        letter = option.letter;
        value = &option.value;
    }
    return value && letter ? value : nullptr;
}

/// Lengths come from the host and may be anything; they are added in 64 bits and kept within 32.
Long KeepWithin(std::int64_t place, Long start) {
    return static_cast<Long>(std::clamp<std::int64_t>(place, start, std::numeric_limits<Long>::max()));
}

Long FitOneWay(Long place, Long size, Long start, Long room) {
    return KeepWithin(std::min<std::int64_t>(place, std::int64_t{start} + room - size), start);
}

Long CentreOneWay(Long size, Long start, Long room) {
    return KeepWithin(start + (std::int64_t{room} - size) / 2, start);
}

} // namespace

Bounds FitOnScreen(Bounds form, const Bounds& area) {
    form.left = FitOneWay(form.left, form.width, area.left, area.width);
    form.top = FitOneWay(form.top, form.height, area.top, area.height);
    return form;
}

Bounds CentreOnScreen(Bounds form, const Bounds& area) {
    form.left = CentreOneWay(form.width, area.left, area.width);
    form.top = CentreOneWay(form.height, area.top, area.height);
    return form;
}

Form::Form(std::string_view formName, Text formCaption) : name(formName), caption(std::move(formCaption)) {}

bool Form::Show(Platform& platform) {
    platform_ = &platform;
    accepted_ = false;
    open_ = true;
    const Bounds place = FitOnScreen({left, top, width, height}, platform.screen->Area());
    left = place.left;
    top = place.top;
    for (Control* control : controls_) {
        if (!focus && control->TakesFocus() && control->Reachable()) focus = control;
        if (control->kind == ControlKind::Timer) static_cast<FormTimer&>(*control).Arm(*platform.clock);
    }
    Load();
    if (open_) platform.screen->ShowModal(*this);
    open_ = false;
    for (Control* control : controls_)
        if (control->kind == ControlKind::Timer) static_cast<FormTimer&>(*control).Disarm();
    Unload();
    return accepted_;
}

Control* Form::Find(std::string_view controlName) const {
    for (Control* control : controls_)
        if (control->name == controlName) return control;
    return nullptr;
}

RichText* Form::MainText() const {
    for (Control* control : controls_)
        if (control->kind == ControlKind::RichText) return static_cast<RichText*>(control);
    return nullptr;
}

FieldValue Form::Look(std::string_view field) const {
    if (field == "caption") return caption;
    if (field == "left") return left;
    if (field == "top") return top;
    if (field == "width") return width;
    if (field == "height") return height;
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
    for (Control* control : controls_) {
        if (control->kind != ControlKind::TextBox) continue;
        auto& box = static_cast<TextBox&>(*control);
        box.text = Text(TrimBlanks(box.text));
    }
    if (!Accept()) return;
    accepted_ = true;
    open_ = false;
}

bool Form::Fault(Control& faulty, const Text& message) {
    if (platform_)
        platform_->screen->Message(MessageKind::Error, message, caption + " Error", MessageButtons::Ok);
    focus = &faulty;
    return false;
}

Text Form::Options(TextView letters) const {
    Text options;
    for (const char wanted : letters) {
        for (Control* control : controls_) {
            char letter = 0;
            const bool* value = LetteredValue(*control, letter);
            if (value && *value && letter == wanted) {
                options += wanted;
                break;
            }
        }
    }
    return options;
}

void Form::SetOptions(TextView options) {
    for (Control* control : controls_) {
        char letter = 0;
        if (bool* value = LetteredValue(*control, letter))
            *value = FindText(options, TextView(&letter, 1)) != NotFound;
    }
}

} // namespace ostrel
