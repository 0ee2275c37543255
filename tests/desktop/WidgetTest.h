#pragma once

#include <QObject>

namespace ostrel::test {

/// The component as a widget: its children stand where the layout says, and what a user does to them arrives.
class WidgetTest final : public QObject {
    Q_OBJECT

private slots:
    void RectanglesAreThoseOfTheLayout_data();
    void RectanglesAreThoseOfTheLayout();
    void ClicksRunTheActions();
    void ListenerMayKillAClick();
    void UserButtonsAreClicked();
    void AddressLineLoads();
    void StopPanelStopsARun();
    void MouseIsToldInTheControlsCoordinates();
    void ModelsArriveAtTheWidgets();
    void YieldsKeepTheWindowAlive();
    void SleepsUntilSomethingIsDueOrReady();
};

} // namespace ostrel::test
