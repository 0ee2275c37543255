#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QInputMethodEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>

#include "desktop/QtClock.h"
#include "desktop/QtScreen.h"
#include "desktop/QtText.h"
#include "ui/Dialogs.h"

namespace ostrel::test {

/// A window on the desktop whose forms and messages are worked by a user with real keys and clicks.
class FormBench {
public:
    FormBench() {
        owner.resize(900, 700);
        owner.show();
        (void)QTest::qWaitForWindowExposed(&owner);
        platform.clock = std::make_unique<desktop::QtClock>();
        platform.screen = std::make_unique<desktop::QtScreen>(owner);
    }

    /// Shows the form, lets the user work at it, and closes what still stands then. True when the form was
    /// accepted.
    bool Show(Form& form, const std::function<void(QDialog&)>& user) {
        Attend<QDialog>(user);
        return ShowDialog(dialogs, form, At{form.left, form.top});
    }

    /// Calls `user` once the next modal window stands.
    template <class Window>
    static void Attend(const std::function<void(Window&)>& user) {
        QTimer::singleShot(0, [user] {
            QPointer<Window> window = qobject_cast<Window*>(QApplication::activeModalWidget());
            QVERIFY2(window, "no modal window stands");
            (void)QTest::qWaitForWindowActive(window);
            user(*window);
            if (window && window->isVisible()) window->done(0);
        });
    }

    /// A click where a check box, an option and a button all feel it.
    static void Click(const QDialog& dialog, const char* name) {
        QWidget* widget = Find<QWidget>(dialog, name);
        QTest::mouseClick(widget, Qt::LeftButton, {}, {8, widget->height() / 2});
    }
    /// Types what a keyboard of one language has no key for.
    static void Commit(QWidget* widget, const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(widget, &event);
    }
    template <class Widget>
    static Widget* Find(const QDialog& dialog, const char* name) {
        Widget* widget = dialog.findChild<Widget*>(name);
        if (!widget) qFatal("no widget %s", name);
        return widget;
    }

    QWidget owner;
    Platform platform;
    Events events;
    RunFlags run;
    Context context{events, platform, run};
    DialogProperties properties;
    Dialogs dialogs{context, properties};
};

} // namespace ostrel::test
