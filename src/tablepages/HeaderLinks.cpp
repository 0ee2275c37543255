#include "tablepages/HeaderLinks.h"

#include "tablepages/TableTypes.h"

namespace ostrel {

bool HeaderLinks::Add(Link link, Text& error) {
    if (links.Count() >= MaxLinks) {
        error = "Only 100 Header Links are allowed.";
        return false;
    }
    error.clear();
    constexpr Long all = owhHeaderLinksTop | owhHeaderLinksBottom;
    link.positions &= all;
    if (link.positions == 0) link.positions = all;
    links.Append(std::move(link));
    return true;
}

bool HeaderLinks::AddFormat(Format format) {
    if (formats.Count() >= MaxFormats) return false;
    formats.Append(std::move(format));
    return true;
}

void HeaderLinks::Clear() {
    links.Clear();
    formats.Clear();
    show = {false, true, true, false};
}

Long HeaderLinks::MaxRow() const {
    if (links.Empty()) return 0;
    Long highest = 1;
    for (const Link& link : links) highest = std::max(highest, link.row);
    return highest;
}

} // namespace ostrel
