#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/CountryCode.h"
#include "services/TimeText.h"

namespace ostrel {

Long OstrelWebHelp::CountryCode() {
    return parts_->guard([&] { return services::CountryCode(); });
}

Text OstrelWebHelp::HoursMinutes(Long Minutes) {
    return parts_->guard([&] { return services::HoursMinutes(Minutes); });
}

Text OstrelWebHelp::HoursMinutesSeconds(Long Seconds) {
    return parts_->guard([&] { return services::HoursMinutesSeconds(Seconds); });
}

Flag OstrelWebHelp::IsTime(const Text& InputString, const Text& TimeDelimiter) {
    return parts_->guard([&] { return services::IsTime(InputString, TimeDelimiter); });
}

Text OstrelWebHelp::MinutesSeconds(Long Seconds) {
    return parts_->guard([&] { return services::MinutesSeconds(Seconds); });
}

} // namespace ostrel
