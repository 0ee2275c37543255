#include "platform/native/SystemErrors.h"

#include <cerrno>
#include <cstring>

namespace ostrel {

namespace {

Long ComponentNumber(int error) {
    switch (error) {
    case EINVAL:
        return 5;
    case ENOMEM:
        return 7;
    case EILSEQ:
    case ENAMETOOLONG:
        return 52;
    case ENOENT:
        return 53;
    case EIO:
        return 57;
    case EEXIST:
    case ENOTEMPTY:
        return 58;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return 61;
    case EMFILE:
    case ENFILE:
        return 67;
    case ENODEV:
    case ENXIO:
        return 68;
    case EAGAIN:
    case EBUSY:
    case ETXTBSY:
        return 70;
    case EXDEV:
        return 74;
    case ENOTDIR:
    case ELOOP:
        return 76;
    default:
        return 75;
    }
}

} // namespace

Text SystemSentence(int error) {
    if (error <= 0) return {};
    // In English, since the text must fit the component's code page.
    const char* const description = strerrordesc_np(error);
    return description ? Text(description) + "." : Text();
}

FileResult Failure(int error) { return Failure(error, ComponentNumber(error)); }

FileResult Failure(int error, Long number) {
    Text text = SystemSentence(error);
    if (text.empty()) text = "The system gave no reason.";
    return {number, std::move(text)};
}

} // namespace ostrel
