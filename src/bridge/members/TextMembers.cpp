#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> TextMembers() {
    return {
        MEMBER(TrimCrLf, "InputString"),        MEMBER(FindTagClose, "InputString StartPosition"),
        MEMBER(StripTags, "InputString"),       MEMBER(AddMissingBackslash, "InputString"),
        MEMBER(AddMissingSlash, "InputString"), MEMBER(FileExists, "FilePath"),
    };
}

} // namespace ostrel::bridge
