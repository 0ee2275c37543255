#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "control/PageScopeOf.h"
#include "html/PageDraft.h"
#include "support/MemoryFiles.h"
#include "tablepages/PageCreateTable.h"
#include "tablepages/PageNames.h"
#include "tablepages/TableReset.h"

namespace ostrel::test {

/// A host of the report engine alone: the state of a control after `PageReset`, files in memory, and ears.
class ReportHost {
public:
    State state;
    Events events;
    RunFlags run;
    Platform platform;
    Context context{events, platform, run};
    MemoryFiles* files = nullptr;

    Array<Text> names;
    Array<Flag> right;
    Grid<Text> cells, tags;
    Text title = "Sales";
    Text filePath = "C:\\out\\report.htm";
    Text error;
    /// What the events told, one a line: the name, then the arguments in brackets.
    std::vector<Text> heard;

    ReportHost() {
        auto memory = std::make_unique<MemoryFiles>();
        files = memory.get();
        files->directories.insert("C:\\out");
        platform.files = std::move(memory);
        html::ResetPage(state.page, state.fonts);
        tablepages::ResetTable(state.table, state.headerLinks);
        state.service.DecimalDelimiter = ".";
        state.service.ProgramName = "Ostrel";
    }

    TableOptions& Options() { return state.table; }
    void Table(Array<Text> columnNames, Grid<Text> values) {
        names = std::move(columnNames);
        right = Array<Flag>(names.Count());
        cells = std::move(values);
    }
    /// Writes down every event from now on.
    void Hear();

    bool Make();
    /// The names of the files that `Make` is going to write.
    std::set<Text> FileNames();
    /// All files of the folder, each behind a line with its name.
    Text Family() const;
    /// All files of the folder by their names.
    std::map<std::string, std::string> ByName() const;
    /// One file of the folder.
    Text Page(const Text& name) const;

private:
    tablepages::TableScope Scope();
    tablepages::TableInput Input() const;
};

/// Compares with a golden file; with OSTREL_UPDATE_GOLDEN set, writes it.
void ExpectGolden(const Text& name, const Text& content);

} // namespace ostrel::test
