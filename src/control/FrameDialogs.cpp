#include "control/FrameDialogs.h"

#include "control/State.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "text/DateText.h"
#include "text/NumberText.h"
#include "ui/OpenURLForm.h"

namespace ostrel {

namespace {

Text Word(bool value) { return value ? "True" : "False"; }

} // namespace

FrameDialogs::FrameDialogs(Context& context, State& state, Children& children, PaneNavigator& navigator)
    : context_(context), state_(state), children_(children), navigator_(navigator),
      properties_(context.platform) {}

FromComponent FrameDialogs::Under(ToolbarAction action) const {
    constexpr Long Below = 120, Leftwards = 1200;
    const Child& strip = children_.picToolbar;
    return {children_.picBrowser.left + strip.left + children_.Default(action).left - Leftwards,
            children_.picBrowser.top + strip.top + strip.height + Below};
}

void FrameDialogs::OpenLocation() {
    const Dialogs dialogs{context_, state_.dialog};
    OpenURLForm form(&dialogs, state_.service.ProgramName);
    if (ShowDialog(dialogs, form, Under(ActionOpen)) && !form.txtURL.text->empty()) {
        Text error;
        if (!navigator_.Load(form.txtURL.text, error))
            context_.platform.screen->Message(MessageKind::Error, error, state_.service.ProgramName,
                                              MessageButtons::Ok);
    }
    navigator_.Focus();
}

void FrameDialogs::ShowPageProperties() {
    const DialogEvents events(context_, "Properties");
    ListPageProperties();
    Long top = 0, left = 0;
    context_.events.GetControlPosition(top, left);
    const FromComponent place = Under(ActionProperties);
    properties_.SetCaption("Page Properties");
    properties_.Show(top + place.top, left + place.left, state_.dialog.DialogOnTop ? 1 : 0);
    properties_.SetCaption({});
}

void FrameDialogs::ListPageProperties() {
    const Text location = navigator_.LocationURL();
    const bool local = !services::FileInternet(location);
    properties_.ClearProperties();
    properties_.AddProperty("Name:", context_.platform.pane->LocationName());
    properties_.AddProperty("Location:", location);
    properties_.AddProperty("Local:", Word(local));
    const Text path = services::FilePathFromURL(location);
    if (Files& files = *context_.platform.files; local && files.IsFile(path)) {
        std::uint64_t size = 0;
        Date written;
        if (files.Size(path, size)) properties_.AddProperty("Size:", FromDouble(static_cast<Double>(size)));
        if (files.Written(path, written))
            properties_.AddProperty("Date:", FormatDate(written, "d mmm yyyy hh:nn:ss"));
    }
    properties_.AddProperty("Connected:", Word(context_.platform.transfers->Connected()));
    properties_.AddProperty("DialogOnTop:", Word(state_.dialog.DialogOnTop));
    properties_.AddProperty("DirectoryRun", state_.service.DirectoryRun);
    properties_.AddProperty("DirectoryHelp", state_.service.DirectoryHelp);
    properties_.AddProperty("HomePage", state_.control.HomePage);
    properties_.AddProperty("IndexPage", state_.control.IndexPage);
    properties_.AddProperty("ProgramName", state_.service.ProgramName);
    properties_.AddProperty("SearchMask", state_.search.SearchMask);
}

Text FrameDialogs::PickFile(const At& place, FilePick& pick) {
    const DialogEvents events(context_, pick.save ? "FileSave" : "FileOpen");
    return ostrel::PickFile({context_, state_.dialog}, place, pick);
}

Long FrameDialogs::PickColour(const At& place) {
    const DialogEvents events(context_, "Colour");
    return ostrel::PickColour({context_, state_.dialog}, place);
}

Text FrameDialogs::PickDirectory(const At& place, const Text& title, const Text& start, Long flags) {
    struct Busy {
        bool& flag;
        const bool before = std::exchange(flag, true);
        ~Busy() { flag = before; }
    };
    const DialogEvents events(context_, "Directory");
    const Busy busy{picksDirectory_};
    return ostrel::PickDirectory({context_, state_.dialog}, place, title, start, flags);
}

} // namespace ostrel
