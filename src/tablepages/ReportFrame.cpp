#include "tablepages/ReportFrame.h"

namespace ostrel::tablepages {

const Text& ReportFrame::Name(Long column) const {
    static const Text none;
    const Text* name = input.names.Find(column);
    return name ? *name : none;
}

bool Interrupted(const ReportFrame& frame, Text& error) {
    frame.context.GiveWay();
    if (!frame.context.run.Pressed()) return false;
    error = "Interrupted by User";
    return true;
}

} // namespace ostrel::tablepages
