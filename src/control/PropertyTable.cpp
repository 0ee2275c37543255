#include "control/PropertyTable.h"

#include <algorithm>
#include <vector>

#include "control/ControlParts.h"
#include "control/CustomProperties.h"
#include "control/OstrelWebHelp.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

std::vector<PropertyRow> BuildRows() {
    std::vector<PropertyRow> rows{
#define ROW(kind, name, fallback, flags, doc, store)                                                         \
    PropertyRow{                                                                                             \
        #name,                                                                                               \
        kind{fallback},                                                                                      \
        flags,                                                                                               \
        0,                                                                                                   \
        doc,                                                                                                 \
        [](const OstrelWebHelp& web, Long) { return PropertyValue(web.name()); },                            \
        [](OstrelWebHelp& web, Long, const PropertyValue& value) { web.name(std::get<kind>(value)); },       \
        [](ControlParts& parts, Long, const PropertyValue& value) { store; }},
#define PROPERTY(kind, name, fallback, flags, doc)                                                           \
    ROW(kind, name, fallback, flags, doc, parts.state.OWNER.name = std::get<kind>(value))
#define CUSTOM(kind, name, fallback, flags, doc)                                                             \
    ROW(kind, name, fallback, flags, doc, custom::name::Store(parts, std::get<kind>(value)))
#define INDEXED(kind, name, fallback, limit, doc)                                                            \
    PropertyRow{#name,                                                                                       \
                kind{fallback},                                                                              \
                Unstored,                                                                                    \
                limit,                                                                                       \
                doc,                                                                                         \
                [](const OstrelWebHelp& web, Long index) { return PropertyValue(web.name(index)); },         \
                [](OstrelWebHelp& web, Long index, const PropertyValue& value) {                             \
                    web.name(index, std::get<kind>(value));                                                  \
                },                                                                                           \
                [](ControlParts& parts, Long index, const PropertyValue& value) {                            \
                    parts.state.OWNER.name.Put(index, std::get<kind>(value));                                \
                }},
#include "control/PropertyList.h"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED
#undef ROW
    };
    std::sort(rows.begin(), rows.end(),
              [](const PropertyRow& a, const PropertyRow& b) { return CompareText(a.name, b.name) < 0; });
    return rows;
}

} // namespace

std::span<const PropertyRow> AllProperties() {
    static const std::vector<PropertyRow> rows = BuildRows();
    return rows;
}

const PropertyRow* FindProperty(std::string_view name) {
    const auto rows = AllProperties();
    const auto hit =
        std::find_if(rows.begin(), rows.end(), [&](const PropertyRow& row) { return row.name == name; });
    return hit == rows.end() ? nullptr : &*hit;
}

PropertyValue DefaultOf(const PropertyRow& row, Files& files) {
    return row.Has(ApplicationDirectory) ? files.ApplicationDirectory() : row.fallback;
}

} // namespace ostrel
