#include "control/UserInput.h"

#include "control/OstrelWebHelp.h"
#include "control/State.h"
#include "text/CodePage.h"

namespace ostrel {

bool UserInput::Press(const Text& name) {
    // The widgets press by the names of children, so no name of a user button may come before those.
    const Child* child = name.empty() ? nullptr : children_.Find(name);
    if (!child) child = buttons_.Find(name);
    if (!child || !child->Reachable()) return false;
    for (int i = 0; i < ActionCount; ++i) {
        const auto action = static_cast<ToolbarAction>(i);
        if (&children_.Default(action) != child) continue;
        actions_.Press(action);
        return true;
    }
    if (const Text* userButton = buttons_.NameOf(*child)) {
        Text word = *userButton;
        Flag kill = false;
        navigator_.Focus();
        events_.ToolbarClick(word, kill);
    } else if (child == &children_.cmdStop) {
        navigator_.Focus();
        stopPanel_.Press();
    } else if (child == &children_.cmdURL) {
        GoToAddress();
    } else if (child == &children_.txtURL) {
        if (!state_.toolbar.ToolbarAddressLocked) GoToAddress();
    } else {
        return false;
    }
    return true;
}

void UserInput::GoToAddress() {
    if (const Text url(TrimBlanks(children_.txtURL.text)); !url.empty()) {
        Text error;
        if (!navigator_.Load(url, error)) platform_.screen->Beep();
    }
    navigator_.Focus();
}

bool UserInput::Type(const Text& name, const Text& value) {
    Child* child = children_.Find(name);
    if (!child || child->kind != ChildKind::TextBox || !child->Reachable() || child->locked) return false;
    child->text = value;
    return true;
}

bool UserInput::Mouse(MouseAction action, const Text& name, Integer button, Integer shift, Single x,
                      Single y) {
    const Child* child = children_.Find(name);
    if (!child || !child->Shown()) return false;
    const bool inToolbar = child == &children_.picToolbar ||
                           (child->kind == ChildKind::CommandButton &&
                            child->parent == &children_.picToolbar && child != &children_.cmdURL);
    if (child != &children_.control && !inToolbar) return false;
    for (; child != &children_.control && child != &children_.picBrowser; child = child->parent) {
        x += static_cast<Single>(child->left);
        y += static_cast<Single>(child->top);
    }
    switch (action) {
    case MouseAction::Down:
        events_.MouseDown(button, shift, x, y);
        break;
    case MouseAction::Move:
        events_.MouseMove(button, shift, x, y);
        break;
    case MouseAction::Up:
        events_.MouseUp(button, shift, x, y);
        break;
    }
    return true;
}

} // namespace ostrel
