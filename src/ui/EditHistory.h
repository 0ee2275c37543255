#pragma once

#include <deque>
#include <vector>

#include "ui/Change.h"
#include "ui/TextPieces.h"

namespace ostrel {

/// Some changes that are undone together, with the text that they removed.
class EditStep {
public:
    /// Notes a change that is about to be made to the text. One that lies beside the last is noted as one
    /// with it, so a step over a whole text holds about as much as the text, however many changes it consists
    /// of.
    void Note(const TextPieces& text, const Change& change);

    bool Empty() const { return changes_.empty(); }
    const Change& Last() const { return changes_.back(); }
    /// What the last change removed.
    TextView LastRemoved() const;
    void DropLast();
    std::size_t Memory() const {
        return sizeof(*this) + changes_.capacity() * sizeof(Change) + removed_.capacity();
    }

private:
    bool NoteBesideLast(const TextPieces& text, const Change& change);

    std::vector<Change> changes_;
    Text removed_; ///< by all changes, one behind the other
};

/// The steps that can be undone and those that can be made again. What lies further back than 64 MB is
/// forgotten, but the last step is kept however large it is.
class EditHistory {
public:
    void BeginStep() { ++depth_; }
    /// As `BeginStep`, but what follows belongs to the step before.
    void ReopenStep();
    void EndStep();

    /// Notes a change that is about to be made.
    void Note(const TextPieces& text, const Change& change);
    void Forget();

    bool CanUndo() const { return depth_ == 0 && !undo_.empty(); }
    bool CanRedo() const { return depth_ == 0 && !redo_.empty(); }

    /// Takes back the last step: `make(at, removed, inserted)` makes each of its changes. Where one throws,
    /// the history no longer belongs to the text and is to be forgotten.
    template <class Make>
    void Undo(const TextPieces& text, Make make) {
        remembered_ -= undo_.back().Memory();
        Move(undo_, redo_, text, make);
    }
    template <class Make>
    void Redo(const TextPieces& text, Make make) {
        Move(redo_, undo_, text, make);
        Close();
    }

private:
    using Steps = std::deque<EditStep>;

    /// Takes the last step of `from` back, change by change, while its opposite grows in `to`.
    template <class Make>
    static void Move(Steps& from, Steps& to, const TextPieces& text, Make make) {
        EditStep& opposite = to.emplace_back();
        for (EditStep& step = from.back(); !step.Empty(); step.DropLast()) {
            const Change last = step.Last();
            opposite.Note(text, {last.at, last.inserted, last.removed});
            make(last.at, last.inserted, step.LastRemoved());
        }
        from.pop_back();
    }
    /// Ends the last step.
    void Close();

    Steps undo_, redo_;
    std::size_t remembered_ = 0; ///< bytes of the steps that can be undone and are closed
    int depth_ = 0;
    bool open_ = false; ///< whether the last step takes further changes
};

} // namespace ostrel
