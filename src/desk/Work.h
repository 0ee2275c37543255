#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "desktop/OstrelWebHelpWidget.h"

namespace ostrel::desk {

/// The one long piece of work that the application does at a time. The windows answer meanwhile, and the user
/// sees how far it is and may stop it; nothing else that is long may begin before it has ended.
class Work final : public QObject {
    Q_OBJECT

public:
    explicit Work(desktop::OstrelWebHelpWidget& widget);

    /// Work is being done for as long as one of these lives.
    class Turn {
    public:
        Turn(Work& work, const QString& heading) : work_(work) { work_.Begin(heading); }
        ~Turn() { work_.End(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        Work& work_;
    };

    bool Running() const { return running_; }
    bool StopWanted() const { return stopWanted_; }
    /// Lets the windows answer where it is time. The result is `StopWanted`.
    bool GiveWay();
    /// Shows how much is done, from 0 to 1.
    void Show(double fraction);
    void Stop();

signals:
    /// It has begun or ended.
    void Changed();

private:
    void Begin(const QString& heading);
    void End();
    void ShowPanelWhereDue();

    desktop::OstrelWebHelpWidget& widget_;
    QElapsedTimer clock_;
    Text heading_;
    bool running_ = false;
    bool stopWanted_ = false;
    bool panelShown_ = false;
};

} // namespace ostrel::desk
