#include "bridge/Bridge.h"
#include "bridge/Refusal.h"
#include "bridge/Values.h"
#include "control/OstrelProperties.h"
#include "control/PropertyTable.h"

namespace ostrel::bridge {

namespace {

const std::string& NameIn(const Json& request, const char* verb, const char* what) {
    const Json& name = request.at(verb);
    if (!name.is_string()) throw Refusal(std::string(verb) + " must be the name of " + what + ".");
    return name.get_ref<const std::string&>();
}

/// The index of an indexed property; 0 for a single one.
Long IndexIn(const Json& request, const PropertyRow& row) {
    const auto index = request.find("index");
    if (row.Indexed() != (index != request.end()))
        throw Refusal(std::string(row.name) + (row.Indexed() ? " needs an index." : " takes no index."));
    Long value = 0;
    if (row.Indexed()) Read(*index, Place{"index"}, value);
    return value;
}

/// The one property of the second component.
constexpr std::string_view ListIcon = "OstrelProperties.Icon";

} // namespace

void Bridge::Call(const Json& request, CallAnswer& answer) {
    const std::string& name = NameIn(request, "call", "a member");
    const Member* member = FindMember(name);
    if (!member) RefuseUnknown("Member", name);
    static const Json none = Json::array();
    const auto arguments = request.find("args");
    if (arguments != request.end() && !arguments->is_array()) throw Refusal("args must be an array.");
    member->call(*member, *web_, arguments == request.end() ? none : *arguments, answer);
}

void Bridge::Get(const Json& request, CallAnswer& answer) {
    const std::string& name = NameIn(request, "get", "a property");
    if (const PropertyRow* row = FindProperty(name)) {
        const PropertyValue value = row->get(*web_, IndexIn(request, *row));
        return std::visit([&](const auto& held) { answer.Give(held); }, value);
    }
    if (name == ListIcon) return answer.Give(web_->Properties().GetIcon());
    const Member* member = FindMember(name);
    if (!member || !member->ReadsLikeProperty()) RefuseUnknown("Property", name);
    member->call(*member, *web_, Json::array(), answer);
}

void Bridge::Set(const Json& request, CallAnswer&) {
    const std::string& name = NameIn(request, "set", "a property");
    const auto json = request.find("value");
    if (name == ListIcon && json != request.end()) {
        Picture icon;
        Read(*json, Place{ListIcon}, icon);
        return web_->Properties().SetIcon(icon);
    }
    const PropertyRow* row = FindProperty(name);
    if (!row && FindMember(name) && FindMember(name)->ReadsLikeProperty())
        throw Refusal(name + " can only be read.");
    if (!row) RefuseUnknown("Property", name);
    const Long index = IndexIn(request, *row);
    if (json == request.end()) throw Refusal("The value has not been defined.");
    PropertyValue value = row->fallback;
    std::visit([&](auto& held) { Read(*json, Place{row->name}, held); }, value);
    row->let(*web_, index, value);
}

void Bridge::On(const Json& request, CallAnswer&) {
    const std::string& name = NameIn(request, "on", "an event");
    const EventBase* event = web_->events.Find(name);
    if (!event) RefuseUnknown("Event", name);
    events_.AddRule(*event, request);
}

void Bridge::Off(const Json& request, CallAnswer&) {
    const std::string& name = NameIn(request, "off", "an event");
    const EventBase* event = web_->events.Find(name);
    if (!event) RefuseUnknown("Event", name);
    events_.DropRules(event->Name());
}

} // namespace ostrel::bridge
