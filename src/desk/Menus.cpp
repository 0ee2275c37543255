#include "desk/Menus.h"

#include <QMenuBar>

namespace ostrel::desk {

namespace {

/// `name` is what tests know the action by.
QAction* Add(QMenu& menu, const char* name, const QString& text, const QKeySequence& keys = {}) {
    QAction* action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcut(keys);
    return action;
}

QAction* AddSwitch(QMenu& menu, const char* name, const QString& text, const QKeySequence& keys = {}) {
    QAction* action = Add(menu, name, text, keys);
    action->setCheckable(true);
    return action;
}

} // namespace

Actions AddMenus(QMainWindow& window) {
    QMenuBar& bar = *window.menuBar();
    Actions actions{};

    QMenu& file = *bar.addMenu("&File");
    actions.open = Add(file, "open", "&Open…", QKeySequence::Open);
    actions.openDirectory = Add(file, "openDirectory", "Open &Help Directory…", QKeySequence("Ctrl+Shift+O"));
    actions.openAddress = Add(file, "openAddress", "Open &Address…", QKeySequence("Ctrl+L"));
    actions.recent = file.addMenu("Open &Recent");
    actions.recent->setObjectName("recent");
    file.addSeparator();
    actions.print = Add(file, "print", "&Print", QKeySequence::Print);
    actions.printToPdf = Add(file, "printToPdf", "Print to P&DF…");
    actions.properties = Add(file, "properties", "Page P&roperties", QKeySequence("Alt+Return"));
    file.addSeparator();
    actions.quit = Add(file, "quit", "&Quit", QKeySequence("Ctrl+Q"));

    QMenu& report = *bar.addMenu("&Report");
    actions.make = Add(report, "makeReport", "&Make Report", QKeySequence("Ctrl+M"));
    actions.stop = Add(report, "stop", "&Stop", QKeySequence("Esc"));
    report.addSeparator();
    actions.showFolder = Add(report, "showFolder", "Show Report &Folder");

    QMenu& view = *bar.addMenu("&View");
    actions.panel = AddSwitch(view, "panel", "Side &Panel", QKeySequence("F9"));
    actions.reportOptions = Add(view, "reportOptions", "Report &Options", QKeySequence("F7"));
    actions.helpPages = Add(view, "helpPagesPanel", "Pages of the &Help Directory", QKeySequence("F8"));
    view.addSeparator();
    actions.toolbar = AddSwitch(view, "toolbar", "&Toolbar");
    actions.address = AddSwitch(view, "address", "&Address Line");

    QMenu& go = *bar.addMenu("&Go");
    actions.back = Add(go, "back", "&Back", QKeySequence("Alt+Left"));
    actions.forward = Add(go, "forward", "&Forward", QKeySequence("Alt+Right"));
    actions.home = Add(go, "home", "&Home", QKeySequence("Alt+Home"));
    actions.refresh = Add(go, "refresh", "&Refresh", QKeySequence("F5"));
    go.addSeparator();
    actions.search = Add(go, "search", "&Search the Help Pages…", QKeySequence("Ctrl+Shift+F"));

    QMenu& help = *bar.addMenu("&Help");
    actions.about = Add(help, "about", "&About " + QString(ApplicationTitle) + "…");
    return actions;
}

} // namespace ostrel::desk
