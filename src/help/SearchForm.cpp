#include "help/SearchForm.h"

#include "help/SearchLocation.h"
#include "help/SearchRequest.h"
#include "text/NumberText.h"

namespace ostrel::help {

namespace {

constexpr Long Width = 5400;
/// The heights of the parts of the window.
constexpr Long PhraseHeight = 2100, OptionsHeight = 1700, PlaceHeight = 900;

} // namespace

SearchForm::SearchForm() : Form("frmOstrelWebHelpSearch", "Search") {
    for (Control* control : {static_cast<Control*>(&lblSearch), static_cast<Control*>(&txtSearch)})
        control->container = &fraSearch;
    for (Control* control : {static_cast<Control*>(&chkSearchTitle), static_cast<Control*>(&chkSearchHeader),
                             static_cast<Control*>(&chkSearchBody), static_cast<Control*>(&chkHTML),
                             static_cast<Control*>(&chkMatch), static_cast<Control*>(&chkWholeWords),
                             static_cast<Control*>(&lblShow), static_cast<Control*>(&cboShow)})
        control->container = &fraOptions;
    for (Control* control : {static_cast<Control*>(&optLocal), static_cast<Control*>(&optInternet)})
        control->container = &fraWhere;
    lblShow.beside = &cboShow;
    fraWhere.tip = "Choose to search the local help or the Internet.";
    cboShow.items = {"All", "First 10", "First 25", "First 100"};
    cboShow.Show(0);
    // A blank at an end of the phrase is searched for, too.
    txtSearch.trims = false;
    optLocal.value = true;
    width = Width;
    FollowPlace();
}

void SearchForm::Fill(const SearchProperties& search) {
    txtSearch.text = search.SearchLast;
    chkMatch.value = search.SearchMatchCase;
    chkWholeWords.value = search.SearchWholeWords;
    chkHTML.value = search.SearchRemoveHTML;
    chkSearchTitle.value = search.SearchTitle;
    chkSearchHeader.value = search.SearchHeader;
    chkSearchBody.value = search.SearchBody;
    cboShow.Show(ShowItemOfLines(ResultLines(search)) - 1);
    const Long location = search.SearchLocation;
    const bool remote = location == owhSearchRemote;
    const bool both = !remote && location != owhSearchLocal;
    const bool internet = remote || (both && search.SearchRemote);
    if (!both) caption = remote ? optInternet.caption : optLocal.caption;
    fraWhere.visible = both;
    (internet ? optInternet : optLocal).Choose();
    FollowPlace();
}

void SearchForm::TakeOptions(SearchProperties& search) const {
    search.SearchLast = txtSearch.text;
    search.SearchMatchCase = *chkMatch.value;
    search.SearchWholeWords = *chkWholeWords.value;
    search.SearchRemoveHTML = *chkHTML.value;
    search.SearchResultsLines = FromLong(LinesOfShowItem(cboShow.index + 1));
    search.SearchRemote = false;
    search.SearchTitle = *chkSearchTitle.value;
    search.SearchHeader = *chkSearchHeader.value;
    search.SearchBody = *chkSearchBody.value;
}

void SearchForm::FollowPlace() {
    fraOptions.visible = optLocal.value;
    height = PhraseHeight + (fraOptions.visible ? OptionsHeight : 0) + (fraWhere.visible ? PlaceHeight : 0);
}

} // namespace ostrel::help
