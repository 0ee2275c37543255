#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/Text.h"

namespace ostrel {

/// A stretch of coloured text: start (from 0), length, colour.
using ColourRun = std::array<Long, 3>;

/// What one field of a control shows; monostate for a field that is not there.
using FieldValue = std::variant<std::monostate, Text, Flag, Long, std::vector<Text>,
                                std::vector<std::vector<Text>>, std::vector<ColourRun>>;

struct Field {
    std::string_view name;
    FieldValue value;
};

/// All that a control shows, by the names of its fields.
using Fields = std::vector<Field>;

/// The field of that name; monostate where there is none.
inline FieldValue FieldOf(const Fields& fields, std::string_view name) {
    for (const auto& field : fields)
        if (field.name == name) return field.value;
    return {};
}

} // namespace ostrel
