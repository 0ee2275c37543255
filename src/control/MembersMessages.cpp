#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"

namespace ostrel {

namespace {

MessageAnswer Show(ControlParts& parts, MessageKind kind, const Text& text, MessageButtons buttons) {
    return parts.context.platform.screen->Message(kind, text, parts.state.service.ProgramName, buttons);
}

void Wait(ControlParts& parts, Long milliseconds) {
    if (milliseconds > 0) parts.context.platform.clock->Wait(milliseconds);
}

} // namespace

void OstrelWebHelp::MessageError(const Text& ErrorMessage) {
    parts_->guard([&] { Show(*parts_, MessageKind::Error, ErrorMessage, MessageButtons::Ok); });
}

void OstrelWebHelp::MessageInfo(const Text& ErrorMessage) {
    parts_->guard([&] { Show(*parts_, MessageKind::Info, ErrorMessage, MessageButtons::Ok); });
}

Long OstrelWebHelp::MessageQuery(const Text& ErrorMessage, Long Buttons) {
    return parts_->guard([&] {
        // The higher bits of a host's flags choose an icon and a default, which a question has already.
        constexpr Long buttonBits = 7;
        const auto buttons = static_cast<MessageButtons>(Buttons & buttonBits);
        return static_cast<Long>(Show(*parts_, MessageKind::Query, ErrorMessage, buttons));
    });
}

void OstrelWebHelp::MessageWarn(const Text& ErrorMessage) {
    parts_->guard([&] { Show(*parts_, MessageKind::Warn, ErrorMessage, MessageButtons::Ok); });
}

void OstrelWebHelp::WaitMilliSeconds(Long MilliSeconds) {
    parts_->guard([&] { Wait(*parts_, MilliSeconds); });
}

void OstrelWebHelp::WaitSeconds(Long Seconds) {
    parts_->guard([&] {
        for (; Seconds > 0; --Seconds) Wait(*parts_, 1000);
    });
}

} // namespace ostrel
