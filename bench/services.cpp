// bench-services ROWS: measures sorts and text services in process. Prints lines of a name and seconds.

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <random>

#include "plain.h"
#include "plain_sort.h"
#include "services/PreparedSearch.h"
#include "services/SortKeys.h"
#include "services/Sorting.h"
#include "services/TagText.h"
#include "text/CodePage.h"

using namespace ostrel;

namespace {

/// The first run only warms up: it finds memory that nobody has touched.
double Median(int runs, const std::function<void()>& prepare, const std::function<void()>& work) {
    std::vector<double> times;
    prepare();
    work();
    for (int run = 0; run < runs; ++run) {
        prepare();
        const double start = plain::CpuSeconds();
        work();
        times.push_back(plain::CpuSeconds() - start);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Print(const char* name, const char* shape, double seconds) {
    std::printf("%s.%s %.6f\n", name, shape, seconds);
    std::fflush(stdout);
}

/// A Shell sort that compares the texts themselves.
void ShellSort(const Array<Text>& texts, Array<Long>& pointers) {
    Long* const at = pointers.Data();
    const auto above = [&](Long a, Long b) {
        const int order = CompareText(*texts.Find(a), *texts.Find(b));
        return order != 0 ? order > 0 : a > b;
    };
    const Long count = pointers.Count();
    for (Long gap = count; gap >= 2;) {
        gap /= 2;
        for (Long i = gap; i < count; ++i)
            for (Long j = i - gap; j >= 0 && above(at[j], at[j + gap]); j -= gap)
                std::swap(at[j], at[j + gap]);
    }
}

struct Shape {
    const char* name;
    std::function<Long(Long)> value; ///< of the place, counted from 0
    const char* prefix = "";
};

void Sorts(Long rows) {
    std::mt19937 random(11);
    const auto scattered = [&random](Long) { return static_cast<Long>(random() % 1000000000u); };
    Long power = 1;
    while (power < rows) power *= 2;
    const std::vector<Shape> shapes{
        {"random", scattered},
        {"sorted", [](Long i) { return i; }},
        {"reversed", [rows](Long i) { return rows - i; }},
        {"equal", [](Long) { return Long{1}; }},
        {"organ-pipe", [rows](Long i) { return std::min(i, rows - i); }},
        {"interleaved", [rows](Long i) { return i % 2 ? rows / 2 + i / 2 : i / 2; }},
        {"names", scattered, "Name "},
        {"common-prefix", scattered, "the same long beginning of every key in the column, "},
        {"power-of-two", scattered},
    };
    for (const Shape& shape : shapes) {
        const bool isPower = std::strcmp(shape.name, "power-of-two") == 0;
        const Long count = isPower ? power : rows;
        Array<Text> texts;
        for (Long i = 0; i < count; ++i) {
            char digits[32];
            std::snprintf(digits, sizeof digits, "%09ld", static_cast<long>(shape.value(i)));
            texts.Append(shape.prefix + std::string(digits));
        }
        Array<Long> pointers(count);
        const auto start = [&] { std::iota(pointers.begin(), pointers.end(), 1); };
        Events events;
        Platform platform;
        RunFlags run;
        Context context{events, platform, run};
        const auto sort = [&] { services::SortText(context, texts, pointers, count, true); };
        const auto key = [&](Long pointer) { return TextView(*texts.Find(pointer)); };
        Print("sort-plain", shape.name, Median(3, start, [&] { plain::SortIndex(key, pointers); }));
        const Array<Long> expected = pointers;
        Print("sort", shape.name, Median(3, start, sort));
        if (pointers != expected) std::exit(1);
        events.SortProgress.Listen([](Text&, Long&) {});
        Print("sort-watched", shape.name, Median(3, start, sort));
        if (pointers != expected) std::exit(1);
        if (shape.name == shapes.front().name)
            Print("sort-shell", shape.name, Median(1, start, [&] { ShellSort(texts, pointers); }));
    }
}

void Texts() {
    const std::size_t size = std::size_t{10} << 20;
    std::string tags, angles, page;
    while (tags.size() < size) tags += "<TD VALIGN=\"TOP\"><B></B></TD>";
    while (page.size() < size) page += "<TR><TD ALIGN=\"LEFT\">&nbsp;Some Text of a Cell&nbsp;</TD></TR>\r\n";
    angles.assign(size, '<');
    const auto nothing = [] {};
    Print("strip", "tags", Median(3, nothing, [&] { services::StripTags(tags); }));
    Print("strip", "page", Median(3, nothing, [&] { services::StripTags(page); }));
    Print("strip", "open-angles", Median(3, nothing, [&] { services::StripTags(angles); }));
    Print("replace", "page", Median(3, nothing, [&] { ReplaceAll(page, "&nbsp;", " "); }));
    Print("replace-text", "page", Median(3, nothing, [&] { ReplaceAllText(page, "&NBSP;", " "); }));
    Print("find-text", "page", Median(3, nothing, [&] { FindText(page, "some text of a cellar"); }));
    // Words as rare as in pages of help, and one that ends in rare characters.
    std::mt19937 random(5);
    std::vector<std::string> words;
    for (int i = 0; i < 5000; ++i) {
        std::string word;
        for (unsigned length = 2 + random() % 8; length > 0; --length)
            word += "etaoinsrhldcumfpgwybvkxjqzeeettaaoinsr"[random() % 38];
        words.push_back(word);
    }
    std::string help;
    while (help.size() < size) help += words[random() % words.size()] + (random() % 12 ? " " : "\r\n");
    const services::SearchText prepared(help);
    const services::SearchPhrase phrase("Sorted", false, false);
    Print("count-unprepared", "help", Median(3, nothing, [&] {
              CountText(services::NormaliseSearchText(help), services::NormaliseSearchText("Sorted"));
          }));
    Print("count-text", "help", Median(3, nothing, [&] { CountText(prepared.Normalised(), "Sorted"); }));
    Print("count-prepared", "help", Median(3, nothing, [&] { phrase.CountIn(prepared); }));
    const std::string almost(2000, 'a');
    const std::string many(size, 'a');
    Print("find-text", "repeated", Median(1, nothing, [&] { FindText(many, almost + "b"); }));
    Print("copy", "page", Median(3, nothing, [&] { std::string copy(page); }));
}

} // namespace

int main(int count, char** arguments) {
    Sorts(count > 1 ? static_cast<Long>(std::atol(arguments[1])) : 100000);
    Texts();
    return 0;
}
