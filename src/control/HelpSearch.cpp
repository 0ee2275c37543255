#include "control/HelpSearch.h"

#include "control/PageScopeOf.h"
#include "help/SearchForm.h"
#include "help/SearchLoad.h"
#include "help/SearchLocation.h"
#include "help/SearchRequest.h"
#include "help/SearchResults.h"
#include "ui/Dialogs.h"

namespace ostrel {

template <class Work>
bool HelpSearch::With(const Work& work) {
    const html::PageScope page = PageScopeOf(context_, state_);
    return work(help::SearchScope{page, state_.service, state_.search, store_});
}

bool HelpSearch::Load(const Text& mask, Text& error) {
    return With([&](const help::SearchScope& scope) {
        return help::SearchLoad(scope, mask, state_.lastFileError, error);
    });
}

bool HelpSearch::CreateResults(const Text& phrase, bool matchCase, bool wholeWords, Text& error) {
    return With([&](const help::SearchScope& scope) {
        return help::SearchResultsCreate(scope, phrase, matchCase, wholeWords, error);
    });
}

bool HelpSearch::Display(Text& error) {
    Text page;
    const bool made =
        With([&](const help::SearchScope& scope) { return help::SearchDisplay(scope, page, error); });
    if (made) loader_.Arm(page);
    return made;
}

bool HelpSearch::Search(const Text& mask, Text& error) {
    error.clear();
    if (state_.search.SearchLocation == owhSearchNone) {
        context_.platform.pane->GoSearch();
        return true;
    }
    const DialogEvents events(context_, "Search");
    help::SearchForm form;
    form.Fill(state_.search);
    bool done = true;
    if (ShowDialog({context_, state_.dialog}, form, Centred{}) && !form.txtSearch.text->empty())
        done = form.optInternet.value ? SearchRemote(form.txtSearch.text, error)
                                      : SearchLocal(form, mask, error);
    navigator_.Focus();
    return done;
}

bool HelpSearch::SearchLocal(const help::SearchForm& form, const Text& mask, Text& error) {
    if (!store_.loaded && !Load(mask, error)) return false;
    form.TakeOptions(state_.search);
    return CreateResults(form.txtSearch.text, form.chkMatch.value, form.chkWholeWords.value, error) &&
           Display(error);
}

bool HelpSearch::SearchRemote(const Text& phrase, Text& error) {
    if (!navigator_.Load(help::RemoteSearchAddress(state_.search, phrase), error)) return false;
    state_.search.SearchLast = phrase;
    state_.search.SearchRemote = true;
    return true;
}

} // namespace ostrel
