#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "desktop/LineText.h"
#include "desktop/QtText.h"
#include "desktop/ShownControl.h"

namespace ostrel::desktop {

namespace {

/// A button that can be as narrow as its caption.
class CaptionButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

    void MakeCompact() {
        compact_ = true;
        updateGeometry();
    }
    QSize sizeHint() const override {
        const QSize usual = QPushButton::sizeHint();
        if (!compact_) return usual;
        const int caption = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
        return {std::max(caption + 2 * fontMetrics().averageCharWidth() + 6, usual.height()), usual.height()};
    }

private:
    bool compact_ = false;
};

class ShownButton final : public ShownControl {
public:
    ShownButton(Button& button, CaptionButton& push, UserActions& user)
        : ShownControl(button, push, Room::Button), button_(button), push_(push) {
        // Enter is the dialog's: the toolkit's own default would be any button.
        push.setAutoDefault(false);
        push.setDefault(button.purpose == Purpose::Accept);
        QObject::connect(&push, &QPushButton::clicked, &push,
                         [&button, &user] { user.Act(button, [&] { button.Press(); }); });
    }

    void MakeCompact() override { push_.MakeCompact(); }

protected:
    void SyncContent() override {
        if (caption_.Follow(button_.caption)) push_.setText(ShownLines(*button_.caption));
    }

private:
    Button& button_;
    CaptionButton& push_;
    ShownRevision caption_;
};

class ShownCheckBox final : public ShownControl {
public:
    ShownCheckBox(CheckBox& box, QCheckBox& tick, UserActions& user)
        : ShownControl(box, tick, Room::Choice), box_(box), tick_(tick) {
        QObject::connect(&tick, &QCheckBox::clicked, &tick,
                         [&box, &user](bool ticked) { user.Act(box, [&] { box.Enter(Flag(ticked)); }); });
    }

protected:
    void SyncContent() override {
        if (caption_.Follow(box_.caption)) tick_.setText(ShownLines(*box_.caption));
        tick_.setChecked(box_.value);
    }

private:
    CheckBox& box_;
    QCheckBox& tick_;
    ShownRevision caption_;
};

/// The options that exclude each other, by the number of their group and the frame they lie in.
QButtonGroup& GroupOf(const OptionButton& option, QWidget& dialog) {
    const QString name =
        QString("%1 of %2").arg(option.group).arg(option.container ? ToQt(option.container->name) : "form");
    auto* group = dialog.findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
    if (!group) {
        group = new QButtonGroup(&dialog);
        group->setObjectName(name);
    }
    return *group;
}

class ShownOptionButton final : public ShownControl {
public:
    ShownOptionButton(OptionButton& option, QRadioButton& radio, QButtonGroup& group, UserActions& user)
        : ShownControl(option, radio, Room::Choice), option_(option), radio_(radio), group_(group) {
        group.addButton(&radio);
        QObject::connect(&radio, &QRadioButton::clicked, &radio,
                         [&option, &user] { user.Act(option, [&] { option.Press(); }); });
    }

protected:
    void SyncContent() override {
        if (caption_.Follow(option_.caption)) radio_.setText(ShownLines(*option_.caption));
        if (radio_.isChecked() == option_.value) return;
        // A group of the toolkit keeps one chosen for ever; one of the form may have none.
        group_.setExclusive(false);
        radio_.setChecked(option_.value);
        group_.setExclusive(true);
    }

private:
    OptionButton& option_;
    QRadioButton& radio_;
    QButtonGroup& group_;
    ShownRevision caption_;
};

} // namespace

std::unique_ptr<ShownControl> Show(Button& button, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownButton>(button, *new CaptionButton(&dialog), user);
}

std::unique_ptr<ShownControl> Show(CheckBox& box, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownCheckBox>(box, *new QCheckBox(&dialog), user);
}

std::unique_ptr<ShownControl> Show(OptionButton& option, QWidget& dialog, UserActions& user) {
    return std::make_unique<ShownOptionButton>(option, *new QRadioButton(&dialog), GroupOf(option, dialog),
                                               user);
}

} // namespace ostrel::desktop
