#include "control/Bag.h"
#include "control/Guard.h"
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

void OstrelWebHelp::StoreStraight(const PropertyRow& row, const PropertyValue& value) {
    if (row.store) return row.store(state_, 0, value);
    // Only these keep their state elsewhere than in a field of their own.
    const auto text = [&] { return std::get<Text>(value); };
    if (row.name == "HelpPart1") {
        state_.help.HelpPart1 = Rope(text());
    } else if (row.name == "HelpPart2") {
        state_.help.HelpPart2 = Rope(text());
    } else if (row.name == "HelpPart3") {
        state_.help.HelpPart3 = Rope(text());
    } else if (row.name == "HelpRefreshURL") {
        // The target follows a let only.
        state_.help.HelpRefreshURL = text();
    } else if (row.name == "StopPressed") {
        run_.StopPressed = std::get<Flag>(value);
    } else if (row.name == "Offline") {
        Pane().Offline(std::get<Flag>(value));
    }
}

PropertyValue OstrelWebHelp::DefaultOf(const PropertyRow& row) const {
    if (row.name == "DirectoryRun") return context_.platform.files->ApplicationDirectory();
    return row.fallback;
}

void OstrelWebHelp::ReadProperties(const Bag& Store) {
    Guarded([&] {
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Persisted()) continue;
            const auto stored = Store.Read(Text(row.name));
            if (!stored)
                StoreStraight(row, DefaultOf(row));
            else if (const auto value = InFormOf(row.fallback, *stored))
                StoreStraight(row, *value);
        }
        Resize();
        Trace("Web Help - Read Properties");
    });
}

void OstrelWebHelp::WriteProperties(Bag& Store) {
    Guarded([&] {
        const auto write = [&](const PropertyRow& row, const PropertyValue& fallback) {
            PropertyValue value = row.get(*this, 0);
            const Text key(row.name);
            if (Same(value, fallback))
                Store.Remove(key);
            else
                Store.Write(key, std::move(value));
        };
        for (const PropertyRow& row : AllProperties()) {
            if (!row.Persisted()) continue;
            // Read and never written, so that it comes back with its default.
            if (row.name == "EditStyleFontStyle") continue;
            // Written behind SearchNoRobots, unlike its place in reading.
            if (row.name == "SearchMask") continue;
            if (row.name == "SearchResultsLines")
                write(row, Text());
            else
                write(row, DefaultOf(row));
            if (row.name == "SearchNoRobots")
                if (const PropertyRow* mask = FindProperty("SearchMask")) write(*mask, mask->fallback);
        }
        Trace("Web Help - Write Properties");
    });
}

} // namespace ostrel
