#include "control/Guard.h"
#include "services/Colours.h"

namespace ostrel {

Text OstrelWebHelp::ColourActualToHex(Long Colour) {
    return Guarded([&] { return services::ColourActualToHex(Colour); });
}

Text OstrelWebHelp::ColourActualToName(Long Colour) {
    return Guarded([&] { return services::ColourActualToName(Colour); });
}

Long OstrelWebHelp::ColourHexToActual(const Text& Colour) {
    return Guarded([&] { return services::ColourHexToActual(Colour); });
}

Text OstrelWebHelp::ColourHexToName(const Text& Colour) {
    return Guarded([&] { return services::ColourHexToName(Colour); });
}

Text OstrelWebHelp::ColourNameToHex(const Text& Colour) {
    return Guarded([&] { return services::ColourNameToHex(Colour); });
}

Long OstrelWebHelp::ColourNameToActual(const Text& Colour) {
    return Guarded([&] { return services::ColourNameToActual(Colour); });
}

} // namespace ostrel
