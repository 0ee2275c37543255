#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "control/ToolbarLayout.h"
#include "text/CodePage.h"

namespace ostrel {

void OstrelWebHelp::RunToolbarAction(ToolbarAction action) {
    switch (action) {
    case ActionBack:
        GoBack();
        break;
    case ActionForward:
        GoForward();
        break;
    case ActionStop:
        Cancel();
        break;
    case ActionRefresh:
        RefreshCompletely();
        break;
    case ActionHome:
        GoHomePage();
        break;
    case ActionIndex:
        GoIndexPage();
        break;
    case ActionFull:
        Pane().Navigate(LocationURL(), "_blank");
        break;
    case ActionClose:
        ToolbarVisible(false);
        break;
    default:
        break;
    }
}

void OstrelWebHelp::PressDefaultButton(ToolbarAction action) {
    FocusPane();
    Text word(DefaultButtons[static_cast<std::size_t>(action)].word);
    Flag kill = false;
    events.ToolbarClick(word, kill);
    if (kill) return;
    RunToolbarAction(action);
    FocusPane();
}

void OstrelWebHelp::ButtonClick(const Text& Button) {
    Guarded([&] {
        const ToolbarAction action = ActionOfToken(Lower(TrimBlanks(Button)));
        if (action == ActionCount) return;
        RunToolbarAction(action);
        // The new window keeps the focus that it took.
        if (action != ActionFull) FocusPane();
    });
}

void OstrelWebHelp::GoHomePage() {
    if (state_.control.HomePage.empty())
        GoHome();
    else
        GoPage(state_.control.HomePage);
}

void OstrelWebHelp::GoIndexPage() {
    if (!state_.control.IndexPage.empty()) GoPage(state_.control.IndexPage);
}

void OstrelWebHelp::GoPage(const Text& page) {
    if (page.find_first_of("\\/") != Text::npos) {
        ClockStart();
        frame_->help.HelpNavigation = false;
        NavigatePane(page);
        return;
    }
    frame_->help.HelpPageCurrent.clear();
    Text ignored;
    HelpPageLoad(page, ignored);
}

void OstrelWebHelp::GoAddress() {
    const Text url(TrimBlanks(frame_->children.txtURL.text));
    if (!url.empty()) {
        Text error;
        if (!LoadURL(url, error)) context_.platform.screen->Beep();
    }
    FocusPane();
}

Flag OstrelWebHelp::PressChild(const Text& Name) {
    return Guarded([&]() -> Flag {
        const Children& children = frame_->children;
        // The widgets press by the names of children, so no name of a user button may come before those.
        const Child* child = Name.empty() ? nullptr : children.Find(Name);
        if (!child) child = FindToolbarButton(*frame_, Name);
        if (!child || !child->Reachable()) return false;
        for (int action = 0; action < ActionCount; ++action) {
            if (&children.Default(static_cast<ToolbarAction>(action)) != child) continue;
            PressDefaultButton(static_cast<ToolbarAction>(action));
            return true;
        }
        for (std::size_t i = 0; i < frame_->buttons.size(); ++i) {
            if (children.UserButton(static_cast<Long>(i) + 1) != child) continue;
            FocusPane();
            Flag kill = false;
            Text word = frame_->buttons[i].name;
            events.ToolbarClick(word, kill);
            return true;
        }
        if (child == &children.cmdStop) {
            FocusPane();
            run_.StopRequested = run_.StopPressed = true;
        } else if (child == &children.cmdURL) {
            GoAddress();
        } else if (child == &children.txtURL) {
            if (!state_.toolbar.ToolbarAddressLocked) GoAddress();
        } else {
            return false;
        }
        return true;
    });
}

Flag OstrelWebHelp::TypeIntoChild(const Text& Name, const Text& Value) {
    return Guarded([&]() -> Flag {
        Child* child = frame_->children.Find(Name);
        if (!child || child->kind != ChildKind::TextBox || !child->Reachable() || child->locked) return false;
        child->text = Value;
        return true;
    });
}

Flag OstrelWebHelp::MouseOverChild(MouseAction Action, const Text& Name, Integer Button, Integer Shift,
                                   Single X, Single Y) {
    return Guarded([&]() -> Flag {
        const Children& children = frame_->children;
        const Child* child = children.Find(Name);
        if (!child || !child->Shown()) return false;
        const bool inToolbar = child == &children.picToolbar ||
                               (child->kind == ChildKind::CommandButton &&
                                child->parent == &children.picToolbar && child != &children.cmdURL);
        if (child != &children.control && !inToolbar) return false;
        for (; child != &children.control && child != &children.picBrowser; child = child->parent) {
            X += static_cast<Single>(child->left);
            Y += static_cast<Single>(child->top);
        }
        switch (Action) {
        case MouseAction::Down:
            events.MouseDown(Button, Shift, X, Y);
            break;
        case MouseAction::Move:
            events.MouseMove(Button, Shift, X, Y);
            break;
        case MouseAction::Up:
            events.MouseUp(Button, Shift, X, Y);
            break;
        }
        return true;
    });
}

} // namespace ostrel
