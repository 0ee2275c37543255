#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "text/Array.h"
#include "text/Text.h"

namespace ostrel {

/// One argument of an event on its way to listeners, by address, so that a listener may write it.
using ArgumentRef =
    std::variant<Text*, Flag*, Integer*, Long*, Single*, Double*, Array<Text>*, Array<Long>*, Grid<Text>*>;

class EventBase;

/// All events of one object, in the order of their declaration.
class EventList {
public:
    /// Hears every event by name; called behind the listeners of the event itself.
    using AnyListener = std::function<void(EventBase&, std::span<const ArgumentRef>)>;

    EventList() = default;
    EventList(const EventList&) = delete;
    EventList& operator=(const EventList&) = delete;

    const std::vector<EventBase*>& All() const { return all_; }
    EventBase* Find(std::string_view name) const;

    /// Listens to all events. The result ends it with `EndListening`.
    int ListenToAll(AnyListener listener);
    void EndListening(int token);

private:
    friend class EventBase;
    template <class...>
    friend class Event;

    std::vector<EventBase*> all_;
    std::vector<std::pair<int, std::shared_ptr<AnyListener>>> any_;
    int nextToken_ = 1;
};

class EventBase {
public:
    EventBase(EventList& list, std::string_view name, std::string_view arguments)
        : list_(list), name_(name), arguments_(arguments) {
        list.all_.push_back(this);
    }
    virtual ~EventBase() = default;
    EventBase(const EventBase&) = delete;
    EventBase& operator=(const EventBase&) = delete;

    std::string_view Name() const { return name_; }
    /// The names of the arguments, separated by blanks.
    std::string_view Arguments() const { return arguments_; }
    /// One null pointer of the right type for each argument.
    virtual std::vector<ArgumentRef> Kinds() const = 0;

protected:
    EventList& list_;

private:
    std::string_view name_;
    std::string_view arguments_;
};

inline EventBase* EventList::Find(std::string_view name) const {
    const auto hit = std::find_if(all_.begin(), all_.end(), [&](EventBase* e) { return e->Name() == name; });
    return hit == all_.end() ? nullptr : *hit;
}

inline int EventList::ListenToAll(AnyListener listener) {
    any_.emplace_back(nextToken_, std::make_shared<AnyListener>(std::move(listener)));
    return nextToken_++;
}

inline void EventList::EndListening(int token) {
    std::erase_if(any_, [&](const auto& entry) { return entry.first == token; });
}

/// One event with writable arguments. Listeners may be added and removed while it is raised; a listener added
/// then hears from the next time on.
template <class... Args>
class Event final : public EventBase {
public:
    using Listener = std::function<void(Args&...)>;

    Event(EventList& list, std::string_view name, std::string_view arguments = {})
        : EventBase(list, name, arguments) {}

    /// The result ends the listening with `End`.
    int Listen(Listener listener) {
        listeners_.emplace_back(next_, std::make_shared<Listener>(std::move(listener)));
        return next_++;
    }
    void End(int token) {
        std::erase_if(listeners_, [&](const auto& entry) { return entry.first == token; });
    }

    /// Whether anybody would hear it. Costly arguments are built only then.
    bool Heard() const { return !listeners_.empty() || !list_.any_.empty(); }

    /// Raises the event with the caller's own variables, which listeners may write.
    void operator()(Args&... arguments) {
        if (!Heard()) return;
        const auto listeners = listeners_;
        for (const auto& [token, listener] : listeners) (*listener)(arguments...);
        if (list_.any_.empty()) return;
        const std::array<ArgumentRef, sizeof...(Args)> refs{ArgumentRef(&arguments)...};
        const auto any = list_.any_;
        for (const auto& [token, listener] : any) (*listener)(*this, refs);
    }

    /// Raises the event with values; what listeners write is lost.
    template <class... Values>
    void Tell(Values&&... values) {
        if (!Heard()) return;
        std::tuple<Args...> copies{Args(std::forward<Values>(values))...};
        std::apply([this](Args&... arguments) { (*this)(arguments...); }, copies);
    }

    std::vector<ArgumentRef> Kinds() const override { return {ArgumentRef(static_cast<Args*>(nullptr))...}; }

private:
    std::vector<std::pair<int, std::shared_ptr<Listener>>> listeners_;
    int next_ = 1;
};

} // namespace ostrel
