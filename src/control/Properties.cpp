#include "control/Guard.h"

namespace ostrel {

void OstrelWebHelp::Announce(const Text& name, unsigned flags) {
    if (PropertyChanged) PropertyChanged(name);
    if (flags & Relayout) Resize();
}

#define PROPERTY(kind, name, fallback, flags, doc)                                                           \
    kind OstrelWebHelp::name() const { return state_.OWNER.name; }                                           \
    void OstrelWebHelp::name(kind value) {                                                                   \
        Guarded([&] {                                                                                        \
            state_.OWNER.name = std::move(value);                                                            \
            Announce(#name, flags);                                                                          \
        });                                                                                                  \
    }
#define CUSTOM(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc)                                                            \
    kind OstrelWebHelp::name(Long X) const { return state_.OWNER.name.Get(X); }                              \
    void OstrelWebHelp::name(Long X, kind value) {                                                           \
        Guarded([&] {                                                                                        \
            state_.OWNER.name.Put(X, std::move(value));                                                      \
            Announce(#name, Unstored);                                                                       \
        });                                                                                                  \
    }
#include "control/PropertyList.h"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED

// The head of a page reads the target, which follows the address at each let.
Text OstrelWebHelp::HelpRefreshURL() const { return state_.help.HelpRefreshURL; }
void OstrelWebHelp::HelpRefreshURL(Text value) {
    Guarded([&] {
        state_.help.HelpRefreshTarget = value;
        state_.help.HelpRefreshURL = std::move(value);
        Announce("HelpRefreshURL", Stored);
    });
}

// The parts stand as ropes, since a table page of hundreds of megabytes passes through them.
#define PART(name)                                                                                           \
    Text OstrelWebHelp::name() const { return state_.help.name.ToText(); }                                   \
    void OstrelWebHelp::name(Text value) {                                                                   \
        Guarded([&] {                                                                                        \
            state_.help.name = Rope(std::move(value));                                                       \
            Announce(#name, Stored);                                                                         \
        });                                                                                                  \
    }
PART(HelpPart1)
PART(HelpPart2)
PART(HelpPart3)
#undef PART

// Long loops read the flag where it lies in the run.
Flag OstrelWebHelp::StopPressed() const { return run_.StopPressed; }
void OstrelWebHelp::StopPressed(Flag value) {
    Guarded([&] {
        run_.StopPressed = value;
        Announce("StopPressed", Stored);
    });
}

// The pane itself holds the state.
Flag OstrelWebHelp::Offline() const { return Pane().Offline(); }
void OstrelWebHelp::Offline(Flag value) {
    Guarded([&] {
        Pane().Offline(value);
        Announce("Offline", Stored);
    });
}

} // namespace ostrel
