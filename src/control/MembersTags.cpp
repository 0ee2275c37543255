#include "control/Guard.h"
#include "services/PreparedSearch.h"
#include "services/TagExtraction.h"
#include "services/TagText.h"

namespace ostrel {

Long OstrelWebHelp::ExtractAllDoubleTagValues(const Text& InputString, const Text& TagName,
                                              const Text& TagAttribute, Array<Text>& Values, Long MaxValues) {
    return Guarded([&] {
        return services::ExtractAllDoubleTagValues(InputString, TagName, TagAttribute, Values, MaxValues,
                                                   state_.ExtractRemain);
    });
}

Long OstrelWebHelp::ExtractAllSingleTagValues(const Text& InputString, const Text& TagName,
                                              const Text& TagAttribute, Array<Text>& Values, Long MaxValues) {
    return Guarded([&] {
        return services::ExtractAllSingleTagValues(InputString, TagName, TagAttribute, Values, MaxValues,
                                                   state_.ExtractRemain);
    });
}

Text OstrelWebHelp::ExtractDoubleTag(const Text& InputString, const Text& Tag, Flag TrimOutput,
                                     Flag IncludeTag) {
    return Guarded([&] {
        return services::ExtractDoubleTag(InputString, Tag, TrimOutput, IncludeTag, state_.ExtractRemain);
    });
}

Text OstrelWebHelp::ExtractMetaTag(const Text& InputString, const Text& Tag) {
    return Guarded([&] { return services::ExtractMetaTag(InputString, Tag, state_.ExtractRemain); });
}

Flag OstrelWebHelp::ExtractMetaTagValues(const Text& Tag, Text& Name, Text& Content) {
    return Guarded([&] { return services::ExtractMetaTagValues(Tag, Name, Content); });
}

Text OstrelWebHelp::ExtractRemain() {
    return Guarded([&] { return state_.ExtractRemain; });
}

void OstrelWebHelp::ExtractReset() {
    Guarded([&] { state_.ExtractRemain.clear(); });
}

Text OstrelWebHelp::ExtractSingleTag(const Text& InputString, const Text& Tag, Flag TrimOutput,
                                     Flag IncludeTag) {
    return Guarded([&] {
        return services::ExtractSingleTag(InputString, Tag, TrimOutput, IncludeTag, state_.ExtractRemain);
    });
}

Text OstrelWebHelp::ExtractTag(const Text& InputString) {
    return Guarded([&] { return services::ExtractTag(InputString, state_.ExtractRemain); });
}

Text OstrelWebHelp::ExtractTagValue(const Text& InputString, const Text& Name) {
    return Guarded([&] { return services::ExtractTagValue(InputString, Name); });
}

Long OstrelWebHelp::ExtractTagValues(const Text& InputString, Array<Text>& Names, Array<Text>& Values,
                                     Long MaxValues) {
    return Guarded([&] { return services::ExtractTagValues(InputString, Names, Values, MaxValues); });
}

Double OstrelWebHelp::CellNumericValue(const Text& InputString) {
    return Guarded([&] { return services::CellNumericValue(InputString); });
}

Long OstrelWebHelp::CellTimeSeconds(const Text& InputString) {
    return Guarded([&] { return services::CellTimeSeconds(InputString); });
}

Text OstrelWebHelp::ExtractContent(const Text& InputString, Flag RemoveDouble, Flag RemoveSpecials) {
    return Guarded([&] { return services::ExtractContent(InputString, RemoveDouble, RemoveSpecials); });
}

Text OstrelWebHelp::NormaliseSearchText(const Text& InputString) {
    return Guarded([&] { return services::NormaliseSearchText(InputString); });
}

Text OstrelWebHelp::RemoveBetweenTags(const Text& InputString, const Text& Tag, const Text& TagEnd,
                                      Flag TrimBlanks) {
    return Guarded([&] { return services::RemoveBetweenTags(InputString, Tag, TagEnd, TrimBlanks); });
}

Text OstrelWebHelp::RemoveComments(const Text& InputString, Flag TrimBlanks) {
    return Guarded([&] { return services::RemoveComments(InputString, TrimBlanks); });
}

Text OstrelWebHelp::RemoveDoubleTag(const Text& InputString, const Text& Tag, const Text& SubTag,
                                    Flag TrimBlanks) {
    return Guarded([&] { return services::RemoveDoubleTag(InputString, Tag, SubTag, TrimBlanks); });
}

Long OstrelWebHelp::SearchCount(const Text& InputString, const Text& SearchString, Flag MatchCase,
                                Flag WholeWords) {
    return Guarded([&] { return services::SearchCount(InputString, SearchString, MatchCase, WholeWords); });
}

} // namespace ostrel
