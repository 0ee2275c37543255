#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"

namespace ostrel {

Text OstrelWebHelp::HelpPageCurrent() {
    return parts_->guard([&] { return Text(parts_->helpLoader.Current()); });
}

Flag OstrelWebHelp::HelpPageExists(const Text& HelpPage) {
    return parts_->guard([&]() -> Flag { return parts_->helpLoader.Exists(HelpPage); });
}

Text OstrelWebHelp::HelpPageInternal() {
    return parts_->guard([&] { return Text(parts_->helpLoader.Internal()); });
}

Flag OstrelWebHelp::HelpPageLoad(const Text& HelpPage, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        return parts_->helpLoader.Load(HelpPage, ErrorMessage);
    });
}

Flag OstrelWebHelp::HelpPageLoadInternal(Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        ErrorMessage.clear();
        return parts_->helpLoader.LoadInternal(ErrorMessage);
    });
}

void OstrelWebHelp::HelpPageLoadNow() {
    parts_->guard([&] { parts_->helpLoader.LoadNow(); });
}

Text OstrelWebHelp::HelpPageNext() {
    return parts_->guard([&] { return Text(parts_->helpLoader.Next()); });
}

} // namespace ostrel
