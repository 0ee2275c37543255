#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> TagMembers() {
    return {
        MEMBER(ExtractAllDoubleTagValues, "InputString TagName TagAttribute Values[..MaxValues] MaxValues"),
        MEMBER(ExtractAllSingleTagValues, "InputString TagName TagAttribute Values[..MaxValues] MaxValues"),
        MEMBER(ExtractDoubleTag, "InputString Tag TrimOutput IncludeTag"),
        MEMBER(ExtractMetaTag, "InputString Tag"),
        MEMBER(ExtractMetaTagValues, "Tag Name Content"),
        MEMBER(ExtractRemain, ""),
        MEMBER(ExtractReset, ""),
        MEMBER(ExtractSingleTag, "InputString Tag TrimOutput IncludeTag"),
        MEMBER(ExtractTag, "InputString"),
        MEMBER(ExtractTagValue, "InputString Name"),
        MEMBER(ExtractTagValues, "InputString Names[..MaxValues] Values[..MaxValues] MaxValues"),
        MEMBER(CellNumericValue, "InputString"),
        MEMBER(CellTimeSeconds, "InputString"),
        MEMBER(ExtractContent, "InputString RemoveDouble RemoveSpecials"),
        MEMBER(NormaliseSearchText, "InputString"),
        MEMBER(RemoveBetweenTags, "InputString Tag TagEnd TrimBlanks"),
        MEMBER(RemoveComments, "InputString TrimBlanks"),
        MEMBER(RemoveDoubleTag, "InputString Tag SubTag TrimBlanks"),
        MEMBER(SearchCount, "InputString SearchString MatchCase WholeWords"),
    };
}

} // namespace ostrel::bridge
