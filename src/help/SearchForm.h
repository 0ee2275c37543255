#pragma once

#include "help/SearchProperties.h"
#include "ui/Form.h"

namespace ostrel::help {

/// Asks for a phrase, the options of the search and the place to search.
class SearchForm final : public Form {
public:
    SearchForm();

    /// Shows what the options say.
    void Fill(const SearchProperties& search);
    /// Takes the options of a search in local pages over, with the phrase as the last one.
    void TakeOptions(SearchProperties& search) const;

    FrameBox fraSearch{*this, "fraSearch", "Search"};
    Label lblSearch{*this, "lblSearch", "Enter the phrase to be found."};
    TextBox txtSearch{*this, "txtSearch"};
    FrameBox fraOptions{*this, "fraOptions", "Search Options"};
    CheckBox chkSearchTitle{*this, "chkSearchTitle", "Search Title"};
    CheckBox chkSearchHeader{*this, "chkSearchHeader", "Header"};
    CheckBox chkSearchBody{*this, "chkSearchBody", "Body"};
    CheckBox chkHTML{*this, "chkHTML", "Remove HTML before Searching"};
    CheckBox chkMatch{*this, "chkMatch", "Match Case"};
    CheckBox chkWholeWords{*this, "chkWholeWords", "Find Whole Words Only"};
    Label lblShow{*this, "lblShow", "Matches to Show:"};
    ComboBox cboShow{*this, "cboShow", {}, false};
    FrameBox fraWhere{*this, "fraWhere", "Local Help Directory or Internet"};
    OptionButton optLocal{*this, "optLocal", "Search the Local Help", 0, [this] { FollowPlace(); }};
    OptionButton optInternet{*this, "optInternet", "Search the Internet", 0, [this] { FollowPlace(); }};
    Button cmdOK{*this, "cmdOK", "Search", Purpose::Accept};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Purpose::Cancel};

private:
    /// Shows the options of the place that is chosen, at a height that fits them.
    void FollowPlace();
};

} // namespace ostrel::help
