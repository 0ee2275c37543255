#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> ColourMembers() {
    return {
        MEMBER(ColourActualToHex, "Colour"), MEMBER(ColourActualToName, "Colour"),
        MEMBER(ColourHexToActual, "Colour"), MEMBER(ColourHexToName, "Colour"),
        MEMBER(ColourNameToHex, "Colour"),   MEMBER(ColourNameToActual, "Colour"),
    };
}

} // namespace ostrel::bridge
