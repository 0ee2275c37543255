#pragma once

#include <deque>
#include <map>
#include <vector>

#include "platform/headless/HeadlessPlatform.h"
#include "ui/Form.h"

namespace ostrel {

/// One thing that a scripted user does at a form.
struct UserStep {
    enum class Verb { Set, Click, DoubleClick, Select, Key, Menu, Look, Close };
    Verb verb;
    /// The control, the key ("Ctrl+B"), the menu entry, or what to look at ("cmdBold.visible").
    Text target;
    UserValue value;
    /// Of a selection.
    Long start = 0, length = 0;
};

/// What a look saw: a single field, or all fields of a control.
struct Sight {
    Text form;
    Text what;
    std::variant<FieldValue, Fields> value;
};

struct ShownMessage {
    MessageKind kind;
    Text text;
    Text title;
};

/// The user before a headless screen: carries out the steps that are queued for each form. A form with no
/// user, or one that still stands after its last step, is closed as by its close box once its timers have
/// run.
class ScriptedUser final : public ScreenUser {
public:
    /// Takes the seat before the platform's screen and leaves it at the end.
    explicit ScriptedUser(HeadlessPlatform& platform);
    ~ScriptedUser() override;
    ScriptedUser(const ScriptedUser&) = delete;
    ScriptedUser& operator=(const ScriptedUser&) = delete;

    /// For the next time that the form is shown that nobody is queued for yet.
    void Queue(const Text& form, std::vector<UserStep> steps);

    // What has come since the last asking, in order.

    std::vector<Sight> TakeSeen() { return std::exchange(seen_, {}); }
    std::vector<Text> TakeShown() { return std::exchange(shown_, {}); }
    std::vector<ShownMessage> TakeMessages() { return std::exchange(messages_, {}); }

    void Attend(Form& form) override;
    MessageAnswer Answer(MessageKind kind, const Text& text, const Text& title,
                         MessageButtons buttons) override;

private:
    void Carry(Form& form, const UserStep& step);
    void Look(Form& form, const Text& what);
    void LetTimersRun(Form& form);

    HeadlessPlatform& platform_;
    std::map<Text, std::deque<std::vector<UserStep>>> queued_;
    std::vector<Sight> seen_;
    std::vector<Text> shown_;
    std::vector<ShownMessage> messages_;
};

} // namespace ostrel
