#pragma once

#include <cstddef>
#include <memory>
#include <utility>

namespace ostrel {

/// The object that stands in for a role that a platform lacks: it does nothing, and reports failure where the
/// role can. It has no state, so all platforms share it.
template <class Interface>
Interface& NullObject();

/// Owns one role of a platform. Without one it gives the null object of the role, so what it gives is never
/// null and nobody has to ask.
template <class Interface>
class Role {
public:
    Role() = default;
    Role(std::nullptr_t) {}
    /// `made` may be null.
    template <class Made>
    Role(std::unique_ptr<Made> made) : own_(std::move(made)) {}

    Interface* get() const { return own_ ? own_.get() : &NullObject<Interface>(); }
    Interface& operator*() const { return *get(); }
    Interface* operator->() const { return get(); }
    /// Always: there is a null object at least.
    explicit operator bool() const { return true; }

private:
    std::unique_ptr<Interface> own_;
};

} // namespace ostrel
