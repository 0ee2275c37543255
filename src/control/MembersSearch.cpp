#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"

namespace ostrel {

Flag OstrelWebHelp::Search(const Text& Mask, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag { return parts_->search.Search(Mask, ErrorMessage); });
}

void OstrelWebHelp::SearchClear() {
    parts_->guard([&] { parts_->search.Clear(); });
}

Flag OstrelWebHelp::SearchDisplay(Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag { return parts_->search.Display(ErrorMessage); });
}

Flag OstrelWebHelp::SearchLoad(const Text& Mask, Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag { return parts_->search.Load(Mask, ErrorMessage); });
}

Flag OstrelWebHelp::SearchResultsCreate(const Text& SearchString, Flag MatchCase, Flag WholeWords,
                                        Text& ErrorMessage) {
    return parts_->guard([&]() -> Flag {
        return parts_->search.CreateResults(SearchString, MatchCase, WholeWords, ErrorMessage);
    });
}

} // namespace ostrel
