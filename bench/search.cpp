// bench-search DIRECTORY PHRASE...: loads the help pages of a directory and searches them for each phrase in
// process, ranking and page of results included. Prints lines of a name and CPU seconds: "load", "first" for
// the load and the first query together, and "query" for each phrase, the median of several.

#include <algorithm>
#include <cstdlib>

#include "help/SearchLoad.h"
#include "help/SearchResults.h"
#include "plain.h"
#include "platform/native/NativePlatform.h"

using namespace ostrel;

namespace {

/// The component's path of one of the system.
Text ComponentPath(Text path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return "C:" + path;
}

void Print(const char* name, double seconds) { std::printf("%s %.6f\n", name, seconds); }

} // namespace

int main(int count, char** words) {
    if (count < 3) return 2;
    Events events;
    Platform platform;
    platform.files = MakeNativeFiles();
    platform.clock = MakeNativeClock();
    RunFlags run;
    Context context{events, platform, run};
    HelpProperties help;
    PageProperties page;
    PageFonts fonts;
    ServiceProperties service;
    const html::PageScope pages{context, help, page, fonts, service};
    SearchProperties search;
    search.SearchMask = "*.htm*";
    search.SearchTitle = search.SearchBody = search.SearchRemoveHTML = true;
    service.DirectoryHelp = ComponentPath(words[1]);
    help::SearchStore store;
    const help::SearchScope scope{pages, service, search, store};

    Text error, lastFileError;
    const auto query = [&](const char* phrase) {
        if (help::SearchResultsCreate(scope, phrase, false, false, error)) return;
        std::fprintf(stderr, "%s\n", error.c_str());
        std::exit(1);
    };
    const double start = plain::CpuSeconds();
    if (!help::SearchLoad(scope, {}, lastFileError, error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    const double loaded = plain::CpuSeconds();
    query(words[2]);
    Print("load", loaded - start);
    Print("first", plain::CpuSeconds() - start);
    for (int word = 2; word < count; ++word) {
        std::vector<double> times;
        for (int i = 0; i < 7; ++i) {
            const double begin = plain::CpuSeconds();
            query(words[word]);
            times.push_back(plain::CpuSeconds() - begin);
        }
        std::nth_element(times.begin(), times.begin() + 3, times.end());
        Print("query", times[3]);
    }
}
