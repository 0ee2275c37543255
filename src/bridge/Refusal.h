#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace ostrel::bridge {

/// Why a request is not carried out, as a full sentence in UTF-8. It is thrown before anything has changed
/// and caught where the line is answered.
struct Refusal {
    explicit Refusal(std::string text) : sentence(std::move(text)) {}
    std::string sentence;
};

/// For a name that nothing has; in UTF-8, too.
[[noreturn]] inline void RefuseUnknown(std::string_view what, const std::string& name) {
    throw Refusal(std::string(what) + " [" + name + "] does not exist.");
}

} // namespace ostrel::bridge
