#include "bridge/Members.h"

#include <unordered_map>

#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::span<const Family> Families() {
    static const std::vector<Family> families{
        {"Text", TextMembers()},
        {"Elements of HTML", ElementMembers()},
        {"Tables", TableMembers()},
        {"Pages", PageMembers()},
        {"Tags and content", TagMembers()},
        {"Colours", ColourMembers()},
        {"Paths and files", FileMembers()},
        {"Sorts and settings", SettingsMembers()},
        {"Browser pane", BrowserMembers()},
        {"Progress panel and clock", ProgressMembers()},
        {"Help pages", HelpMembers()},
        {"Help search, index and printing", HelpServiceMembers()},
        {"Dialogs", DialogMembers()},
        {"Toolbar", ToolbarMembers()},
        {"Messages, waits and small formatters", MessageMembers()},
    };
    return families;
}

const Member* FindMember(std::string_view name) {
    static const std::unordered_map<std::string_view, const Member*> byName = [] {
        std::unordered_map<std::string_view, const Member*> map;
        for (const Family& family : Families())
            for (const Member& member : family.members) map.emplace(member.name, &member);
        return map;
    }();
    const auto hit = byName.find(name);
    return hit == byName.end() ? nullptr : hit->second;
}

void RequireArity(const Member& member, const Json& arguments) {
    const std::size_t takes = member.arguments.size();
    if (arguments.size() <= takes) return;
    throw Refusal(std::string(member.name) + (takes == 0 ? " takes no arguments."
                                                         : " takes at most " + std::to_string(takes) +
                                                               (takes == 1 ? " argument." : " arguments.")));
}

void RequireCounts(const Member& member, std::span<const Measure> measures) {
    for (std::size_t i = 0; i < measures.size(); ++i) {
        const Argument& argument = member.arguments[i];
        if (argument.grows || argument.count < 0) continue;
        const auto require = [&](int counter, Long holds, const char* what) {
            if (measures[static_cast<std::size_t>(counter)].count <= holds) return;
            throw Refusal(std::string(member.arguments[static_cast<std::size_t>(counter)].name) +
                          " is larger than the number of " + what + " of " + std::string(argument.name) +
                          ".");
        };
        const bool table = argument.columnCount >= 0;
        require(argument.count, measures[i].rows, table ? "rows" : "elements");
        // A table without rows has no columns to count.
        if (table && measures[i].rows > 0) require(argument.columnCount, measures[i].columns, "columns");
    }
}

} // namespace ostrel::bridge
