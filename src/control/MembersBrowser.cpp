#include "control/ControlFrame.h"
#include "control/Guard.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long TextType = 1;
constexpr TextView BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer\\";

} // namespace

void OstrelWebHelp::FocusPane() {
    if (Pane()) Pane()->Focus();
}

void OstrelWebHelp::NavigatePane(const Text& url) {
    if (Pane()) Pane()->Navigate(url);
}

void OstrelWebHelp::RefreshPane(Long level) {
    if (Pane()) Pane()->Refresh2(static_cast<RefreshLevel>(level));
    frame_->children.Default(ActionStop).enabled = true;
    frame_->children.Default(ActionRefresh).enabled = false;
    frame_->pane.PendingRefresh = true;
}

Flag OstrelWebHelp::LoadURL(const Text& URL, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        if (URL.empty()) {
            ErrorMessage = "No URL defined.";
            return false;
        }
        ClockStart();
        frame_->help.HelpNavigation = false;
        if (URL != LocationURL()) NavigatePane(URL);
        return true;
    });
}

Flag OstrelWebHelp::LoadURLToTarget(const Text& URL, const Text& Target, Text& ErrorMessage) {
    return Guarded([&]() -> Flag {
        ErrorMessage.clear();
        if (URL.empty())
            ErrorMessage = "No URL defined.";
        else if (Target.empty())
            ErrorMessage = "No Target defined.";
        if (!ErrorMessage.empty()) return false;
        if (Pane()) Pane()->Navigate(URL, Target);
        return true;
    });
}

Flag OstrelWebHelp::GoBack() {
    return Guarded([&]() -> Flag {
        if (Pane()) Pane()->GoBack();
        return true;
    });
}

Flag OstrelWebHelp::GoForward() {
    return Guarded([&]() -> Flag {
        if (Pane()) Pane()->GoForward();
        return true;
    });
}

Flag OstrelWebHelp::GoHome() {
    return Guarded([&]() -> Flag {
        if (Pane()) Pane()->GoHome();
        return true;
    });
}

Flag OstrelWebHelp::GoSearch() {
    return Guarded([&]() -> Flag {
        if (Pane()) Pane()->GoSearch();
        return true;
    });
}

void OstrelWebHelp::Cancel() {
    Guarded([&] {
        events.StatusTextChange.Tell("Cancel...");
        if (Pane()) Pane()->Stop();
        run_.StopRequested = true;
    });
}

Flag OstrelWebHelp::Busy() { return Pane() && Pane()->Busy(); }

Long OstrelWebHelp::ReadyState() { return static_cast<Long>(Pane()->ReadyState()); }

void OstrelWebHelp::Refresh() {
    Guarded([&] { RefreshPane(0); });
}

void OstrelWebHelp::RefreshCompletely() {
    Guarded([&] { RefreshPane(3); });
}

void OstrelWebHelp::RefreshIfExpired() {
    Guarded([&] { RefreshPane(1); });
}

Text OstrelWebHelp::LocationName() { return Pane() ? Pane()->LocationName() : Text(); }

Text OstrelWebHelp::LocationURL() { return Pane() ? Pane()->LocationURL() : Text(); }

Long OstrelWebHelp::BrowserLeft() { return frame_->children.brwBrowser.left; }

Long OstrelWebHelp::BrowserTop() { return frame_->children.brwBrowser.top; }

Text OstrelWebHelp::BrowserGetHeader() { return BrowserGetSetting("PageSetup", "header"); }

Text OstrelWebHelp::BrowserGetFooter() { return BrowserGetSetting("PageSetup", "footer"); }

void OstrelWebHelp::BrowserSetHeader(const Text& Value) { BrowserSetSetting("PageSetup", "header", Value); }

void OstrelWebHelp::BrowserSetFooter(const Text& Value) { BrowserSetSetting("PageSetup", "footer", Value); }

Text OstrelWebHelp::BrowserGetSetting(const Text& KeyName, const Text& ValueName) {
    return Guarded([&]() -> Text {
        const Variant value = QueryValue(CurrentUserArea, Text(BrowserKey) + KeyName, ValueName);
        const Text* text = std::get_if<Text>(&value);
        return text ? *text : FromDouble(std::get<Double>(value));
    });
}

void OstrelWebHelp::BrowserSetSetting(const Text& KeyName, const Text& ValueName, const Text& Value) {
    Guarded([&] { SetKeyValue(CurrentUserArea, Text(BrowserKey) + KeyName, ValueName, Value, TextType); });
}

} // namespace ostrel
