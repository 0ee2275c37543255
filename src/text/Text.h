#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace ostrel {

/// Text of the component: bytes of Windows-1252. Positions in the interface count from 1.
using Text = std::string;
using TextView = std::string_view;

using Long = std::int32_t;
using Integer = std::int16_t;
using Single = float;
using Double = double;

/// True or False as the interface knows it. Only a `bool` becomes a Flag, so that a text literal or a number
/// never picks a flag's overload; and an array of Flags has addresses.
class Flag {
public:
    constexpr Flag() = default;
    template <std::same_as<bool> Bool>
    constexpr Flag(Bool value) : value_(value) {}
    constexpr operator bool() const { return value_; }

private:
    bool value_ = false;
};

/// A moment as days since 30 December 1899, the time of day being the fraction.
struct Date {
    double serial = 0;
    auto operator<=>(const Date&) const = default;
};

/// A picture is known by the path of its file; empty for none.
struct Picture {
    Text path;
    bool operator==(const Picture&) const = default;
};

/// A value that is a text or a number (`QueryValue`).
using Variant = std::variant<Text, Double>;

inline constexpr TextView LineEnd = "\r\n";
inline constexpr TextView LineGap = "\r\n\r\n";

} // namespace ostrel
