#pragma once

#include <cstdint>
#include <vector>

#include "ui/EditHistory.h"

namespace ostrel {

/// A text that is edited: it speaks in changes, so that nobody compares or copies a whole text, and remembers
/// how to take them back. An edit costs what it removes and inserts, however large the text is. Positions
/// and lines count from 0; places outside the text are clipped to it. A line ends behind each LF.
///
///     buffer.BeginStep(); // a replace-all: one step to undo
///     buffer.Replace(at, 3, "new");
///     ...
///     buffer.EndStep();
///
/// A window that shows it brings itself up to date so:
///
///     for (const Change& change : buffer.Since(seen))
///         Show(change.at, change.removed, buffer.Copy(change.at, change.inserted));
///     seen = buffer.Revision();
class EditBuffer {
public:
    static constexpr Long MostText = Long{64} << 20;

    /// Takes a new text, black and without a history. Does nothing and returns false above `MostText`.
    bool Assign(TextView text);

    /// Replaces a part of the text. Outside a step it is a step of its own. Does nothing and returns false
    /// where the text would pass `MostText`.
    ///
    /// What is inserted between two characters of one colour takes that colour, else it is black. This holds
    /// for what undo and redo bring back, too.
    bool Replace(Long at, Long removed, TextView inserted);

    /// Changes up to the `EndStep` that belongs to it are one step to undo. Steps may be nested; only the
    /// outermost counts.
    void BeginStep() { history_.BeginStep(); }
    /// As `BeginStep`, but what follows belongs to the last step, unless something was undone since. For
    /// letters that are typed one after another.
    void ReopenStep() { history_.ReopenStep(); }
    void EndStep() { history_.EndStep(); }
    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    /// Takes back the last step. Does nothing and returns false where there is none or a step is going on.
    bool Undo();
    /// Makes the step again that was taken back last.
    bool Redo();

    /// Grows with each change of the text; colours do not count.
    std::uint64_t Revision() const { return firstRevision_ + changes_.size(); }
    /// What has changed since that revision, as changes that turn the text of then into that of now if they
    /// are made one after another, each with what stands at its place now. Where that is longer ago than the
    /// buffer remembers, one change of the whole text, which removes `MostText`.
    std::vector<Change> Since(std::uint64_t revision) const;

    Long Size() const { return text_.Size(); }
    /// The text from there on to the end of some inner piece; empty only at the end of the text. It stays
    /// valid until the next change. A whole text is read without a copy of it:
    ///
    ///     for (Long at = 0; at < buffer.Size(); at += piece.size()) piece = buffer.Read(at);
    TextView Read(Long at) const;
    Text Copy(Long at, Long length) const;
    Text Content() const { return Copy(0, Size()); }

    Long Lines() const { return text_.LineEnds() + 1; }
    Long LineAt(Long at) const;
    /// Where that line starts; the end of the text behind the last one.
    Long LineStart(Long line) const { return text_.LineStart(line); }

    /// Colours a part of the text; 0 is black. The colours move with the text and are no part of the history.
    void Colour(Long at, Long length, Long colour);
    Long ColourAt(Long at) const;
    /// The runs of other colours than black in that part of the text, in order.
    std::vector<ColourRun> Colours(Long at, Long length) const;
    /// Grows with each call of `Colour`.
    std::uint64_t ColourRevision() const { return colourRevision_; }

private:
    class Consistency;

    struct Range {
        Long at, length;
    };

    Range Clip(Long at, Long length) const;
    void Make(Long at, Long removed, TextView inserted);
    void ForgetChanges();

    TextPieces text_;
    EditHistory history_;
    std::vector<Change> changes_;
    std::uint64_t firstRevision_ = 0; ///< the one that the first of the changes leads away from
    std::uint64_t colourRevision_ = 0;
};

} // namespace ostrel
