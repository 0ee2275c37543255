#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/Colours.h"

namespace ostrel {

Text OstrelWebHelp::ColourActualToHex(Long Colour) {
    return parts_->guard([&] { return services::ColourActualToHex(Colour); });
}

Text OstrelWebHelp::ColourActualToName(Long Colour) {
    return parts_->guard([&] { return services::ColourActualToName(Colour); });
}

Long OstrelWebHelp::ColourHexToActual(const Text& Colour) {
    return parts_->guard([&] { return services::ColourHexToActual(Colour); });
}

Text OstrelWebHelp::ColourHexToName(const Text& Colour) {
    return parts_->guard([&] { return services::ColourHexToName(Colour); });
}

Text OstrelWebHelp::ColourNameToHex(const Text& Colour) {
    return parts_->guard([&] { return services::ColourNameToHex(Colour); });
}

Long OstrelWebHelp::ColourNameToActual(const Text& Colour) {
    return parts_->guard([&] { return services::ColourNameToActual(Colour); });
}

} // namespace ostrel
