#pragma once

#include <functional>

#include "help/SearchLoad.h"
#include "help/SearchResults.h"
#include "html/PageWorld.h"

namespace ostrel::test {

/// Writes down what a panel shows, and clears the stop flags as the control's does.
class LoggedPanel : public StopPanel {
public:
    explicit LoggedPanel(RunFlags& run) : run_(run) {}

    std::vector<Text> log;
    /// Called whenever the gauge moves.
    std::function<void(Single)> onGauge = [](Single) {};

    void Show(const Text& heading) override {
        log.push_back(heading);
        run_.StopPressed = run_.StopRequested = false;
    }
    void ShowItem(const Text& name) override { log.push_back("  " + name); }
    void ResetGauge() override { log.push_back("gauge"); }
    void ShowGauge(Single fraction) override {
        log.push_back("  " + FormatNumber(static_cast<Double>(fraction), "0.00"));
        onGauge(fraction);
    }
    void Hide() override { log.push_back("hidden"); }

private:
    RunFlags& run_;
};

/// Help pages in memory below `C:\pages`, with the options as a new control has them.
struct SearchWorld : PageWorld {
    SearchWorld() {
        service.DirectoryHelp = "C:\\pages";
        service.WorkFileRoot = "work";
        search.SearchTitle = search.SearchBody = search.SearchRemoveHTML = true;
        search.SearchMask = "*.htm*";
    }

    void Add(const Text& name, const Text& title, const Text& body, const Text& head = {}) {
        files->Add("C:\\pages\\" + name, "<HTML><HEAD><TITLE>" + title + "</TITLE>" + head + "</HEAD><BODY>" +
                                             body + "</BODY></HTML>");
    }
    bool Load(const Text& mask = {}, const help::SearchBounds& bounds = {}) {
        return help::SearchLoad(searchScope, mask, lastFileError, error, bounds);
    }
    bool Search(const Text& phrase, bool matchCase = false, bool wholeWords = false) {
        return help::SearchResultsCreate(searchScope, phrase, matchCase, wholeWords, error);
    }
    /// The results of a search as lines "FILE PERCENTAGE".
    std::vector<Text> Found(const Text& phrase, bool matchCase = false, bool wholeWords = false) {
        std::vector<Text> lines;
        const help::SearchPages& pages = *store.pages;
        const auto ranking =
            SearchAllPages(searchContext, *store.pages, help::TermsOf(search, phrase, matchCase, wholeWords));
        for (const help::RankedPage& ranked : ranking->best)
            lines.push_back(pages.pages[ranked.page].FileName() + " " +
                            FormatNumber(ranking->Percentage(ranked.score), "0.0"));
        return lines;
    }

    SearchProperties search;
    help::SearchStore store;
    LoggedPanel panel{run};
    Context searchContext{events, platform, run, panel};
    html::PageScope searchPage{searchContext, help, page, fonts, service};
    help::SearchScope searchScope{searchPage, service, search, store};
    Text error, lastFileError;
};

} // namespace ostrel::test
