#include "services/CountryCode.h"

#include <cstdlib>

#include "text/CodePage.h"

namespace ostrel::services {

namespace {

constexpr Long UnknownCountry = 1;

struct Country {
    TextView name;
    Long code;
};

constexpr Country Countries[] = {
    {"AE", 971}, {"AR", 54},  {"AT", 43},  {"AU", 61},  {"BE", 32},  {"BG", 359}, {"BR", 55},  {"BY", 375},
    {"CA", 1},   {"CH", 41},  {"CL", 56},  {"CN", 86},  {"CO", 57},  {"CZ", 420}, {"DE", 49},  {"DK", 45},
    {"EE", 372}, {"EG", 20},  {"ES", 34},  {"FI", 358}, {"FR", 33},  {"GB", 44},  {"GR", 30},  {"HK", 852},
    {"HR", 385}, {"HU", 36},  {"ID", 62},  {"IE", 353}, {"IL", 972}, {"IN", 91},  {"IS", 354}, {"IT", 39},
    {"JP", 81},  {"KR", 82},  {"LT", 370}, {"LU", 352}, {"LV", 371}, {"MX", 52},  {"MY", 60},  {"NL", 31},
    {"NO", 47},  {"NZ", 64},  {"PE", 51},  {"PH", 63},  {"PK", 92},  {"PL", 48},  {"PT", 351}, {"RO", 40},
    {"RS", 381}, {"RU", 7},   {"SA", 966}, {"SE", 46},  {"SG", 65},  {"SI", 386}, {"SK", 421}, {"TH", 66},
    {"TR", 90},  {"TW", 886}, {"UA", 380}, {"US", 1},   {"VE", 58},  {"VN", 84},  {"ZA", 27},
};

} // namespace

Long CountryCodeOf(TextView locale) {
    const std::size_t mark = locale.find('_');
    if (mark == NotFound) return UnknownCountry;
    TextView name = locale.substr(mark + 1);
    name = name.substr(0, name.find_first_of(".@"));
    for (const Country& country : Countries)
        if (EqualText(country.name, name)) return country.code;
    return UnknownCountry;
}

Long CountryCode() {
    for (const char* variable : {"LC_ALL", "LC_MONETARY", "LANG"})
        if (const char* locale = std::getenv(variable); locale && *locale) return CountryCodeOf(locale);
    return UnknownCountry;
}

} // namespace ostrel::services
