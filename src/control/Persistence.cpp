#include "control/Bag.h"
#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "control/PropertyTable.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

// Each converts a stored value into the form of its property; nothing where it has a wrong one.

std::optional<Text> AsText(const PropertyValue& value) {
    if (const Text* text = std::get_if<Text>(&value)) return *text;
    if (const Long* number = std::get_if<Long>(&value)) return FromLong(*number);
    if (const Flag* flag = std::get_if<Flag>(&value)) return Text(*flag ? "True" : "False");
    return std::nullopt;
}

std::optional<Flag> AsFlag(const PropertyValue& value) {
    if (const Flag* flag = std::get_if<Flag>(&value)) return *flag;
    if (const Long* number = std::get_if<Long>(&value)) return Flag(*number != 0);
    if (const Text* text = std::get_if<Text>(&value))
        if (const auto flag = ToFlag(*text)) return Flag(*flag);
    return std::nullopt;
}

std::optional<Long> AsLong(const PropertyValue& value) {
    if (const Long* number = std::get_if<Long>(&value)) return *number;
    if (const Flag* flag = std::get_if<Flag>(&value)) return *flag ? -1 : 0;
    if (const Text* text = std::get_if<Text>(&value)) return ToLong(*text);
    return std::nullopt;
}

std::optional<Picture> AsPicture(const PropertyValue& value) {
    if (const Picture* picture = std::get_if<Picture>(&value)) return *picture;
    if (const Text* path = std::get_if<Text>(&value)) return Picture{*path};
    return std::nullopt;
}

std::optional<PropertyValue> InFormOf(const PropertyValue& pattern, const PropertyValue& value) {
    const auto widen = [](auto converted) {
        return converted ? std::optional<PropertyValue>(std::move(*converted)) : std::nullopt;
    };
    switch (pattern.index()) {
    case 0:
        return widen(AsText(value));
    case 1:
        return widen(AsFlag(value));
    case 2:
        return widen(AsLong(value));
    default:
        return widen(AsPicture(value));
    }
}

bool Same(const PropertyValue& left, const PropertyValue& right) {
    return std::visit(
        [](const auto& a, const auto& b) {
            using A = std::decay_t<decltype(a)>;
            using B = std::decay_t<decltype(b)>;
            if constexpr (!std::is_same_v<A, B>)
                return false;
            else if constexpr (std::is_same_v<A, Flag>)
                return bool(a) == bool(b);
            else
                return a == b;
        },
        left, right);
}

} // namespace

void OstrelWebHelp::ReadProperties(const Bag& Store) {
    parts_->guard([&] {
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Persisted()) continue;
            const auto stored = Store.Read(Text(row.name));
            if (!stored)
                row.store(*parts_, 0, DefaultOf(row, parts_->Disk()));
            else if (const auto value = InFormOf(row.fallback, *stored))
                row.store(*parts_, 0, *value);
        }
        parts_->layout.Resize();
        events.StatusTextChange.Tell("Web Help - Read Properties");
    });
}

void OstrelWebHelp::WriteProperties(Bag& Store) {
    parts_->guard([&] {
        const auto write = [&](const PropertyRow& row) {
            PropertyValue value = row.get(*this, 0);
            const Text key(row.name);
            if (Same(value, row.Has(WrittenUnlessEmpty) ? Text() : DefaultOf(row, parts_->Disk())))
                Store.Remove(key);
            else
                Store.Write(key, std::move(value));
        };
        const PropertyRow* later = nullptr;
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Persisted() || row.Has(NeverWritten)) continue;
            if (row.Has(WrittenLater)) {
                later = &row;
                continue;
            }
            write(row);
            if (later && row.Has(WritesLater)) write(*std::exchange(later, nullptr));
        }
        events.StatusTextChange.Tell("Web Help - Write Properties");
    });
}

} // namespace ostrel
