#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace ostrel::desk {

inline constexpr const char* ApplicationTitle = "Ostrel Desk";

/// What the menus of the main window offer.
struct Actions {
    QAction *open, *openDirectory, *openAddress, *print, *printToPdf, *properties, *quit;
    QMenu* recent;
    QAction *make, *stop, *showFolder;
    QAction *panel, *reportOptions, *helpPages, *toolbar, *address;
    QAction *back, *forward, *home, *refresh, *search;
    QAction* about;
};

/// Fills the menu bar. Nothing is connected yet.
Actions AddMenus(QMainWindow& window);

} // namespace ostrel::desk
