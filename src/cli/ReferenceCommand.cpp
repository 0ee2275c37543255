#include "cli/ReferenceCommand.h"

#include <iostream>
#include <string>

#include <CLI/CLI.hpp>

#include "bridge/EventDesk.h"
#include "bridge/Members.h"
#include "bridge/Values.h"
#include "control/PropertyTable.h"
#include "platform/Events.h"
#include "text/CodePage.h"

namespace ostrel::cli {

namespace {

/// A text inside a table of Markdown.
std::string Cell(std::string_view text) {
    std::string cell;
    for (const char c : text) {
        if (c == '|') cell += '\\';
        cell += c;
    }
    return cell;
}

void WriteMembers(std::ostream& page) {
    page << "## Members\n\nAn argument in italics is written by the member.\n";
    for (const bridge::Family& family : bridge::Families()) {
        page << "\n### " << family.title
             << "\n\n| Member | Arguments | Result | Meaning |\n|---|---|---|---|\n";
        for (const bridge::Member& member : family.members) {
            page << "| `" << member.name << "` | ";
            const char* separator = "";
            for (const bridge::Argument& argument : member.arguments) {
                const char* mark = argument.out ? "*" : "";
                page << separator << mark << argument.name << mark << " " << argument.kind;
                separator = ", ";
            }
            page << " | " << (member.result == "none" ? "" : member.result) << " | " << Cell(member.doc)
                 << " |\n";
        }
    }
}

std::string DefaultOf(const PropertyRow& row) {
    std::string json;
    bridge::JsonWriter writer(json);
    std::visit([&](const auto& value) { bridge::Write(writer, value); }, row.fallback);
    return "`" + Cell(json) + "`";
}

void WriteProperties(std::ostream& page) {
    page << "\n## Properties\n\nA property with an index has it behind its kind, from 1 to the number there. "
            "A property with a dot is kept in the bag.\n\n"
            "| Property | Kind | Default | Kept | Meaning |\n|---|---|---|---|---|\n";
    for (const PropertyRow& row : AllProperties()) {
        page << "| `" << row.name << "` | ";
        std::visit([&](const auto& value) { page << bridge::KindOf<decltype(value)>; }, row.fallback);
        if (row.Indexed()) page << " (1 to " << row.limit << ")";
        page << " | " << DefaultOf(row) << " | " << (row.Persisted() ? "•" : "") << " | " << Cell(row.doc)
             << " |\n";
    }
}

void WriteEvents(std::ostream& page) {
    page << "\n## Events\n\nA listener may write every argument.\n\n| Event | Arguments |\n|---|---|\n";
    const Events events;
    for (const EventBase* event : events.All()) {
        page << "| `" << event->Name() << "` | ";
        const auto names = bridge::ArgumentNamesOf(*event);
        const auto kinds = event->Kinds();
        for (std::size_t i = 0; i < names.size(); ++i) {
            page << (i > 0 ? ", " : "") << names[i] << " ";
            std::visit([&](const auto* kind) { page << bridge::KindOf<decltype(*kind)>; }, kinds[i]);
        }
        page << " |\n";
    }
}

void WriteReference(std::ostream& page) {
    page << "# Reference\n\nMade by `ostrel reference` from the tables that the component runs on. The kinds "
            "are text, flag, integer (16 bits), long (32 bits), single, double, date, picture and variant "
            "(a text or a number); `[]` is an array from 1, `[][]` a table of rows and columns from "
            "1.\n\n";
    WriteMembers(page);
    WriteProperties(page);
    WriteEvents(page);
}

} // namespace

void AddReferenceCommand(CLI::App& app, int& status) {
    CLI::App* command =
        app.add_subcommand("reference", "Write the reference page of members, properties and events");
    command->callback([&status] {
        WriteReference(std::cout);
        status = std::cout.flush() ? 0 : 1;
    });
}

} // namespace ostrel::cli
