// bench-data ROWS: writes a CSV table of ten columns (names, dates, times, prices, short texts) that is the
// same on every machine.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

namespace {

/// A generator of our own, since those of the library differ between systems.
class Random {
public:
    std::uint32_t Below(std::uint32_t limit) {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<std::uint32_t>((state_ >> 33) % limit);
    }
    template <std::size_t N>
    const char* Of(const char* const (&words)[N]) {
        return words[Below(N)];
    }

private:
    std::uint64_t state_ = 20240229;
};

constexpr const char* FirstNames[] = {"Anna",  "Bruno", "Clara", "David",  "Elena", "Frank", "Greta", "Henry",
                                      "Irene", "Jonas", "Klara", "Lorenz", "Maria", "Nils",  "Olga",  "Paul"};
constexpr const char* LastNames[] = {"Ackermann", "Bianchi", "Castle",   "Dufour",  "Eriksen",
                                     "Fischer",   "Grant",   "Hoffmann", "Ivanova", "Jensen",
                                     "Keller",    "Larsen",  "Moreau",   "Novak",   "O'Brien",
                                     "Pereira",   "Quinn",   "Rossi",    "Schmidt", "Tanaka"};
constexpr const char* Cities[] = {"Antwerp", "Bergen", "Cork",  "Dresden", "Evora",  "Florence",
                                  "Ghent",   "Havre",  "Izmir", "Jena",    "Krakow", "Linz"};
constexpr const char* Goods[] = {"Adapter", "Bolts & Nuts", "Cable", "Drill",
                                 "Engine",  "Filter",       "Gear",  "Hinge"};
constexpr const char* States[] = {"open", "paid", "sent", "closed"};
constexpr const char* Notes[] = {"by rail", "on demand", "fragile, handle with care", "none",
                                 "second choice"};

} // namespace

int main(int count, char** arguments) {
    const long rows = count > 1 ? std::atol(arguments[1]) : 1000;
    Random random;
    std::string line = "Name,City,Ordered,Time,Product,Price,Quantity,Weight,State,Note\n";
    for (long row = 1; row <= rows; ++row) {
        const char* const first = random.Of(FirstNames);
        const char* const last = random.Of(LastNames);
        const char* const city = random.Of(Cities);
        // One after the other: the order in which arguments are worked out is the compiler's.
        constexpr std::uint32_t limits[] = {35, 12, 28, 24, 60, 60, 10000, 2000, 100, 500, 80, 10};
        unsigned n[std::size(limits)];
        for (std::size_t i = 0; i < std::size(limits); ++i) n[i] = random.Below(limits[i]);
        const char* const good = random.Of(Goods);
        const char* const state = random.Of(States);
        const char* const note = random.Of(Notes);
        const char* const quote = std::strchr(note, ',') ? "\"" : "";
        char text[512];
        std::snprintf(text, sizeof text,
                      "%s %s,%s,%04u-%02u-%02u,%02u:%02u:%02u,%s %u,%u.%02u,%u,%u.%u,%s,%s%s%s\n", first,
                      last, city, 1990 + n[0], 1 + n[1], 1 + n[2], n[3], n[4], n[5], good, n[6], n[7], n[8],
                      1 + n[9], 1 + n[10], n[11], state, quote, note, quote);
        line += text;
        if (line.size() > 1 << 16) {
            std::fwrite(line.data(), 1, line.size(), stdout);
            line.clear();
        }
    }
    std::fwrite(line.data(), 1, line.size(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
