#include "control/Children.h"

namespace ostrel {

Fields Child::Look() const {
    Fields fields{{"left", left},
                  {"top", top},
                  {"width", width},
                  {"height", height},
                  {"visible", Flag(visible)},
                  {"enabled", Flag(enabled)},
                  {"pointer", pointer}};
    if (kind == ChildKind::CommandButton || kind == ChildKind::Label || kind == ChildKind::Frame)
        fields.push_back({"caption", caption});
    if (kind == ChildKind::CommandButton) fields.push_back({"tip", tip});
    if (kind == ChildKind::TextBox) {
        fields.push_back({"text", text});
        fields.push_back({"locked", Flag(locked)});
    }
    return fields;
}

Children::Children() {
    for (std::size_t i = 0; i < DefaultButtons.size(); ++i) {
        defaults_[i] = std::make_unique<Child>(ChildKind::CommandButton, DefaultButtons[i].name, &picToolbar);
        defaults_[i]->tip = DefaultButtons[i].tip;
        defaults_[i]->visible = false;
    }
    template_.visible = false;

    lblURL.caption = "Address:";
    cmdURL.caption = "Go";
    cmdURL.tip = "Go to the displayed address.";
    cmdStop.caption = "Stop";
    cmdStop.left = 1500;
    cmdStop.top = 705;
    cmdStop.pointer = 1;
    picGauge.left = 120;
    picGauge.top = 330;
    for (Child* hidden : {&picToolbar, &lblURL, &txtURL, &cmdURL, &picTest, &fraStop, &picGauge, &picGauge2})
        hidden->visible = false;
}

const Child* Children::UserButton(Long number) const {
    const auto at = static_cast<std::size_t>(number) - 1;
    return number >= 1 && at < users_.size() ? users_[at].get() : nullptr;
}

Child& Children::AddUserButton() {
    const Text name = "cmdButton(" + std::to_string(users_.size() + 1) + ")";
    users_.push_back(std::make_unique<Child>(ChildKind::CommandButton, name, &picToolbar));
    users_.back()->visible = false;
    return *users_.back();
}

std::vector<const Child*> Children::All() const {
    std::vector<const Child*> all{&picBrowser, &brwBrowser, &picToolbar};
    for (const auto& button : defaults_) all.push_back(button.get());
    all.push_back(&template_);
    for (const auto& button : users_) all.push_back(button.get());
    for (const Child* child :
         {&lblURL, &txtURL, &cmdURL, &picTest, &fraStop, &cmdStop, &picGauge, &picGauge2})
        all.push_back(child);
    return all;
}

const Child* Children::Find(std::string_view name) const {
    if (name.empty()) return &control;
    for (const Child* child : All())
        if (child->name == name) return child;
    return nullptr;
}

} // namespace ostrel
