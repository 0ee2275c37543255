#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> MessageMembers() {
    return {
        MEMBER(CountryCode, ""),
        MEMBER(HoursMinutes, "Minutes"),
        MEMBER(HoursMinutesSeconds, "Seconds"),
        MEMBER(IsTime, "InputString TimeDelimiter"),
        MEMBER(MessageError, "ErrorMessage"),
        MEMBER(MessageInfo, "ErrorMessage"),
        MEMBER(MessageQuery, "ErrorMessage Buttons"),
        MEMBER(MessageWarn, "ErrorMessage"),
        MEMBER(MinutesSeconds, "Seconds"),
        MEMBER(ShowAboutBox, ""),
        MEMBER(ShowOstrelAboutBox,
               "ProgramName Major Minor Revision CreationDate Description Disclaimer Top Left"),
        MEMBER(WaitMilliSeconds, "MilliSeconds"),
        MEMBER(WaitSeconds, "Seconds"),
    };
}

} // namespace ostrel::bridge
