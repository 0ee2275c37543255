#include "desktop/FormDialog.h"

#include <QAbstractEventDispatcher>
#include <QIcon>
#include <QKeyEvent>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "desktop/FormKeys.h"
#include "desktop/FormMenu.h"
#include "desktop/LineText.h"
#include "desktop/PictureFile.h"
#include "desktop/QtText.h"
#include "desktop/Twips.h"

namespace ostrel::desktop {

namespace {

constexpr int SyncMilliseconds = 50;
/// A dialog of one short box is wide enough for its title.
constexpr int LeastWidth = 300;

Bounds BoundsOf(const Form& form) { return {form.left, form.top, form.width, form.height}; }

Long Rounded(double twips) { return static_cast<Long>(std::lround(twips)); }

/// What a window regains by itself is no choice of the user, and a handler may have moved the focus
/// meanwhile.
bool IsRegained(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

FormDialog::FormDialog(Form& form, QWidget* parent) : QDialog(parent), form_(form) {
    setObjectName(ToQt(form.name));
    setWindowFlag(Qt::WindowStaysOnTopHint, form.onTop);
    for (Control* control : form.Controls())
        if (auto shown = ShowControl(*control, *this, *this)) controls_.push_back(std::move(shown));
    ArrangeForm(*this, controls_);
    for (const auto& shown : controls_) shown->Widget().installEventFilter(this);
    if (form.MainText()) {
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        if (form.Popup()) {
            QWidget& text = ShownFor(form.MainText())->Widget();
            text.setContextMenuPolicy(Qt::CustomContextMenu);
            connect(&text, &QWidget::customContextMenuRequested, this,
                    [this, &text](QPoint place) { OpenMenu(*form_.Popup(), text.mapToGlobal(place)); });
        }
    }
    form.Window(this);
    Sync();
    Place();
    // The loop is about to wait after whatever changed the form. A long job may keep it from waiting.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &FormDialog::Sync);
    connect(&sync_, &QTimer::timeout, this, &FormDialog::Sync);
    sync_.start(SyncMilliseconds);
}

FormDialog::~FormDialog() {
    form_.Window(nullptr);
    // What widgets still say while they go is not the user's.
    syncing_ = true;
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

void FormDialog::Sync() {
    if (syncing_) return;
    if (!form_.Open()) {
        if (isVisible()) done(form_.Accepted() ? Accepted : Rejected);
        return;
    }
    if (revision_ == form_.Revision()) return;
    revision_ = form_.Revision();
    const QScopedValueRollback<bool> guard(syncing_, true);
    SyncWindow();
    for (const auto& shown : controls_) shown->Sync();
    SyncFocus();
}

void FormDialog::reject() {
    Carry([this] { form_.CloseBox(); });
}

bool FormDialog::eventFilter(QObject* watched, QEvent* event) {
    ShownControl* shown = ShownAt(watched);
    if (!shown || syncing_) return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        if (!IsRegained(static_cast<QFocusEvent*>(event)->reason())) form_.focus = &shown->Model();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        if (shown->Model().Reachable() && shown->Widget().focusPolicy() != Qt::NoFocus)
            form_.focus = &shown->Model();
        // The user means what is there now, not what was shown before a timer ran.
        Sync();
        if (!shown->Model().Reachable()) return true;
        break;
    default:
        return false;
    }
    if (event->type() != QEvent::KeyPress || &shown->Model() != form_.MainText()) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (!IsEnter(key) && !IsFormKey(key)) return false;
    SendKey(key);
    return true;
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
    const bool bare = !(event->modifiers() & ~Qt::KeypadModifier);
    if (bare && IsEnter(*event))
        PressEnter();
    else if (IsFormKey(*event))
        SendKey(*event);
    else
        QDialog::keyPressEvent(event);
}

void FormDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    TakePlace();
}

void FormDialog::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    TakePlace();
}

void FormDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    TakePlace();
}

void FormDialog::Act(Control& control, const std::function<void()>& action) {
    if (syncing_) return;
    // The toolkit has shown already what the user did, and the other options of a group follow there.
    const bool reachable = control.Reachable();
    for (const auto& shown : controls_)
        if (!reachable || &shown->Model() == &control) shown->Outdate();
    revision_.reset();
    Carry([&] {
        if (!reachable) return;
        if (control.TakesFocus()) form_.focus = &control;
        action();
    });
}

void FormDialog::Carry(const std::function<void()>& action) {
    // Handlers run the loop of events, in which the owner of the dialog may go and take it along.
    const QPointer<FormDialog> self = this;
    try {
        if (form_.Open()) action();
    } catch (...) {
        // The toolkit's loop lets nothing through, so it waits for whoever showed the form.
        if (!self) return;
        failure_ = std::current_exception();
        return done(Rejected);
    }
    if (self) Sync();
}

void FormDialog::PressEnter() {
    Sync();
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
    const auto& all = form_.Controls();
    const auto ok = std::find_if(all.begin(), all.end(), [](const Control* each) {
        return each->purpose == Purpose::Accept && each->Reachable();
    });
    if (ok != all.end()) Carry([&] { (*ok)->Press(); });
}

void FormDialog::SendKey(const QKeyEvent& event) {
    Sync();
    const RichText* text = form_.MainText();
    if (text && !text->Reachable()) return;
    Carry([&] { form_.Key(StrokeOf(event)); });
}

void FormDialog::OpenMenu(const Menu& menu, QPoint place) {
    Carry([this] { form_.PrepareMenu(); });
    if (!form_.Open() || !form_.MainText()->Reachable()) return;
    if (MenuItem* item = AskMenu(menu, *this, place)) Act(*item, [item] { item->Press(); });
}

void FormDialog::SyncWindow() {
    if (caption_.Follow(form_.caption)) setWindowTitle(TitleText(*form_.caption));
    if (icon_.Follow(form_.icon)) setWindowIcon(QIcon(LoadPicture(*form_.icon)));
    if (!isVisible() || BoundsOf(form_) == place_) return;
    const Twips twips(*this);
    const QRect wanted(twips.Across(form_.left), twips.Down(form_.top), twips.Across(form_.width),
                       twips.Down(form_.height));
    resize(wanted.size());
    move(wanted.topLeft());
    place_ = BoundsOf(form_);
}

void FormDialog::SyncFocus() {
    const ShownControl* shown = ShownAt(focusWidget());
    if (form_.focus && shown && form_.focus == &shown->Model()) return;
    const ShownControl* wanted = ShownFor(form_.focus);
    if (wanted && form_.focus->Reachable())
        wanted->Widget().setFocus(Qt::OtherFocusReason);
    else if (shown)
        form_.focus = &shown->Model();
}

/// The size and place of the first showing. A form without a place is put over its owner by the toolkit.
void FormDialog::Place() {
    const Twips twips(*this);
    QSize size =
        sizeHint().expandedTo({std::max(LeastWidth, twips.Across(form_.width)), twips.Down(form_.height)});
    if (layout()->hasHeightForWidth())
        size.setHeight(std::max(size.height(), layout()->totalHeightForWidth(size.width())));
    const QRect room = screen()->availableGeometry();
    resize(size.boundedTo(room.size()));
    if (form_.left == 0 && form_.top == 0) return;
    // What is shown may be larger than the form asked for.
    const Bounds fitted = FitOnScreen({twips.Across(form_.left), twips.Down(form_.top), width(), height()},
                                      {room.x(), room.y(), room.width(), room.height()});
    move(fitted.left, fitted.top);
}

void FormDialog::TakePlace() {
    if (!isVisible() || syncing_ || isMaximized()) return;
    const Twips twips(*this);
    form_.left = Rounded(twips.FromAcross(x()));
    form_.top = Rounded(twips.FromDown(y()));
    form_.width = Rounded(twips.FromAcross(width()));
    form_.height = Rounded(twips.FromDown(height()));
    place_ = BoundsOf(form_);
}

Bounds FormDialog::PlaceOf(const Control& control) const {
    const ShownControl* shown = ShownFor(&control);
    if (!shown) return {};
    const Twips twips(*this);
    const QWidget& widget = shown->Widget();
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0)) - pos();
    return {Rounded(twips.FromAcross(corner.x())), Rounded(twips.FromDown(corner.y())),
            Rounded(twips.FromAcross(widget.width())), Rounded(twips.FromDown(widget.height()))};
}

ShownControl* FormDialog::ShownAt(const QObject* widget) const {
    for (; widget && widget != this; widget = widget->parent())
        for (const auto& shown : controls_)
            if (&shown->Widget() == widget) return shown.get();
    return nullptr;
}

ShownControl* FormDialog::ShownFor(const Control* control) const {
    for (const auto& shown : controls_)
        if (&shown->Model() == control) return shown.get();
    return nullptr;
}

} // namespace ostrel::desktop
