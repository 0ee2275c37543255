#include "bridge/Bridge.h"
#include "bridge/Forms.h"
#include "bridge/Refusal.h"
#include "bridge/Values.h"
#include "control/PropertyTable.h"

namespace ostrel::bridge {

namespace {

void DescribeMember(JsonWriter& writer, const Member& member) {
    writer.BeginObject();
    writer.Key("name");
    writer.Utf8(member.name);
    writer.Key("result");
    writer.Utf8(member.result);
    writer.Key("args");
    writer.BeginArray();
    for (const Argument& argument : member.arguments) {
        writer.BeginObject();
        writer.Key("name");
        writer.Utf8(argument.name);
        writer.Key("kind");
        writer.Utf8(argument.kind);
        writer.Key("out");
        writer.Flag(argument.out);
        writer.EndObject();
    }
    writer.EndArray();
    writer.Key("doc");
    writer.Utf8(member.doc);
    writer.EndObject();
}

void DescribeProperty(JsonWriter& writer, std::string_view name, bool indexed, bool persisted,
                      const PropertyValue& fallback) {
    writer.BeginObject();
    writer.Key("name");
    writer.Utf8(name);
    writer.Key("kind");
    std::visit([&](const auto& value) { writer.Utf8(KindOf<decltype(value)>); }, fallback);
    writer.Key("indexed");
    writer.Flag(indexed);
    writer.Key("persisted");
    writer.Flag(persisted);
    writer.Key("default");
    std::visit([&](const auto& value) { Write(writer, value); }, fallback);
    writer.EndObject();
}

void DescribeProperties(JsonWriter& writer) {
    for (const PropertyRow& row : AllProperties())
        DescribeProperty(writer, row.name, row.Indexed(), row.Persisted(), row.fallback);
    // It is stored in a bag of its own.
    DescribeProperty(writer, "OstrelProperties.Icon", false, false, Picture());
}

void DescribeEvents(JsonWriter& writer, const Events& events) {
    for (const EventBase* event : events.All()) {
        writer.BeginObject();
        writer.Key("name");
        writer.Utf8(event->Name());
        writer.Key("args");
        writer.BeginArray();
        for (std::string_view name : ArgumentNamesOf(*event)) writer.Utf8(name);
        writer.EndArray();
        writer.Key("kinds");
        writer.BeginArray();
        for (const ArgumentRef& kind : event->Kinds())
            std::visit([&](const auto* value) { writer.Utf8(KindOf<decltype(*value)>); }, kind);
        writer.EndArray();
        writer.EndObject();
    }
}

void DescribeForms(JsonWriter& writer) {
    for (const FormRow& form : AllForms()) {
        writer.BeginObject();
        writer.Key("name");
        writer.String(form.name);
        writer.Key("caption");
        writer.String(form.caption);
        writer.Key("controls");
        writer.BeginArray();
        for (const Text& control : form.controls) writer.String(control);
        writer.EndArray();
        writer.EndObject();
    }
}

} // namespace

void Bridge::Describe(const Json& request, CallAnswer& answer) {
    if (request.at("describe") != "all") throw Refusal("Only all can be described.");
    answer.result.clear();
    JsonWriter writer(answer.result);
    writer.BeginObject();
    writer.Key("members");
    writer.BeginArray();
    for (const Family& family : Families())
        for (const Member& member : family.members) DescribeMember(writer, member);
    writer.EndArray();
    writer.Key("properties");
    writer.BeginArray();
    DescribeProperties(writer);
    writer.EndArray();
    writer.Key("events");
    writer.BeginArray();
    DescribeEvents(writer, web_->events);
    writer.EndArray();
    writer.Key("forms");
    writer.BeginArray();
    DescribeForms(writer);
    writer.EndArray();
    writer.EndObject();
}

} // namespace ostrel::bridge
