#include "control/Guard.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel {

Text OstrelWebHelp::TrimCrLf(const Text& InputString) {
    return Guarded([&] { return ostrel::TrimCrLf(InputString); });
}

Long OstrelWebHelp::FindTagClose(const Text& InputString, Long StartPosition) {
    return Guarded([&] { return services::FindTagClose(InputString, StartPosition); });
}

Text OstrelWebHelp::StripTags(const Text& InputString) {
    return Guarded([&] { return services::StripTags(InputString); });
}

Text OstrelWebHelp::AddMissingBackslash(const Text& InputString) {
    return Guarded([&] { return services::AddMissingBackslash(InputString); });
}

Text OstrelWebHelp::AddMissingSlash(const Text& InputString) {
    return Guarded([&] { return services::AddMissingSlash(InputString); });
}

Flag OstrelWebHelp::FileExists(const Text& FilePath) {
    return Guarded([&] { return services::FileExists(*context_.platform.files, FilePath); });
}

} // namespace ostrel
