#include "desktop/ControlView.h"

#include <QMouseEvent>
#include <QPixmap>
#include <utility>

#include "desktop/LineText.h"
#include "desktop/QtScreen.h"
#include "desktop/QtText.h"
#include "desktop/ToolbarGlyphs.h"
#include "desktop/Twips.h"
#include "platform/native/NativePaths.h"

namespace ostrel::desktop {

namespace {

/// Each only where it differs: setting costs a repaint.
void SyncChild(const Child& child, QWidget& widget) {
    const QRect place = Twips(widget).Rectangle(child.left, child.top, child.width, child.height);
    if (widget.geometry() != place) widget.setGeometry(place);
    if (widget.isEnabledTo(widget.parentWidget()) != child.enabled) widget.setEnabled(child.enabled);
    if (widget.isHidden() == child.visible) widget.setVisible(child.visible);
    if (child.pointer == 0) {
        if (widget.testAttribute(Qt::WA_SetCursor)) widget.unsetCursor();
    } else if (!widget.testAttribute(Qt::WA_SetCursor) ||
               widget.cursor().shape() != CursorOf(child.pointer)) {
        widget.setCursor(CursorOf(child.pointer));
    }
    if (const QString tip = TipText(child.tip); widget.toolTip() != tip) widget.setToolTip(tip);
}

Integer ButtonsOf(Qt::MouseButtons buttons) {
    return static_cast<Integer>((buttons.testFlag(Qt::LeftButton) ? 1 : 0) |
                                (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
                                (buttons.testFlag(Qt::MiddleButton) ? 4 : 0));
}

Integer ShiftOf(Qt::KeyboardModifiers keys) {
    return static_cast<Integer>((keys.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                                (keys.testFlag(Qt::ControlModifier) ? 2 : 0) |
                                (keys.testFlag(Qt::AltModifier) ? 4 : 0));
}

/// An event that a widget ignores is passed to its parent and would be reported there: for a button once
/// more, for a label or the stop panel though these have no events.
void KeepMouse(QWidget& widget) { widget.setAttribute(Qt::WA_NoMousePropagation); }

} // namespace

ControlView::ControlView(QWidget& surface)
    : surface_(surface), browser_(new QWidget(&surface)), paneHost_(new QWidget(browser_)),
      toolbar_(new QWidget(browser_)) {
    const auto keep = [this](const char* name, QWidget* widget) {
        widget->setObjectName(name);
        widgets_[name] = widget;
    };
    keep("picBrowser", browser_);
    keep("brwBrowser", paneHost_);
    keep("picToolbar", toolbar_);
    toolbar_->setAutoFillBackground(true);
    toolbar_->installEventFilter(this);
    toolbar_->setMouseTracking(true);
    browser_->setMouseTracking(true);
    for (int i = 0; i < ActionCount; ++i) {
        const Text name(DefaultButtons[static_cast<std::size_t>(i)].name);
        QToolButton* button = MakeToolbarButton(name);
        button->setIcon(ToolbarGlyph(static_cast<ToolbarAction>(i)));
        widgets_[name] = button;
    }
    MakeAddressLine();
    MakeStopPanel();
    for (const auto& [name, widget] : widgets_) {
        if (widget == browser_ || widget == paneHost_) continue;
        widget->hide();
        KeepMouse(*widget);
    }
}

QToolButton* ControlView::MakeToolbarButton(const Text& name) {
    auto* button = new QToolButton(toolbar_);
    button->setObjectName(ToQt(name));
    button->setAutoRaise(true);
    button->setIconSize({16, 16});
    button->setFocusPolicy(Qt::TabFocus);
    button->setMouseTracking(true);
    button->installEventFilter(this);
    KeepMouse(*button);
    connect(button, &QToolButton::clicked, this, [this, name] { Press(name); });
    return button;
}

void ControlView::MakeAddressLine() {
    addressLabel_ = new QLabel(toolbar_);
    address_ = new QLineEdit(toolbar_);
    go_ = new QPushButton(toolbar_);
    widgets_["lblURL"] = addressLabel_;
    widgets_["txtURL"] = address_;
    widgets_["cmdURL"] = go_;
    addressLabel_->setObjectName("lblURL");
    address_->setObjectName("txtURL");
    address_->setTextMargins(2, 0, 2, 0);
    go_->setObjectName("cmdURL");
    connect(address_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (web_) web_->TypeIntoChild("txtURL", FromQt(text));
    });
    connect(address_, &QLineEdit::returnPressed, this, [this] { Press("txtURL"); });
    connect(go_, &QPushButton::clicked, this, [this] { Press("cmdURL"); });
}

void ControlView::MakeStopPanel() {
    stopPanel_ = new QGroupBox(browser_);
    auto* stop = new QPushButton(stopPanel_);
    auto* track = new QFrame(stopPanel_);
    auto* bar = new QFrame(track);
    widgets_["fraStop"] = stopPanel_;
    widgets_["cmdStop"] = stop;
    widgets_["picGauge"] = track;
    widgets_["picGauge2"] = bar;
    for (const char* name : {"fraStop", "cmdStop", "picGauge", "picGauge2"})
        widgets_[name]->setObjectName(name);
    track->setStyleSheet("#picGauge { background: palette(base); border: 1px solid palette(mid); }"
                         "#picGauge2 { background: #1F6FB5; border: none; }");
    stopPanel_->setAutoFillBackground(true);
    connect(stop, &QPushButton::clicked, this, [this] { Press("cmdStop"); });
}

QWidget* ControlView::Find(const Text& name) const {
    if (name.empty()) return &surface_;
    const auto found = widgets_.find(name);
    if (found != widgets_.end()) return found->second;
    for (const UserButton& button : userButtons_)
        if (button.widget->objectName() == ToQt(name)) return button.widget;
    return nullptr;
}

void ControlView::Press(const Text& name) {
    if (!web_) return;
    web_->PressChild(name);
    Sync();
}

void ControlView::Sync() {
    if (!web_ || syncing_) return;
    syncing_ = true;
    const Children& children = web_->View();
    SyncUserButtons(children);
    for (const auto& [name, widget] : widgets_)
        if (const Child* child = children.Find(name)) SyncChild(*child, *widget);
    SyncAddressLine(children);
    const QString heading = ToQt(children.fraStop.caption);
    if (stopPanel_->title() != heading) stopPanel_->setTitle(heading);
    auto* stop = static_cast<QPushButton*>(widgets_["cmdStop"]);
    if (const QString caption = ToQt(children.cmdStop.caption); stop->text() != caption)
        stop->setText(caption);
    if (children.fraStop.visible) stopPanel_->raise();
    if (const bool enabled = web_->Enabled(); std::exchange(enabled_, enabled) != enabled)
        surface_.setEnabled(enabled);
    if (const QString tip = TipText(web_->ControlToolTip()); surface_.toolTip() != tip)
        surface_.setToolTip(tip);
    syncing_ = false;
}

void ControlView::SyncUserButtons(const Children& children) {
    const auto wanted = static_cast<std::size_t>(children.UserButtons());
    while (userButtons_.size() > wanted) {
        // The click that clears the buttons may come from one of them.
        userButtons_.back().widget->hide();
        userButtons_.back().widget->deleteLater();
        userButtons_.pop_back();
    }
    while (userButtons_.size() < wanted) {
        const Child& child = *children.UserButton(static_cast<Long>(userButtons_.size()) + 1);
        userButtons_.push_back({MakeToolbarButton(child.name), {}});
    }
    for (std::size_t i = 0; i < wanted; ++i) {
        const Child& child = *children.UserButton(static_cast<Long>(i) + 1);
        UserButton& button = userButtons_[i];
        SyncChild(child, *button.widget);
        if (child.picture.path == button.picture) continue;
        button.picture = child.picture.path;
        const auto path = NativePaths().ToSystem(button.picture);
        const QPixmap picture = path ? QPixmap(QString::fromStdString(*path)) : QPixmap();
        button.widget->setIcon(QIcon(picture));
        if (!picture.isNull()) button.widget->setIconSize(picture.size().boundedTo(QSize(64, 64)));
    }
}

void ControlView::SyncAddressLine(const Children& children) {
    if (const QString caption = ToQt(children.lblURL.caption); addressLabel_->text() != caption)
        addressLabel_->setText(caption);
    if (const QString caption = ToQt(children.cmdURL.caption); go_->text() != caption) go_->setText(caption);
    if (const QString text = ToQt(children.txtURL.text); address_->text() != text) address_->setText(text);
    if (address_->isReadOnly() != children.txtURL.locked) address_->setReadOnly(children.txtURL.locked);
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease && type != QEvent::MouseMove)
        return false;
    Mouse(*static_cast<QMouseEvent*>(event), FromQt(watched->objectName()));
    return false;
}

void ControlView::Mouse(const QMouseEvent& event, const Text& child) {
    if (!web_) return;
    const Twips twips(surface_);
    const auto x = static_cast<Single>(twips.FromAcross(event.position().x()));
    const auto y = static_cast<Single>(twips.FromDown(event.position().y()));
    const Integer shift = ShiftOf(event.modifiers());
    if (event.type() == QEvent::MouseMove)
        web_->MouseOverChild(MouseAction::Move, child, ButtonsOf(event.buttons()), shift, x, y);
    else
        web_->MouseOverChild(event.type() == QEvent::MouseButtonPress ? MouseAction::Down : MouseAction::Up,
                             child, ButtonsOf(event.button()), shift, x, y);
}

} // namespace ostrel::desktop
