#include "ui/TextPieces.h"

#include <algorithm>

#include "ui/PieceColours.h"

namespace ostrel {

namespace {

// An edit moves half a piece on average. Smaller pieces cost memory, larger ones time.
constexpr Long MostInPiece = 4096;
// A piece that shrinks below it looks for a neighbour to unite with, and does if there is room left for
// edits.
constexpr Long SmallPiece = MostInPiece / 8;
constexpr Long MostUnited = MostInPiece / 4 * 3;

Long CountLineEnds(TextView text) { return static_cast<Long>(std::count(text.begin(), text.end(), '\n')); }

} // namespace

/// A node of a tree ordered by place in the text, and a heap by priority.
struct TextPieces::Piece {
    Text text;
    PieceColours colours;
    std::minstd_rand::result_type priority = 0;
    Long lineEnds = 0;
    /// Of the piece and all below it.
    Long sizeOfAll = 0, lineEndsOfAll = 0;
    Tree left, right;

    Long Size() const { return static_cast<Long>(text.size()); }
};

TextPieces::TextPieces() = default;
TextPieces::~TextPieces() = default;

Long TextPieces::SizeOf(const Tree& tree) { return tree ? tree->sizeOfAll : 0; }

Long TextPieces::LineEndsOf(const Tree& tree) { return tree ? tree->lineEndsOfAll : 0; }

void TextPieces::Sum(Piece& piece) {
    piece.sizeOfAll = SizeOf(piece.left) + piece.Size() + SizeOf(piece.right);
    piece.lineEndsOfAll = LineEndsOf(piece.left) + piece.lineEnds + LineEndsOf(piece.right);
}

TextPieces::Tree TextPieces::Join(Tree left, Tree right) {
    if (!left) return right;
    if (!right) return left;
    if (left->priority >= right->priority) {
        left->right = Join(std::move(left->right), std::move(right));
        Sum(*left);
        return left;
    }
    right->left = Join(std::move(left), std::move(right->left));
    Sum(*right);
    return right;
}

std::pair<TextPieces::Tree, TextPieces::Tree> TextPieces::Part(Tree tree, Long at) {
    if (!tree) return {};
    const Long before = SizeOf(tree->left);
    if (at <= before) {
        auto [head, tail] = Part(std::move(tree->left), at);
        tree->left = std::move(tail);
        Sum(*tree);
        return {std::move(head), std::move(tree)};
    }
    auto [head, tail] = Part(std::move(tree->right), at - before - tree->Size());
    tree->right = std::move(head);
    Sum(*tree);
    return {std::move(tree), std::move(tail)};
}

TextPieces::Tree TextPieces::MakePiece(TextView text) {
    auto piece = std::make_unique<Piece>();
    piece->text = text;
    piece->priority = priorities_();
    piece->lineEnds = CountLineEnds(text);
    Sum(*piece);
    return piece;
}

TextPieces::Tree TextPieces::MakePieces(TextView text, Long colour) {
    Tree all;
    while (!text.empty()) {
        Tree piece = MakePiece(text.substr(0, MostInPiece));
        piece->colours.Splice(0, 0, piece->Size(), colour, 0);
        text.remove_prefix(piece->text.size());
        all = Join(std::move(all), std::move(piece));
    }
    return all;
}

void TextPieces::Assign(TextView text) { root_ = MakePieces(text, PieceColours::Black); }

Long TextPieces::Size() const { return SizeOf(root_); }

Long TextPieces::LineEnds() const { return LineEndsOf(root_); }

TextPieces::Place TextPieces::Find(Long at) const {
    Long start = 0;
    for (Piece* piece = root_.get(); piece;) {
        const Long own = start + SizeOf(piece->left);
        if (at < own) {
            piece = piece->left.get();
        } else if (at < own + piece->Size()) {
            return {piece, own};
        } else {
            start = own + piece->Size();
            piece = piece->right.get();
        }
    }
    return {};
}

void TextPieces::Adjust(Long at, Long size, Long lineEnds) {
    Long start = 0;
    for (Piece* piece = root_.get(); piece;) {
        const Long own = start + SizeOf(piece->left);
        piece->sizeOfAll += size;
        piece->lineEndsOfAll += lineEnds;
        if (at == own) return;
        if (at > own) start = own + piece->Size();
        piece = at < own ? piece->left.get() : piece->right.get();
    }
}

TextView TextPieces::Read(Long at) const {
    const Place place = Find(at);
    return place.piece ? TextView(place.piece->text).substr(static_cast<std::size_t>(at - place.start))
                       : TextView();
}

void TextPieces::AppendTo(Text& output, Long at, Long length) const {
    for (const Long end = at + length; at < end;) {
        const TextView piece = Read(at).substr(0, static_cast<std::size_t>(end - at));
        if (piece.empty()) return;
        output.append(piece);
        at += static_cast<Long>(piece.size());
    }
}

Long TextPieces::LineAt(Long at) const {
    Long start = 0, line = 0;
    for (const Piece* piece = root_.get(); piece;) {
        const Long own = start + SizeOf(piece->left);
        if (at < own) {
            piece = piece->left.get();
            continue;
        }
        line += LineEndsOf(piece->left);
        const Long inside = at - own;
        if (inside < piece->Size())
            return line + CountLineEnds(TextView(piece->text).substr(0, static_cast<std::size_t>(inside)));
        line += piece->lineEnds;
        start = own + piece->Size();
        piece = piece->right.get();
    }
    return line;
}

Long TextPieces::LineStart(Long line) const {
    if (line <= 0) return 0;
    Long start = 0;
    for (const Piece* piece = root_.get(); piece;) {
        if (line <= LineEndsOf(piece->left)) {
            piece = piece->left.get();
            continue;
        }
        line -= LineEndsOf(piece->left);
        start += SizeOf(piece->left);
        if (line <= piece->lineEnds) {
            std::size_t end = piece->text.find('\n');
            for (; line > 1; --line) end = piece->text.find('\n', end + 1);
            return start + static_cast<Long>(end) + 1;
        }
        line -= piece->lineEnds;
        start += piece->Size();
        piece = piece->right.get();
    }
    return start;
}

void TextPieces::Replace(Long at, Long removed, TextView inserted, Long colour) {
    // At a seam either of the two pieces may have the room.
    if (at > 0 && ReplaceInside(Find(at - 1), at, removed, inserted, colour)) return;
    if (ReplaceInside(Find(at), at, removed, inserted, colour)) return;
    Tree fresh = MakePieces(inserted, colour);
    Cut(at);
    Cut(at + removed);
    auto [head, rest] = Part(std::move(root_), at);
    Tree tail = Part(std::move(rest), removed).second;
    root_ = Join(Join(std::move(head), std::move(fresh)), std::move(tail));
    Unite(at + static_cast<Long>(inserted.size()));
    // What stands before the place, or has just become one with what is behind, may unite to both sides.
    const Place left = Find(std::max(at - 1, 0));
    if (!left.piece) return;
    Unite(left.start + left.piece->Size());
    Unite(left.start);
}

bool TextPieces::ReplaceInside(const Place& place, Long at, Long removed, TextView inserted, Long colour) {
    if (!place.piece) return false;
    Piece& piece = *place.piece;
    const Long from = at - place.start;
    if (from + removed > piece.Size()) return false;
    const auto growth = static_cast<std::ptrdiff_t>(inserted.size()) - removed;
    const std::ptrdiff_t size = piece.Size() + growth;
    if (size > MostInPiece || (growth < 0 && size < SmallPiece)) return false;

    const auto first = static_cast<std::size_t>(from), count = static_cast<std::size_t>(removed);
    const Long lineEnds = CountLineEnds(inserted) - CountLineEnds(TextView(piece.text).substr(first, count));
    piece.colours.Reserve();
    const Long sizeBefore = piece.Size();
    piece.text.replace(first, count, inserted);
    piece.colours.Splice(from, from + removed, static_cast<Long>(inserted.size()), colour, sizeBefore);
    // The way to the piece still goes by the old sums, in which its own size has no part.
    Adjust(place.start, static_cast<Long>(growth), lineEnds);
    piece.lineEnds += lineEnds;
    return true;
}

void TextPieces::Cut(Long at) {
    const Place place = Find(at);
    if (!place.piece || place.start == at) return;
    Piece& piece = *place.piece;
    const Long inside = at - place.start;
    Tree behind = MakePiece(TextView(piece.text).substr(static_cast<std::size_t>(inside)));
    behind->colours = piece.colours.From(inside);

    piece.text.resize(static_cast<std::size_t>(inside));
    piece.text.shrink_to_fit();
    piece.colours.Truncate(inside);
    Adjust(place.start, -behind->Size(), -behind->lineEnds);
    piece.lineEnds -= behind->lineEnds;
    auto [head, tail] = Part(std::move(root_), at);
    root_ = Join(Join(std::move(head), std::move(behind)), std::move(tail));
}

void TextPieces::Unite(Long at) {
    if (at <= 0 || at >= Size()) return;
    const Place left = Find(at - 1), right = Find(at);
    if (left.piece == right.piece || left.piece->Size() + right.piece->Size() > MostUnited) return;
    left.piece->text.reserve(left.piece->text.size() + right.piece->text.size());
    left.piece->colours.Reserve(right.piece->colours.Changes() + 1);

    auto [head, rest] = Part(std::move(root_), at);
    auto [taken, tail] = Part(std::move(rest), right.piece->Size());
    const Long sizeBefore = left.piece->Size();
    left.piece->text.append(taken->text);
    left.piece->colours.Append(taken->colours, sizeBefore);
    root_ = std::move(head);
    Adjust(left.start, taken->Size(), taken->lineEnds);
    left.piece->lineEnds += taken->lineEnds;
    root_ = Join(std::move(root_), std::move(tail));
}

Long TextPieces::ColourAt(Long at) const {
    const Place place = Find(at);
    return place.piece ? place.piece->colours.At(at - place.start) : PieceColours::Black;
}

void TextPieces::Paint(Long at, Long length, Long colour) {
    for (const Long end = at + length; at < end;) {
        const Place place = Find(at);
        if (!place.piece) return;
        const Long from = at - place.start;
        const Long to = std::min(end - place.start, place.piece->Size());
        place.piece->colours.Splice(from, to, to - from, colour, place.piece->Size());
        at = place.start + to;
    }
}

std::vector<ColourRun> TextPieces::Colours(Long at, Long length) const {
    std::vector<ColourRun> runs;
    const Long end = at + length;
    for (Long next = at; next < end;) {
        const Place place = Find(next);
        if (!place.piece) break;
        place.piece->colours.EachRun(place.piece->Size(), [&](Long start, Long size, Long colour) {
            const Long first = std::max(place.start + start, at);
            const Long behind = std::min(place.start + start + size, end);
            if (first >= behind) return;
            if (!runs.empty() && runs.back()[0] + runs.back()[1] == first && runs.back()[2] == colour)
                runs.back()[1] += behind - first;
            else
                runs.push_back({first, behind - first, colour});
        });
        next = place.start + place.piece->Size();
    }
    return runs;
}

} // namespace ostrel
