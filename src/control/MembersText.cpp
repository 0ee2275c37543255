#include "control/ControlParts.h"
#include "control/OstrelWebHelp.h"
#include "services/FileServices.h"
#include "services/Paths.h"
#include "services/TagText.h"
#include "text/CodePage.h"

namespace ostrel {

Text OstrelWebHelp::TrimCrLf(const Text& InputString) {
    return parts_->guard([&] { return ostrel::TrimCrLf(InputString); });
}

Long OstrelWebHelp::FindTagClose(const Text& InputString, Long StartPosition) {
    return parts_->guard([&] { return services::FindTagClose(InputString, StartPosition); });
}

Text OstrelWebHelp::StripTags(const Text& InputString) {
    return parts_->guard([&] { return services::StripTags(InputString); });
}

Text OstrelWebHelp::AddMissingBackslash(const Text& InputString) {
    return parts_->guard([&] { return services::AddMissingBackslash(InputString); });
}

Text OstrelWebHelp::AddMissingSlash(const Text& InputString) {
    return parts_->guard([&] { return services::AddMissingSlash(InputString); });
}

Flag OstrelWebHelp::FileExists(const Text& FilePath) {
    return parts_->guard([&] { return services::FileExists(parts_->Disk(), FilePath); });
}

} // namespace ostrel
