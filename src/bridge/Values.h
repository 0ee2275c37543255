#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "bridge/JsonText.h"
#include "bridge/Refusal.h"
#include "text/Array.h"
#include "text/Text.h"

namespace ostrel::bridge {

/// The location of a value, for error messages: an argument, or an element of one.
struct Place {
    std::string_view name;
    Long row = 0;
    Long column = 0;
    std::string Words() const;
};

// A value of the component from JSON; a Refusal that names the place for a value of another kind.

void Read(const Json& json, const Place& place, Text& value);
void Read(const Json& json, const Place& place, Flag& value);
void Read(const Json& json, const Place& place, Integer& value);
void Read(const Json& json, const Place& place, Long& value);
void Read(const Json& json, const Place& place, Single& value);
void Read(const Json& json, const Place& place, Double& value);
void Read(const Json& json, const Place& place, Date& value);
void Read(const Json& json, const Place& place, Picture& value);
void Read(const Json& json, const Place& place, Variant& value);

/// Makes sure that the value is an array of at most as many elements as an array of the component holds.
void RequireArray(const Json& json, const Place& place);

template <class T>
void Read(const Json& json, const Place& place, Array<T>& value) {
    RequireArray(json, place);
    value = Array<T>(static_cast<Long>(json.size()));
    for (Long i = 1; i <= value.Count(); ++i)
        Read(json[static_cast<std::size_t>(i - 1)], Place{place.name, i}, *value.Find(i));
}

template <class T>
void Read(const Json& json, const Place& place, Grid<T>& value) {
    RequireArray(json, place);
    const Long rows = static_cast<Long>(json.size());
    for (Long row = 1; row <= rows; ++row) {
        const Json& line = json[static_cast<std::size_t>(row - 1)];
        RequireArray(line, Place{place.name, row});
        // All rows must be of one length before room is made for them.
        if (line.size() != json[0].size())
            throw Refusal(Place{place.name, row}.Words() + " must be as long as the first row.");
    }
    value.Resize(rows, rows > 0 ? static_cast<Long>(json[0].size()) : 0);
    for (Long row = 1; row <= rows; ++row)
        for (Long column = 1; column <= value.Columns(); ++column)
            Read(json[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)],
                 Place{place.name, row, column}, *value.Find(row, column));
}

// A value of the component as JSON.

inline void Write(JsonWriter& writer, const Text& value) { writer.String(value); }
inline void Write(JsonWriter& writer, const Flag& value) { writer.Flag(value); }
inline void Write(JsonWriter& writer, const Integer& value) { writer.Whole(value); }
inline void Write(JsonWriter& writer, const Long& value) { writer.Whole(value); }
inline void Write(JsonWriter& writer, const Single& value) { writer.Number(value); }
inline void Write(JsonWriter& writer, const Double& value) { writer.Number(value); }
void Write(JsonWriter& writer, const Date& value);
void Write(JsonWriter& writer, const Picture& value);
void Write(JsonWriter& writer, const Variant& value);

template <class T>
void Write(JsonWriter& writer, const Array<T>& value) {
    writer.BeginArray();
    for (const T& element : value) Write(writer, element);
    writer.EndArray();
}

template <class T>
void Write(JsonWriter& writer, const Grid<T>& value) {
    writer.BeginArray();
    for (Long row = 1; row <= value.Rows(); ++row) {
        writer.BeginArray();
        for (Long column = 1; column <= value.Columns(); ++column) Write(writer, *value.Find(row, column));
        writer.EndArray();
    }
    writer.EndArray();
}

/// The word for the kind of a C++ type, such as "long" or "text[]".
template <class T>
struct KindWord;
template <>
struct KindWord<void> {
    static constexpr std::string_view word = "none";
};

#define OSTREL_KIND(type, text)                                                                              \
    template <>                                                                                              \
    struct KindWord<type> {                                                                                  \
        static constexpr std::string_view word = text;                                                       \
    };                                                                                                       \
    template <>                                                                                              \
    struct KindWord<Array<type>> {                                                                           \
        static constexpr std::string_view word = text "[]";                                                  \
    };                                                                                                       \
    template <>                                                                                              \
    struct KindWord<Grid<type>> {                                                                            \
        static constexpr std::string_view word = text "[][]";                                                \
    };
OSTREL_KIND(Text, "text")
OSTREL_KIND(Flag, "flag")
OSTREL_KIND(Integer, "integer")
OSTREL_KIND(Long, "long")
OSTREL_KIND(Single, "single")
OSTREL_KIND(Double, "double")
OSTREL_KIND(Date, "date")
OSTREL_KIND(Picture, "picture")
OSTREL_KIND(Variant, "variant")
#undef OSTREL_KIND

template <class T>
inline constexpr std::string_view KindOf = KindWord<std::remove_cvref_t<T>>::word;

} // namespace ostrel::bridge
