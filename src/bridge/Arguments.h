#pragma once

#include <string>
#include <string_view>

#include "bridge/Values.h"

namespace ostrel::bridge {

/// Takes the elements of a JSON array one by one, each by its kind; a Refusal where one is missing, of
/// another kind, or too many.
class Arguments {
public:
    /// `key` names the array and `owner` the member or event that takes it, for error messages.
    Arguments(const Json& array, std::string_view key, std::string_view owner)
        : array_(array), owner_(owner) {
        RequireArray(array, Place{key});
    }
    Arguments(const Json& array, std::string_view key) : Arguments(array, key, key) {}

    template <class T>
    T Take(std::string_view name) {
        if (!More()) throw Refusal(std::string(owner_) + " needs " + std::string(name) + ".");
        T value{};
        Read(array_[next_++], Place{name}, value);
        return value;
    }
    template <class T>
    T TakeOr(std::string_view name, T fallback) {
        return More() ? Take<T>(name) : fallback;
    }
    /// Returns the next element as JSON.
    const Json& TakeAny(std::string_view name) {
        if (!More()) throw Refusal(std::string(owner_) + " needs " + std::string(name) + ".");
        return array_[next_++];
    }
    /// Nothing may be left.
    void End() const {
        if (More()) throw Refusal(std::string(owner_) + " takes fewer values.");
    }

private:
    bool More() const { return next_ < array_.size(); }

    const Json& array_;
    std::string_view owner_;
    std::size_t next_ = 0;
};

} // namespace ostrel::bridge
