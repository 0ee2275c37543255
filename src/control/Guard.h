#pragma once

#include <type_traits>

namespace ostrel {

/// Through it runs whatever enters the control: every member that the host calls, every timer and every event
/// of the browser pane. It keeps inside what is thrown below, and bounds nested calls: listeners may call any
/// member, and one that raises the event that it listens to would otherwise exhaust the stack.
class Guard {
public:
    static constexpr int MaxNestedCalls = 64;

    /// Runs the body and returns its result. A body that throws, or that is nested deeper than
    /// `MaxNestedCalls`, gives its failure: an empty text, 0 or False.
    template <class Body>
    auto operator()(const Body& body) -> decltype(body()) {
        const Level level(depth_);
        if (depth_ <= MaxNestedCalls) return Contain(body);
        if constexpr (!std::is_void_v<decltype(body())>) return decltype(body()){};
    }

    /// Runs a body that only reads, and so raises no event, at any depth of calls.
    template <class Body>
    auto Read(const Body& body) const -> decltype(body()) {
        return Contain(body);
    }

private:
    struct Level {
        explicit Level(int& depth) : depth_(depth) { ++depth_; }
        ~Level() { --depth_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        int& depth_;
    };

    template <class Body>
    static auto Contain(const Body& body) -> decltype(body()) {
        try {
            return body();
        } catch (...) {
            // Memory that ran out or a listener that threw: the member ends with its failure.
        }
        if constexpr (!std::is_void_v<decltype(body())>) return decltype(body()){};
    }

    int depth_ = 0;
};

} // namespace ostrel
