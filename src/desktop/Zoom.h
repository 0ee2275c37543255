#pragma once

class QWebEnginePage;
class QWidget;

namespace ostrel::desktop {

/// Ctrl + and Ctrl - make a page larger and smaller, Ctrl 0 resets it, wherever inside
/// `widget` the focus is.
void AddZoomShortcuts(QWidget& widget, QWebEnginePage& page);

} // namespace ostrel::desktop
