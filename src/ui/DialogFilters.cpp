#include "ui/DialogFilters.h"

#include "services/Paths.h"
#include "text/CodePage.h"

namespace ostrel {

namespace {

Text MaskOf(const Text& extension) {
    return extension.find('.') == Text::npos ? "*." + extension : extension;
}

} // namespace

Text DialogExtensionFilter(const Text& extension, const Text& extension2, const Text& extension3) {
    const Text first = MaskOf(extension);
    Text mask = first;
    for (const Text* further : {&extension2, &extension3})
        if (!further->empty()) mask.append("; ").append(MaskOf(*further));
    Text label = Upper(services::FileExtension(first));
    if (label.starts_with('.')) label.erase(0, 1);
    return Text(DialogDefaultFilter) + "|" + label + " Files|" + mask;
}

} // namespace ostrel
