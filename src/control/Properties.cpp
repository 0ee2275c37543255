#include "control/ControlParts.h"
#include "control/CustomProperties.h"
#include "control/OstrelWebHelp.h"
#include "control/PropertyFlags.h"

namespace ostrel {

namespace {

template <class Row, class Value>
void LetCustom(ControlParts& parts, Value value) {
    if constexpr (requires { Row::Let(parts, std::move(value)); })
        Row::Let(parts, std::move(value));
    else
        Row::Store(parts, std::move(value));
}

} // namespace

void OstrelWebHelp::Announce(const Text& name, unsigned flags) {
    if (PropertyChanged) PropertyChanged(name);
    if (flags & Relayout) parts_->layout.Resize();
}

#define PROPERTY(kind, name, fallback, flags, doc)                                                           \
    kind OstrelWebHelp::name() const {                                                                       \
        return parts_->guard.Read([&] { return kind(parts_->state.OWNER.name); });                           \
    }                                                                                                        \
    void OstrelWebHelp::name(kind value) {                                                                   \
        parts_->guard([&] {                                                                                  \
            parts_->state.OWNER.name = std::move(value);                                                     \
            Announce(#name, flags);                                                                          \
        });                                                                                                  \
    }
#define CUSTOM(kind, name, fallback, flags, doc)                                                             \
    kind OstrelWebHelp::name() const {                                                                       \
        return parts_->guard.Read([&] { return custom::name::Get(*parts_); });                               \
    }                                                                                                        \
    void OstrelWebHelp::name(kind value) {                                                                   \
        parts_->guard([&] {                                                                                  \
            LetCustom<custom::name>(*parts_, std::move(value));                                              \
            Announce(#name, flags);                                                                          \
        });                                                                                                  \
    }
#define INDEXED(kind, name, fallback, limit, doc)                                                            \
    kind OstrelWebHelp::name(Long X) const {                                                                 \
        return parts_->guard.Read([&] { return kind(parts_->state.OWNER.name.Get(X)); });                    \
    }                                                                                                        \
    void OstrelWebHelp::name(Long X, kind value) {                                                           \
        parts_->guard([&] {                                                                                  \
            parts_->state.OWNER.name.Put(X, std::move(value));                                               \
            Announce(#name, Unstored);                                                                       \
        });                                                                                                  \
    }
#include "control/PropertyList.h"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED

} // namespace ostrel
