#pragma once

#include <array>
#include <vector>

#include "tablepages/TableOptions.h"

namespace ostrel::tablepages {

/// One of the pages of a record: its fields in one order.
struct RecordVariant {
    enum Number { ByPosition, NamesUp, NamesDown, ValuesUp, ValuesDown };

    TextView suffix; ///< of the file's name
    TextView sortBy;
    bool up;
    Number nameLeadsTo, valueLeadsTo; ///< where the headers of the two columns link to

    bool SortsNames() const { return sortBy == "Field Name"; }
    bool SortsValues() const { return sortBy == "Field Value"; }
    /// Whether there are pages in this order.
    bool Wanted(const TableOptions& options) const;
};

inline constexpr std::array<RecordVariant, 5> RecordVariants{{
    {"", "Field Position", true, RecordVariant::NamesUp, RecordVariant::ValuesUp},
    {"_Name_U", "Field Name", true, RecordVariant::NamesDown, RecordVariant::ValuesUp},
    {"_Name_D", "Field Name", false, RecordVariant::ByPosition, RecordVariant::ValuesUp},
    {"_Value_U", "Field Value", true, RecordVariant::NamesUp, RecordVariant::ValuesDown},
    {"_Value_D", "Field Value", false, RecordVariant::NamesUp, RecordVariant::ByPosition},
}};

/// Names of the record pages beside a main page: each "." of its name becomes "_Rec_Num_7_Name_U.".
class RecordNames {
public:
    explicit RecordNames(TextView mainName);
    Text Of(long long record, RecordVariant::Number variant = RecordVariant::ByPosition) const;

private:
    std::vector<Text> parts_; // the name, cut at its points
};

} // namespace ostrel::tablepages
