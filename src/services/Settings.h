#pragma once

#include <optional>

#include "platform/Context.h"
#include "services/ServiceProperties.h"

namespace ostrel::services {

/// Settings of the calling program, below `RegistryApp`. While that is empty every get gives its default and
/// every other call does nothing. A failed write is silent to the caller and traced by `StatusTextChange`.
class Settings {
public:
    Settings(Context& context, const ServiceProperties& properties)
        : context_(context), properties_(properties) {}

    Text Get(const Text& section, const Text& key, const Text& fallback) const;
    bool GetBoolean(const Text& section, const Text& key, bool fallback) const;
    Double GetDouble(const Text& section, const Text& key, Double fallback) const;
    Long GetLong(const Text& section, const Text& key, Long fallback) const;
    void Save(const Text& section, const Text& key, const Text& value) const;
    void SaveBoolean(const Text& section, const Text& key, bool value) const;
    void SaveDouble(const Text& section, const Text& key, Double value) const;
    void SaveLong(const Text& section, const Text& key, Long value) const;
    void DeleteKey(const Text& section, const Text& key) const;
    void DeleteSection(const Text& section) const;
    Variant Query(Long area, const Text& key, const Text& name) const;
    void Set(Long area, const Text& key, const Text& name, const Variant& value, Long type) const;

private:
    std::optional<Text> Find(const Text& section, const Text& key) const;
    /// Tells of a write that failed; an empty text is none.
    void Trace(const Text& failure) const;

    Context& context_;
    const ServiceProperties& properties_;
};

} // namespace ostrel::services
