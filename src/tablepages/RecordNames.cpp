#include "tablepages/RecordNames.h"

#include "text/NumberText.h"

namespace ostrel::tablepages {

bool RecordVariant::Wanted(const TableOptions& options) const {
    return SortsNames()    ? options.PageTableSeparateSortName
           : SortsValues() ? options.PageTableSeparateSortValue
                           : Flag(true);
}

RecordNames::RecordNames(TextView mainName) {
    for (std::size_t start = 0;;) {
        const std::size_t point = mainName.find('.', start);
        parts_.emplace_back(mainName.substr(start, point - start));
        if (point == TextView::npos) break;
        start = point + 1;
    }
}

Text RecordNames::Of(long long record, RecordVariant::Number variant) const {
    Text name = parts_.front();
    if (parts_.size() == 1) return name;
    Text insert = "_Rec_Num_";
    AppendLong(insert, record);
    insert.append(RecordVariants[variant].suffix).append(".");
    for (std::size_t part = 1; part < parts_.size(); ++part) name.append(insert).append(parts_[part]);
    return name;
}

} // namespace ostrel::tablepages
