#include "ui/EditBuffer.h"

#include <algorithm>

namespace ostrel {

namespace {

// Who is further behind is up to date sooner with the whole text.
constexpr std::size_t MostChanges = 4096;

} // namespace

/// Around a change: where it does not come to its end, for want of memory, the history and the list of
/// changes may no longer belong to the text and are forgotten.
class EditBuffer::Consistency {
public:
    explicit Consistency(EditBuffer& buffer) : buffer_(buffer) {}
    Consistency(const Consistency&) = delete;
    Consistency& operator=(const Consistency&) = delete;
    ~Consistency() {
        if (kept_) return;
        buffer_.history_.Forget();
        buffer_.ForgetChanges();
    }
    void Keep() { kept_ = true; }

private:
    EditBuffer& buffer_;
    bool kept_ = false;
};

bool EditBuffer::Assign(TextView text) {
    if (text.size() > static_cast<std::size_t>(MostText)) return false;
    // With nothing kept, the history and all changes go.
    const Consistency fresh(*this);
    text_.Assign(text);
    return true;
}

bool EditBuffer::Replace(Long at, Long removed, TextView inserted) {
    const Range range = Clip(at, removed);
    if (inserted.size() > static_cast<std::size_t>(MostText - (Size() - range.length))) return false;
    if (range.length == 0 && inserted.empty()) return true;
    Consistency consistency(*this);
    history_.Note(text_, {range.at, range.length, static_cast<Long>(inserted.size())});
    Make(range.at, range.length, inserted);
    consistency.Keep();
    return true;
}

bool EditBuffer::Undo() {
    if (!CanUndo()) return false;
    Consistency consistency(*this);
    history_.Undo(text_, [this](Long at, Long removed, TextView inserted) { Make(at, removed, inserted); });
    consistency.Keep();
    return true;
}

bool EditBuffer::Redo() {
    if (!CanRedo()) return false;
    Consistency consistency(*this);
    history_.Redo(text_, [this](Long at, Long removed, TextView inserted) { Make(at, removed, inserted); });
    consistency.Keep();
    return true;
}

void EditBuffer::Make(Long at, Long removed, TextView inserted) {
    if (changes_.size() == 2 * MostChanges) {
        changes_.erase(changes_.begin(), changes_.begin() + MostChanges);
        firstRevision_ += MostChanges;
    }
    const Long before = at > 0 ? text_.ColourAt(at - 1) : 0;
    const Long colour = before == text_.ColourAt(at + removed) ? before : 0;
    text_.Replace(at, removed, inserted, colour);
    changes_.push_back({at, removed, static_cast<Long>(inserted.size())});
}

void EditBuffer::ForgetChanges() {
    // One more than the last, so that an empty list is not taken for no change.
    firstRevision_ = Revision() + 1;
    changes_.clear();
}

std::vector<Change> EditBuffer::Since(std::uint64_t revision) const {
    if (revision < firstRevision_ || Revision() - revision > MostChanges) return {{0, MostText, Size()}};
    std::vector<Change> sum;
    for (auto change = changes_.begin() + static_cast<std::ptrdiff_t>(revision - firstRevision_);
         change < changes_.end(); ++change)
        AddChange(sum, *change);
    return sum;
}

TextView EditBuffer::Read(Long at) const { return text_.Read(Clip(at, 0).at); }

Text EditBuffer::Copy(Long at, Long length) const {
    const Range range = Clip(at, length);
    Text result;
    result.reserve(static_cast<std::size_t>(range.length));
    text_.AppendTo(result, range.at, range.length);
    return result;
}

Long EditBuffer::LineAt(Long at) const { return text_.LineAt(Clip(at, 0).at); }

void EditBuffer::Colour(Long at, Long length, Long colour) {
    const Range range = Clip(at, length);
    ++colourRevision_;
    text_.Paint(range.at, range.length, colour);
}

Long EditBuffer::ColourAt(Long at) const { return text_.ColourAt(at); }

std::vector<ColourRun> EditBuffer::Colours(Long at, Long length) const {
    const Range range = Clip(at, length);
    return text_.Colours(range.at, range.length);
}

EditBuffer::Range EditBuffer::Clip(Long at, Long length) const {
    const Long start = std::clamp<Long>(at, 0, Size());
    return {start, std::clamp<Long>(length, 0, Size() - start)};
}

} // namespace ostrel
