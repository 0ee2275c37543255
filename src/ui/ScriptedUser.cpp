#include "ui/ScriptedUser.h"

#include "text/CodePage.h"
#include "ui/MessageBox.h"

namespace ostrel {

namespace {

/// "Ctrl+Shift+F3" in its parts.
KeyStroke StrokeOf(TextView text) {
    KeyStroke stroke;
    for (std::size_t plus; (plus = text.find('+')) != NotFound && plus + 1 < text.size();) {
        const TextView held = text.substr(0, plus);
        if (EqualText(held, "Ctrl"))
            stroke.control = true;
        else if (EqualText(held, "Shift"))
            stroke.shift = true;
        else if (EqualText(held, "Alt"))
            stroke.alt = true;
        text.remove_prefix(plus + 1);
    }
    stroke.key = text;
    return stroke;
}

} // namespace

ScriptedUser::ScriptedUser(HeadlessPlatform& platform) : platform_(platform) {
    platform_.Display().SeatUser(this);
}

ScriptedUser::~ScriptedUser() { platform_.Display().SeatUser(nullptr); }

void ScriptedUser::Queue(const Text& form, std::vector<UserStep> steps) {
    queued_[form].push_back(std::move(steps));
}

void ScriptedUser::Attend(Form& form) {
    shown_.push_back(form.name);
    std::vector<UserStep> steps;
    if (auto& waiting = queued_[form.name]; !waiting.empty()) {
        steps = std::move(waiting.front());
        waiting.pop_front();
    }
    for (const UserStep& step : steps) {
        if (!form.Open()) return;
        Carry(form, step);
        platform_.clock->Yield();
    }
    LetTimersRun(form);
    if (form.Open()) form.CloseBox();
}

MessageAnswer ScriptedUser::Answer(MessageKind kind, const Text& text, const Text& title,
                                   MessageButtons buttons) {
    messages_.push_back({kind, text, title});
    return MessageBox(kind, text, title, buttons).Ask(platform_);
}

void ScriptedUser::Carry(Form& form, const UserStep& step) {
    using Verb = UserStep::Verb;
    if (step.verb == Verb::Close) return form.CloseBox();
    if (step.verb == Verb::Look) return Look(form, step.target);
    if (step.verb == Verb::Key) return form.Key(StrokeOf(step.target));
    if (step.verb == Verb::Select) {
        if (RichText* text = form.MainText()) text->Select(step.start, step.length);
        return;
    }
    if (step.verb == Verb::Menu) form.PrepareMenu();
    Control* control = form.Find(step.target);
    if (!control || !control->Reachable()) return;
    if ((control->kind == ControlKind::MenuItem) != (step.verb == Verb::Menu)) return;
    if (control->TakesFocus()) form.focus = control;
    switch (step.verb) {
    case Verb::Set:
        control->Enter(step.value);
        break;
    case Verb::DoubleClick:
        control->DoublePress();
        break;
    default:
        control->Press();
        break;
    }
}

void ScriptedUser::Look(Form& form, const Text& what) {
    if (const FieldValue own = form.Look(what); own.index() != 0) {
        seen_.push_back({form.name, what, own});
        return;
    }
    form.PrepareMenu();
    if (const Control* control = form.Find(what)) {
        seen_.push_back({form.name, what, control->Look()});
        return;
    }
    const std::size_t point = what.rfind('.');
    const Control* control = point == NotFound ? nullptr : form.Find(TextView(what).substr(0, point));
    const FieldValue value =
        control ? FieldOf(control->Look(), TextView(what).substr(point + 1)) : FieldValue();
    seen_.push_back({form.name, what, value});
}

void ScriptedUser::LetTimersRun(Form& form) {
    for (Control* control : form.Controls()) {
        if (!form.Open()) return;
        if (const Long due = control->Due()) platform_.clock->Wait(due);
    }
}

} // namespace ostrel
