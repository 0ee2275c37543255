#pragma once

#include <span>
#include <string_view>

#include "control/PropertyFlags.h"
#include "control/PropertyValue.h"

namespace ostrel {

class Files;
class OstrelWebHelp;
struct ControlParts;

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
    /// Puts a default or a stored value straight into the property's place, with no let.
    void (*store)(ControlParts&, Long index, const PropertyValue& value);

    bool Indexed() const { return limit > 0; }
    bool Persisted() const { return Has(Stored); }
    bool Has(PropertyFlags flag) const { return (flags & flag) != 0; }
};

/// All properties, in the order of their names ignoring case.
std::span<const PropertyRow> AllProperties();
/// Returns the row of that exact name, or null.
const PropertyRow* FindProperty(std::string_view name);
/// Returns the default of a property in this program, whose directory may be one.
PropertyValue DefaultOf(const PropertyRow& row, Files& files);

} // namespace ostrel
