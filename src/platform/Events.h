#pragma once

#include "platform/Event.h"

namespace ostrel {

/// The 41 events of the component. Arguments are writable; where a raiser reads one back, its comment says
/// so.
struct Events : EventList {
    Event<Flag> BackState{*this, "BackState", "Enable"};
    /// A True in Cancel stops the navigation.
    Event<Text, Text, Flag> BeforeNavigate2{*this, "BeforeNavigate2", "URL TargetFrameName Cancel"};
    /// Declared for the host's benefit; nothing raises it.
    Event<> Click{*this, "Click"};
    /// Declared for the host's benefit; nothing raises it.
    Event<> DblClick{*this, "DblClick"};
    Event<Text> DialogClose{*this, "DialogClose", "Name"};
    Event<Text> DialogOpen{*this, "DialogOpen", "Name"};
    Event<Text, Text> DocumentComplete{*this, "DocumentComplete", "URL Title"};
    Event<> DownloadBegin{*this, "DownloadBegin"};
    Event<> DownloadComplete{*this, "DownloadComplete"};
    Event<Text> DownloadTime{*this, "DownloadTime", "Seconds"};
    Event<Flag> ForwardState{*this, "ForwardState", "Enable"};
    /// The listener fills both with the control's place on the screen, in twips.
    Event<Long, Long> GetControlPosition{*this, "GetControlPosition", "Top Left"};
    Event<Text> HelpPageBegin{*this, "HelpPageBegin", "URL"};
    Event<Text, Text> HelpPageComplete{*this, "HelpPageComplete", "URL Title"};
    Event<Text> HyperlinkMissing{*this, "HyperlinkMissing", "FilePath"};
    Event<Text> ImageMissing{*this, "ImageMissing", "FilePath"};
    Event<Integer, Integer, Single, Single> MouseDown{*this, "MouseDown", "Button Shift X Y"};
    Event<Integer, Integer, Single, Single> MouseMove{*this, "MouseMove", "Button Shift X Y"};
    Event<Integer, Integer, Single, Single> MouseUp{*this, "MouseUp", "Button Shift X Y"};
    Event<Text> NavigateComplete2{*this, "NavigateComplete2", "URL"};
    Event<> NewWindow2{*this, "NewWindow2"};
    Event<Text> PageCreateBody{*this, "PageCreateBody", "Body"};
    Event<Text> PageCreated{*this, "PageCreated", "FilePath"};
    Event<Text, Flag, Flag, Long> PageCreated2{*this, "PageCreated2",
                                               "FilePath NewFile ErrorFound BytesWritten"};
    Event<Text, Long> PageCreateProgress{*this, "PageCreateProgress", "Message Records"};
    /// Title and Body are read back.
    Event<Text, Text, Text, Text, Flag, Long> PageCreateTableTitle{
        *this, "PageCreateTableTitle", "TitleType Title Body SortBy SortUp RecordNumber"};
    /// The arrays are read back, the counts are not.
    Event<Long, Long, Array<Text>, Grid<Text>> PageCreateTableSeparate{
        *this, "PageCreateTableSeparate", "NumberRows NumberColumns ColumnNames CellValues"};
    /// PageSubHeader and PageHeaderNav are read back.
    Event<Long, Long, Text, Text, Text, Flag> PageCreateTableSeparatePage{
        *this, "PageCreateTableSeparatePage",
        "PageNumber NumberPages PageSubHeader PageHeaderNav SortBy SortUp"};
    /// Total is read back.
    Event<Long, Text, Text> PageCreateTableTotalFormat{*this, "PageCreateTableTotalFormat",
                                                       "Column ColumnName Total"};
    /// Declared and no longer raised.
    Event<Text> EditHTMLRefresh{*this, "EditHTMLRefresh", "HTMLPage"};
    Event<Single> ProgressChange{*this, "ProgressChange", "PercentComplete"};
    Event<Long, Text> PullError{*this, "PullError", "ErrorCode ErrorMessage"};
    Event<Long, Text, Single> PullProgress{*this, "PullProgress", "StatusCode StatusMessage PercentComplete"};
    Event<Text, Text> RefreshComplete{*this, "RefreshComplete", "URL Title"};
    Event<Text, Text, Text, Text, Text> SearchFile{*this, "SearchFile",
                                                   "FilePath Title Body Keywords Description"};
    /// Pointers and Sorted are read back.
    Event<Long, Array<Text>, Array<Long>, Flag, Flag> SortExternal{
        *this, "SortExternal", "NumberValues Values Pointers SortUp Sorted"};
    /// Pointers and Sorted are read back.
    Event<Text, Long, Array<Text>, Array<Long>, Flag, Flag> SortExternalFull{
        *this, "SortExternalFull", "SortType NumberValues Values Pointers SortUp Sorted"};
    Event<Text, Long> SortProgress{*this, "SortProgress", "Message Passes"};
    Event<Text> StatusTextChange{*this, "StatusTextChange", "Text"};
    Event<Text> TitleChange{*this, "TitleChange", "Text"};
    /// A True in Kill drops the button's action.
    Event<Text, Flag> ToolbarClick{*this, "ToolbarClick", "Button Kill"};
};

} // namespace ostrel
