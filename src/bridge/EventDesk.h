#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "bridge/JsonText.h"
#include "platform/Event.h"

namespace ostrel::bridge {

/// Where events arrive: it notes each with its arguments as they were raised, and then lets the listener
/// rules of that event change the arguments and carry out requests of their own.
class EventDesk {
public:
    /// `carryOut` runs a request inside the event.
    explicit EventDesk(std::function<void(const Json& request)> carryOut) : carryOut_(std::move(carryOut)) {}

    /// Takes an event of the control.
    void Hear(EventBase& event, std::span<const ArgumentRef> arguments);

    /// Adds the rule of an `on` request; a Refusal for a value that does not fit the event's argument.
    void AddRule(const EventBase& event, const Json& request);
    void DropRules(std::string_view event);

    /// Whether events are recorded. Some carry whole tables, which are costly to write.
    void NoteEvents(bool note) { noting_ = note; }
    /// Returns the events since the last call as the content of a JSON array; empty if there are none.
    std::string TakeEvents() { return std::exchange(events_, {}); }

private:
    using ArgumentValue =
        std::variant<Text, Flag, Integer, Long, Single, Double, Array<Text>, Array<Long>, Grid<Text>>;

    struct Assignment {
        std::size_t place; ///< of the argument
        ArgumentValue value;
    };
    struct Rule {
        long long nth = 0; ///< 0 for each time
        long long heard = 0;
        std::vector<Assignment> set;
        Json requests = Json::array();
    };
    using Rules = std::vector<std::shared_ptr<Rule>>;

    void DropRule(std::string_view event, const Rule* rule);
    void Note(const EventBase& event, std::span<const ArgumentRef> arguments);

    std::function<void(const Json&)> carryOut_;
    bool noting_ = true;
    std::string events_;
    std::unordered_map<std::string_view, Rules> rules_;
};

/// The names of an event's arguments, apart.
std::vector<std::string_view> ArgumentNamesOf(const EventBase& event);

} // namespace ostrel::bridge
