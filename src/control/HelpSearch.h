#pragma once

#include "control/HelpLoader.h"
#include "help/SearchScope.h"

namespace ostrel {

namespace help {
class SearchForm;
}

/// Searches the help pages: owns the loaded pages, asks the user what to search for, and shows the results.
class HelpSearch {
public:
    HelpSearch(Context& context, State& state, PaneNavigator& navigator, HelpLoader& loader)
        : context_(context), state_(state), navigator_(navigator), loader_(loader) {}

    /// The whole flow, from the dialog to the page of results or the web. True also where the user cancels.
    bool Search(const Text& mask, Text& error);
    bool Load(const Text& mask, Text& error);
    bool CreateResults(const Text& phrase, bool matchCase, bool wholeWords, Text& error);
    bool Display(Text& error);
    void Clear() { store_.Clear(); }

private:
    bool SearchLocal(const help::SearchForm& form, const Text& mask, Text& error);
    bool SearchRemote(const Text& phrase, Text& error);
    /// Runs the work on the scope of a search.
    template <class Work>
    bool With(const Work& work);

    Context& context_;
    State& state_;
    PaneNavigator& navigator_;
    HelpLoader& loader_;
    help::SearchStore store_;
};

} // namespace ostrel
