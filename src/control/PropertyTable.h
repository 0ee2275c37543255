#pragma once

#include <span>
#include <string_view>

#include "control/OstrelWebHelp.h"

namespace ostrel {

/// One property by name: what its row says, and the ways to it.
struct PropertyRow {
    std::string_view name;
    PropertyValue fallback; ///< the default; its alternative is the property's kind
    unsigned flags;         ///< PropertyFlags
    Long limit;             ///< 0 for a single value, else the highest index
    std::string_view doc;
    /// Get and let as the host has them; the index of a single value is ignored.
    PropertyValue (*get)(const OstrelWebHelp&, Long index);
    void (*let)(OstrelWebHelp&, Long index, const PropertyValue& value);
    /// Straight into the field, with no let; null for the properties whose state lies elsewhere.
    void (*store)(State&, Long index, const PropertyValue& value);

    bool Indexed() const { return limit > 0; }
    bool Persisted() const { return (flags & Stored) != 0; }
};

/// All properties, in the order of their names ignoring case.
std::span<const PropertyRow> AllProperties();
/// The row of that exact name, or null.
const PropertyRow* FindProperty(std::string_view name);

} // namespace ostrel
