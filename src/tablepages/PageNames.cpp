#include "tablepages/PageNames.h"

#include "services/Paths.h"
#include "tablepages/RecordNames.h"
#include "tablepages/ReportFrame.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel::tablepages {

Text CsvPath(TextView mainPath) { return services::FileExtensionChange(mainPath, ".csv"); }

Text DownPagePath(TextView mainPath) { return ReplaceAll(mainPath, ".htm", "_D.htm"); }

bool HasDownPage(const TableOptions& options) {
    return options.PageTableRecordNumber && !options.PageTableHeaderRNName.empty() &&
           options.PageTableRecordNumberSort;
}

Text SortPageName(const TableOptions& options, TextView mainName, Long column, TextView name,
                  TextView suffix) {
    Text word;
    if (options.PageTableOrderUseNames) {
        word = ReplaceAll(name, "<BR>", "");
        std::erase(word, '_');
        std::erase(word, ' ');
    }
    if (word.empty()) word = FromLong(column);
    return ReplaceAll(mainName, ".", Text("_").append(word).append(suffix).append("."));
}

Array<Text> FileNames(const TableScope& scope, const TableInput& input) {
    ReportFrame frame(scope, input);
    const TableOptions& options = frame.options;
    const Text main = services::FileName(input.filePath);
    Array<Text> names;
    if (main.empty() || input.rows <= 0 || input.columns <= 0) return names;
    if (options.PageTableAddExcel) names.Append(CsvPath(main));
    if (!frame.columns.Settle(input, options, frame.rules)) return names;
    if (HasDownPage(options)) names.Append(DownPagePath(main));
    names.Append(main);
    for (const Long column : frame.columns.shown)
        if (options.PageTableColumnSort.Get(column))
            for (const TextView suffix : {"_U", "_D"})
                names.Append(SortPageName(options, main, column, frame.Name(column), suffix));
    if (!options.PageTableAddSeparate) return names;
    const RecordNames records(main);
    for (Long record = 1; record <= input.rows; ++record)
        for (std::size_t variant = 0; variant < RecordVariants.size(); ++variant)
            if (RecordVariants[variant].Wanted(options))
                names.Append(records.Of(record, static_cast<RecordVariant::Number>(variant)));
    return names;
}

} // namespace ostrel::tablepages
