#include "help/SearchRequest.h"

#include <algorithm>
#include <iterator>

#include "html/Elements.h"
#include "text/NumberText.h"

namespace ostrel::help {

namespace {

constexpr Long LinesOfItems[] = {0, 10, 25, 100};

} // namespace

Long ResultLines(const SearchProperties& search) { return ToLong(search.SearchResultsLines).value_or(0); }

Long ShowItemOfLines(Long lines) {
    const auto above = std::upper_bound(std::begin(LinesOfItems) + 1, std::end(LinesOfItems), lines);
    return static_cast<Long>(above - std::begin(LinesOfItems));
}

Long LinesOfShowItem(Long item) {
    return item >= 1 && item <= static_cast<Long>(std::size(LinesOfItems)) ? LinesOfItems[item - 1] : 0;
}

Text RemoteSearchAddress(const SearchProperties& search, const Text& phrase) {
    return search.SearchRemotePrefix + html::CreateStringURL("\"" + phrase + "\"") +
           search.SearchRemoteSuffix;
}

} // namespace ostrel::help
