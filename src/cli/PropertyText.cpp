#include "cli/PropertyText.h"

#include <algorithm>
#include <string>

#include "cli/Usage.h"
#include "control/PropertyTable.h"
#include "tables/CellText.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::cli {

namespace {

const PropertyRow* FindIgnoringCase(std::string_view name) {
    const auto rows = AllProperties();
    const auto hit = std::find_if(rows.begin(), rows.end(),
                                  [&](const PropertyRow& row) { return EqualText(row.name, name); });
    return hit == rows.end() ? nullptr : &*hit;
}

[[noreturn]] void Refuse(std::string_view assignment, const std::string& why) {
    throw UsageError("--set " + std::string(assignment) + ": " + why);
}

/// Removes an index in parentheses from the name and returns it; 0 if there is no index.
Long TakeIndex(std::string_view assignment, std::string_view& name) {
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos) return 0;
    if (name.back() != ')') Refuse(assignment, "the index has no closing parenthesis.");
    const auto index = ToLong(name.substr(open + 1, name.size() - open - 2));
    if (!index) Refuse(assignment, "the index is not a number.");
    name = name.substr(0, open);
    return *index;
}

PropertyValue ValueOf(std::string_view assignment, const PropertyRow& row, std::string_view text) {
    if (std::holds_alternative<Flag>(row.fallback)) {
        const auto flag = ToFlag(text);
        if (!flag) Refuse(assignment, "the value is neither True nor False.");
        return Flag(*flag);
    }
    if (std::holds_alternative<Long>(row.fallback)) {
        const auto number = ToLong(text);
        if (!number) Refuse(assignment, "the value is not a whole number.");
        return *number;
    }
    if (std::holds_alternative<Picture>(row.fallback)) return Picture{tables::PlainArgument(text)};
    return tables::PlainArgument(text);
}

} // namespace

void SetProperty(OstrelWebHelp& web, std::string_view assignment) {
    const std::size_t equals = assignment.find('=');
    if (equals == std::string_view::npos) Refuse(assignment, "it must be NAME=VALUE.");
    std::string_view name = TrimBlanks(assignment.substr(0, equals));
    const Long index = TakeIndex(assignment, name);
    const PropertyRow* row = FindIgnoringCase(name);
    if (!row) Refuse(assignment, "there is no such property; ostrel reference lists them.");
    if (row->Indexed() && (index < 1 || index > row->limit))
        Refuse(assignment, "it takes an index from 1 to " + std::to_string(row->limit) + ", as in " +
                               std::string(row->name) + "(1)=VALUE.");
    if (!row->Indexed() && index != 0) Refuse(assignment, "it takes no index.");
    row->let(web, index, ValueOf(assignment, *row, assignment.substr(equals + 1)));
}

} // namespace ostrel::cli
