#pragma once

#include <QByteArray>
#include <QString>

#include "desk/NoticeBar.h"
#include "desk/Work.h"

namespace ostrel::desk {

/// What the menus do with the pages on view: search, print, properties, another address. Nothing is done
/// while other work runs.
class PageCommands {
public:
    /// All outlive the commands.
    PageCommands(QWidget& window, desktop::OstrelWebHelpWidget& widget, Work& work, NoticeBar& notice)
        : window_(window), widget_(widget), work_(work), notice_(notice) {}

    /// Asks for a phrase and shows the pages of the help directory that hold it.
    void Search(const QString& directory);
    /// Prints the page to the default printer.
    void Print();
    /// Prints the page to a PDF file in a directory that the user chooses, `start` first. Returns it; empty
    /// where nothing was printed.
    QString PrintToPdf(const QString& start);
    /// Runs an action of the component's toolbar, such as "Properties".
    void Press(const char* button);

private:
    QWidget& window_;
    desktop::OstrelWebHelpWidget& widget_;
    Work& work_;
    NoticeBar& notice_;
    QByteArray loaded_; ///< what the pages of the directory were when they were loaded for a search
};

} // namespace ostrel::desk
