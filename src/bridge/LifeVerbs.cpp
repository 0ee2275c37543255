#include "bridge/Bridge.h"
#include "bridge/Values.h"
#include "control/Bag.h"
#include "text/NumberText.h"

namespace ostrel::bridge {

namespace {

/// A value of a bag from JSON. What is no text, flag or number fits no property but a picture.
PropertyValue BagValue(const std::string& key, const Json& json) {
    if (json.is_boolean()) return Flag(json.get<bool>());
    if (json.is_string()) {
        Text text;
        Read(json, Place{key}, text);
        return text;
    }
    if (!json.is_number()) return Picture();
    const Double number = json.get<double>();
    const auto whole = ToLong(number);
    if (whole && *whole == number) return *whole;
    return FromDouble(number);
}

} // namespace

void Bridge::Renew(const Json& request, CallAnswer&) {
    // The control that raises an event is still at work in it.
    if (depth_ > 0) throw Refusal("A control can't be replaced inside one of its events.");
    const Json& how = request.at("new");
    if (how != "init" && how != "read" && how != "bare") throw Refusal("new must be init, read or bare.");
    MapBag bag;
    if (const auto values = request.find("bag"); how == "read" && values != request.end()) {
        if (!values->is_object()) throw Refusal("bag must be an object of values.");
        for (const auto& [key, value] : values->items()) bag.Write(key, BagValue(key, value));
    }
    EndControl();
    MakeControl();
    if (how == "init")
        web_->InitProperties();
    else if (how == "read")
        web_->ReadProperties(bag);
}

void Bridge::WriteBag(const Json& request, CallAnswer& answer) {
    if (request.at("write") != "bag") throw Refusal("Only the bag can be written.");
    MapBag bag;
    web_->WriteProperties(bag);
    answer.result.clear();
    JsonWriter writer(answer.result);
    writer.BeginObject();
    for (const auto& [key, value] : bag.Entries()) {
        writer.Key(key);
        std::visit([&](const auto& held) { Write(writer, held); }, value);
    }
    writer.EndObject();
}

} // namespace ostrel::bridge
