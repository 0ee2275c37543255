#include "control/ToolbarButtons.h"

#include <algorithm>

#include "text/CodePage.h"

namespace ostrel {

namespace {

constexpr std::size_t MostUserButtons = 100;

bool IsTakenName(TextView lowered) {
    const ToolbarAction action = ActionOfToken(lowered);
    return action != ActionCount && DefaultButtons[static_cast<std::size_t>(action)].Has(NameTaken);
}

} // namespace

ToolbarAction ActionOfToken(TextView token) {
    const auto hit = std::find_if(DefaultButtons.begin(), DefaultButtons.end(),
                                  [&](const DefaultButton& button) { return button.token == token; });
    return static_cast<ToolbarAction>(hit - DefaultButtons.begin());
}

Child* ToolbarButtons::Add(const Text& name, const Text& tip, Text& error) {
    if (names_.size() >= MostUserButtons) {
        error = "100 Buttons have already been added.";
        return nullptr;
    }
    const Text wanted(TrimBlanks(name));
    if (wanted.empty()) {
        error = "Name has not been specified.";
        return nullptr;
    }
    if (IsTakenName(Lower(wanted))) {
        error = "New Button Name [" + wanted + "] conflicts with default Button.";
        return nullptr;
    }
    for (const Text& other : names_) {
        if (!EqualText(other, wanted)) continue;
        error = "New Button Name [" + wanted + "] conflicts with existing Button.";
        return nullptr;
    }
    names_.push_back(wanted);
    Child& button = children_.AddUserButton();
    button.tip = TrimBlanks(tip);
    return &button;
}

bool ToolbarButtons::Clear() {
    if (names_.empty()) return false;
    children_.ClearUserButtons();
    names_.clear();
    return true;
}

Child* ToolbarButtons::Find(TextView name) const {
    const Text wanted = Lower(TrimBlanks(name));
    if (const ToolbarAction action = ActionOfToken(wanted); action != ActionCount)
        return &children_.Default(action);
    for (std::size_t i = 0; i < names_.size(); ++i)
        if (EqualText(names_[i], wanted)) return children_.UserButton(static_cast<Long>(i) + 1);
    return nullptr;
}

const Text* ToolbarButtons::NameOf(const Child& button) const {
    for (std::size_t i = 0; i < names_.size(); ++i)
        if (children_.UserButton(static_cast<Long>(i) + 1) == &button) return &names_[i];
    return nullptr;
}

} // namespace ostrel
