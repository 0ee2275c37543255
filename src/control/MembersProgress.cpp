#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"

namespace ostrel {

void OstrelWebHelp::ClockStart() {
    parts_->guard([&] { parts_->clock.Start(); });
}

Text OstrelWebHelp::ClockStop() {
    return parts_->guard([&] { return parts_->clock.Stop(); });
}

Text OstrelWebHelp::ClockTime() {
    return parts_->guard([&] { return parts_->clock.Seconds(); });
}

void OstrelWebHelp::StopGaugeReset() {
    parts_->guard([&] { parts_->stopPanel.ResetGauge(); });
}

void OstrelWebHelp::StopGaugeShow(Single ShowFraction) {
    parts_->guard([&] { parts_->stopPanel.ShowGauge(ShowFraction); });
}

void OstrelWebHelp::HostStop(Flag Value) {
    parts_->guard([&] { parts_->run.HostStop = Value; });
}

void OstrelWebHelp::StopHide() {
    parts_->guard([&] { parts_->stopPanel.Hide(); });
}

void OstrelWebHelp::StopShow(const Text& Heading) {
    parts_->guard([&] { parts_->stopPanel.Show(Heading); });
}

} // namespace ostrel
