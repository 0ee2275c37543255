#pragma once

#include "control/ControlParts.h"

/// The properties whose state is no field of their own: a struct for each CUSTOM row, with the reason. `Get`
/// is the get; `Store` puts a default or a stored value into its place, and so does a let where there is no
/// `Let`.
namespace ostrel::custom {

/// The parts of a page are ropes, since a table page of hundreds of megabytes passes through them.
template <Rope HelpProperties::*Part>
struct PagePart {
    static Text Get(const ControlParts& parts) { return (parts.state.draft.*Part).ToText(); }
    static void Store(ControlParts& parts, Text value) { parts.state.draft.*Part = Rope(std::move(value)); }
};
struct HelpPart1 : PagePart<&HelpProperties::HelpPart1> {};
struct HelpPart2 : PagePart<&HelpProperties::HelpPart2> {};
struct HelpPart3 : PagePart<&HelpProperties::HelpPart3> {};

/// The head of a page reads the target, which follows the address at each let, but at nothing else.
struct HelpRefreshURL {
    static Text Get(const ControlParts& parts) { return parts.state.draft.HelpRefreshURL; }
    static void Store(ControlParts& parts, Text value) {
        parts.state.draft.HelpRefreshURL = std::move(value);
    }
    static void Let(ControlParts& parts, Text value) {
        parts.state.draft.HelpRefreshTarget = value;
        Store(parts, std::move(value));
    }
};

/// The browser pane itself holds the state.
struct Offline {
    static Flag Get(const ControlParts& parts) { return parts.Pane().Offline(); }
    static void Store(ControlParts& parts, Flag value) { parts.Pane().Offline(value); }
};

/// Long loops read the flag where it lies in the run.
struct StopPressed {
    static Flag Get(const ControlParts& parts) { return parts.run.StopPressed; }
    static void Store(ControlParts& parts, Flag value) { parts.run.StopPressed = value; }
};

} // namespace ostrel::custom
