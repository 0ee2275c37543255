#include "desktop/Zoom.h"

#include <QShortcut>
#include <QWebEnginePage>
#include <QWidget>
#include <algorithm>

namespace ostrel::desktop {

namespace {

constexpr double Step = 1.1;
// The engine takes no factors outside these.
constexpr double Smallest = 0.25, Largest = 5.0;

void AddShortcut(QWidget& widget, const QKeySequence& keys, std::function<void()> action) {
    auto* shortcut = new QShortcut(keys, &widget);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &widget, std::move(action));
}

} // namespace

void AddZoomShortcuts(QWidget& widget, QWebEnginePage& page) {
    const auto zoom = [&page](double factor) {
        page.setZoomFactor(std::clamp(page.zoomFactor() * factor, Smallest, Largest));
    };
    for (const int key : {Qt::Key_Plus, Qt::Key_Equal})
        AddShortcut(widget, QKeySequence(static_cast<int>(Qt::CTRL) | key), [zoom] { zoom(Step); });
    AddShortcut(widget, QKeySequence(Qt::CTRL | Qt::Key_Minus), [zoom] { zoom(1 / Step); });
    AddShortcut(widget, QKeySequence(Qt::CTRL | Qt::Key_0), [&page] { page.setZoomFactor(1); });
}

} // namespace ostrel::desktop
