#include "platform/native/LocalTime.h"

namespace ostrel {

Date LocalTime(std::time_t moment) {
    constexpr double startOfSystemTime = 25569; // 1 January 1970
    constexpr double secondsOfDay = 86400;
    std::tm local{};
    if (!::localtime_r(&moment, &local)) return {};
    return {startOfSystemTime + static_cast<double>(::timegm(&local)) / secondsOfDay};
}

} // namespace ostrel
