#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long TextType = 1;
constexpr TextView BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer\\";

} // namespace

Flag OstrelWebHelp::LoadURL(const Text& URL, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        return parts_->navigator.Load(URL, ErrorMessage);
    });
}

Flag OstrelWebHelp::LoadURLToTarget(const Text& URL, const Text& Target, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        return parts_->navigator.LoadToTarget(URL, Target, ErrorMessage);
    });
}

Flag OstrelWebHelp::GoBack() {
    return parts_->guard([&]() -> Flag {
        parts_->Pane().GoBack();
        return true;
    });
}

Flag OstrelWebHelp::GoForward() {
    return parts_->guard([&]() -> Flag {
        parts_->Pane().GoForward();
        return true;
    });
}

Flag OstrelWebHelp::GoHome() {
    return parts_->guard([&]() -> Flag {
        parts_->Pane().GoHome();
        return true;
    });
}

Flag OstrelWebHelp::GoSearch() {
    return parts_->guard([&]() -> Flag {
        parts_->Pane().GoSearch();
        return true;
    });
}

void OstrelWebHelp::Cancel() {
    parts_->guard([&] { parts_->navigator.Cancel(); });
}

Flag OstrelWebHelp::Busy() {
    return parts_->guard([&]() -> Flag { return parts_->Pane().Busy(); });
}

Long OstrelWebHelp::ReadyState() {
    return parts_->guard([&] { return static_cast<Long>(parts_->Pane().ReadyState()); });
}

void OstrelWebHelp::Refresh() {
    parts_->guard([&] { parts_->navigator.Refresh(RefreshLevel::Plain); });
}

void OstrelWebHelp::RefreshCompletely() {
    parts_->guard([&] { parts_->navigator.Refresh(RefreshLevel::Completely); });
}

void OstrelWebHelp::RefreshIfExpired() {
    parts_->guard([&] { parts_->navigator.Refresh(RefreshLevel::IfExpired); });
}

Text OstrelWebHelp::LocationName() {
    return parts_->guard([&] { return parts_->Pane().LocationName(); });
}

Text OstrelWebHelp::LocationURL() {
    return parts_->guard([&] { return parts_->Pane().LocationURL(); });
}

Long OstrelWebHelp::BrowserLeft() {
    return parts_->guard([&] { return parts_->children.brwBrowser.left; });
}

Long OstrelWebHelp::BrowserTop() {
    return parts_->guard([&] { return parts_->children.brwBrowser.top; });
}

Text OstrelWebHelp::BrowserGetHeader() {
    return parts_->guard([&] { return BrowserGetSetting("PageSetup", "header"); });
}

Text OstrelWebHelp::BrowserGetFooter() {
    return parts_->guard([&] { return BrowserGetSetting("PageSetup", "footer"); });
}

void OstrelWebHelp::BrowserSetHeader(const Text& Value) {
    parts_->guard([&] { BrowserSetSetting("PageSetup", "header", Value); });
}

void OstrelWebHelp::BrowserSetFooter(const Text& Value) {
    parts_->guard([&] { BrowserSetSetting("PageSetup", "footer", Value); });
}

Text OstrelWebHelp::BrowserGetSetting(const Text& KeyName, const Text& ValueName) {
    return parts_->guard([&]() -> Text {
        const Variant value = QueryValue(CurrentUserArea, Text(BrowserKey) + KeyName, ValueName);
        const Text* text = std::get_if<Text>(&value);
        return text ? *text : FromDouble(std::get<Double>(value));
    });
}

void OstrelWebHelp::BrowserSetSetting(const Text& KeyName, const Text& ValueName, const Text& Value) {
    parts_->guard(
        [&] { SetKeyValue(CurrentUserArea, Text(BrowserKey) + KeyName, ValueName, Value, TextType); });
}

} // namespace ostrel
