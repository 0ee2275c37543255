#include "ui/EditHistory.h"

namespace ostrel {

namespace {

constexpr std::size_t MostRemembered = std::size_t{64} << 20;
// Text between two changes that costs no more to keep than a change of its own.
constexpr Long MostBetween = 16;

} // namespace

void EditStep::Note(const TextPieces& text, const Change& change) {
    if (!changes_.empty() && NoteBesideLast(text, change)) return;
    changes_.push_back(change);
    text.AppendTo(removed_, change.at, change.removed);
}

bool EditStep::NoteBesideLast(const TextPieces& text, const Change& change) {
    Change& last = changes_.back();
    const Long end = last.at + last.inserted;
    if (change.at < last.at || change.at > end + MostBetween) return false;
    // What goes beyond the last change was there before the step; the rest is the step's own work.
    const Long beyond = change.at + change.removed - end;
    if (beyond > 0) {
        text.AppendTo(removed_, end, beyond);
        last.removed += beyond;
        last.inserted += beyond;
    }
    last.inserted += change.inserted - change.removed;
    return true;
}

TextView EditStep::LastRemoved() const {
    return TextView(removed_).substr(removed_.size() - static_cast<std::size_t>(Last().removed));
}

void EditStep::DropLast() {
    removed_.resize(removed_.size() - static_cast<std::size_t>(Last().removed));
    changes_.pop_back();
}

void EditHistory::ReopenStep() {
    if (depth_++ > 0 || undo_.empty() || !redo_.empty()) return;
    open_ = true;
    remembered_ -= undo_.back().Memory();
}

void EditHistory::EndStep() {
    if (depth_ > 0 && --depth_ == 0 && open_) Close();
}

void EditHistory::Note(const TextPieces& text, const Change& change) {
    redo_.clear();
    if (!open_) undo_.emplace_back();
    open_ = true;
    undo_.back().Note(text, change);
    if (depth_ == 0) Close();
}

void EditHistory::Close() {
    open_ = false;
    remembered_ += undo_.back().Memory();
    while (remembered_ > MostRemembered && undo_.size() > 1) {
        remembered_ -= undo_.front().Memory();
        undo_.pop_front();
    }
}

void EditHistory::Forget() {
    undo_.clear();
    redo_.clear();
    remembered_ = 0;
    open_ = false;
}

} // namespace ostrel
