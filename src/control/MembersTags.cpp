#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/PreparedSearch.h"
#include "services/TagExtraction.h"
#include "services/TagText.h"

namespace ostrel {

Long OstrelWebHelp::ExtractAllDoubleTagValues(const Text& InputString, const Text& TagName,
                                              const Text& TagAttribute, Array<Text>& Values, Long MaxValues) {
    return parts_->guard([&] {
        return services::ExtractAllDoubleTagValues(InputString, TagName, TagAttribute, Values, MaxValues,
                                                   parts_->state.extractRemain);
    });
}

Long OstrelWebHelp::ExtractAllSingleTagValues(const Text& InputString, const Text& TagName,
                                              const Text& TagAttribute, Array<Text>& Values, Long MaxValues) {
    return parts_->guard([&] {
        return services::ExtractAllSingleTagValues(InputString, TagName, TagAttribute, Values, MaxValues,
                                                   parts_->state.extractRemain);
    });
}

Text OstrelWebHelp::ExtractDoubleTag(const Text& InputString, const Text& Tag, Flag TrimOutput,
                                     Flag IncludeTag) {
    return parts_->guard([&] {
        return services::ExtractDoubleTag(InputString, Tag, TrimOutput, IncludeTag,
                                          parts_->state.extractRemain);
    });
}

Text OstrelWebHelp::ExtractMetaTag(const Text& InputString, const Text& Tag) {
    return parts_->guard(
        [&] { return services::ExtractMetaTag(InputString, Tag, parts_->state.extractRemain); });
}

Flag OstrelWebHelp::ExtractMetaTagValues(const Text& Tag, Text& Name, Text& Content) {
    return parts_->guard([&] { return services::ExtractMetaTagValues(Tag, Name, Content); });
}

Text OstrelWebHelp::ExtractRemain() {
    return parts_->guard([&] { return parts_->state.extractRemain; });
}

void OstrelWebHelp::ExtractReset() {
    parts_->guard([&] { parts_->state.extractRemain.clear(); });
}

Text OstrelWebHelp::ExtractSingleTag(const Text& InputString, const Text& Tag, Flag TrimOutput,
                                     Flag IncludeTag) {
    return parts_->guard([&] {
        return services::ExtractSingleTag(InputString, Tag, TrimOutput, IncludeTag,
                                          parts_->state.extractRemain);
    });
}

Text OstrelWebHelp::ExtractTag(const Text& InputString) {
    return parts_->guard([&] { return services::ExtractTag(InputString, parts_->state.extractRemain); });
}

Text OstrelWebHelp::ExtractTagValue(const Text& InputString, const Text& Name) {
    return parts_->guard([&] { return services::ExtractTagValue(InputString, Name); });
}

Long OstrelWebHelp::ExtractTagValues(const Text& InputString, Array<Text>& Names, Array<Text>& Values,
                                     Long MaxValues) {
    return parts_->guard([&] { return services::ExtractTagValues(InputString, Names, Values, MaxValues); });
}

Double OstrelWebHelp::CellNumericValue(const Text& InputString) {
    return parts_->guard([&] { return services::CellNumericValue(InputString); });
}

Long OstrelWebHelp::CellTimeSeconds(const Text& InputString) {
    return parts_->guard([&] { return services::CellTimeSeconds(InputString); });
}

Text OstrelWebHelp::ExtractContent(const Text& InputString, Flag RemoveDouble, Flag RemoveSpecials) {
    return parts_->guard([&] { return services::ExtractContent(InputString, RemoveDouble, RemoveSpecials); });
}

Text OstrelWebHelp::NormaliseSearchText(const Text& InputString) {
    return parts_->guard([&] { return services::NormaliseSearchText(InputString); });
}

Text OstrelWebHelp::RemoveBetweenTags(const Text& InputString, const Text& Tag, const Text& TagEnd,
                                      Flag TrimBlanks) {
    return parts_->guard([&] { return services::RemoveBetweenTags(InputString, Tag, TagEnd, TrimBlanks); });
}

Text OstrelWebHelp::RemoveComments(const Text& InputString, Flag TrimBlanks) {
    return parts_->guard([&] { return services::RemoveComments(InputString, TrimBlanks); });
}

Text OstrelWebHelp::RemoveDoubleTag(const Text& InputString, const Text& Tag, const Text& SubTag,
                                    Flag TrimBlanks) {
    return parts_->guard([&] { return services::RemoveDoubleTag(InputString, Tag, SubTag, TrimBlanks); });
}

Long OstrelWebHelp::SearchCount(const Text& InputString, const Text& SearchString, Flag MatchCase,
                                Flag WholeWords) {
    return parts_->guard(
        [&] { return services::SearchCount(InputString, SearchString, MatchCase, WholeWords); });
}

} // namespace ostrel
