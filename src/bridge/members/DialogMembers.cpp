#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> DialogMembers() {
    return {
        MEMBER(AdjustFormPosition, "FormToAdjust"),
        MEMBER(DialogColour, "Top Left"),
        MEMBER(DialogDefaultFilter, ""),
        MEMBER(DialogDirectory, "Top Left Title InitDir Flags"),
        MEMBER(DialogDirectoryBusy, ""),
        MEMBER(DialogExtensionFilter, "Extension Extension2 Extension3"),
        MEMBER(DialogFileOpen, "Filter Top Left FileName InitDir DefaultExt FilterIndex"),
        MEMBER(DialogFileSave, "Filter Top Left FileName InitDir DefaultExt FilterIndex"),
        MEMBER(DialogGraphicsFilter, ""),
        MEMBER(DialogHTMLFilter, ""),
        MEMBER(DialogTextFilter, ""),
        MEMBER(DialogWidth, ""),
        MEMBER(IsConnected, "ConnectFlags"),
        PROPERTY_LIST_MEMBER(AddProperty, "Name Value"),
        PROPERTY_LIST_MEMBER(ClearProperties, ""),
        PROPERTY_LIST_MEMBER(SetHeightWidth, "Height Width"),
        PROPERTY_LIST_MEMBER(Show, "Arg1 Arg2 Arg3"),
        PROPERTY_LIST_MEMBER(ShowProperties, "Arg1 Arg2 Arg3 Count Names[Count] Values[Count]"),
    };
}

} // namespace ostrel::bridge
