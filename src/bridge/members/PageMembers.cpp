#include "bridge/MemberRow.h"
#include "bridge/members/Families.h"

namespace ostrel::bridge {

std::vector<Member> PageMembers() {
    return {
        MEMBER(CreatePage, "Body"),
        MEMBER(CurrentCreatePage, ""),
        MEMBER(HelpPageInitialise, ""),
        MEMBER(HelpPageSaveInternal, "FilePath ErrorMessage"),
        MEMBER(InternalBuild, "Part1 Part2 Part3"),
        MEMBER(PageBody, ""),
        MEMBER(PageCreateList,
               "FilePath Title NumberList ListHeader ListFooter List[NumberList] ErrorMessage "
               "OrderedList Space"),
        MEMBER(PageCreateSimple, "FilePath Title Body ErrorMessage Centre"),
        MEMBER(PageCreateSimpleBoxed, "FilePath Page PageWidth ErrorMessage BoxWidth BoxColour"),
        MEMBER(PageCreateSimpleBoxed2,
               "FilePath Title Body PageWidth PageCentre PageColour ErrorMessage BoxWidth BoxColour"),
        MEMBER(PageFontBoldSet, "FontType Bold"),
        MEMBER(PageFontColourSet, "FontType Colour"),
        MEMBER(PageFontFaceSet, "FontType Name"),
        MEMBER(PageFontItalicSet, "FontType Italic"),
        MEMBER(PageFontSizeSet, "FontType Size"),
        MEMBER(PageInitialise, ""),
        MEMBER(PageReset, ""),
    };
}

} // namespace ostrel::bridge
