#pragma once

#include "platform/Context.h"
#include "ui/DialogProperties.h"
#include "ui/Form.h"

namespace ostrel {

/// What it takes to show the dialogs of one control. It borrows both.
struct Dialogs {
    const Context& context;
    const DialogProperties& properties;
};

/// Shows a form as a dialog of the component and returns when it is closed: whether it was accepted. All
/// dialogs have the icon of the control and stay above other windows where its `DialogOnTop` is set.
///
///     AboutForm form(program);
///     ShowDialog(dialogs, form, Centred{});
///
/// A `FromComponent` raises `GetControlPosition`, which the host answers with the component's place on the
/// screen.
bool ShowDialog(const Dialogs& dialogs, Form& form, const DialogPlace& place);

/// The pair of events around a dialog that the host hears of: `DialogOpen` now, before the form is made,
/// and `DialogClose` at the end of the scope, when all that came of the dialog is done. The second follows
/// whatever happens between, a listener that throws included.
///
///     DialogEvents events(context, "Fragment");
///     FragmentForm form;
///     ...
class DialogEvents {
public:
    DialogEvents(const Context& context, Text name);
    DialogEvents(const DialogEvents&) = delete;
    DialogEvents& operator=(const DialogEvents&) = delete;

private:
    /// Raises `DialogClose` at its end, also where the listeners of `DialogOpen` throw.
    struct Closing {
        const Context& context;
        const Text name;
        ~Closing();
    };
    Closing closing_;
};

} // namespace ostrel
