#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "help/IndexPage.h"

namespace ostrel {

void OstrelWebHelp::IndexAdd(const Text& Hyperlink, const Text& Name, Flag Indent, const Text& Extra,
                             const Text& IndexCharacter) {
    parts_->guard([&] { parts_->state.index.Add({Hyperlink, Name, Indent, Extra, IndexCharacter}); });
}

void OstrelWebHelp::IndexClear() {
    parts_->guard([&] { parts_->state.index.Clear(); });
}

Text OstrelWebHelp::CreateIndex(const Text& Font, Flag SpaceSections, const Text& SpaceSectionHTML,
                                const Text& SpaceColumnHTML, const Text& SpaceIdentHTML, Flag TopIndex,
                                Flag BottomIndex, const Text& IndexFont, const Text& /*PadFont*/) {
    return parts_->guard([&] {
        return help::CreateIndex(parts_->PageScope(), parts_->state.index,
                                 {.font = Font,
                                  .letterFont = IndexFont,
                                  .spaceSections = SpaceSections,
                                  .sectionSpacer = SpaceSectionHTML,
                                  .columnSpacer = SpaceColumnHTML,
                                  .indent = SpaceIdentHTML,
                                  .lettersAbove = TopIndex,
                                  .lettersBelow = BottomIndex});
    });
}

} // namespace ostrel
