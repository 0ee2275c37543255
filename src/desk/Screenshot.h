#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace ostrel::desk {

class MainWindow;

/// Waits until a window has loaded all that it is going to show, leaves a picture of it and ends the
/// application: with status 0, or with 1 and a sentence where that failed or the window shows an error.
class Screenshot final : public QObject {
    Q_OBJECT

public:
    Screenshot(MainWindow& window, QString file);

private:
    void Look();
    void Take();

    MainWindow& window_;
    QString file_;
    QTimer timer_;
    QElapsedTimer running_, quiet_;
};

} // namespace ostrel::desk
