#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "ui/DialogFilters.h"

namespace ostrel {

namespace {

Text PickFile(ControlParts& parts, bool save, const Text& filter, Long top, Long left, const Text& fileName,
              Text& directory, const Text& extension, Long filterIndex) {
    FilePick pick{save, filter, filterIndex, fileName, directory, extension};
    Text path = parts.dialogs.PickFile({.left = left, .top = top}, pick);
    if (!path.empty()) directory = pick.directory;
    return path;
}

} // namespace

void OstrelWebHelp::AdjustFormPosition(Form& FormToAdjust) {
    parts_->guard([&] {
        const Bounds place =
            FitOnScreen({FormToAdjust.left, FormToAdjust.top, FormToAdjust.width, FormToAdjust.height},
                        parts_->context.platform.screen->Area());
        FormToAdjust.left = place.left;
        FormToAdjust.top = place.top;
    });
}

Long OstrelWebHelp::DialogColour(Long Top, Long Left) {
    Long colour = -1;
    parts_->guard([&] { colour = parts_->dialogs.PickColour({.left = Left, .top = Top}); });
    return colour;
}

Text OstrelWebHelp::DialogDirectory(Long Top, Long Left, const Text& Title, const Text& InitDir, Long Flags) {
    return parts_->guard(
        [&] { return parts_->dialogs.PickDirectory({.left = Left, .top = Top}, Title, InitDir, Flags); });
}

Flag OstrelWebHelp::DialogDirectoryBusy() {
    return parts_->guard([&]() -> Flag { return parts_->dialogs.PicksDirectory(); });
}

Text OstrelWebHelp::DialogFileOpen(const Text& Filter, Long Top, Long Left, const Text& FileName,
                                   Text& InitDir, const Text& DefaultExt, Long FilterIndex) {
    return parts_->guard([&] {
        return PickFile(*parts_, false, Filter, Top, Left, FileName, InitDir, DefaultExt, FilterIndex);
    });
}

Text OstrelWebHelp::DialogFileSave(const Text& Filter, Long Top, Long Left, const Text& FileName,
                                   Text& InitDir, const Text& DefaultExt, Long FilterIndex) {
    return parts_->guard([&] {
        return PickFile(*parts_, true, Filter, Top, Left, FileName, InitDir, DefaultExt, FilterIndex);
    });
}

Text OstrelWebHelp::DialogDefaultFilter() {
    return parts_->guard([&] { return Text(ostrel::DialogDefaultFilter); });
}

Text OstrelWebHelp::DialogExtensionFilter(const Text& Extension, const Text& Extension2,
                                          const Text& Extension3) {
    return parts_->guard([&] { return ostrel::DialogExtensionFilter(Extension, Extension2, Extension3); });
}

Text OstrelWebHelp::DialogGraphicsFilter() {
    return parts_->guard([&] { return Text(ostrel::DialogGraphicsFilter); });
}

Text OstrelWebHelp::DialogHTMLFilter() {
    return parts_->guard([&] { return Text(ostrel::DialogHTMLFilter); });
}

Text OstrelWebHelp::DialogTextFilter() {
    return parts_->guard([&] { return Text(ostrel::DialogTextFilter); });
}

Long OstrelWebHelp::DialogWidth() {
    return parts_->guard([&] {
        constexpr Long PixelsOfBorder = 3;
        return PixelsOfBorder * parts_->context.platform.screen->Pixel().width;
    });
}

Text OstrelWebHelp::IsConnected(Long& ConnectFlags) {
    return parts_->guard([&] {
        constexpr Long ByNetwork = 2;
        const bool connected = parts_->context.platform.transfers->Connected();
        ConnectFlags = connected ? ByNetwork : 0;
        return Text(connected ? "Connected" : "");
    });
}

OstrelProperties& OstrelWebHelp::Properties() { return parts_->dialogs.Properties(); }

} // namespace ostrel
