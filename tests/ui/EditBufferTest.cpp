#include "ui/EditBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ostrel {
namespace {

/// The same, done plainly with whole copies.
struct PlainBuffer {
    Text text;
    std::vector<Long> colours;
    std::vector<Text> done, undone;
    int depth = 0;
    bool open = false;

    void Replace(const Change& change, TextView inserted) {
        if (!open) done.push_back(text);
        open = depth > 0;
        undone.clear();
        const std::size_t at = static_cast<std::size_t>(change.at);
        const std::size_t behind = at + static_cast<std::size_t>(change.removed);
        const Long before = at > 0 ? colours[at - 1] : 0;
        const Long after = behind < colours.size() ? colours[behind] : 0;
        Recolour(change, std::vector<Long>(inserted.size(), before == after ? before : 0));
        text.replace(at, behind - at, inserted);
    }
    void Recolour(const Change& change, const std::vector<Long>& inserted) {
        const auto first = colours.begin() + change.at;
        colours.insert(colours.erase(first, first + change.removed), inserted.begin(), inserted.end());
    }
    void Reopen() {
        if (depth++ == 0) open = !done.empty() && undone.empty();
    }
    void End() {
        if (--depth == 0) open = false;
    }
    bool Travel(std::vector<Text>& from, std::vector<Text>& to) {
        if (depth > 0 || from.empty()) return false;
        to.push_back(std::exchange(text, from.back()));
        from.pop_back();
        return true;
    }
};

/// The colours one by one.
std::vector<Long> ColoursOf(const EditBuffer& buffer, Long at, Long length) {
    std::vector<Long> colours(static_cast<std::size_t>(length), 0);
    ColourRun last{-1, 0, 0};
    for (const ColourRun& run : buffer.Colours(at, length)) {
        EXPECT_TRUE(last[0] + last[1] < run[0] || last[2] != run[2]) << "runs are as long as can be";
        last = run;
        std::fill_n(colours.begin() + (run[0] - at), run[1], run[2]);
    }
    return colours;
}

void ExpectLines(const EditBuffer& buffer, const Text& text, std::size_t at) {
    std::vector<Long> starts{0};
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\n') starts.push_back(static_cast<Long>(i) + 1);
    ASSERT_EQ(buffer.Lines(), static_cast<Long>(starts.size()));
    const auto line =
        std::upper_bound(starts.begin(), starts.end(), static_cast<Long>(at)) - starts.begin() - 1;
    EXPECT_EQ(buffer.LineAt(static_cast<Long>(at)), line);
    EXPECT_EQ(buffer.LineStart(static_cast<Long>(line)), starts[static_cast<std::size_t>(line)]);
    EXPECT_EQ(buffer.LineStart(buffer.Lines()), buffer.Size());
}

class EditBufferRun : public testing::TestWithParam<unsigned> {
protected:
    std::size_t Below(std::size_t bound) { return random_() % bound; }
    /// In any size from a letter to several pieces, as often small as large.
    std::size_t Some(std::size_t most) {
        return std::min(Below((std::size_t{2} << Below(GetParam() % 2 == 0 ? 15 : 6))), most);
    }

    void Turn() {
        const std::size_t size = plain_.text.size();
        // Often near the last place, as somebody writes.
        if (Below(3) == 0) place_ = Below(size + 1);
        const std::size_t at = std::min(place_, size);
        switch (Below(14)) {
        case 0:
        case 1:
            return Travel(buffer_.Undo(), plain_.Travel(plain_.done, plain_.undone));
        case 2:
            return Travel(buffer_.Redo(), plain_.Travel(plain_.undone, plain_.done));
        case 3:
            buffer_.BeginStep();
            ++plain_.depth;
            return;
        case 4:
            buffer_.ReopenStep();
            plain_.Reopen();
            return;
        case 5:
        case 6:
            buffer_.EndStep();
            if (plain_.depth > 0) plain_.End();
            return;
        case 7:
        case 8: {
            const std::size_t length = Some(size - at);
            const Long colour = static_cast<Long>(Below(3));
            buffer_.Colour(static_cast<Long>(at), static_cast<Long>(length), colour);
            std::fill_n(plain_.colours.begin() + static_cast<std::ptrdiff_t>(at), length, colour);
            return;
        }
        default:
            Text inserted(Some(40000), ' ');
            for (char& c : inserted) c = "abcdefgh\n\r"[Below(10)];
            const Long removed = static_cast<Long>(Some(size - at));
            ASSERT_TRUE(buffer_.Replace(static_cast<Long>(at), removed, inserted));
            plain_.Replace({static_cast<Long>(at), removed, 0}, inserted);
            place_ = at + inserted.size();
        }
    }
    /// What comes back is coloured by the buffer's own steps; all around keeps its colours.
    void Travel(bool moved, bool expected) {
        ASSERT_EQ(moved, expected);
        for (const Change& change : buffer_.Since(seen_))
            plain_.Recolour(change, ColoursOf(buffer_, change.at, change.inserted));
    }

    std::mt19937 random_{GetParam()};
    EditBuffer buffer_;
    PlainBuffer plain_;
    std::size_t place_ = 0;
    std::uint64_t seen_ = 0;
};

TEST_P(EditBufferRun, DoesWhatAPlainTextDoes) {
    plain_.text = Text(std::size_t{10000} * GetParam(), 'x');
    plain_.colours.resize(plain_.text.size());
    ASSERT_TRUE(buffer_.Assign(plain_.text));
    Text followed = plain_.text;
    std::uint64_t lookedAt = buffer_.Revision();
    for (int turn = 0; turn < 1500; ++turn) {
        SCOPED_TRACE(turn);
        seen_ = buffer_.Revision();
        ASSERT_NO_FATAL_FAILURE(Turn());
        ASSERT_EQ(buffer_.Size(), static_cast<Long>(plain_.text.size()));
        if (turn % 7 != 0) continue;
        ASSERT_TRUE(buffer_.Content() == plain_.text);
        ASSERT_TRUE(ColoursOf(buffer_, 0, buffer_.Size()) == plain_.colours);
        for (const Change& change : buffer_.Since(lookedAt))
            followed.replace(static_cast<std::size_t>(change.at), static_cast<std::size_t>(change.removed),
                             buffer_.Copy(change.at, change.inserted));
        ASSERT_TRUE(followed == plain_.text);
        lookedAt = buffer_.Revision();
        ExpectLines(buffer_, plain_.text, Below(plain_.text.size() + 1));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditBufferRun, testing::Range(1u, 7u));

TEST(EditBuffer, Bounds) {
    EditBuffer buffer;
    EXPECT_FALSE(buffer.Undo() || buffer.Redo());
    EXPECT_FALSE(buffer.Assign(Text(EditBuffer::MostText + 1, 'x')));
    EXPECT_TRUE(buffer.Assign(Text(EditBuffer::MostText, 'x')));
    EXPECT_FALSE(buffer.CanUndo());
    const std::uint64_t revision = buffer.Revision();
    EXPECT_FALSE(buffer.Replace(5, 1, "yz"));
    EXPECT_EQ(buffer.Revision(), revision);
    EXPECT_TRUE(buffer.Replace(-3, -1, {}));
    EXPECT_FALSE(buffer.CanUndo());
    EXPECT_TRUE(buffer.Replace(5, 2, "yz"));
    // Clipped at the end of the text.
    EXPECT_TRUE(buffer.Replace(EditBuffer::MostText - 1, 10, "a"));
    EXPECT_EQ(buffer.Copy(EditBuffer::MostText - 2, 10), "xa");
    EXPECT_TRUE(buffer.Read(EditBuffer::MostText).empty());
    EXPECT_EQ(buffer.Since(revision), (std::vector<Change>{{5, 2, 2}, {EditBuffer::MostText - 1, 1, 1}}));
    std::vector<Change> whole{{0, EditBuffer::MostText, buffer.Size()}};
    EXPECT_EQ(buffer.Since(buffer.Revision() + 1), whole);

    // The last step is kept whole, and what lies before it is forgotten for it.
    EXPECT_TRUE(buffer.Replace(0, EditBuffer::MostText, "new"));
    EXPECT_TRUE(buffer.Undo());
    EXPECT_EQ(buffer.Size(), EditBuffer::MostText);
    EXPECT_FALSE(buffer.Undo());
    EXPECT_TRUE(buffer.Redo());
    EXPECT_EQ(buffer.Content(), "new");
    const std::uint64_t last = buffer.Revision();
    EXPECT_TRUE(buffer.Assign(""));
    whole[0].inserted = 0;
    EXPECT_EQ(buffer.Since(last), whole);
    EXPECT_FALSE(buffer.CanUndo());

    const std::uint64_t empty = buffer.Revision();
    buffer.Replace(0, 0, "x");
    buffer.Replace(1, 0, "x");
    EXPECT_EQ(buffer.Since(empty), (std::vector<Change>{{0, 0, 2}}));
    for (int i = 2; i < 10'000; ++i) buffer.Replace(0, 0, "x");
    EXPECT_EQ(buffer.Revision(), empty + 10'000);
    EXPECT_EQ(buffer.Since(buffer.Revision() - 3), (std::vector<Change>{{0, 0, 3}}));
    whole[0].inserted = 10'000;
    for (const std::uint64_t old : {revision, empty, empty + 5000}) EXPECT_EQ(buffer.Since(old), whole);
    const std::uint64_t colours = buffer.ColourRevision();
    buffer.Colour(0, 5, 3);
    EXPECT_NE(buffer.ColourRevision(), colours);
    EXPECT_EQ(buffer.Revision(), empty + 10'000);
}

TEST(EditBuffer, WhatIsUndoneAndMadeAgainCostsNoHistory) {
    EditBuffer buffer;
    buffer.Assign(Text(std::size_t{20} << 20, 'x'));
    buffer.Replace(0, 0, "first");
    buffer.Replace(5, buffer.Size(), {});
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(buffer.Undo() && buffer.Redo());
        buffer.ReopenStep();
        buffer.Replace(0, 0, "y");
        buffer.EndStep();
    }
    EXPECT_TRUE(buffer.Undo() && buffer.Undo());
    EXPECT_EQ(buffer.Copy(0, 10), "xxxxxxxxxx");
    EXPECT_FALSE(buffer.Undo());
}

TEST(EditBuffer, SmallPiecesAreUnited) {
    EditBuffer buffer;
    buffer.Assign(Text(400'000, 'x'));
    for (Long at = 400'000 - 4000; at >= 0; at -= 4000) buffer.Replace(at, 3900, {});
    int pieces = 0;
    for (Long at = 0; at < buffer.Size(); ++pieces) at += static_cast<Long>(buffer.Read(at).size());
    EXPECT_EQ(buffer.Size(), 10'000);
    EXPECT_LT(pieces, 40);
}

} // namespace
} // namespace ostrel
