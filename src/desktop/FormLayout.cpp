#include "desktop/FormLayout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <algorithm>
#include <array>

#include "desktop/FlowLayout.h"
#include "text/CodePage.h"

namespace ostrel::desktop {

namespace {

using Controls = std::vector<ShownControl*>;
using Place = Controls::const_iterator;

bool IsKind(const ShownControl* shown, ControlKind kind) { return shown->Model().kind == kind; }

bool IsChoice(const ShownControl* shown) {
    return IsKind(shown, ControlKind::CheckBox) || IsKind(shown, ControlKind::OptionButton);
}

/// What may stand in a row of buttons: a patch of colour does what the button beside it does.
bool IsButton(const ShownControl* shown) {
    return IsKind(shown, ControlKind::Button) || IsKind(shown, ControlKind::PictureBox);
}

bool IsLineField(const ShownControl* shown) {
    if (IsKind(shown, ControlKind::ComboBox)) return true;
    return IsKind(shown, ControlKind::TextBox) && !static_cast<const TextBox&>(shown->Model()).lines;
}

bool IsLarge(const ShownControl* shown) {
    if (IsKind(shown, ControlKind::TextBox)) return static_cast<const TextBox&>(shown->Model()).lines;
    return IsKind(shown, ControlKind::RichText) || IsKind(shown, ControlKind::ListBox) ||
           IsKind(shown, ControlKind::Grid);
}

bool EndsForm(const ShownControl* shown) {
    static constexpr std::array<TextView, 3> Names{"cmdOK", "cmdCancel", "cmdClose"};
    return IsKind(shown, ControlKind::Button) &&
           std::find(Names.begin(), Names.end(), shown->Model().name) != Names.end();
}

/// Whether a button serves the field before it: "txtColour", "cmdColour" and "picColour" belong together.
bool Serves(const ShownControl* button, const ShownControl* field) {
    constexpr std::size_t Prefix = 3;
    const TextView own = button->Model().name, other = field->Model().name;
    return IsKind(button, ControlKind::PictureBox) || (own.size() > Prefix && other.size() > Prefix &&
                                                       EqualText(own.substr(Prefix), other.substr(Prefix)));
}

/// A label that says what the field behind it is for, where that field has no label of its own.
bool Introduces(const ShownControl* label, const ShownControl* field) {
    constexpr std::size_t Short = 30;
    const Text& caption = static_cast<const Label&>(label->Model()).caption;
    if (!IsLineField(field) || caption.empty() || caption.size() > Short) return false;
    return IsKind(field, ControlKind::ComboBox) ? static_cast<const ComboBox&>(field->Model()).label.empty()
                                                : static_cast<const TextBox&>(field->Model()).label.empty();
}

/// Fills one area: the dialog, or a frame in it.
class Arranger {
public:
    Arranger(QWidget& area, const ShownControls& all) : grid_(*new QGridLayout(&area)), all_(all) {
        grid_.setColumnStretch(1, 1);
    }

    /// Puts what lies in that frame, or outside all frames, into the rows; whether something can grow.
    bool Fill(const Control* container);

private:
    Place AddField(Place field, Place end, QLabel* heading);
    void AddFlow(Place from, Place to, int column);
    void AddLarge(const ShownControl* shown);
    void AddFrame(const ShownControl* shown);
    void AddFoot(const Controls& helpers, const Controls& enders);
    void AddWide(QWidget& widget) { grid_.addWidget(&widget, row_++, 0, 1, 2); }

    QGridLayout& grid_;
    const ShownControls& all_;
    int row_ = 0;
    bool grows_ = false;
};

/// Takes the buttons at the end of the body that serve the whole form and no field.
Controls TakeHelpers(Controls& body) {
    const auto firstOfRun = std::find_if_not(body.rbegin(), body.rend(), [](const ShownControl* each) {
                                return IsButton(each);
                            }).base();
    auto first = firstOfRun;
    if (first != body.begin() && IsLineField(*std::prev(first)))
        while (first != body.end() && Serves(*first, *std::prev(firstOfRun))) ++first;
    constexpr std::ptrdiff_t Few = 5;
    const bool plain = std::all_of(
        first, body.end(), [](const ShownControl* each) { return IsKind(each, ControlKind::Button); });
    if (!plain || std::distance(first, body.end()) > Few) return {};
    const Controls helpers(first, body.end());
    body.erase(first, body.end());
    return helpers;
}

bool Arranger::Fill(const Control* container) {
    Controls body, enders, helpers;
    for (const auto& shown : all_) {
        if (shown->Model().container != container) continue;
        (!container && EndsForm(shown.get()) ? enders : body).push_back(shown.get());
    }
    if (!container) helpers = TakeHelpers(body);
    for (Place at = body.begin(); at != body.end();) {
        const Place next = std::next(at);
        if (IsKind(*at, ControlKind::Label) && next != body.end() && Introduces(*at, *next)) {
            at = AddField(next, body.end(), static_cast<QLabel*>(&(*at)->Widget()));
        } else if (IsLineField(*at)) {
            at = AddField(at, body.end(), (*at)->Heading());
        } else if (IsChoice(*at)) {
            const Place end = std::find_if_not(at, Place(body.end()), IsChoice);
            AddFlow(at, end, 1);
            at = end;
        } else if (IsButton(*at)) {
            const Place end = std::find_if_not(at, Place(body.end()), IsButton);
            AddFlow(at, end, 0);
            at = end;
        } else {
            if (IsKind(*at, ControlKind::Frame))
                AddFrame(*at);
            else if (IsLarge(*at))
                AddLarge(*at);
            else
                AddWide((*at)->Widget());
            at = next;
        }
    }
    if (!grows_) grid_.setRowStretch(row_++, 1);
    if (!helpers.empty() || !enders.empty()) AddFoot(helpers, enders);
    return grows_;
}

/// Returns the place behind the field and the buttons beside it.
Place Arranger::AddField(Place field, Place end, QLabel* heading) {
    auto* row = new QHBoxLayout;
    // Its own, empty now, may be told later.
    if ((*field)->Heading() != heading) row->addWidget((*field)->Heading());
    row->addWidget(&(*field)->Widget(), 1);
    const Place behind = std::find_if_not(std::next(field), end, IsButton);
    for (Place beside = std::next(field); beside != behind; ++beside) {
        (*beside)->MakeCompact();
        row->addWidget(&(*beside)->Widget());
    }
    grid_.addWidget(heading, row_, 0);
    grid_.addLayout(row, row_++, 1);
    return behind;
}

void Arranger::AddFlow(Place from, Place to, int column) {
    constexpr int Comfortable = 560;
    auto* flow = new FlowLayout(Comfortable);
    for (Place at = from; at != to; ++at) {
        (*at)->MakeCompact();
        flow->addWidget(&(*at)->Widget());
    }
    grid_.addLayout(flow, row_++, column, 1, 2 - column);
}

void Arranger::AddLarge(const ShownControl* shown) {
    if (shown->Heading()) AddWide(*shown->Heading());
    // The main text of a form is what its window is made larger for.
    grid_.setRowStretch(row_, IsKind(shown, ControlKind::RichText) ? 8 : 1);
    AddWide(shown->Widget());
    grows_ = true;
}

void Arranger::AddFrame(const ShownControl* shown) {
    if (Arranger(shown->Widget(), all_).Fill(&shown->Model())) {
        grid_.setRowStretch(row_, 1);
        grows_ = true;
    }
    AddWide(shown->Widget());
}

void Arranger::AddFoot(const Controls& helpers, const Controls& enders) {
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(0, grid_.contentsMargins().top() / 2, 0, 0);
    // Where no OK ends the form, the others are its main actions and stand where the OK would.
    const bool confirmed = std::any_of(
        enders.begin(), enders.end(), [](const ShownControl* each) { return each->Model().name == "cmdOK"; });
    if (!confirmed) foot->addStretch();
    for (const ShownControl* helper : helpers) foot->addWidget(&helper->Widget());
    if (confirmed) foot->addStretch();
    for (const ShownControl* ender : enders) foot->addWidget(&ender->Widget());
    grid_.addLayout(foot, row_++, 0, 1, 2);
}

} // namespace

void ArrangeForm(QWidget& dialog, const ShownControls& controls) {
    Arranger(dialog, controls).Fill(nullptr);
    for (std::size_t next = 1; next < controls.size(); ++next)
        QWidget::setTabOrder(&controls[next - 1]->Widget(), &controls[next]->Widget());
}

} // namespace ostrel::desktop
