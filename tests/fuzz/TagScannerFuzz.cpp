#include <cstdint>
#include <cstdlib>

#include "services/TagExtraction.h"
#include "support/SlowTagText.h"

namespace {

using namespace ostrel;

void Require(bool right) {
    if (!right) std::abort();
}

/// A walk ends, and what it gives lies in the text.
void Walk(const Text& html, TextView tag, bool includeTag) {
    Text rest = html;
    for (std::size_t left = rest.size() + 1; rest.size() < left && !rest.empty();) {
        left = rest.size();
        const Text found = services::ExtractDoubleTag(rest, tag, true, includeTag, rest);
        Require(html.find(found) != Text::npos && html.ends_with(rest));
    }
}

} // namespace

/// Whatever the bytes, the fast ways give what the slow ones give.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Text html(reinterpret_cast<const char*>(data), size);
    Require(services::StripTags(html) == test::SlowTagText::StripTags(html));
    for (int flags = 0; flags < 4; ++flags)
        Require(services::ExtractContent(html, flags & 1, flags & 2) ==
                test::SlowTagText::ExtractContent(html, flags & 1, flags & 2));
    Require(services::RemoveDoubleTag(html, "a", "x", false) ==
            test::SlowTagText::RemoveDoubleTag(html, "a", "x"));
    Walk(html, "a", true);
    Walk(html, "a", false);
    Array<Text> names, values;
    Require(services::ExtractTagValues(html, names, values, 1000) == values.Count());
    Text remain;
    services::ExtractMetaTag(html, "x", remain);
    services::ExtractAllSingleTagValues(html, "a", "x", values, 10, remain);
    services::RemoveComments(html, true);
    services::RemoveBetweenTags(html, "a", "", true);
    return 0;
}
