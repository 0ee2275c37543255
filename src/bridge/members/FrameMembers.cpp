#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> BrowserMembers() {
    return {
        MEMBER(Busy, ""),
        MEMBER(BrowserGetFooter, ""),
        MEMBER(BrowserGetHeader, ""),
        MEMBER(BrowserGetSetting, "KeyName ValueName"),
        MEMBER(BrowserLeft, ""),
        MEMBER(BrowserSetFooter, "Value"),
        MEMBER(BrowserSetHeader, "Value"),
        MEMBER(BrowserSetSetting, "KeyName ValueName Value"),
        MEMBER(BrowserTop, ""),
        MEMBER(Cancel, ""),
        MEMBER(GoBack, ""),
        MEMBER(GoForward, ""),
        MEMBER(GoHome, ""),
        MEMBER(GoSearch, ""),
        MEMBER(HostStop, "Value"),
        MEMBER(LoadURL, "URL ErrorMessage"),
        MEMBER(LoadURLToTarget, "URL Target ErrorMessage"),
        MEMBER(LocationName, ""),
        MEMBER(LocationURL, ""),
        MEMBER(ReadyState, ""),
        MEMBER(Refresh, ""),
        MEMBER(RefreshCompletely, ""),
        MEMBER(RefreshIfExpired, ""),
    };
}

std::vector<Member> ProgressMembers() {
    return {
        MEMBER(ClockStart, ""),
        MEMBER(ClockStop, ""),
        MEMBER(ClockTime, ""),
        MEMBER(StopGaugeReset, ""),
        MEMBER(StopGaugeShow, "ShowFraction"),
        MEMBER(StopHide, ""),
        MEMBER(StopShow, "Heading"),
    };
}

std::vector<Member> HelpMembers() {
    return {
        MEMBER(HelpPageCurrent, ""),
        MEMBER(HelpPageExists, "HelpPage"),
        MEMBER(HelpPageInternal, ""),
        MEMBER(HelpPageLoad, "HelpPage ErrorMessage"),
        MEMBER(HelpPageLoadInternal, "ErrorMessage"),
        MEMBER(HelpPageLoadNow, ""),
        MEMBER(HelpPageNext, ""),
    };
}

std::vector<Member> HelpServiceMembers() {
    return {
        MEMBER(CreateIndex, "Font SpaceSections SpaceSectionHTML SpaceColumnHTML SpaceIdentHTML TopIndex "
                            "BottomIndex IndexFont PadFont"),
        MEMBER(IndexAdd, "Hyperlink Name Indent Extra IndexCharacter"),
        MEMBER(IndexClear, ""),
        MEMBER(PrintPage, ""),
        MEMBER(PrintSelectedPages, "SelectMask IgnoreMask ErrorMessage"),
        MEMBER(Search, "Mask ErrorMessage"),
        MEMBER(SearchClear, ""),
        MEMBER(SearchDisplay, "ErrorMessage"),
        MEMBER(SearchLoad, "Mask ErrorMessage"),
        MEMBER(SearchResultsCreate, "SearchString MatchCase WholeWords ErrorMessage"),
    };
}

std::vector<Member> ToolbarMembers() {
    return {
        MEMBER(ButtonAdd, "Name BitMap ToolTip ErrorMessage"),
        MEMBER(ButtonAddPicture, "Name BitMap ToolTip ErrorMessage"),
        MEMBER(ButtonClear, ""),
        MEMBER(ButtonClick, "Button"),
        MEMBER(ToolbarButtonEnabled, "Button"),
        MEMBER(ToolbarButtonEnabledSet, "Button State"),
        MEMBER(ToolbarButtonLeft, "Button"),
        MEMBER(ToolbarButtonMousePointer, "Button"),
        MEMBER(ToolbarButtonMousePointerSet, "Button Value"),
        MEMBER(ToolbarButtonSizePosition, "Top Height Width"),
        MEMBER(ToolbarButtonVisible, "Button"),
    };
}

} // namespace ostrel::bridge
