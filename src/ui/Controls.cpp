#include "ui/Controls.h"

#include <algorithm>
#include <optional>

#include "text/CodePage.h"
#include "ui/Form.h"

namespace ostrel {

namespace {

void Run(const Handler& handler) {
    if (handler) handler();
}

/// The line that a user means by its number or by its text; -1 for none.
Long LineOf(const std::vector<Text>& items, const UserValue& value) {
    if (const Long* number = std::get_if<Long>(&value))
        return *number >= 0 && *number < static_cast<Long>(items.size()) ? *number : -1;
    const Text* line = std::get_if<Text>(&value);
    if (!line) return -1;
    const auto hit = std::find(items.begin(), items.end(), *line);
    return hit == items.end() ? -1 : static_cast<Long>(hit - items.begin());
}

/// A flag, or a number that stands for one.
std::optional<bool> FlagOf(const UserValue& value) {
    if (const Flag* flag = std::get_if<Flag>(&value)) return bool(*flag);
    if (const Long* number = std::get_if<Long>(&value)) return *number != 0;
    return std::nullopt;
}

} // namespace

Control::Control(Form& form, ControlKind controlKind, std::string_view controlName)
    : Revised(&form), kind(controlKind), name(controlName), form_(form) {
    form.Register(*this);
}

Fields Control::Look() const {
    return {{"visible", Flag(bool(visible))}, {"enabled", Flag(bool(enabled))}, {"tip", *tip}};
}

Fields Label::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"caption", *caption});
    return fields;
}

bool TextBox::Enter(const UserValue& value) {
    const Text* given = std::get_if<Text>(&value);
    if (!given || locked) return false;
    text = *given;
    entered_ = text.Revision();
    Run(onChange);
    return true;
}

Fields TextBox::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"text", *text});
    fields.push_back({"locked", Flag(bool(locked))});
    return fields;
}

void TextBox::Tidy() {
    if (trims) text = Text(TrimBlanks(*text));
}

Fields Choice::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"caption", *caption});
    fields.push_back({"value", Flag(bool(value))});
    return fields;
}

void CheckBox::Press() {
    value = !value;
    Run(onClick);
}

bool CheckBox::Enter(const UserValue& given) {
    const auto flag = FlagOf(given);
    if (!flag) return false;
    if (*flag != value) Press();
    return true;
}

void OptionButton::Choose() {
    for (Control* other : form_.Controls()) {
        if (other->kind != ControlKind::OptionButton || other->container != container) continue;
        auto& option = static_cast<OptionButton&>(*other);
        if (option.group == group) option.value = false;
    }
    value = true;
}

void OptionButton::Press() {
    Choose();
    Run(onClick);
}

bool OptionButton::Enter(const UserValue& given) {
    const auto flag = FlagOf(given);
    if (!flag) return false;
    if (*flag)
        Press();
    else
        value = false;
    return true;
}

void ListBox::Press() { Run(onClick); }

void ListBox::DoublePress() { Run(onDoubleClick ? onDoubleClick : onClick); }

bool ListBox::Enter(const UserValue& value) {
    const Long line = LineOf(*items, value);
    if (line < 0) return false;
    index = line;
    Run(onClick);
    return true;
}

Fields ListBox::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"items", *items});
    fields.push_back({"index", *index});
    return fields;
}

void ComboBox::Show(Long line) {
    const bool there = line >= 0 && line < static_cast<Long>(items->size());
    index = there ? line : -1;
    if (there) text = (*items)[static_cast<std::size_t>(line)];
}

bool ComboBox::Enter(const UserValue& value) {
    if (locked) return false;
    const Long line = LineOf(*items, value);
    if (line >= 0) {
        Show(line);
        Run(onClick);
        return true;
    }
    const Text* given = std::get_if<Text>(&value);
    if (!given || !typing) return false;
    text = *given;
    index = -1;
    Run(onChange);
    return true;
}

Fields ComboBox::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"text", *text});
    fields.push_back({"locked", Flag(bool(locked))});
    fields.push_back({"items", *items});
    fields.push_back({"index", *index});
    return fields;
}

void Button::Press() {
    if (onClick)
        onClick();
    else if (purpose == Purpose::Accept)
        form_.Finish();
    else if (purpose == Purpose::Cancel)
        form_.CloseBox();
}

Fields Button::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"caption", *caption});
    return fields;
}

void PictureBox::Press() { Run(onClick); }

Fields FrameBox::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"caption", *caption});
    return fields;
}

Fields GridBox::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"rows", *rows});
    return fields;
}

Menu::Menu(Form& form, std::string_view controlName) : Control(form, ControlKind::Menu, controlName) {
    form.RegisterPopup(*this);
}

std::vector<Text> Menu::Entries() const {
    std::vector<Text> captions;
    for (const MenuItem* item : items)
        if (item->visible) captions.push_back(*item->caption);
    return captions;
}

Fields Menu::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"entries", Entries()});
    return fields;
}

MenuItem::MenuItem(Form& form, Menu& menu, std::string_view controlName, Text text, Handler clicked)
    : Control(form, ControlKind::MenuItem, controlName), caption(*this, std::move(text)),
      onClick(std::move(clicked)) {
    container = &menu;
    menu.items.push_back(this);
}

MenuItem::MenuItem(Form& form, MenuItem& parent, std::string_view controlName, Text text, Handler clicked)
    : Control(form, ControlKind::MenuItem, controlName), caption(*this, std::move(text)),
      onClick(std::move(clicked)) {
    container = &parent;
    parent.items.push_back(this);
}

void MenuItem::Press() { Run(onClick); }

Fields MenuItem::Look() const {
    Fields fields = Control::Look();
    fields.push_back({"caption", *caption});
    return fields;
}

void FormTimer::Start() {
    enabled = true;
    if (timer_) timer_->Start(interval, true);
}

void FormTimer::Stop() {
    enabled = false;
    if (timer_) timer_->Stop();
}

void FormTimer::BeginShow(Clock& clock) {
    timer_ = clock.MakeTimer([this] { Run(onTick); });
    if (enabled) timer_->Start(interval, true);
}

Fields FormTimer::Look() const { return {{"enabled", Flag(bool(enabled))}}; }

} // namespace ostrel
