#pragma once

#include <memory>
#include <vector>

#include "platform/Clock.h"
#include "ui/Control.h"

namespace ostrel {

/// A plain text that nobody edits.
class Label final : public Control {
public:
    Label(Form& form, std::string_view controlName, Text text = {})
        : Control(form, ControlKind::Label, controlName), caption(*this, std::move(text)) {}
    Tracked<Text> caption;
    Fields Look() const override;
    bool TakesFocus() const override { return false; }
};

/// A box of one or more lines of text, with a label before it.
class TextBox final : public Control {
public:
    TextBox(Form& form, std::string_view controlName, Text labelText = {}, Handler changed = {})
        : Control(form, ControlKind::TextBox, controlName), label(*this, std::move(labelText)),
          onChange(std::move(changed)) {}
    Tracked<Text> label;
    Tracked<Text> text{*this};
    Tracked<bool> locked{*this};
    /// Of several lines, which end in CR LF. Said once, before the form is shown.
    bool lines = false;
    /// Whether blanks at both ends go before the form takes the text.
    bool trims = true;
    Handler onChange;
    bool Enter(const UserValue& value) override;
    /// Whether the text is still what the user entered last.
    bool AsEntered() const { return entered_ == text.Revision(); }
    Fields Look() const override;
    void Tidy() override;

private:
    std::uint64_t entered_ = 0;
};

/// What can be ticked, with a caption beside it.
class Choice : public Control {
public:
    Choice(Form& form, ControlKind choiceKind, std::string_view controlName, Text text, char optionLetter,
           Handler clicked)
        : Control(form, choiceKind, controlName), caption(*this, std::move(text)),
          onClick(std::move(clicked)) {
        letter = optionLetter;
    }
    Tracked<Text> caption;
    Tracked<bool> value{*this};
    Handler onClick;
    Fields Look() const override;
    bool Ticked() const override { return value; }
    void Tick(bool ticked) override { value = ticked; }
};

/// A square to tick.
class CheckBox final : public Choice {
public:
    CheckBox(Form& form, std::string_view controlName, Text text, char optionLetter = 0, Handler clicked = {})
        : Choice(form, ControlKind::CheckBox, controlName, std::move(text), optionLetter,
                 std::move(clicked)) {}
    void Press() override;
    bool Enter(const UserValue& given) override;
};

/// One of several choices; those of one group and one container exclude each other.
class OptionButton final : public Choice {
public:
    OptionButton(Form& form, std::string_view controlName, Text text, char optionLetter = 0,
                 Handler clicked = {})
        : Choice(form, ControlKind::OptionButton, controlName, std::move(text), optionLetter,
                 std::move(clicked)) {}
    int group = 0;
    /// Chooses this one and clears the others of its group.
    void Choose();
    void Press() override;
    bool Enter(const UserValue& given) override;
};

/// Lines to pick from. `index` counts from 0, -1 for none.
class ListBox final : public Control {
public:
    explicit ListBox(Form& form, std::string_view controlName, Handler clicked = {},
                     Handler doubleClicked = {})
        : Control(form, ControlKind::ListBox, controlName), onClick(std::move(clicked)),
          onDoubleClick(std::move(doubleClicked)) {}
    Tracked<std::vector<Text>> items{*this};
    Tracked<Long> index{*this, -1};
    Handler onClick;
    Handler onDoubleClick;
    void Press() override;
    void DoublePress() override;
    bool Enter(const UserValue& value) override;
    Fields Look() const override;
};

/// A text box with lines to pick from. With `typing` off only its lines can be chosen.
class ComboBox final : public Control {
public:
    ComboBox(Form& form, std::string_view controlName, Text labelText = {}, bool openToTyping = true,
             Handler clicked = {}, Handler changed = {})
        : Control(form, ControlKind::ComboBox, controlName), label(*this, std::move(labelText)),
          typing(*this, openToTyping), onClick(std::move(clicked)), onChange(std::move(changed)) {}
    Tracked<Text> label;
    Tracked<Text> text{*this};
    Tracked<std::vector<Text>> items{*this};
    Tracked<Long> index{*this, -1};
    Tracked<bool> typing;
    Tracked<bool> locked{*this};
    Handler onClick;
    Handler onChange;
    /// Shows that line, with no handler run; -1 for none.
    void Show(Long line);
    bool Enter(const UserValue& value) override;
    Fields Look() const override;
};

/// A button to press. Without a handler it does what it is for.
class Button final : public Control {
public:
    Button(Form& form, std::string_view controlName, Text text, Handler clicked = {})
        : Control(form, ControlKind::Button, controlName), caption(*this, std::move(text)),
          onClick(std::move(clicked)) {}
    Button(Form& form, std::string_view controlName, Text text, Purpose buttonPurpose, Handler clicked = {})
        : Button(form, controlName, std::move(text), std::move(clicked)) {
        purpose = buttonPurpose;
    }
    Tracked<Text> caption;
    Handler onClick;
    void Press() override;
    Fields Look() const override;
};

/// A picture or a patch of colour.
class PictureBox final : public Control {
public:
    PictureBox(Form& form, std::string_view controlName, Handler clicked = {})
        : Control(form, ControlKind::PictureBox, controlName), onClick(std::move(clicked)) {}
    Tracked<Picture> picture{*this};
    /// Red is in the low byte; below 0 for none.
    Tracked<Long> colour{*this};
    Handler onClick;
    void Press() override;
};

/// A border with a heading; hides and disables what lies in it.
class FrameBox final : public Control {
public:
    FrameBox(Form& form, std::string_view controlName, Text text = {})
        : Control(form, ControlKind::FrameBox, controlName), caption(*this, std::move(text)) {}
    Tracked<Text> caption;
    Fields Look() const override;
    bool TakesFocus() const override { return false; }
};

/// Rows of texts, the header row first.
class GridBox final : public Control {
public:
    GridBox(Form& form, std::string_view controlName) : Control(form, ControlKind::GridBox, controlName) {}
    Tracked<std::vector<std::vector<Text>>> rows{*this};
    Fields Look() const override;
};

class MenuItem;

/// A menu that a right click on the main text opens. An item may carry a menu of its own.
class Menu final : public Control {
public:
    Menu(Form& form, std::string_view controlName);
    std::vector<MenuItem*> items;
    /// The captions of the visible items; "-" for a separator.
    std::vector<Text> Entries() const;
    Fields Look() const override;
    bool TakesFocus() const override { return false; }
};

class MenuItem final : public Control {
public:
    MenuItem(Form& form, Menu& menu, std::string_view controlName, Text text, Handler clicked = {});
    /// An item inside another item's sub-menu.
    MenuItem(Form& form, MenuItem& parent, std::string_view controlName, Text text, Handler clicked = {});
    Tracked<Text> caption;
    std::vector<MenuItem*> items;
    Handler onClick;
    void Press() override;
    Fields Look() const override;
    bool TakesFocus() const override { return false; }
};

/// A timer that runs only while its form is shown.
class FormTimer final : public Control {
public:
    FormTimer(Form& form, std::string_view controlName, Long milliseconds, Handler ticked)
        : Control(form, ControlKind::FormTimer, controlName), interval(milliseconds),
          onTick(std::move(ticked)) {
        enabled = false;
    }
    Long interval;
    Handler onTick;
    /// Starts its count afresh; while the form is not shown yet, it starts with the form.
    void Start();
    void Stop();
    Fields Look() const override;
    bool TakesFocus() const override { return false; }
    void BeginShow(Clock& clock) override;
    void EndShow() override { timer_.reset(); }
    Long Due() const override { return timer_ && timer_->Running() ? interval : 0; }

private:
    std::unique_ptr<Timer> timer_;
};

/// Several controls of one kind under one name, told apart by a number.
template <class Kind>
class ControlArray {
public:
    /// Elements `first` to `last`; `make` gives the element of a name and number.
    template <class Make>
    ControlArray(std::string_view arrayName, Long first, Long last, Make make) : first_(first) {
        for (Long i = first; i <= last; ++i)
            elements_.push_back(make(Text(arrayName) + "(" + std::to_string(i) + ")", i));
    }
    /// The element, or null outside the range.
    Kind* Find(Long number) const {
        const auto at = static_cast<std::size_t>(number - first_);
        return number >= first_ && at < elements_.size() ? elements_[at].get() : nullptr;
    }

private:
    Long first_;
    std::vector<std::unique_ptr<Kind>> elements_;
};

} // namespace ostrel
