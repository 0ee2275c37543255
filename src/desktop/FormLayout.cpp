#include "desktop/FormLayout.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <algorithm>
#include <functional>

#include "desktop/FlowLayout.h"

namespace ostrel::desktop {

namespace {

using Controls = std::vector<ShownControl*>;

bool IsSmall(const ShownControl* shown) {
    return shown->TakenRoom() == Room::Choice || shown->TakenRoom() == Room::Button;
}

bool IsLarge(const ShownControl& shown) {
    return shown.TakenRoom() == Room::List || shown.TakenRoom() == Room::Editor;
}

bool Serves(const ShownControl* shown, Purpose purpose) { return shown->Model().purpose == purpose; }

/// Fills one area: the dialog, or a frame in it.
class Arranger {
public:
    Arranger(QWidget& area, const ShownControls& all) : grid_(*new QGridLayout(&area)), all_(all) {
        grid_.setColumnStretch(1, 1);
    }

    /// Puts what lies in that frame, or outside all frames, into the rows; whether something can grow.
    bool Fill(const Control* container);

private:
    Controls Matching(const std::function<bool(const Control&)>& wanted) const;
    void AddRow(ShownControl& shown);
    void AddField(ShownControl& shown, Controls companions);
    void AddFlow(const Controls& controls);
    void AddFoot(const Controls& foot);
    void AddWide(QWidget& widget) { grid_.addWidget(&widget, row_++, 0, 1, 2); }
    /// The row of a control, with those that share it before and behind it.
    QHBoxLayout* RowOf(ShownControl& shown, const Controls& companions) const;

    QGridLayout& grid_;
    const ShownControls& all_;
    int row_ = 0;
    bool grows_ = false;
};

bool Arranger::Fill(const Control* container) {
    Controls body, foot;
    for (ShownControl* shown : Matching([container](const Control& control) {
             return control.container == container && !control.beside;
         }))
        (container || Serves(shown, Purpose::None) ? body : foot).push_back(shown);
    for (auto at = body.begin(); at != body.end();) {
        if (!IsSmall(*at)) {
            AddRow(**at++);
            continue;
        }
        const auto end = std::find_if_not(at, body.end(), [first = *at](const ShownControl* each) {
            return each->TakenRoom() == first->TakenRoom();
        });
        AddFlow({at, end});
        at = end;
    }
    if (!grows_) grid_.setRowStretch(row_++, 1);
    if (!foot.empty()) AddFoot(foot);
    return grows_;
}

Controls Arranger::Matching(const std::function<bool(const Control&)>& wanted) const {
    Controls controls;
    for (const auto& shown : all_)
        if (wanted(shown->Model())) controls.push_back(shown.get());
    return controls;
}

void Arranger::AddRow(ShownControl& shown) {
    const Control& model = shown.Model();
    const Controls companions =
        Matching([&model](const Control& control) { return control.beside == &model; });
    if (shown.TakenRoom() == Room::Field) return AddField(shown, companions);
    const bool isFrame = std::any_of(
        all_.begin(), all_.end(), [&model](const auto& each) { return each->Model().container == &model; });
    const bool grows = isFrame ? Arranger(shown.Widget(), all_).Fill(&model) : IsLarge(shown);
    if (shown.Heading()) AddWide(*shown.Heading());
    // The main text of a form is what its window is made larger for.
    if (grows) grid_.setRowStretch(row_, shown.TakenRoom() == Room::Editor ? 8 : 1);
    grows_ = grows_ || grows;
    if (companions.empty()) return AddWide(shown.Widget());
    grid_.addLayout(RowOf(shown, companions), row_++, 0, 1, 2);
}

void Arranger::AddField(ShownControl& shown, Controls companions) {
    QWidget* heading = shown.Heading();
    // A label of its own kind stands where the heading would, which is empty then.
    if (!companions.empty() && companions.front()->TakenRoom() == Room::Row) {
        heading = &companions.front()->Widget();
        companions.erase(companions.begin());
    }
    QHBoxLayout* row = RowOf(shown, companions);
    if (shown.Heading() != heading) row->insertWidget(0, shown.Heading());
    grid_.addWidget(heading, row_, 0);
    grid_.addLayout(row, row_++, 1);
}

QHBoxLayout* Arranger::RowOf(ShownControl& shown, const Controls& companions) const {
    auto* row = new QHBoxLayout;
    // Beside what is higher than one line, they stand at its top.
    const Qt::Alignment top = IsLarge(shown) ? Qt::AlignTop : Qt::Alignment();
    const auto behind = [&](const ShownControl* companion) {
        for (const auto& each : all_) {
            if (each.get() == companion) return false;
            if (each.get() == &shown) return true;
        }
        return false;
    };
    const auto firstBehind = std::find_if(companions.begin(), companions.end(), behind);
    const auto add = [&](ShownControl* companion) {
        companion->MakeCompact();
        row->addWidget(&companion->Widget(), 0, top);
    };
    std::for_each(companions.begin(), firstBehind, add);
    row->addWidget(&shown.Widget(), 1);
    std::for_each(firstBehind, companions.end(), add);
    return row;
}

void Arranger::AddFlow(const Controls& controls) {
    constexpr int Comfortable = 560;
    auto* flow = new FlowLayout(Comfortable);
    for (ShownControl* each : controls) {
        each->MakeCompact();
        flow->addWidget(&each->Widget());
    }
    // Choices stand below the fields, buttons below their headings.
    const int column = controls.front()->TakenRoom() == Room::Choice ? 1 : 0;
    grid_.addLayout(flow, row_++, column, 1, 2 - column);
}

void Arranger::AddFoot(const Controls& foot) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, grid_.contentsMargins().top() / 2, 0, 0);
    // Where no OK ends the form, the others are its main actions and stand where the OK would.
    const bool confirmed = std::any_of(
        foot.begin(), foot.end(), [](const ShownControl* each) { return Serves(each, Purpose::Accept); });
    if (!confirmed) row->addStretch();
    for (const ShownControl* each : foot)
        if (Serves(each, Purpose::Footer)) row->addWidget(&each->Widget());
    if (confirmed) row->addStretch();
    for (const ShownControl* each : foot)
        if (!Serves(each, Purpose::Footer)) row->addWidget(&each->Widget());
    grid_.addLayout(row, row_++, 0, 1, 2);
}

} // namespace

void ArrangeForm(QWidget& dialog, const ShownControls& controls) {
    Arranger(dialog, controls).Fill(nullptr);
    for (std::size_t next = 1; next < controls.size(); ++next)
        QWidget::setTabOrder(&controls[next - 1]->Widget(), &controls[next]->Widget());
}

} // namespace ostrel::desktop
