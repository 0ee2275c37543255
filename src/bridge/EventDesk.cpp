#include "bridge/EventDesk.h"

#include <algorithm>

#include "bridge/Values.h"

namespace ostrel::bridge {

std::vector<std::string_view> ArgumentNamesOf(const EventBase& event) {
    std::vector<std::string_view> names;
    std::string_view text = event.Arguments();
    while (!text.empty()) {
        const std::string_view name = text.substr(0, text.find(' '));
        names.push_back(name);
        text.remove_prefix(std::min(text.size(), name.size() + 1));
    }
    return names;
}

void EventDesk::Note(const EventBase& event, std::span<const ArgumentRef> arguments) {
    // If memory runs out, no partial event is left behind.
    struct Whole {
        std::string& text;
        std::size_t size = text.size();
        bool done = false;
        ~Whole() {
            if (!done) text.resize(size);
        }
    } whole{events_};
    if (!events_.empty()) events_ += ',';
    JsonWriter writer(events_);
    writer.BeginArray();
    writer.Utf8(event.Name());
    for (const ArgumentRef& argument : arguments)
        std::visit([&](const auto* value) { Write(writer, *value); }, argument);
    writer.EndArray();
    whole.done = true;
}

void EventDesk::Hear(EventBase& event, std::span<const ArgumentRef> arguments) {
    if (noting_) Note(event, arguments);
    const auto found = rules_.find(event.Name());
    if (found == rules_.end()) return;
    // The requests may add and drop rules, so iterate over a copy.
    const Rules rules = found->second;
    for (const auto& rule : rules) {
        if (rule->nth > 0 && ++rule->heard != rule->nth) continue;
        if (rule->nth > 0) DropRule(event.Name(), rule.get());
        for (const Assignment& one : rule->set)
            std::visit(
                [&](auto* target) { *target = std::get<std::remove_pointer_t<decltype(target)>>(one.value); },
                arguments[one.place]);
        for (const Json& request : rule->requests) carryOut_(request);
    }
}

void EventDesk::AddRule(const EventBase& event, const Json& request) {
    auto rule = std::make_shared<Rule>();
    if (const auto nth = request.find("nth"); nth != request.end()) {
        Long number = 0;
        Read(*nth, Place{"nth"}, number);
        if (number < 1) throw Refusal("nth must be 1 or above.");
        rule->nth = number;
    }
    if (const auto set = request.find("set"); set != request.end()) {
        if (!set->is_object()) throw Refusal("set must be an object of arguments.");
        const auto names = ArgumentNamesOf(event);
        const auto kinds = event.Kinds();
        for (const auto& [name, json] : set->items()) {
            const auto place = std::find(names.begin(), names.end(), name);
            if (place == names.end())
                throw Refusal(std::string(event.Name()) + " has no argument " + name + ".");
            const auto index = static_cast<std::size_t>(place - names.begin());
            std::visit(
                [&, &json = json, &name = name](const auto* kind) {
                    std::remove_cvref_t<decltype(*kind)> value{};
                    Read(json, Place{name}, value);
                    rule->set.push_back({index, std::move(value)});
                },
                kinds[index]);
        }
    }
    if (const auto requests = request.find("do"); requests != request.end()) {
        const bool fits =
            requests->is_array() &&
            std::all_of(requests->begin(), requests->end(), [](const Json& one) { return one.is_object(); });
        if (!fits) throw Refusal("do must be an array of requests.");
        rule->requests = *requests;
    }
    rules_[event.Name()].push_back(std::move(rule));
}

void EventDesk::DropRule(std::string_view event, const Rule* rule) {
    const auto found = rules_.find(event);
    if (found != rules_.end())
        std::erase_if(found->second, [&](const auto& one) { return one.get() == rule; });
}

void EventDesk::DropRules(std::string_view event) { rules_.erase(event); }

} // namespace ostrel::bridge
