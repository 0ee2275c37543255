#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

namespace ostrel {

/// Something whose changes are counted, so that a window that shows it can tell by one number whether there
/// is anything to bring up to date. A part takes its numbers from the whole it belongs to; so each change has
/// a number of its own, and the number of the whole is that of the last change in any part.
class Revised {
public:
    explicit Revised(Revised* whole = nullptr) : whole_(whole) {}
    Revised(const Revised&) = delete;
    Revised& operator=(const Revised&) = delete;

    /// The number of the last change; 0 before the first.
    std::uint64_t Revision() const { return revision_; }
    /// Counts a change and returns its number.
    std::uint64_t Touch() { return revision_ = whole_ ? whole_->Touch() : revision_ + 1; }

protected:
    ~Revised() = default;

private:
    Revised* whole_;
    std::uint64_t revision_ = 0;
};

/// A field whose changes are counted by its owner.
///
///     lblCount.caption = "3 pages";             // write
///     if (lblCount.caption->empty()) return;    // read
///     lisPages.items.Change().push_back("new"); // change a part
///
/// It converts to its value where that is enough, as in `if (chkBold.value)`.
template <class Value>
class Tracked {
public:
    explicit Tracked(Revised& owner, Value value = {}) : owner_(owner), value_(std::move(value)) {}
    Tracked(const Tracked&) = delete;

    /// The same value again is no change.
    Tracked& operator=(Value value) {
        if (value_ != value) Change() = std::move(value);
        return *this;
    }
    /// Takes the value, not the owner.
    Tracked& operator=(const Tracked& other) { return *this = other.value_; }
    /// The value to be changed in place, which counts as changed. Use it at once.
    Value& Change() {
        revision_ = owner_.Touch();
        return value_;
    }

    const Value& operator*() const { return value_; }
    const Value* operator->() const requires(!std::is_pointer_v<Value>) { return &value_; }
    Value operator->() const requires std::is_pointer_v<Value> { return value_; }
    operator const Value&() const { return value_; }

    /// The number of its last change among those of its owner; 0 before the first.
    std::uint64_t Revision() const { return revision_; }

private:
    Revised& owner_;
    Value value_;
    std::uint64_t revision_ = 0;
};

} // namespace ostrel
