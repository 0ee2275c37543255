#pragma once

#include <stdexcept>
#include <string>

namespace ostrel::bridge {

/// Why a request is not carried out, as a full sentence. It is thrown before anything has changed and caught
/// where the line is answered.
class Refusal : public std::runtime_error {
public:
    explicit Refusal(const std::string& sentence) : std::runtime_error(sentence) {}
};

} // namespace ostrel::bridge
