#pragma once

#include <span>
#include <type_traits>
#include <variant>

#include "platform/Event.h"
#include "text/NumberText.h"

namespace ostrel::test {

/// An event with its arguments as one line, such as "ToolbarClick Home False"; arrays are three points.
inline Text EventLine(const EventBase& event, std::span<const ArgumentRef> arguments) {
    Text line(event.Name());
    for (const ArgumentRef& argument : arguments) {
        line += ' ';
        std::visit(
            [&](auto* value) {
                using Value = std::remove_pointer_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, Text>)
                    line += *value;
                else if constexpr (std::is_same_v<Value, Flag>)
                    line += *value ? "True" : "False";
                else if constexpr (std::is_arithmetic_v<Value>)
                    line += FromDouble(static_cast<double>(*value));
                else
                    line += "...";
            },
            argument);
    }
    return line;
}

} // namespace ostrel::test
