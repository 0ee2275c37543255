#include "desktop/OstrelWebHelpWidget.h"

#include <QAbstractEventDispatcher>
#include <QMouseEvent>
#include <QShortcut>

#include "desktop/ControlView.h"
#include "desktop/FindBar.h"
#include "desktop/QtClipboard.h"
#include "desktop/QtClock.h"
#include "desktop/QtPane.h"
#include "desktop/QtScreen.h"
#include "desktop/Twips.h"
#include "desktop/Zoom.h"
#include "platform/native/NativePlatform.h"

namespace ostrel::desktop {

OstrelWebHelpWidget::OstrelWebHelpWidget(QWidget* parent, EventList::AnyListener listener)
    : QWidget(parent), view_(std::make_unique<ControlView>(*this)) {
    setMouseTracking(true);
    platform_.clock = std::make_unique<QtClock>([this] { Sync(); });
    platform_.files = MakeNativeFiles();
    platform_.settings = MakeNativeSettings();
    platform_.transfers = MakeNativeTransfers();
    platform_.screen = std::make_unique<QtScreen>(*this);
    platform_.clipboard = std::make_unique<QtClipboard>();
    auto pane = std::make_unique<QtPane>(view_->PaneHost());
    pane_ = pane.get();
    platform_.pane = std::move(pane);

    web_ = std::make_unique<OstrelWebHelp>(platform_, std::move(listener));
    web_->events.GetControlPosition.Listen([this](Long& top, Long& left) {
        const QPoint corner = mapToGlobal(QPoint(0, 0));
        const Twips twips(*this);
        top = static_cast<Long>(twips.FromDown(corner.y()));
        left = static_cast<Long>(twips.FromAcross(corner.x()));
    });
    web_->InitProperties();
    view_->Attach(web_.get());
    // The model sends no change notifications, so the widgets are updated before the event loop sleeps.
    if (auto* loop = QAbstractEventDispatcher::instance())
        connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, [this] { Sync(); });
    AddShortcuts();
}

OstrelWebHelpWidget::~OstrelWebHelpWidget() {
    // Listeners of the control's last events may still run the event loop, in which the widgets read it.
    web_->Terminate();
    view_->Attach(nullptr);
    web_.reset();
}

void OstrelWebHelpWidget::AddShortcuts() {
    auto* find = new FindBar(pane_->View());
    const auto add = [this](const QKeySequence& keys, auto action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(QKeySequence::Find, [find] { find->Open(); });
    AddZoomShortcuts(*this, *pane_->View().page());
}

QWidget* OstrelWebHelpWidget::ChildWidget(const Text& name) const { return view_->Find(name); }

void OstrelWebHelpWidget::Sync() { view_->Sync(); }

bool OstrelWebHelpWidget::InYield() const { return static_cast<const QtClock&>(*platform_.clock).InYield(); }

void OstrelWebHelpWidget::resizeEvent(QResizeEvent*) {
    const Twips twips(*this);
    web_->ResizeTo(static_cast<Long>(twips.FromAcross(width())), static_cast<Long>(twips.FromDown(height())));
    Sync();
}

void OstrelWebHelpWidget::mousePressEvent(QMouseEvent* event) { view_->Mouse(*event, {}); }
void OstrelWebHelpWidget::mouseReleaseEvent(QMouseEvent* event) { view_->Mouse(*event, {}); }
void OstrelWebHelpWidget::mouseMoveEvent(QMouseEvent* event) { view_->Mouse(*event, {}); }

} // namespace ostrel::desktop
