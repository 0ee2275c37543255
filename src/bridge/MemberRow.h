#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

#include "bridge/Forms.h"
#include "bridge/MemberDocs.h"
#include "bridge/Members.h"
#include "bridge/Values.h"
#include "control/OstrelProperties.h"
#include "control/OstrelWebHelp.h"
#include "tablepages/CellTable.h"
#include "text/CodePage.h"

namespace ostrel::bridge {

/// One row: the member's name, and the names of its arguments, separated by blanks. Kinds, directions and the
/// result come from the signature, the doc comment from the declaration. Behind the name of an array stand
/// the arguments that count it: "List[NumberList]", "Cells[Rows,Columns]"; with ".." in front,
/// "Values[..MaxValues]", the array grows to the count.
#define MEMBER(name, names)                                                                                  \
    [] {                                                                                                     \
        constexpr auto arguments = SplitNames<ArityOf<&OstrelWebHelp::name>>(names);                         \
        static_assert(arguments.fits, "names and parameters of " #name " differ");                           \
        return MakeMember<&OstrelWebHelp::name>(#name, docs::OstrelWebHelp::name, arguments);                \
    }()

/// The same for a member of the property list that the component holds.
#define PROPERTY_LIST_MEMBER(name, names)                                                                    \
    [] {                                                                                                     \
        constexpr auto arguments = SplitNames<ArityOf<&OstrelProperties::name>>(names);                      \
        static_assert(arguments.fits, "names and parameters of " #name " differ");                           \
        return MakeMember<&OstrelProperties::name>("OstrelProperties." #name, docs::OstrelProperties::name,  \
                                                   arguments);                                               \
    }()

/// The most elements that a growing array grows to.
inline constexpr Long MaxGrownElements = 1'000'000;

template <std::size_t Arity>
struct ArgumentNames {
    std::array<Argument, Arity> rows{};
    bool fits = false;
};

/// The arguments of a row, without their kinds.
template <std::size_t Arity>
constexpr ArgumentNames<Arity> SplitNames(std::string_view text) {
    ArgumentNames<Arity> names;
    std::array<std::string_view, Arity> counts{};
    std::size_t count = 0;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        if (count == Arity) return names;
        const std::size_t bracket = word.find('[');
        names.rows[count].name = word.substr(0, bracket);
        if (bracket != std::string_view::npos)
            counts[count] = word.substr(bracket + 1, word.size() - bracket - 2);
        ++count;
    }
    names.fits = count == Arity;
    const auto placeOf = [&](std::string_view name) {
        for (std::size_t i = 0; i < Arity; ++i)
            if (names.rows[i].name == name) return static_cast<int>(i);
        names.fits = false;
        return -1;
    };
    for (std::size_t i = 0; i < Arity; ++i) {
        std::string_view counting = counts[i];
        if (counting.empty()) continue;
        if (counting.substr(0, 2) == "..") {
            names.rows[i].grows = true;
            counting.remove_prefix(2);
        }
        const std::size_t comma = counting.find(',');
        names.rows[i].count = placeOf(counting.substr(0, comma));
        if (comma != std::string_view::npos) names.rows[i].columnCount = placeOf(counting.substr(comma + 1));
    }
    return names;
}

/// An argument while the call runs. Cells in buffers of the host's own come from a grid here.
template <class T>
struct Held {
    static constexpr std::string_view kind = KindOf<T>;
    T value{};
    T& Pass() { return value; }
};
template <>
struct Held<CellTable> {
    static constexpr std::string_view kind = KindOf<Grid<Text>>;
    Grid<Text> value;
    CellTable Pass() { return CellTable(value); }
};

/// A form is given by its name: one of that name, which nobody has filled yet, or a bare one without a name.
template <>
struct Held<Form> {
    static constexpr std::string_view kind = KindOf<Text>;
    std::unique_ptr<Form> value = std::make_unique<Form>("", Text());
    Form& Pass() { return *value; }
};
inline void Read(const Json& json, const Place& place, std::unique_ptr<Form>& form) {
    Text name;
    Read(json, place, name);
    form = MakeFormNamed(name);
    if (!form) RefuseUnknown("Form", ToUtf8(name));
}

/// The component that a member belongs to.
template <class Owner>
Owner& OwnerIn(OstrelWebHelp& web) {
    if constexpr (std::is_same_v<Owner, OstrelProperties>)
        return web.Properties();
    else
        return web;
}

template <class Parameter>
inline constexpr bool IsOut =
    std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>> &&
    !std::is_same_v<std::remove_cvref_t<Parameter>, Form>;

/// What one argument counts, or how much it holds.
struct Measure {
    Long count = 0;
    Long rows = 0, columns = 0;
};

inline Measure MeasureOf(const Long& value) { return {value, 0, 0}; }
template <class T>
Measure MeasureOf(const Array<T>& value) {
    return {0, value.Count(), 0};
}
template <class T>
Measure MeasureOf(const Grid<T>& value) {
    return {0, value.Rows(), value.Columns()};
}
template <class T>
Measure MeasureOf(const T&) {
    return {};
}

template <class T>
void Grow(Array<T>& array, Long count) {
    count = std::min(count, MaxGrownElements);
    if (count > array.Count()) array.Resize(count);
}
template <class T>
void Grow(T&, Long) {}

/// Refuses more arguments than the member takes.
void RequireArity(const Member& member, const Json& arguments);
/// Refuses a count that is larger than the array that it counts.
void RequireCounts(const Member& member, std::span<const Measure> measures);

template <auto Function, class Signature = decltype(Function)>
struct Caller;

template <auto Function, class Owner, class Result, class... Parameters>
struct Caller<Function, Result (Owner::*)(Parameters...)> {
    static constexpr std::size_t arity = sizeof...(Parameters);
    static constexpr std::string_view result = KindOf<Result>;
    using Values = std::tuple<Held<std::remove_cvref_t<Parameters>>...>;

    static void Describe([[maybe_unused]] std::span<Argument> rows) {
        [[maybe_unused]] std::size_t i = 0;
        ((rows[i].kind = Held<std::remove_cvref_t<Parameters>>::kind, rows[i++].out = IsOut<Parameters>),
         ...);
    }

    static void Call(const Member& member, OstrelWebHelp& web, const Json& arguments, CallAnswer& answer) {
        Call(member, web, arguments, answer, std::index_sequence_for<Parameters...>{});
    }

private:
    template <std::size_t... I>
    static void Call(const Member& member, OstrelWebHelp& web, const Json& arguments, CallAnswer& answer,
                     std::index_sequence<I...>) {
        RequireArity(member, arguments);
        Values values;
        [[maybe_unused]] const auto read = [&](std::size_t i, auto& held) {
            if (i < arguments.size()) Read(arguments[i], Place{member.arguments[i].name}, held.value);
        };
        (read(I, std::get<I>(values)), ...);
        const std::array<Measure, arity> measures{MeasureOf(std::get<I>(values).value)...};
        RequireCounts(member, measures);
        [[maybe_unused]] const auto grow = [&](const Argument& argument, auto& held) {
            if (argument.grows) Grow(held.value, measures[static_cast<std::size_t>(argument.count)].count);
        };
        (grow(member.arguments[I], std::get<I>(values)), ...);

        auto& owner = OwnerIn<Owner>(web);
        if constexpr (std::is_void_v<Result>) {
            (owner.*Function)(std::get<I>(values).Pass()...);
        } else {
            answer.Give((owner.*Function)(std::get<I>(values).Pass()...));
        }
        JsonWriter writer(answer.out);
        [[maybe_unused]] const auto write = [&](const Argument& argument, const auto& held) {
            if constexpr (requires { Write(writer, held.value); }) {
                if (!argument.out) return;
                writer.Key(argument.name);
                Write(writer, held.value);
            }
        };
        (write(member.arguments[I], std::get<I>(values)), ...);
    }
};

template <auto Function>
inline constexpr std::size_t ArityOf = Caller<Function>::arity;

template <auto Function, std::size_t Arity>
Member MakeMember(std::string_view name, std::string_view doc, const ArgumentNames<Arity>& names) {
    Member member{
        name, Caller<Function>::result, doc, {names.rows.begin(), names.rows.end()}, &Caller<Function>::Call};
    Caller<Function>::Describe(member.arguments);
    return member;
}

} // namespace ostrel::bridge
