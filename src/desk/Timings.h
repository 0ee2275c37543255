#pragma once

#include <QObject>

namespace ostrel::desk {

class MainWindow;

/// Tells on standard error, in milliseconds from the start of the process, when the window was first painted
/// and when the first page was loaded.
class Timings final : public QObject {
    Q_OBJECT

public:
    explicit Timings(MainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool painted_ = false, loaded_ = false;
};

} // namespace ostrel::desk
