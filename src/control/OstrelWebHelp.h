#pragma once

#include <functional>
#include <memory>

#include "control/Enumerations.h"
#include "platform/Events.h"

namespace ostrel {

class Bag;
class CellTable;
class Children;
class Form;
class OstrelProperties;
struct ControlParts;
struct Platform;

/// What the mouse did over the control.
enum class MouseAction { Down, Move, Up };

/// The one object that a host holds: everything its application does with the web, in flat members, with 41
/// events.
///
/// Every member runs on the host's thread and returns when the work is done; none throws. A member with an
/// `ErrorMessage` argument empties it first, and on failure returns False with a full sentence there; any
/// other returns an empty text, 0 or False on failure. Texts are Windows-1252, arrays count from 1, paths
/// have backslashes, and lengths on the screen are twips.
///
/// The families, in the order in which they are declared:
/// - Lifecycle: `InitProperties`, `ReadProperties`, `WriteProperties`, `Resize`, `Terminate`
/// - Properties: a get and a let each, which docs/reference.md lists
/// - Browser pane: `LoadURL`, `GoBack`, `Refresh`, `Cancel`, `LocationURL`, `BrowserGetSetting`
/// - Progress panel and clock: `StopShow`, `StopGaugeShow`, `ClockStart`
/// - Help pages: `HelpPageLoad`, `HelpPageLoadInternal`
/// - Help search, index and printing: `Search`, `IndexAdd`, `CreateIndex`, `PrintSelectedPages`
/// - Dialogs: `DialogFileOpen`, `DialogColour`, `DialogDirectory`
/// - Toolbar: `ButtonAdd`, `ButtonClick`, `ToolbarButtonEnabledSet`
/// - Text primitives: `StripTags`, `TrimCrLf`, `FileExists`
/// - Elements of HTML: `CreateLink`, `CreateImage`, `CreateString`, `CreateParagraph`
/// - Tables of HTML: `CreateTable`, `CreateTableCell`, `FormatCell`
/// - Pages: `PageReset`, `PageCreateSimple`, `PageCreateList`, `CreatePage`
/// - Table pages: `PageCreateTable`, `PageTableHeaderLinksAdd`
/// - Tag extraction: `ExtractTag`, `ExtractDoubleTag`, `ExtractTagValue`
/// - Tag removal and content: `ExtractContent`, `RemoveComments`, `SearchCount`
/// - Colours: `ColourNameToHex`, `ColourHexToActual`
/// - Paths and files: `BuildPath`, `ReadFile`, `WriteFileFull`, `KillFiles`, `WinTempFile`
/// - Sorting: `SortText`, `SortNumeric`, `SortDate`
/// - Settings: `RegistryGetSetting`, `RegistrySaveSetting`, `QueryValue`
/// - Message boxes, waits and small formatters: `MessageQuery`, `WaitMilliSeconds`, `MinutesSeconds`
/// - The user's side, for layers that show the control: `View`, `PressChild`, `TypeIntoChild`
class OstrelWebHelp {
public:
    /// Constructed only: hidden, all members empty. The platform outlives the control. A `listener` hears
    /// every event from the first on, those of the construction included.
    explicit OstrelWebHelp(Platform& platform, EventList::AnyListener listener = {});
    /// Runs `Terminate` where it has not run.
    ~OstrelWebHelp();
    OstrelWebHelp(const OstrelWebHelp&) = delete;
    OstrelWebHelp& operator=(const OstrelWebHelp&) = delete;

    Events events;
    /// Called with the name of each property that a let has changed.
    std::function<void(const Text& name)> PropertyChanged;

    // Lifecycle, called by the container.

    /// Sets every property of a new control to its default.
    void InitProperties();
    /// Reads every property of a stored control from the bag, then lays the control out. A property that is
    /// missing takes its default; a value of the wrong form is ignored.
    void ReadProperties(const Bag& Store);
    /// Writes to the bag the properties that differ from their defaults, and removes from it those that do
    /// not.
    void WriteProperties(Bag& Store);
    /// Lays everything out for the control's size.
    void Resize();
    /// Sets the control's size in twips and lays it out. It is 9600 by 7200 before the first call.
    void ResizeTo(Long Width, Long Height);
    /// Ends the control's life: deletes its work files.
    void Terminate();

    // Properties: a get and a let per row.

#define PROPERTY(kind, name, fallback, flags, doc)                                                           \
    kind name() const;                                                                                       \
    void name(kind value);
#define CUSTOM(kind, name, fallback, flags, doc) PROPERTY(kind, name, fallback, flags, doc)
#define INDEXED(kind, name, fallback, limit, doc)                                                            \
    kind name(Long X) const;                                                                                 \
    void name(Long X, kind value);
#include "control/PropertyList.h"
#undef PROPERTY
#undef CUSTOM
#undef INDEXED

    // Browser pane

    /// Whether the browser pane is loading; False without a pane.
    Flag Busy();
    /// Returns the footer of printed pages, empty where none is set.
    Text BrowserGetFooter();
    /// Returns the header of printed pages, empty where none is set.
    Text BrowserGetHeader();
    /// Returns the setting ValueName of the browser; KeyName is relative to the browser's own key of the
    /// current user, such as "PageSetup". Empty where there is no such setting; a number comes as text.
    Text BrowserGetSetting(const Text& KeyName, const Text& ValueName);
    /// Returns the left edge of the browser pane inside the control, in twips.
    Long BrowserLeft();
    /// Sets the footer of printed pages.
    void BrowserSetFooter(const Text& Value);
    /// Sets the header of printed pages.
    void BrowserSetHeader(const Text& Value);
    /// Stores Value as the text setting ValueName of the browser, below KeyName as in `BrowserGetSetting`. A
    /// failed write is only traced by `StatusTextChange`.
    void BrowserSetSetting(const Text& KeyName, const Text& ValueName, const Text& Value);
    /// Returns the top edge of the browser pane inside the control, in twips.
    Long BrowserTop();
    /// Stops the navigation of the browser pane, and the long loops that look at a stop request.
    void Cancel();
    /// Goes one page back in the history of the browser pane. Always True.
    Flag GoBack();
    /// Goes one page forward in the history of the browser pane. Always True.
    Flag GoForward();
    /// Goes to the home page of the browser pane, which is not `HomePage`. Always True.
    Flag GoHome();
    /// Goes to the search page of the browser pane, which is not `SearchPage`. Always True.
    Flag GoSearch();
    /// Starts the load clock and navigates the browser pane to a URL or a local path. True as soon as the
    /// navigation is asked for; `DocumentComplete` tells of its end. The page on view is not loaded again.
    /// False with "No URL defined." for an empty URL.
    Flag LoadURL(const Text& URL, Text& ErrorMessage);
    /// Loads a URL into the frame or window named Target, without starting the load clock. False with a
    /// sentence where URL or Target is empty.
    Flag LoadURLToTarget(const Text& URL, const Text& Target, Text& ErrorMessage);
    /// Returns the title of the page on view; empty without a pane.
    Text LocationName();
    /// Returns the address of the page on view, a local page by the path that was loaded; empty without a
    /// pane.
    Text LocationURL();
    /// Returns how far the page on view is loaded, from 0 (not begun) to 4 (complete).
    Long ReadyState();
    /// Loads the page on view again, from the browser's cache where that is allowed. `RefreshComplete` tells
    /// of its end.
    void Refresh();
    /// Loads the page on view again and passes over every cache.
    void RefreshCompletely();
    /// Loads the page on view again only where the cached page has expired.
    void RefreshIfExpired();

    // Progress panel and clock

    /// Starts the load clock at 0; `DownloadTime` is raised about ten times a second until the page is
    /// complete or the clock is stopped.
    void ClockStart();
    /// Stops the load clock and returns the seconds so far, as `ClockTime` does.
    Text ClockStop();
    /// Returns the seconds since `ClockStart` with one decimal, such as "1.2"; empty where the clock does not
    /// run, or in its first millisecond.
    Text ClockTime();
    /// Shows the empty track of the gauge in the stop panel.
    void StopGaugeReset();
    /// Fills the gauge to ShowFraction of its track, from 0 to 1; a larger fraction draws past the track.
    void StopGaugeShow(Single ShowFraction);
    /// While True, reports, sorts and CSV files end at their next yield. Unlike `StopPressed` it stays as the
    /// host left it: none of them clears it as it begins.
    void HostStop(Flag Value);
    /// Hides the stop panel and gives the mouse pointer back. `StopPressed` stays as the user left it.
    void StopHide();
    /// Shows the stop panel without a gauge, with Heading over its Stop button, and sets the pointer to the
    /// hourglass. Clears `StopPressed`, which the caller then reads in its loop.
    void StopShow(const Text& Heading);

    // Help pages

    /// Returns the location of the last help page that was loaded completely; empty where there is none.
    Text HelpPageCurrent();
    /// Whether `DirectoryHelp` holds a file of that name; `HelpRemote` makes no difference.
    Flag HelpPageExists(const Text& HelpPage);
    /// Returns the HTML of the last page that `HelpPageLoadInternal` built.
    Text HelpPageInternal();
    /// Loads a page of the help directory by its name after `HelpDelay` milliseconds; a later call replaces
    /// one that still waits, and the page on view is not loaded again. True as soon as the load is set up;
    /// `HelpPageBegin` and `HelpPageComplete` frame it. False with a sentence where HelpPage is empty or
    /// holds a slash, or where its directory is not defined or does not exist.
    Flag HelpPageLoad(const Text& HelpPage, Text& ErrorMessage);
    /// Builds a page from `HelpPart1` to `HelpPart3`, marked "NoIndex" for robots, writes it to the next work
    /// file of `DirectoryHelp` and loads it after `HelpDelay` milliseconds. False with a sentence where the
    /// parts are empty, the directory is missing or the file cannot be written.
    Flag HelpPageLoadInternal(Text& ErrorMessage);
    /// Starts a help page load that waits for its delay at once; does nothing where none waits.
    void HelpPageLoadNow();
    /// Returns the location that waits to be loaded; empty where none does.
    Text HelpPageNext();

    // Help search, index and printing

    /// Asks the user for a phrase, searches the help pages or the web for it and shows the results. Mask is
    /// that of `SearchLoad`, which runs where no pages are loaded yet; where `SearchLocation` is 0 the pane's
    /// search page is shown at once. Raises `DialogOpen` and `DialogClose`. True also where the user cancels;
    /// False with a sentence on failure.
    Flag Search(const Text& Mask, Text& ErrorMessage);
    /// Forgets the loaded help pages; the next search loads them anew.
    void SearchClear();
    /// Writes the page of `SearchResults` to the next work file and loads it after `HelpDelay` milliseconds.
    /// False with a sentence where there are no results or no help directory; where the page cannot be
    /// written the sentence comes with True.
    Flag SearchDisplay(Text& ErrorMessage);
    /// Loads the help pages of Mask, of `SearchMask` where it is empty, and replaces those loaded before. A
    /// mask without a backslash looks into `DirectoryHelp`. Pages that cannot be read stay empty. False with
    /// a sentence where the mask names no directory and after Stop.
    Flag SearchLoad(const Text& Mask, Text& ErrorMessage);
    /// Searches the loaded pages, ranks those that hold SearchString, and puts the results into
    /// `SearchResults` as HTML. False with a sentence where no pages are loaded, SearchString is empty, or
    /// the user has pressed Stop.
    Flag SearchResultsCreate(const Text& SearchString, Flag MatchCase, Flag WholeWords, Text& ErrorMessage);
    /// Adds an entry to the index, behind those added before. Hyperlink may be empty; Indent shows the entry
    /// below the one before; Extra is the name of an anchor in front of it; the first letter of
    /// IndexCharacter, in place of that of Name, decides on its section.
    void IndexAdd(const Text& Hyperlink, const Text& Name, Flag Indent, const Text& Extra,
                  const Text& IndexCharacter);
    /// Removes all entries of the index.
    void IndexClear();
    /// Returns the index as HTML, a section for each letter, with a line of letters above it (TopIndex) and
    /// below it (BottomIndex); empty without entries. Font and IndexFont are font start tags, of the entries
    /// (`HelpFont` where it is empty) and of the letters; SpaceSections separates the sections by
    /// SpaceSectionHTML, SpaceColumnHTML separates letter and entry, and SpaceIdentHTML indents. PadFont has
    /// no effect. Stop ends it with the entries so far.
    Text CreateIndex(const Text& Font, Flag SpaceSections, const Text& SpaceSectionHTML,
                     const Text& SpaceColumnHTML, const Text& SpaceIdentHTML, Flag TopIndex, Flag BottomIndex,
                     const Text& IndexFont, const Text& PadFont);
    /// Prints the page on view, without a dialog.
    void PrintPage();
    /// Prints the files of SelectMask without those of IgnoreMask, in the order of their paths, and shows the
    /// page of before again. A mask without a backslash looks into `DirectoryHelp`. False with a sentence
    /// where there is nothing to print; True also where Stop ends it.
    Flag PrintSelectedPages(const Text& SelectMask, const Text& IgnoreMask, Text& ErrorMessage);

    // Dialogs

    /// Moves a form so far that it lies on the screen; one that is larger sticks to the top left.
    void AdjustFormPosition(Form& FormToAdjust);
    /// Lets the user pick a colour, with red in the low byte; -1 where the user cancels. Top and Left are the
    /// place of the dialog in twips. Raises `DialogOpen` and `DialogClose`, as all pickers do.
    Long DialogColour(Long Top, Long Left);
    /// Lets the user pick a directory, from InitDir on; empty where the user cancels. Flags is a number for
    /// the system's dialog.
    Text DialogDirectory(Long Top, Long Left, const Text& Title, const Text& InitDir, Long Flags);
    /// Whether the user is picking a directory.
    Flag DialogDirectoryBusy();
    /// Lets the user pick a file to open and returns its path; empty where the user cancels. Filter is a list
    /// of labels and masks separated by "|", FilterIndex the pair that is chosen first, from 1. InitDir is
    /// the directory to start in, that of FileName where it is empty, and comes back as that of the picked
    /// file. DefaultExt completes a name without extension.
    Text DialogFileOpen(const Text& Filter, Long Top, Long Left, const Text& FileName, Text& InitDir,
                        const Text& DefaultExt, Long FilterIndex);
    /// As `DialogFileOpen`, for a file to save; whether it exists is not asked.
    Text DialogFileSave(const Text& Filter, Long Top, Long Left, const Text& FileName, Text& InitDir,
                        const Text& DefaultExt, Long FilterIndex);
    /// Returns the filter of all files.
    Text DialogDefaultFilter();
    /// Returns a filter of all files and of one to three extensions, or masks that hold a ".".
    Text DialogExtensionFilter(const Text& Extension, const Text& Extension2, const Text& Extension3);
    /// Returns the filter of all files and of pictures.
    Text DialogGraphicsFilter();
    /// Returns the filter of all files and of pages.
    Text DialogHTMLFilter();
    /// Returns the filter of all files and of texts.
    Text DialogTextFilter();
    /// Returns the width of the border of a dialog of fixed size, in twips.
    Long DialogWidth();
    /// Returns "Connected" where any network interface is up, else an empty text. ConnectFlags is 2 where
    /// there is a connection, else 0. Sends nothing.
    Text IsConnected(Long& ConnectFlags);

    // Toolbar

    /// Adds a user button with the bitmap file BitMap, relative to `DirectoryRun`; a press raises
    /// `ToolbarClick` with its name. A file that cannot be read leaves the button without a picture. False
    /// with a sentence where BitMap or Name is empty, the name is taken, or there are 100 user buttons.
    Flag ButtonAdd(const Text& Name, const Text& BitMap, const Text& ToolTip, Text& ErrorMessage);
    /// Adds a user button as `ButtonAdd` does, with a picture in place of a file name.
    Flag ButtonAddPicture(const Text& Name, const Picture& BitMap, const Text& ToolTip, Text& ErrorMessage);
    /// Removes all user buttons.
    void ButtonClear();
    /// Runs the action of a default button, given by its token such as "forward" in any case, without raising
    /// `ToolbarClick`. Any other name, and that of a user button, does nothing.
    void ButtonClick(const Text& Button);
    /// Whether a button is enabled; Button is its token or the name of a user button, in any case. False for
    /// an unknown one.
    Flag ToolbarButtonEnabled(const Text& Button);
    /// Enables or disables a button, given as in `ToolbarButtonEnabled`; an unknown one is ignored.
    void ToolbarButtonEnabledSet(const Text& Button, Flag State);
    /// Returns the left edge of a button inside the toolbar in twips, or -1 where it is hidden or unknown.
    Long ToolbarButtonLeft(const Text& Button);
    /// Returns the shape of the mouse pointer over a button, 0 for the default; 0 for an unknown button.
    Long ToolbarButtonMousePointer(const Text& Button);
    /// Sets the shape of the mouse pointer over a button: 0 to 15, or 99 for a shape of the host's own. Any
    /// other value is ignored.
    void ToolbarButtonMousePointerSet(const Text& Button, Long Value);
    /// Gives top, height and width of the toolbar's buttons in twips as the last layout made them; 0 while
    /// the toolbar is hidden.
    void ToolbarButtonSizePosition(Long& Top, Long& Height, Long& Width);
    /// Whether a button is shown; False for an unknown one, and for one that the last layout had no room for.
    Flag ToolbarButtonVisible(const Text& Button);

    // Text primitives

    /// Returns the text without the blanks, CRs and LFs at both ends.
    Text TrimCrLf(const Text& InputString);
    /// Returns the position of the `>` that ends a tag, searched from StartPosition, which lies behind the
    /// `<`; one between double quotes does not count. 0 where there is none.
    Long FindTagClose(const Text& InputString, Long StartPosition);
    /// Returns the plain text of HTML: tags removed, breaks and paragraphs as CR LF, runs of blanks as one.
    /// An unterminated tag and what follows it is dropped.
    Text StripTags(const Text& InputString);
    /// Returns the text with a backslash at its end; empty stays empty.
    Text AddMissingBackslash(const Text& InputString);
    /// Returns the text with a "/" at its end; empty stays empty.
    Text AddMissingSlash(const Text& InputString);
    /// Whether a file exists; False for a directory. With `*` or `?` in the name: whether any plain file
    /// matches.
    Flag FileExists(const Text& FilePath);

    // Elements of HTML

    /// Adds an attribute to TagString, the text of a tag that is being built: TagName with TagValue in
    /// quotes, or bare where TagValue is empty. An attribute that is already there is left as it is.
    void AddHTMLTag(Text& TagString, const Text& TagName, const Text& TagValue);
    /// Returns `<A NAME="...">`, without an end tag.
    Text CreateAnchor(const Text& Anchor);
    /// Returns a name that is safe for an anchor: without tags, in capitals, each run of characters other
    /// than letters, digits, "-" and "." as one "-", and with "X-" in front where it does not begin with a
    /// letter.
    Text CreateAnchorName(const Text& AnchorName);
    /// Returns the whole `BODY` element around Body. An empty argument takes the matching help property, such
    /// as `HelpBackground`; `HelpFont` is put around the content.
    Text CreateBody(const Text& Body, const Text& BackGround, const Text& BackGroundColour,
                    const Text& LinkColour, const Text& LinkVisibleColour, const Text& LinkActiveColour);
    /// Returns `<BR>`.
    Text CreateBreak();
    /// Returns `</FONT>`.
    Text CreateFontEnd();
    /// Returns the start tag of a font with the attributes that are not empty.
    Text CreateFontStart(const Text& Face, const Text& Size, const Text& Colour);
    /// Returns the whole `HEAD` element. An empty argument takes the matching help property, such as
    /// `HelpTitle`; refresh, company and robots come from theirs. MetaTags is HTML that is put in as it is.
    Text CreateHeader(const Text& Title, const Text& Author, const Text& Keywords, const Text& Description,
                      const Text& MetaTags);
    /// Returns an `IMG` tag with the attributes that are not empty; an empty Border is 0. Raises
    /// `ImageMissing` where `TestImage` is on and the local file does not exist.
    Text CreateImage(const Text& Image, const Text& Alt, const Text& Border, const Text& Width,
                     const Text& Height, const Text& Align);
    /// Returns an `HR` tag with the attributes that are not empty.
    Text CreateLine(const Text& LineHeight, const Text& LineWidth, const Text& Colour);
    /// Returns a link to Hyperlink around the HTML Description, as `CreateLinkTitle` does without a tool tip.
    Text CreateLink(const Text& Hyperlink, const Text& Description, Flag Bold, Flag Italic, Flag NewWindow);
    /// Returns a link to Hyperlink around the HTML Description, with Title as its tool tip, bold and italic
    /// as told, and opening a new window where NewWindow is True. Raises `HyperlinkMissing` where
    /// `TestHyperlink` is on and the local file does not exist.
    Text CreateLinkTitle(const Text& Hyperlink, const Text& Description, const Text& Title, Flag Bold,
                         Flag Italic, Flag NewWindow);
    /// Returns one link as `CreateLinkTitle` for each line of Description, so that its line breaks and the
    /// blanks at the ends of lines stay outside the links. What follows the first `</P>` is left as it is.
    Text CreateLinkTitleSplit(const Text& Hyperlink, const Text& Description, const Text& Title, Flag Bold,
                              Flag Italic, Flag NewWindow);
    /// Returns `</OL>` for an ordered list, else `</UL>`.
    Text CreateListEnd(Flag OrderedList);
    /// Returns a list item, with a `</P>` behind it where Space is True; empty for an empty Element.
    Text CreateListItem(const Text& Element, Flag Space);
    /// Returns `<OL>` for an ordered list, else `<UL>`.
    Text CreateListStart(Flag OrderedList);
    /// Returns a `META` tag of that name and content.
    Text CreateMeta(const Text& Name, const Text& Content);
    /// Returns the `META` tag that lets a browser load URL after that many seconds.
    Text CreateMetaClientPull(Long Seconds, const Text& URL);
    /// Returns a paragraph of HTML, trimmed as by `TrimCrLf`, and centred where Centre is True.
    Text CreateParagraph(const Text& Paragraph, Flag Centre);
    /// Returns `</P>`.
    Text CreateParagraphEnd();
    /// Returns preformatted text in `<PRE>`. Font is a font start tag, or empty for none.
    Text CreateParagraphFixed(const Text& Font, const Text& Paragraph);
    /// Returns `<P>`.
    Text CreateParagraphStart();
    /// Returns plain text as encoded paragraphs. Each CR and each LF becomes a line break (Breaks True) or
    /// the start of a new paragraph, several in a row count as one unless Multiple is True, and either
    /// character may be ignored. Empty stays empty.
    Text CreateParagraphsFromText(const Text& InputString, Flag Breaks, Flag Multiple, Flag IgnoreReturn,
                                  Flag IgnoreLineFeed);
    /// Returns that many `&nbsp;`; empty for 0 or less.
    Text CreateSpaces(Long NumberSpaces);
    /// Returns text encoded for a page, so that `<` becomes `&lt;`, with bold, italic and underline as told.
    /// Empty stays empty.
    Text CreateString(const Text& InputString, Flag Bold, Flag Italic, Flag Underline = false);
    /// Returns HTML in `<B>`, not encoded; empty stays empty.
    Text CreateStringBold(const Text& InputString);
    /// Returns HTML in a font of that colour, with bold, italic and underline as told, not encoded; empty
    /// stays empty.
    Text CreateStringColour(const Text& InputString, const Text& Colour, Flag Bold, Flag Italic,
                            Flag Underline);
    /// Returns HTML in `<I>`, not encoded; empty stays empty.
    Text CreateStringItalic(const Text& InputString);
    /// Returns a script that writes the text into the page, cut in pieces at "@", ":", "." and "_", so that
    /// an address in it is not there as a whole. Empty stays empty.
    Text CreateStringJavaScript(const Text& InputString);
    /// Returns HTML in `<U>`, not encoded; empty stays empty.
    Text CreateStringUnderline(const Text& InputString);
    /// Returns text with blanks and characters that have a meaning in an address as "%" and two hexadecimal
    /// digits; a comma becomes "%27".
    Text CreateStringURL(const Text& InputString);

    // Tables of HTML

    /// Returns a table of Rows by Columns. CellValues holds the HTML of the cells, CellTags the attributes of
    /// their `TD` tags, and runs of empty cells are merged. Empty arguments take their defaults: Font
    /// `HelpFont`, TableTags no spacing and no border, SpaceCellHTML and EmptyCellHTML non-breaking blanks.
    /// SpaceColumns puts a narrow column between two others. Empty without rows or columns. Yields after
    /// every 50th row.
    Text CreateTable(Long Rows, Long Columns, const Grid<Text>& CellValues, const Grid<Text>& CellTags,
                     Flag SpaceColumns, const Text& Font, const Text& TableTags, const Text& RowTags,
                     const Text& SpaceCellHTML, const Text& EmptyCellHTML);
    /// Appends NumberBlanks empty cells to the row RowTable, more than two of them as one wide cell, and sets
    /// NumberBlanks to 0.
    void CreateTableAddBlanks(Text& RowTable, Long& NumberBlanks);
    /// Returns a `TD` element with the attributes Tags. Font is a font start tag that is put around the
    /// cell's HTML unless it is there already.
    Text CreateTableCell(const Text& Tags, const Text& Font, const Text& Cell);
    /// Returns `</TD>`.
    Text CreateTableCellEnd();
    /// Returns a `TD` start tag with the attributes Tags.
    Text CreateTableCellStart(const Text& Tags);
    /// Returns `</TABLE>`.
    Text CreateTableEnd();
    /// Returns `</TR>`.
    Text CreateTableRowEnd();
    /// Returns a `TR` start tag with the attributes Tags.
    Text CreateTableRowStart(const Text& Tags);
    /// Returns a `TABLE` start tag with the attributes Tags.
    Text CreateTableStart(const Text& Tags);
    /// Returns the value as it is, or empty where it holds nothing but zeros and one `DecimalDelimiter`.
    Text CreateZeroBlank(const Text& Value);
    /// Wraps the HTML of a cell to lines of CellWidth characters. Each break that is added is TrailString,
    /// `<BR>` and LeadString. A width below 11 leaves the text alone.
    Text FormatCell(const Text& InputString, Long CellWidth, const Text& TrailString, const Text& LeadString);
    /// Returns the address of the main page while a record page is being created.
    Text LinkSeparateAll();
    /// Returns the address of the first record page while a record page is being created; empty where there
    /// is no such link.
    Text LinkSeparateFirst();
    /// Returns the address of the last record page while a record page is being created; empty where there is
    /// no such link.
    Text LinkSeparateLast();
    /// Returns the address of the next record page while a record page is being created; empty where there is
    /// no such link.
    Text LinkSeparateNext();
    /// Returns the address of the previous record page while a record page is being created; empty where
    /// there is no such link.
    Text LinkSeparatePrevious();
    /// Returns the value of a field of the record page that is being created. Only letters count in the name,
    /// in any case. Empty for an unknown field.
    Text SeparatePageValue(const Text& FieldName);

    // Pages

    /// Returns a whole HTML document around Body, with head and look from the help properties, wrapped to
    /// `HelpPageWidth` where that is 40 or more. Raises `PageCreateBody`. A Body that is a whole document
    /// already is only wrapped.
    Text CreatePage(const Text& Body);
    /// Returns the path of the page that is being created.
    Text CurrentCreatePage();
    /// Empties the help properties that describe a page, and its three parts. `HelpPageWidth`, `HelpDelay`,
    /// `HelpRemote` and the directories stay.
    void HelpPageInitialise();
    /// Builds a page from `HelpPart1` to `HelpPart3` and writes it to FilePath, which is relative to
    /// `DirectoryHelp` where it has no backslash; an unchanged file is left alone. False with a sentence
    /// where no path or part is given or the directory is missing. After a failed write the result is True,
    /// with ErrorMessage set.
    Flag HelpPageSaveInternal(const Text& FilePath, Text& ErrorMessage);
    /// Returns a whole HTML document of three parts, as `CreatePage` makes it. Raises `PageCreateProgress`.
    Text InternalBuild(const Text& Part1, const Text& Part2, const Text& Part3);
    /// Returns the content of the first page created since `PageInitialise`, which every page maker runs: its
    /// `BODY` element.
    Text PageBody();
    /// Writes a page with title, sub title, header, the first NumberList entries of List and footer, as
    /// `PageCreateSimple` does. ListHeader and ListFooter are HTML around the list; Space adds a blank line
    /// behind each entry.
    Flag PageCreateList(const Text& FilePath, const Text& Title, Long NumberList, const Text& ListHeader,
                        const Text& ListFooter, const Array<Text>& List, Text& ErrorMessage, Flag OrderedList,
                        Flag Space);
    /// Writes a page with title, sub title, header, Body as one paragraph (centred where Centre is True) and
    /// footer; an empty Title takes `PageTitle`. FilePath is relative to `DirectoryHelp` where it has no
    /// backslash. Raises `PageCreated` and `PageCreated2`. False with a sentence where the path is missing or
    /// its directory does not exist; a failed write shows in `PageCreated2` alone.
    Flag PageCreateSimple(const Text& FilePath, const Text& Title, const Text& Body, Text& ErrorMessage,
                          Flag Centre);
    /// Writes a page with the HTML Page in a box, as `PageCreateSimpleBoxed2` does without title, centring
    /// and page colour.
    Flag PageCreateSimpleBoxed(const Text& FilePath, const Text& Page, const Text& PageWidth,
                               Text& ErrorMessage, Long BoxWidth, const Text& BoxColour);
    /// Writes a page with Title and Body in a table of one cell, and nothing else. PageWidth is a `WIDTH`
    /// such as "90%", BoxWidth the border in pixels (0 for none), and the colours are those of browsers;
    /// empty ones are left out. Path, events and failures are those of `PageCreateSimple`.
    Flag PageCreateSimpleBoxed2(const Text& FilePath, const Text& Title, const Text& Body,
                                const Text& PageWidth, Flag PageCentre, const Text& PageColour,
                                Text& ErrorMessage, Long BoxWidth, const Text& BoxColour);
    /// Makes the font of a part of the page bold or not. FontType is an `OWHFontType`, such as 1 for the
    /// title; an unknown one changes nothing.
    void PageFontBoldSet(Long FontType, Flag Bold);
    /// Sets the colour of the font of a part of the page, a browser's name or "#RRGGBB". FontType as in
    /// `PageFontBoldSet`.
    void PageFontColourSet(Long FontType, const Text& Colour);
    /// Sets the face of the font of a part of the page. FontType as in `PageFontBoldSet`.
    void PageFontFaceSet(Long FontType, const Text& Name);
    /// Makes the font of a part of the page italic or not. FontType as in `PageFontBoldSet`.
    void PageFontItalicSet(Long FontType, Flag Italic);
    /// Sets the size of the font of a part of the page, as in HTML: "1" to "7" or relative. FontType as in
    /// `PageFontBoldSet`.
    void PageFontSizeSet(Long FontType, const Text& Size);
    /// Copies the page properties into the help properties of the same ending for the next page, and empties
    /// `PageBody`. Every page maker runs it.
    void PageInitialise();
    /// Sets all page and table options to their defaults: once before each report.
    void PageReset();

    // Table pages

    /// Makes the report of a table: the main page FilePath, a path as in `PageCreateSimple`, and, by the
    /// `PageTable` options, sorted pages, record pages and a CSV file beside it. ColumnNames are the headers,
    /// ColumnRight aligns cells to the right, CellValues holds the HTML of the cells and CellTags the
    /// attributes of their `TD` tags. With an empty FilePath no file is written, and `PageBody` holds the
    /// main page. False with a sentence where something is missing, the CSV file cannot be written or the
    /// user stops it; files already written stay. A page that cannot be written shows in `PageCreated2`
    /// alone. ErrorMessage is written by a failure alone.
    Flag PageCreateTable(const Text& FilePath, const Text& Title, Long NumberRows, Long NumberColumns,
                         const Array<Text>& ColumnNames, const Array<Flag>& ColumnRight,
                         const Grid<Text>& CellValues, const Grid<Text>& CellTags, Text& ErrorMessage);
    /// Makes the report of a table as `PageCreateTable` does, without attributes of cells.
    Flag PageCreateTableNoTags(const Text& FilePath, const Text& Title, Long NumberRows, Long NumberColumns,
                               const Array<Text>& ColumnNames, const Array<Flag>& ColumnRight,
                               const Grid<Text>& CellValues, Text& ErrorMessage);
    /// Makes the report of a table as `PageCreateTableNoTags` does, over cells that the host keeps in buffers
    /// of its own.
    Flag PageCreateTableFrom(const Text& FilePath, const Text& Title, const Array<Text>& ColumnNames,
                             const Array<Flag>& ColumnRight, const CellTable& Cells, Text& ErrorMessage);
    /// Returns the names, without directory, of the files that `PageCreateTableFrom` would write with the
    /// options as they are, in the order in which it writes them.
    Array<Text> PageCreateTableFiles(const Text& FilePath, const Array<Text>& ColumnNames,
                                     const CellTable& Cells);
    /// Returns the highest row of any header link, at least 1; 0 without links.
    Long PageCreateTableMaxSubHeader();
    /// Adds a header link to the tables. Without Link, the names "excel", "top", "bottom" and, on record
    /// pages, "first", "previous", "next", "last" and "all" find their own target. Row counts from 1; Options
    /// are bits of `OWHHeaderLinksPosition`, 0 for all. False with a sentence in Error where there are 100
    /// links.
    Flag PageTableHeaderLinksAdd(const Text& Name, const Text& Link, Text& Error, const Text& ToolTip,
                                 Flag Right, Long Options, Long Row);
    /// Removes all header links and their formats; links then show below the top header and above the
    /// repeated one.
    void PageTableHeaderLinksClear();
    /// Sets the look of the header links of a row. Position is bits of `OWHHeaderLinksPosition`, 0 for all;
    /// NoLinkColour is that of names without a target; the first format that fits counts. False where there
    /// are 50 formats.
    Flag PageTableHeaderLinksFormat(Long Row, Long Position, const Text& Size, Flag Bold, Flag Italic,
                                    const Text& NoLinkColour, Flag CentreAll);
    /// Chooses where header links show: above and below the top header, above and below the repeated one.
    void PageTableHeaderLinksShow(Flag Above, Flag Below, Flag AboveRepeat, Flag BelowRepeat);
    /// Sets the words of the navigation links on record pages.
    void PageTableHeaderNavNames(const Text& FirstName, const Text& PreviousName, const Text& NextName,
                                 const Text& LastName, const Text& AllName);

    // Tag extraction

    /// Finds the values of TagAttribute in all elements TagName that have an end tag. Values gets each
    /// distinct value once, in order of appearance, at most MaxValues. Returns their number.
    Long ExtractAllDoubleTagValues(const Text& InputString, const Text& TagName, const Text& TagAttribute,
                                   Array<Text>& Values, Long MaxValues);
    /// Finds the values of TagAttribute in all tags TagName. Values gets each distinct value once, in order
    /// of appearance, at most MaxValues. Returns their number.
    Long ExtractAllSingleTagValues(const Text& InputString, const Text& TagName, const Text& TagAttribute,
                                   Array<Text>& Values, Long MaxValues);
    /// Returns the first element Tag up to the first end tag: with its tags where IncludeTag is True, else
    /// its content alone; trimmed where TrimOutput is True. `ExtractRemain` then holds what follows. Empty
    /// where there is none.
    Text ExtractDoubleTag(const Text& InputString, const Text& Tag, Flag TrimOutput, Flag IncludeTag);
    /// Returns the content of the `META` tag whose name is Tag, in any case; empty where there is none.
    Text ExtractMetaTag(const Text& InputString, const Text& Tag);
    /// Reads Name and Content of one `META` tag. False, with both empty, where either is missing.
    Flag ExtractMetaTagValues(const Text& Tag, Text& Name, Text& Content);
    /// Returns the text behind the tag that the last extraction found; empty where it found none.
    Text ExtractRemain();
    /// Empties `ExtractRemain`.
    void ExtractReset();
    /// Returns the first tag Tag: the whole of it where IncludeTag is True, else its attributes alone;
    /// trimmed where TrimOutput is True. One without attributes wins over one with them. `ExtractRemain` then
    /// holds what follows. Empty where there is none.
    Text ExtractSingleTag(const Text& InputString, const Text& Tag, Flag TrimOutput, Flag IncludeTag);
    /// Returns the first tag of any name, with its brackets; `ExtractRemain` then holds what follows. Empty
    /// where there is none.
    Text ExtractTag(const Text& InputString);
    /// Returns the value of the attribute Name, in any case, of a tag or of the text of its attributes; only
    /// the first ten attributes are looked at. Empty where there is none.
    Text ExtractTagValue(const Text& InputString, const Text& Name);
    /// Reads the attributes of a tag, or of the text of its attributes, until the first value without double
    /// quotes. Names gets the names in capitals and Values the values, at most MaxValues. Returns their
    /// number.
    Long ExtractTagValues(const Text& InputString, Array<Text>& Names, Array<Text>& Values, Long MaxValues);

    // Tag removal and content

    /// Returns the number that the plain text of a cell begins with; 0 where it begins with none.
    Double CellNumericValue(const Text& InputString);
    /// Returns the seconds of a time in a cell, "h:m:s", "m:s" or "s"; 0 for any other text.
    Long CellTimeSeconds(const Text& InputString);
    /// Returns the plain text of HTML, like `StripTags`. RemoveDouble drops the line ends and double blanks
    /// of the source; RemoveSpecials decodes entities and indents list items.
    Text ExtractContent(const Text& InputString, Flag RemoveDouble, Flag RemoveSpecials);
    /// Returns text as it is compared by a search: each CR a blank, without LFs, and runs of blanks as one.
    Text NormaliseSearchText(const Text& InputString);
    /// Returns the text without everything from each `<Tag>` to its `</Tag>`, or to `<TagEnd>` where TagEnd
    /// is given, both included, in any case. TrimBlanks trims the blanks at the ends first.
    Text RemoveBetweenTags(const Text& InputString, const Text& Tag, const Text& TagEnd, Flag TrimBlanks);
    /// Returns the text without its comments, which begin with `<!-- ` and end with ` -->`; one without an
    /// end is cut to the end of the text. TrimBlanks trims the blanks at the ends first.
    Text RemoveComments(const Text& InputString, Flag TrimBlanks);
    /// Returns the text without the tags `<Tag>` and `</Tag>` of exactly that case, their content kept. With
    /// SubTag: without each start tag that begins with Tag, a blank and SubTag, in any case, and its first
    /// end tag. TrimBlanks trims the blanks at the ends first.
    Text RemoveDoubleTag(const Text& InputString, const Text& Tag, const Text& SubTag, Flag TrimBlanks);
    /// Returns how often SearchString occurs, overlapping hits included, with line ends as blanks. WholeWords
    /// counts words between blanks alone. 0 for an empty SearchString.
    Long SearchCount(const Text& InputString, const Text& SearchString, Flag MatchCase, Flag WholeWords);

    // Colours

    /// Returns the browser's form "#rrggbb" of a system colour, with lower-case digits. A system colour is a
    /// number with red in its low byte, then green, then blue.
    Text ColourActualToHex(Long Colour);
    /// Returns the browser's name of a system colour, or its hexadecimal form in capitals where it has none.
    Text ColourActualToName(Long Colour);
    /// Returns the system colour of "#RRGGBB" in any case; -1 for any other text.
    Long ColourHexToActual(const Text& Colour);
    /// Returns the browser's name of "#RRGGBB"; any other text trimmed and in capitals.
    Text ColourHexToName(const Text& Colour);
    /// Returns "#RRGGBB" of a browser's colour name in any case; empty for an unknown name.
    Text ColourNameToHex(const Text& Colour);
    /// Returns the system colour of a browser's name or of "#RRGGBB"; -1 for any other text.
    Long ColourNameToActual(const Text& Colour);

    // Paths and files

    /// Returns File as it is where it holds a backslash, else Directory and File joined; empty for an empty
    /// File.
    Text BuildPath(const Text& Directory, const Text& File);
    /// Changes the current directory, and the drive where it differs. False with the system's description.
    Flag DirectoryChange(const Text& Directory, Text& ErrorMessage);
    /// Whether a directory exists, with or without a backslash at its end.
    Flag DirectoryExists(const Text& Directory);
    /// Makes a directory with all that lead to it; True where it exists already. False with a sentence where
    /// the drive does not exist or a directory cannot be made.
    Flag DirectoryMake(const Text& Directory, Text& ErrorMessage);
    /// Returns the sentence "argMessage [argFile] does not exist."; without the brackets where argFile is
    /// empty.
    Text ErrorMessageDoesNotExist(const Text& argMessage, const Text& argFile);
    /// Returns the sentence "argMessage has not been defined.".
    Text ErrorMessageNotDefined(const Text& argMessage);
    /// Returns "Message1 [path] Message2" with the path shortened to about 30 characters; without Message2 it
    /// ends in a full stop.
    Text ErrorMessageShortenFile(const Text& Message1, const Text& FilePath, const Text& Message2);
    /// Returns the path up to and including its last backslash or "/"; empty where there is none.
    Text FileDirectory(const Text& FilePath);
    /// Returns what follows the last "." of the path, trimmed; empty where there is none.
    Text FileExtension(const Text& FilePath);
    /// Returns the path with another extension, given with or without its "."; an empty Extension removes the
    /// old one.
    Text FileExtensionChange(const Text& FilePath, const Text& Extension);
    /// Whether the file exists and holds both `<HTML` and `</HTML`, in any case.
    Flag FileHTML(const Text& FilePath);
    /// Whether the path is an address of http, https, ftp or gopher.
    Flag FileInternet(const Text& FilePath);
    /// Returns what follows the last backslash or "/" of the path; the whole path where there is none.
    Text FileName(const Text& FilePath);
    /// Returns the file's name without directory and extension.
    Text FileNameOnly(const Text& FilePath);
    /// Returns the local path of a "file:" address: its escapes decoded, with backslashes.
    Text FilePathFromURL(const Text& FilePath);
    /// Returns the text with each "%" and two hexadecimal digits as the character of that code, but for codes
    /// below 16; with "/" as backslashes where ConvertSlashes is True.
    Text FilePathFromURLCharacters(const Text& FilePath, Flag ConvertSlashes);
    /// Returns a path that is longer than MaxLength with "..." in its middle. Delimiter is "/" or a
    /// backslash; empty takes the more frequent one. The first StartKeep characters and SlashesStart
    /// delimiters behind them stay, and at least SlashesEnd delimiters at the end, even where that is too
    /// long.
    Text FilePathShorten(const Text& FilePath, const Text& Delimiter, Long MaxLength, Long StartKeep,
                         Long SlashesStart, Long SlashesEnd);
    /// Returns the path without Directory at its start; as it is where it lies elsewhere.
    Text FilePathSimplify(const Text& FilePath, const Text& Directory);
    /// Renames a file. NewName without a directory stays in that of FilePath. False with a sentence where a
    /// name is missing, FilePath is no full path or does not exist, or NewName exists.
    Flag FileRename(const Text& FilePath, const Text& NewName, Text& ErrorMessage);
    /// Returns the system's description of an error number; empty for 0.
    Text FormatErrorMessage(Long ErrorNumber);
    /// Deletes one file. False with a sentence where it does not exist or cannot be deleted.
    Flag KillFile(const Text& FilePath, Text& ErrorMessage);
    /// Deletes the files of a path or mask. None to delete is a failure only where NotExistError is True.
    /// ClearAttributes tries write-protected files again with their attributes cleared. False with a sentence
    /// where one is left.
    Flag KillFiles(const Text& FilePath, Text& ErrorMessage, Flag NotExistError, Flag ClearAttributes);
    /// Deletes the files of a mask as `KillFiles` does; none to delete is a failure, and attributes are not
    /// cleared.
    Flag KillSelectedFiles(const Text& Mask, Text& ErrorMessage);
    /// Deletes the files of `WinTempPath` that begin with TempTag and end in ".tmp", as `KillFiles` does.
    /// False with a sentence where there are none or one is left.
    Flag KillTempFiles(const Text& TempTag, Text& ErrorMessage);
    /// Returns the system's description of the last `ReadFile` where that failed, else empty.
    Text LastFileError();
    /// Returns the whole content of a file, byte for byte. Empty on failure, which `LastFileError` then
    /// describes.
    Text ReadFile(const Text& FilePath);
    /// Returns the text without one backslash at its end.
    Text RemoveLastBackslash(const Text& InputString);
    /// Returns the text without one "/" at its end.
    Text RemoveLastSlash(const Text& InputString);
    /// Makes a new empty file in `WinTempPath` and returns its path, which ends in ".tmp". Its name begins
    /// with the first three characters of TempTag in lower case, or "wbh" where TempTag is shorter.
    /// DefaultFile on failure.
    Text WinTempFile(const Text& TempTag, const Text& DefaultFile);
    /// Returns the system's directory of temporary files; empty on failure.
    Text WinTempPath();
    /// Moves `WorkFileNext` to the next work file, from 9 back to 0.
    void WorkFileNextIncrement();
    /// Returns the path of the work file of that number, 0 to 9, in `DirectoryHelp`. Empty for any other
    /// number, or where `DirectoryHelp` or `WorkFileRoot` is empty.
    Text WorkFilePath(Long FileNumber);
    /// Deletes the work files 0 to 9; failures are ignored.
    void WorkFilesKill();
    /// Makes or replaces a file with Output, byte for byte. False with the system's description; the old file
    /// is then still there.
    Flag WriteFile(const Text& FilePath, const Text& Output, Text& ErrorMessage);
    /// Returns a value as it is written to a CSV file: in double quotes, with its own doubled, where it holds
    /// the delimiter, a double quote or a line end.
    Text WriteFileCSVValue(const Text& Value, const Text& Delimiter);
    /// Writes a CSV file: a line of FieldNames, then NumberRecords lines of FieldValues (record, field),
    /// joined by Delimiter; yields after every 50 records. CreateBackup keeps the old file with the extension
    /// "bak"; without it an unchanged file is left alone. False with a sentence where there is nothing to
    /// write, the user stops it or the file cannot be written.
    Flag WriteFileFromCSVDatabase(const Text& FilePath, const Array<Text>& FieldNames,
                                  const Grid<Text>& FieldValues, Long NumberRecords, Long NumberFields,
                                  Text& ErrorMessage, const Text& Delimiter, Flag CreateBackup);
    /// Writes Output to the full path FilePath, whole or not at all. An existing file is kept as ".bak"
    /// (CreateBackup), asked about in a message box named Title (AskOverwrite) or refused (Overwrite False).
    /// False with a sentence on failure; True also where the user declines.
    Flag WriteFileFull(const Text& Title, const Text& FilePath, const Text& Output, Text& ErrorMessage,
                       Flag CreateBackup, Flag AskOverwrite, Flag Overwrite);

    // Sorting

    /// Sorts Pointers, which are NumberSort positions in DateValues, by their dates, ascending where SortUp
    /// is True; the values stay. Equal ones come in the order of the pointers, or in its reverse downward.
    /// Raises `SortProgress`; a stop leaves the pointers partly sorted.
    void SortDate(const Array<Date>& DateValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);
    /// Sorts Pointers by the numbers of NumericValues, as `SortDate` does.
    void SortNumeric(const Array<Double>& NumericValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);
    /// Sorts Pointers by the texts of TextValues, ignoring case, as `SortDate` does.
    void SortText(const Array<Text>& TextValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);

    // Settings

    /// Returns a value of the settings store by its area, key and name, a text or a number; an empty text
    /// where there is none. KeyArea is -2147483647 for the current user and -2147483646 for the machine.
    Variant QueryValue(Long KeyArea, const Text& KeyName, const Text& ValueName);
    /// Deletes one setting of `RegistryApp`. Nothing where `RegistryApp`, Section or Key is empty.
    void RegistryDeleteKey(const Text& Section, const Text& Key);
    /// Deletes a section of the settings of `RegistryApp`. Nothing where `RegistryApp` or Section is empty.
    void RegistryDeleteSection(const Text& Section);
    /// Returns a setting of `RegistryApp`; Default where it is missing or `RegistryApp` is empty. Section and
    /// Key ignore case.
    Text RegistryGetSetting(const Text& Section, const Text& Key, const Text& Default);
    /// Returns a setting of `RegistryApp` as a flag: "true", "1", "-1", "yes" and "false", "0", "no" in any
    /// case; Default for any other text or none.
    Flag RegistryGetSettingBoolean(const Text& Section, const Text& Key, Flag Default);
    /// Returns a setting of `RegistryApp` as the number that it begins with, 0 for no number; Default where
    /// it is missing.
    Double RegistryGetSettingDouble(const Text& Section, const Text& Key, Double Default);
    /// Returns a setting of `RegistryApp` as a whole number, 0 for no number; Default where it is missing.
    Long RegistryGetSettingLong(const Text& Section, const Text& Key, Long Default);
    /// Stores a text as a setting of `RegistryApp`; nothing while that is empty. A failed write is only
    /// traced by `StatusTextChange`.
    void RegistrySaveSetting(const Text& Section, const Text& Key, const Text& Value);
    /// Stores "True" or "False" as `RegistrySaveSetting` does.
    void RegistrySaveSettingBoolean(const Text& Section, const Text& Key, Flag Value);
    /// Stores a number as text, as `RegistrySaveSetting` does.
    void RegistrySaveSettingDouble(const Text& Section, const Text& Key, Double Value);
    /// Stores a whole number as text, as `RegistrySaveSetting` does.
    void RegistrySaveSettingLong(const Text& Section, const Text& Key, Long Value);
    /// Stores a value of the settings store by its area, key and name, as in `QueryValue`; a key that does
    /// not exist is not made. ValueType is 1 for a text and 4 for a whole number of 32 bits; what does not
    /// fit is not stored.
    void SetKeyValue(Long KeyArea, const Text& KeyName, const Text& ValueName, const Variant& Value,
                     Long ValueType);

    // Message boxes, waits and small formatters

    /// Returns the calling code of the country of the locale (`LC_ALL`, `LC_MONETARY`, `LANG`), such as 44
    /// for the UK; 1 where it names none.
    Long CountryCode();
    /// Returns minutes as "hh:mm", with two digits or more for the hours; "00:00" below 1.
    Text HoursMinutes(Long Minutes);
    /// Returns seconds as "hh:mm:ss", with two digits or more for the hours; empty below 1.
    Text HoursMinutesSeconds(Long Seconds);
    /// Whether the text is a time of two or three whole numbers joined by TimeDelimiter, all but the first
    /// below 60.
    Flag IsTime(const Text& InputString, const Text& TimeDelimiter);
    /// Shows an error in a message box named `ProgramName` and waits for the user.
    void MessageError(const Text& ErrorMessage);
    /// Shows information in a message box named `ProgramName` and waits for the user.
    void MessageInfo(const Text& ErrorMessage);
    /// Asks in a message box named `ProgramName`. Buttons: 0 OK, 1 OK Cancel, 2 Abort Retry Ignore, 3 Yes No
    /// Cancel, 4 Yes No, 5 Retry Cancel. Returns 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No; 0
    /// without a screen. The low three bits of `Buttons` choose the buttons; higher bits are ignored.
    Long MessageQuery(const Text& ErrorMessage, Long Buttons);
    /// Shows a warning in a message box named `ProgramName` and waits for the user.
    void MessageWarn(const Text& ErrorMessage);
    /// Returns seconds as "mm:ss", with two digits or more for the minutes; "00:00" below 1.
    Text MinutesSeconds(Long Seconds);
    /// Shows the about box of this control and waits for the user.
    void ShowAboutBox();
    /// Shows an about box of the host's program with its name, version, creation date, description and
    /// disclaimer, at that place of the screen in twips, and waits for the user.
    void ShowOstrelAboutBox(const Text& ProgramName, Long Major, Long Minor, Long Revision,
                            const Text& CreationDate, const Text& Description, const Text& Disclaimer,
                            Long Top, Long Left);
    /// Waits that long while timers, posted work and the window go on.
    void WaitMilliSeconds(Long MilliSeconds);
    /// Waits that long like `WaitMilliSeconds`, as many waits of 1000 milliseconds.
    void WaitSeconds(Long Seconds);

    // The second component

    /// Returns the component that shows the properties of the page on view. It belongs to the control.
    OstrelProperties& Properties();

    // What a user does, for the layers that show the control or stand in for its user.

    /// Returns the visual children with their places.
    const Children& View() const;
    /// A real press: of a toolbar button by its token or its child's name, of a user button by its name or
    /// its child's, of `cmdStop` or `cmdURL`, or Enter in `txtURL`. False, with nothing done, where it is
    /// hidden, disabled or unknown.
    Flag PressChild(const Text& Name);
    /// The user changes the text of a child. False where it takes none.
    Flag TypeIntoChild(const Text& Name, const Text& Value);
    /// X and Y lie in the child of that name, "" being the control itself. False where no event is raised.
    Flag MouseOverChild(MouseAction Action, const Text& Name, Integer Button, Integer Shift, Single X,
                        Single Y);

private:
    /// Tells the host that a let has changed a property, and does what the property's row says beside.
    void Announce(const Text& name, unsigned flags);

    std::unique_ptr<ControlParts> parts_;
};

} // namespace ostrel
