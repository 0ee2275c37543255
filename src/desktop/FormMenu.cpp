#include "desktop/FormMenu.h"

#include <QMenu>
#include <QPointer>
#include <map>

#include "desktop/LineText.h"
#include "desktop/QtText.h"

namespace ostrel::desktop {

namespace {

using Choices = std::map<const QAction*, MenuItem*>;

void AddItems(QMenu& menu, const std::vector<MenuItem*>& items, Choices& choices) {
    for (MenuItem* item : items) {
        if (!item->visible) continue;
        if (*item->caption == "-") {
            menu.addSeparator();
            continue;
        }
        const QString caption = ShownLines(*item->caption, ' ');
        QAction* action = nullptr;
        if (item->items.empty()) {
            action = menu.addAction(caption);
            choices[action] = item;
        } else {
            QMenu* inner = menu.addMenu(caption);
            AddItems(*inner, item->items, choices);
            action = inner->menuAction();
        }
        action->setObjectName(ToQt(item->name));
        action->setEnabled(item->enabled);
    }
}

} // namespace

MenuItem* AskMenu(const Menu& menu, QWidget& owner, QPoint place) {
    const QPointer<QMenu> shown = new QMenu(&owner);
    shown->setObjectName(ToQt(menu.name));
    Choices choices;
    AddItems(*shown, menu.items, choices);
    const QAction* chosen = shown->isEmpty() ? nullptr : shown->exec(place);
    const auto choice = choices.find(chosen);
    delete shown;
    return choice == choices.end() ? nullptr : choice->second;
}

} // namespace ostrel::desktop
