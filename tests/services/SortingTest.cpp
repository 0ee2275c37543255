#include "services/Sorting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

#include "services/SortKeys.h"
#include "text/CodePage.h"

using namespace ostrel;
using namespace ostrel::services;

namespace {

struct Told {
    Text message;
    Long passes;
    Array<Long> pointers;
    bool operator==(const Told&) const = default;
};

/// A control's surroundings without a control, with a log of what the sorts tell.
struct Desk {
    Events events;
    Platform platform;
    RunFlags run;
    Context context{events, platform, run};
    Array<Long> pointers;
    std::vector<Told> told;
    Long stopAfter = -1;

    void Listen() {
        events.SortProgress.Listen([this](Text& message, Long& passes) {
            told.push_back({message, passes, pointers});
            if (passes == stopAfter) run.StopRequested = true;
        });
    }
};

Array<Long> UpTo(Long count) {
    Array<Long> pointers(count);
    std::iota(pointers.begin(), pointers.end(), 1);
    return pointers;
}

/// The sort as a plain Shell sort, pass by pass.
template <class Compare>
std::vector<Told> ShellSort(Array<Long> pointers, Long count, bool up, Compare compare) {
    std::vector<Told> told{{"Sort Started", 0, pointers}};
    Long passes = 0;
    for (Long gap = count; gap >= 2;) {
        gap /= 2;
        for (Long i = gap; i < count; ++i)
            for (Long j = i - gap + 1; j >= 1; j -= gap) {
                Long &a = *pointers.Find(j), &b = *pointers.Find(j + gap);
                const int order = compare(a, b);
                if (up ? !(order > 0 || (order == 0 && a > b)) : !(order < 0 || (order == 0 && a < b))) break;
                std::swap(a, b);
            }
        told.push_back({"...Sorting", ++passes, pointers});
    }
    told.push_back({"Sort Finished", passes, pointers});
    return told;
}

/// Shapes of input that have made sorts slow or wrong.
std::vector<std::vector<int>> Shapes() {
    std::mt19937 random(7);
    std::vector<std::vector<int>> shapes{{}, {5}, {2, 1}, {1, 1}, {3, 1, 2}};
    for (const int count : {8, 15, 64, 100, 257, 1024}) {
        std::vector<int> sorted(static_cast<std::size_t>(count)), shape(sorted);
        std::iota(sorted.begin(), sorted.end(), 0);
        shapes.push_back(sorted);
        shapes.emplace_back(sorted.rbegin(), sorted.rend());
        shapes.emplace_back(sorted.size(), 4);
        for (int i = 0; i < count; ++i) shape[static_cast<std::size_t>(i)] = std::min(i, count - i); // organ
        shapes.push_back(shape);
        // The even places hold the small half: nothing moves before the last pass, which has to do it all.
        for (int i = 0; i < count; ++i)
            shape[static_cast<std::size_t>(i)] = i % 2 ? count / 2 + i / 2 : i / 2;
        shapes.push_back(shape);
        for (int& value : shape) value = static_cast<int>(random() % static_cast<unsigned>(count / 3 + 1));
        shapes.push_back(shape);
    }
    return shapes;
}

} // namespace

TEST(Sorting, EveryPassLeavesThePointersOfAShellSort) {
    for (const auto& shape : Shapes())
        for (const bool up : {true, false}) {
            const Long count = static_cast<Long>(shape.size());
            Array<Double> numbers;
            Array<Date> dates;
            Array<Text> texts;
            for (const int value : shape) {
                numbers.Append(value - 3.5);
                dates.Append({value - 3.5});
                texts.Append((value % 2 ? "common beginning " : "Common Beginning ") + std::to_string(value));
            }
            const auto byNumber = [&](Long a, Long b) {
                return numbers.Get(a) < numbers.Get(b) ? -1 : numbers.Get(a) > numbers.Get(b) ? 1 : 0;
            };
            const auto byText = [&](Long a, Long b) { return CompareText(texts.Get(a), texts.Get(b)); };
            const auto expectedNumbers = ShellSort(UpTo(count), count, up, byNumber);
            const auto expectedTexts = ShellSort(UpTo(count), count, up, byText);

            for (int kind = 0; kind < 3; ++kind)
                for (const bool watched : {true, false}) {
                    Desk desk;
                    desk.pointers = UpTo(count);
                    if (watched) desk.Listen();
                    const bool finished =
                        kind == 0   ? SortNumeric(desk.context, numbers, desk.pointers, count, up)
                        : kind == 1 ? SortDate(desk.context, dates, desk.pointers, count, up)
                                    : SortText(desk.context, texts, desk.pointers, count, up);
                    const auto& expected = kind == 2 ? expectedTexts : expectedNumbers;
                    EXPECT_TRUE(finished);
                    EXPECT_EQ(desk.pointers, expected.back().pointers);
                    if (watched) {
                        EXPECT_TRUE(desk.told == expected) << "kind " << kind << " count " << count;
                    }
                }
        }
}

TEST(Sorting, TextsCompareFoldedAndWhole) {
    const std::string zero(1, '\0');
    const struct {
        Array<Text> texts;
        Array<Long> up;
    } rows[] = {
        {{"abc", "ABC", "Abc"}, {1, 2, 3}},
        {{"b", "A", "c"}, {2, 1, 3}},
        {{"_", "z", "Z"}, {2, 3, 1}},
        {{"\xE9z",
          "\xC9"
          "a",
          "f"},
         {3, 2, 1}},
        {{"\x9A", "\x8A", "\xE0"}, {1, 2, 3}},
        {{"ab" + zero, "ab", "ab" + zero + zero, "AB"}, {2, 4, 1, 3}},
        {{"12345678" + zero, "12345678", "1234567", "123456789"}, {3, 2, 1, 4}},
        {{"same same same 2", "same same same 10", "same same same", ""}, {4, 3, 2, 1}},
        {{"", "", ""}, {1, 2, 3}},
    };
    for (const auto& [texts, up] : rows) {
        Desk desk;
        desk.pointers = UpTo(texts.Count());
        SortText(desk.context, texts, desk.pointers, texts.Count(), true);
        EXPECT_EQ(desk.pointers, up);
        SortText(desk.context, texts, desk.pointers, texts.Count(), false);
        std::vector<Long> down(up.begin(), up.end());
        std::reverse(down.begin(), down.end());
        EXPECT_EQ(desk.pointers, Array<Long>(down));
    }
}

TEST(Sorting, ManyTextsWithCommonBeginnings) {
    // Runs of ties at several depths, beside texts that end in the middle of one.
    std::mt19937 random(3);
    Array<Text> texts;
    for (int i = 0; i < 4000; ++i) {
        Text text;
        for (unsigned part = random() % 6; part > 0; --part)
            text += random() % 3 ? "a common part " : std::to_string(random() % 20);
        texts.Append(text);
    }
    std::vector<Long> expected(4000);
    std::iota(expected.begin(), expected.end(), 1);
    std::stable_sort(expected.begin(), expected.end(),
                     [&](Long a, Long b) { return CompareText(texts.Get(a), texts.Get(b)) < 0; });
    Desk desk;
    desk.pointers = UpTo(4000);
    SortText(desk.context, texts, desk.pointers, 4000, true);
    EXPECT_EQ(desk.pointers, Array<Long>(expected));
}

TEST(Sorting, StopsAfterAPassWithThePointersAsTheyAre) {
    const Array<Double> values{8, 7, 6, 5, 4, 3, 2, 1};
    const auto whole =
        ShellSort(UpTo(8), 8, true, [&](Long a, Long b) { return values.Get(a) < values.Get(b) ? -1 : 1; });
    for (const Long stopAfter : {0, 1, 2}) {
        Desk desk;
        desk.pointers = UpTo(8);
        desk.run.StopPressed = true; // left over from an earlier loop
        desk.stopAfter = stopAfter;
        desk.Listen();
        const bool finished = SortNumeric(desk.context, values, desk.pointers, 8, true);
        if (stopAfter == 0) { // a stop of that moment is cleared
            EXPECT_TRUE(finished);
            EXPECT_TRUE(desk.told == whole);
            continue;
        }
        // A listener sets the stop behind the test of its own pass, so the next one hears it.
        auto expected = whole;
        expected.resize(static_cast<std::size_t>(stopAfter) + 2);
        expected.back().message = "Sort Interrupted";
        EXPECT_FALSE(finished);
        EXPECT_TRUE(desk.told == expected);
        EXPECT_TRUE(desk.run.StopRequested);
    }
    // What the host wants is not cleared.
    Desk desk;
    desk.pointers = UpTo(8);
    desk.run.HostStop = true;
    EXPECT_FALSE(SortNumeric(desk.context, values, desk.pointers, 8, true));
    EXPECT_TRUE(desk.run.HostStop);
}

TEST(Sorting, HostilePointersAndCountsDoNoHarm) {
    const Array<Text> texts{"c", "b", "a"};
    const struct {
        Array<Long> pointers;
        Long count;
        Array<Long> sorted;
        Long passes;
    } rows[] = {
        {{1, 2, 3}, 0, {1, 2, 3}, 0},
        {{1, 2, 3}, 1, {1, 2, 3}, 0},
        {{1, 2, 3}, -5, {1, 2, 3}, 0},
        {{1, 2, 3}, 2, {2, 1, 3}, 1},
        {{1, 2, 3}, 1000, {3, 2, 1}, 9},
        {{1, 2, 3}, std::numeric_limits<Long>::max(), {3, 2, 1}, 30},
        {{}, 8, {}, 3},
        {{2, 2, 1, 2}, 4, {2, 2, 2, 1}, 2},
        {{1, -7, 0, 99}, 4, {-7, 0, 99, 1}, 2},
        {{std::numeric_limits<Long>::min(), 3, std::numeric_limits<Long>::max()},
         3,
         {std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max(), 3},
         1},
    };
    for (const auto& [pointers, count, sorted, passes] : rows)
        for (const bool watched : {true, false}) {
            Desk desk;
            desk.pointers = pointers;
            Long last = -1;
            if (watched) desk.events.SortProgress.Listen([&](Text&, Long& told) { last = told; });
            EXPECT_TRUE(SortText(desk.context, texts, desk.pointers, count, true));
            EXPECT_EQ(desk.pointers, sorted) << "count " << count;
            EXPECT_EQ(last, watched ? passes : -1);
        }

    Desk desk;
    desk.pointers = UpTo(4);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    SortNumeric(desk.context, {1, nan, -0.0, 0.0}, desk.pointers, 4, true);
    EXPECT_EQ(desk.pointers, (Array<Long>{2, 3, 4, 1}));

    // A listener that takes the array away.
    desk.pointers = UpTo(8);
    desk.events.SortProgress.Listen([&](Text&, Long&) { desk.pointers.Clear(); });
    EXPECT_TRUE(SortNumeric(desk.context, {1, 2, 3, 4, 5, 6, 7, 8}, desk.pointers, 8, false));
    EXPECT_TRUE(desk.pointers.Empty());
}

TEST(SortKeys, TheFinalOrderAtOnceWithTheEventsOfThePasses) {
    const Array<Text> texts{"pear", "Apple", "fig", "apple", "Fig"};
    SortKeys keys;
    for (const Text& text : texts) keys.AddText(text);
    Desk desk;
    desk.Listen();
    std::vector<Long> pointers{1, 2, 3, 4, 5};
    EXPECT_TRUE(SortByKeys(desk.context, keys, pointers, true));
    EXPECT_EQ(pointers, (std::vector<Long>{2, 4, 3, 5, 1}));
    std::vector<Long> again = pointers; // sorts from any order, also a second time
    EXPECT_TRUE(SortByReversing(desk.context, pointers));
    EXPECT_TRUE(SortByKeys(desk.context, keys, again, false));
    EXPECT_EQ(pointers, (std::vector<Long>{1, 5, 3, 4, 2}));
    EXPECT_EQ(again, pointers);
    std::vector<std::pair<Text, Long>> told;
    for (const Told& each : desk.told) told.emplace_back(each.message, each.passes);
    const std::vector<std::pair<Text, Long>> one{
        {"Sort Started", 0}, {"...Sorting", 1}, {"...Sorting", 2}, {"Sort Finished", 2}};
    std::vector<std::pair<Text, Long>> three;
    for (int i = 0; i < 3; ++i) three.insert(three.end(), one.begin(), one.end());
    EXPECT_EQ(told, three);

    SortKeys numbers;
    for (const double number : {3.0, -1.0, 2.0}) numbers.AddNumber(number);
    std::vector<Long> some{1, 2, 3};
    SortByKeys(desk.context, numbers, some, true);
    EXPECT_EQ(some, (std::vector<Long>{2, 3, 1}));
    some = {3, 9, 1, 1};
    SortByKeys(desk.context, numbers, some, true);
    EXPECT_EQ(some, (std::vector<Long>{9, 3, 1, 1}));

    desk.stopAfter = 1;
    desk.told.clear();
    EXPECT_FALSE(SortByReversing(desk.context, pointers));
    EXPECT_EQ(desk.told.back().message, "Sort Interrupted");
    EXPECT_EQ(desk.told.back().passes, 2);
}
