#pragma once

#include <functional>
#include <memory>
#include <variant>

#include "control/State.h"
#include "platform/Context.h"
#include "tablepages/CellTable.h"
#include "text/Enumerations.h"
#include "text/PropertyFlags.h"

namespace ostrel {

class Bag;
class Children;
struct ControlFrame;
struct PropertyRow;
enum ToolbarAction : int;
/// The value of a property, by its kind.
using PropertyValue = std::variant<Text, Flag, Long, Picture>;

/// What the mouse did over the control.
enum class MouseAction { Down, Move, Up };

/// The one object that a host holds: everything its application does with the web, in flat members, with 41
/// events. Every member runs on the host's thread and returns when the work is done; none throws. A flag
/// result with an `ErrorMessage` argument means: False, and a full sentence there; `ErrorMessage` is emptied
/// first. Texts are Windows-1252, arrays count from 1, paths have backslashes, lengths on the screen are
/// twips.
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
    /// Hears the name of each property that a let has changed.
    std::function<void(const Text& name)> PropertyChanged;

    // Lifecycle, called by the container.

    /// For a new control: every property to its default.
    void InitProperties();
    /// For a stored control: every property from the bag, then the layout. What is missing takes its default;
    /// what has a wrong form is passed over.
    void ReadProperties(const Bag& Store);
    /// Puts into the bag what differs from the defaults and takes out of it what does not.
    void WriteProperties(Bag& Store);
    /// Lays everything out for the control's size.
    void Resize();
    /// The container gives the control its size, then the layout runs. 9600 by 7200 before that.
    void ResizeTo(Long Width, Long Height);
    /// At the end: the work files go.
    void Terminate();

    // Properties: the get and the let of each row.

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

    Flag Busy();
    /// Header and footer of printed pages, and other settings of the browser.
    Text BrowserGetFooter();
    Text BrowserGetHeader();
    /// KeyName stands below the browser's own key. A setting that is not there is empty.
    Text BrowserGetSetting(const Text& KeyName, const Text& ValueName);
    Long BrowserLeft();
    void BrowserSetFooter(const Text& Value);
    void BrowserSetHeader(const Text& Value);
    void BrowserSetSetting(const Text& KeyName, const Text& ValueName, const Text& Value);
    Long BrowserTop();
    /// Stops the pane, and long loops with it.
    void Cancel();
    /// The four go members give True in any case.
    Flag GoBack();
    Flag GoForward();
    Flag GoHome();
    Flag GoSearch();
    /// True as soon as the navigation is asked for; the page on view is not loaded again.
    Flag LoadURL(const Text& URL, Text& ErrorMessage);
    Flag LoadURLToTarget(const Text& URL, const Text& Target, Text& ErrorMessage);
    Text LocationName();
    Text LocationURL();
    /// 0 to 4, 4 for complete.
    Long ReadyState();
    void Refresh();
    void RefreshCompletely();
    void RefreshIfExpired();

    // Progress panel and clock

    /// Starts to measure a load; `DownloadTime` tells about ten times a second.
    void ClockStart();
    /// Ends it; the seconds so far, empty where no clock runs.
    Text ClockStop();
    Text ClockTime();
    void StopGaugeReset();
    /// ShowFraction is 0 to 1; what is above draws past the track.
    void StopGaugeShow(Single ShowFraction);
    /// `StopPressed` stays as the job left it.
    void StopHide();
    void StopShow(const Text& Heading);

    // Help pages

    Text HelpPageCurrent();
    Flag HelpPageExists(const Text& HelpPage);
    /// The HTML of the last internal page.
    Text HelpPageInternal();
    /// Loads a page of the help directory after `HelpDelay` milliseconds; a later call replaces it.
    Flag HelpPageLoad(const Text& HelpPage, Text& ErrorMessage);
    /// Builds a page from the three parts and loads it from a work file.
    Flag HelpPageLoadInternal(Text& ErrorMessage);
    /// Does not wait for the delay.
    void HelpPageLoadNow();
    Text HelpPageNext();

    // Toolbar. Button is a token such as "forward", or the name of a user button, in any case.

    /// Adds a user button with a bitmap file of `DirectoryRun`. A bad file leaves it without a picture.
    Flag ButtonAdd(const Text& Name, const Text& BitMap, const Text& ToolTip, Text& ErrorMessage);
    Flag ButtonAddPicture(const Text& Name, const Picture& BitMap, const Text& ToolTip, Text& ErrorMessage);
    void ButtonClear();
    /// The action of a default button, with no `ToolbarClick`.
    void ButtonClick(const Text& Button);
    Flag ToolbarButtonEnabled(const Text& Button);
    void ToolbarButtonEnabledSet(const Text& Button, Flag State);
    /// -1 for a hidden or unknown button.
    Long ToolbarButtonLeft(const Text& Button);
    Long ToolbarButtonMousePointer(const Text& Button);
    void ToolbarButtonMousePointerSet(const Text& Button, Long Value);
    /// The numbers of the last layout; 0 with the strip hidden.
    void ToolbarButtonSizePosition(Long& Top, Long& Height, Long& Width);
    Flag ToolbarButtonVisible(const Text& Button);

    // Text primitives

    Text TrimCrLf(const Text& InputString);
    /// Position of the ">" that ends a tag, looked for from StartPosition; double quotes protect. 0 for none.
    Long FindTagClose(const Text& InputString, Long StartPosition);
    /// Plain text of HTML.
    Text StripTags(const Text& InputString);
    Text AddMissingBackslash(const Text& InputString);
    Text AddMissingSlash(const Text& InputString);
    /// With "*" or "?" in the name: whether any plain file matches.
    Flag FileExists(const Text& FilePath);

    // Elements of HTML

    void AddHTMLTag(Text& TagString, const Text& TagName, const Text& TagValue);
    Text CreateAnchor(const Text& Anchor);
    Text CreateAnchorName(const Text& AnchorName);
    Text CreateBody(const Text& Body, const Text& BackGround, const Text& BackGroundColour,
                    const Text& LinkColour, const Text& LinkVisibleColour, const Text& LinkActiveColour);
    Text CreateBreak();
    Text CreateFontEnd();
    Text CreateFontStart(const Text& Face, const Text& Size, const Text& Colour);
    Text CreateHeader(const Text& Title, const Text& Author, const Text& Keywords, const Text& Description,
                      const Text& MetaTags);
    /// Raises `ImageMissing` where `TestImage` is on and the local file is not there.
    Text CreateImage(const Text& Image, const Text& Alt, const Text& Border, const Text& Width,
                     const Text& Height, const Text& Align);
    Text CreateLine(const Text& LineHeight, const Text& LineWidth, const Text& Colour);
    Text CreateLink(const Text& Hyperlink, const Text& Description, Flag Bold, Flag Italic, Flag NewWindow);
    /// Raises `HyperlinkMissing` where `TestHyperlink` is on and the local file is not there.
    Text CreateLinkTitle(const Text& Hyperlink, const Text& Description, const Text& Title, Flag Bold,
                         Flag Italic, Flag NewWindow);
    /// One link a line of Description, so that line breaks stay outside the links.
    Text CreateLinkTitleSplit(const Text& Hyperlink, const Text& Description, const Text& Title, Flag Bold,
                              Flag Italic, Flag NewWindow);
    Text CreateListEnd(Flag OrderedList);
    Text CreateListItem(const Text& Element, Flag Space);
    Text CreateListStart(Flag OrderedList);
    Text CreateMeta(const Text& Name, const Text& Content);
    Text CreateMetaClientPull(Long Seconds, const Text& URL);
    Text CreateParagraph(const Text& Paragraph, Flag Centre);
    Text CreateParagraphEnd();
    Text CreateParagraphFixed(const Text& Font, const Text& Paragraph);
    Text CreateParagraphStart();
    Text CreateParagraphsFromText(const Text& InputString, Flag Breaks, Flag Multiple, Flag IgnoreReturn,
                                  Flag IgnoreLineFeed);
    Text CreateSpaces(Long NumberSpaces);
    Text CreateString(const Text& InputString, Flag Bold, Flag Italic, Flag Underline = false);
    Text CreateStringBold(const Text& InputString);
    Text CreateStringColour(const Text& InputString, const Text& Colour, Flag Bold, Flag Italic,
                            Flag Underline);
    Text CreateStringItalic(const Text& InputString);
    Text CreateStringJavaScript(const Text& InputString);
    Text CreateStringUnderline(const Text& InputString);
    Text CreateStringURL(const Text& InputString);

    // Tables of HTML

    /// Yields after every 50th row.
    Text CreateTable(Long Rows, Long Columns, const Grid<Text>& CellValues, const Grid<Text>& CellTags,
                     Flag SpaceColumns, const Text& Font, const Text& TableTags, const Text& RowTags,
                     const Text& SpaceCellHTML, const Text& EmptyCellHTML);
    /// Flushes the pending blank cells into a row and sets NumberBlanks to 0.
    void CreateTableAddBlanks(Text& RowTable, Long& NumberBlanks);
    Text CreateTableCell(const Text& Tags, const Text& Font, const Text& Cell);
    Text CreateTableCellEnd();
    Text CreateTableCellStart(const Text& Tags);
    Text CreateTableEnd();
    Text CreateTableRowEnd();
    Text CreateTableRowStart(const Text& Tags);
    Text CreateTableStart(const Text& Tags);
    /// Empty for a value of zeros, else the value as it is.
    Text CreateZeroBlank(const Text& Value);
    /// Wraps text to CellWidth characters; below 11 it is left alone.
    Text FormatCell(const Text& InputString, Long CellWidth, const Text& TrailString, const Text& LeadString);
    Text LinkSeparateAll();
    Text LinkSeparateFirst();
    Text LinkSeparateLast();
    Text LinkSeparateNext();
    Text LinkSeparatePrevious();
    /// The value of a field of the record page being created; only letters count in a name.
    Text SeparatePageValue(const Text& FieldName);

    // Pages

    Text CreatePage(const Text& Body);
    /// The page being built.
    Text CurrentCreatePage();
    void HelpPageInitialise();
    Flag HelpPageSaveInternal(const Text& FilePath, Text& ErrorMessage);
    Text InternalBuild(const Text& Part1, const Text& Part2, const Text& Part3);
    /// Body of the last page created since `PageInitialise`.
    Text PageBody();
    Flag PageCreateList(const Text& FilePath, const Text& Title, Long NumberList, const Text& ListHeader,
                        const Text& ListFooter, const Array<Text>& List, Text& ErrorMessage, Flag OrderedList,
                        Flag Space);
    Flag PageCreateSimple(const Text& FilePath, const Text& Title, const Text& Body, Text& ErrorMessage,
                          Flag Centre);
    Flag PageCreateSimpleBoxed(const Text& FilePath, const Text& Page, const Text& PageWidth,
                               Text& ErrorMessage, Long BoxWidth, const Text& BoxColour);
    Flag PageCreateSimpleBoxed2(const Text& FilePath, const Text& Title, const Text& Body,
                                const Text& PageWidth, Flag PageCentre, const Text& PageColour,
                                Text& ErrorMessage, Long BoxWidth, const Text& BoxColour);
    void PageFontBoldSet(Long FontType, Flag Bold);
    void PageFontColourSet(Long FontType, const Text& Colour);
    void PageFontFaceSet(Long FontType, const Text& Name);
    void PageFontItalicSet(Long FontType, Flag Italic);
    void PageFontSizeSet(Long FontType, const Text& Size);
    void PageInitialise();
    void PageReset();

    // Table pages

    Flag PageCreateTable(const Text& FilePath, const Text& Title, Long NumberRows, Long NumberColumns,
                         const Array<Text>& ColumnNames, const Array<Flag>& ColumnRight,
                         const Grid<Text>& CellValues, const Grid<Text>& CellTags, Text& ErrorMessage);
    Flag PageCreateTableNoTags(const Text& FilePath, const Text& Title, Long NumberRows, Long NumberColumns,
                               const Array<Text>& ColumnNames, const Array<Flag>& ColumnRight,
                               const Grid<Text>& CellValues, Text& ErrorMessage);
    /// As `PageCreateTableNoTags`, over cells that the host keeps in buffers of its own.
    Flag PageCreateTableFrom(const Text& FilePath, const Text& Title, const Array<Text>& ColumnNames,
                             const Array<Flag>& ColumnRight, const CellTable& Cells, Text& ErrorMessage);
    /// The highest row of any header link.
    Long PageCreateTableMaxSubHeader();
    Flag PageTableHeaderLinksAdd(const Text& Name, const Text& Link, Text& Error, const Text& ToolTip,
                                 Flag Right, Long Options, Long Row);
    void PageTableHeaderLinksClear();
    Flag PageTableHeaderLinksFormat(Long Row, Long Position, const Text& Size, Flag Bold, Flag Italic,
                                    const Text& NoLinkColour, Flag CentreAll);
    void PageTableHeaderLinksShow(Flag Above, Flag Below, Flag AboveRepeat, Flag BelowRepeat);
    void PageTableHeaderNavNames(const Text& FirstName, const Text& PreviousName, const Text& NextName,
                                 const Text& LastName, const Text& AllName);

    // Tag extraction

    Long ExtractAllDoubleTagValues(const Text& InputString, const Text& TagName, const Text& TagAttribute,
                                   Array<Text>& Values, Long MaxValues);
    Long ExtractAllSingleTagValues(const Text& InputString, const Text& TagName, const Text& TagAttribute,
                                   Array<Text>& Values, Long MaxValues);
    Text ExtractDoubleTag(const Text& InputString, const Text& Tag, Flag TrimOutput, Flag IncludeTag);
    Text ExtractMetaTag(const Text& InputString, const Text& Tag);
    Flag ExtractMetaTagValues(const Text& Tag, Text& Name, Text& Content);
    Text ExtractRemain();
    void ExtractReset();
    Text ExtractSingleTag(const Text& InputString, const Text& Tag, Flag TrimOutput, Flag IncludeTag);
    Text ExtractTag(const Text& InputString);
    Text ExtractTagValue(const Text& InputString, const Text& Name);
    Long ExtractTagValues(const Text& InputString, Array<Text>& Names, Array<Text>& Values, Long MaxValues);

    // Tag removal and content

    Double CellNumericValue(const Text& InputString);
    Long CellTimeSeconds(const Text& InputString);
    Text ExtractContent(const Text& InputString, Flag RemoveDouble, Flag RemoveSpecials);
    Text NormaliseSearchText(const Text& InputString);
    Text RemoveBetweenTags(const Text& InputString, const Text& Tag, const Text& TagEnd, Flag TrimBlanks);
    Text RemoveComments(const Text& InputString, Flag TrimBlanks);
    Text RemoveDoubleTag(const Text& InputString, const Text& Tag, const Text& SubTag, Flag TrimBlanks);
    Long SearchCount(const Text& InputString, const Text& SearchString, Flag MatchCase, Flag WholeWords);

    // Colours

    /// The browser's hexadecimal form of a system colour, with lower-case digits.
    Text ColourActualToHex(Long Colour);
    /// The browser's name of a system colour, or its hexadecimal form in capitals.
    Text ColourActualToName(Long Colour);
    /// The system colour of a hexadecimal form; -1 for any other text.
    Long ColourHexToActual(const Text& Colour);
    /// The name of a hexadecimal form, or the text trimmed and in capitals.
    Text ColourHexToName(const Text& Colour);
    /// The hexadecimal form of a name, in capitals; empty for an unknown name.
    Text ColourNameToHex(const Text& Colour);
    /// The system colour of a name or a hexadecimal form; -1 for any other text.
    Long ColourNameToActual(const Text& Colour);

    // Paths and files

    Text BuildPath(const Text& Directory, const Text& File);
    Flag DirectoryChange(const Text& Directory, Text& ErrorMessage);
    Flag DirectoryExists(const Text& Directory);
    Flag DirectoryMake(const Text& Directory, Text& ErrorMessage);
    Text ErrorMessageDoesNotExist(const Text& argMessage, const Text& argFile);
    Text ErrorMessageNotDefined(const Text& argMessage);
    Text ErrorMessageShortenFile(const Text& Message1, const Text& FilePath, const Text& Message2);
    Text FileDirectory(const Text& FilePath);
    Text FileExtension(const Text& FilePath);
    Text FileExtensionChange(const Text& FilePath, const Text& Extension);
    Flag FileHTML(const Text& FilePath);
    Flag FileInternet(const Text& FilePath);
    Text FileName(const Text& FilePath);
    Text FileNameOnly(const Text& FilePath);
    Text FilePathFromURL(const Text& FilePath);
    Text FilePathFromURLCharacters(const Text& FilePath, Flag ConvertSlashes);
    Text FilePathShorten(const Text& FilePath, const Text& Delimiter, Long MaxLength, Long StartKeep,
                         Long SlashesStart, Long SlashesEnd);
    Text FilePathSimplify(const Text& FilePath, const Text& Directory);
    Flag FileRename(const Text& FilePath, const Text& NewName, Text& ErrorMessage);
    Text FormatErrorMessage(Long ErrorNumber);
    Flag KillFile(const Text& FilePath, Text& ErrorMessage);
    Flag KillFiles(const Text& FilePath, Text& ErrorMessage, Flag NotExistError, Flag ClearAttributes);
    Flag KillSelectedFiles(const Text& Mask, Text& ErrorMessage);
    Flag KillTempFiles(const Text& TempTag, Text& ErrorMessage);
    /// The sentence of the last failed `ReadFile`.
    Text LastFileError();
    Text ReadFile(const Text& FilePath);
    Text RemoveLastBackslash(const Text& InputString);
    Text RemoveLastSlash(const Text& InputString);
    Text WinTempFile(const Text& TempTag, const Text& DefaultFile);
    Text WinTempPath();
    void WorkFileNextIncrement();
    Text WorkFilePath(Long FileNumber);
    void WorkFilesKill();
    Flag WriteFile(const Text& FilePath, const Text& Output, Text& ErrorMessage);
    Text WriteFileCSVValue(const Text& Value, const Text& Delimiter);
    Flag WriteFileFromCSVDatabase(const Text& FilePath, const Array<Text>& FieldNames,
                                  const Grid<Text>& FieldValues, Long NumberRecords, Long NumberFields,
                                  Text& ErrorMessage, const Text& Delimiter, Flag CreateBackup);
    Flag WriteFileFull(const Text& Title, const Text& FilePath, const Text& Output, Text& ErrorMessage,
                       Flag CreateBackup, Flag AskOverwrite, Flag Overwrite);

    // Sorting: the pointers are reordered, the values stay.

    void SortDate(const Array<Date>& DateValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);
    void SortNumeric(const Array<Double>& NumericValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);
    void SortText(const Array<Text>& TextValues, Array<Long>& Pointers, Long NumberSort, Flag SortUp);

    // Settings

    Variant QueryValue(Long KeyArea, const Text& KeyName, const Text& ValueName);
    void RegistryDeleteKey(const Text& Section, const Text& Key);
    void RegistryDeleteSection(const Text& Section);
    Text RegistryGetSetting(const Text& Section, const Text& Key, const Text& Default);
    Flag RegistryGetSettingBoolean(const Text& Section, const Text& Key, Flag Default);
    Double RegistryGetSettingDouble(const Text& Section, const Text& Key, Double Default);
    Long RegistryGetSettingLong(const Text& Section, const Text& Key, Long Default);
    void RegistrySaveSetting(const Text& Section, const Text& Key, const Text& Value);
    void RegistrySaveSettingBoolean(const Text& Section, const Text& Key, Flag Value);
    void RegistrySaveSettingDouble(const Text& Section, const Text& Key, Double Value);
    void RegistrySaveSettingLong(const Text& Section, const Text& Key, Long Value);
    /// ValueType 1 is a text, 4 a number.
    void SetKeyValue(Long KeyArea, const Text& KeyName, const Text& ValueName, const Variant& Value,
                     Long ValueType);

    // Message boxes, waits and small formatters

    Long CountryCode();
    Text HoursMinutes(Long Minutes);
    Text HoursMinutesSeconds(Long Seconds);
    Flag IsTime(const Text& InputString, const Text& TimeDelimiter);
    void MessageError(const Text& ErrorMessage);
    void MessageInfo(const Text& ErrorMessage);
    /// Buttons 0 OK, 1 OK Cancel, 2 Abort Retry Ignore, 3 Yes No Cancel, 4 Yes No, 5 Retry Cancel; answers 1
    /// OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No.
    Long MessageQuery(const Text& ErrorMessage, Long Buttons);
    void MessageWarn(const Text& ErrorMessage);
    Text MinutesSeconds(Long Seconds);
    void ShowAboutBox();
    void ShowOstrelAboutBox(const Text& ProgramName, Long Major, Long Minor, Long Revision,
                            const Text& CreationDate, const Text& Description, const Text& Disclaimer,
                            Long Top, Long Left);
    void WaitMilliSeconds(Long MilliSeconds);
    void WaitSeconds(Long Seconds);

    // What a user does, for the layers that show the control or stand in for its user.

    /// The visual children with their places.
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

    /// The state, for the layers above that need more than the host does.
    State& Inside() { return state_; }
    Context& Around() { return context_; }

private:
    /// Keeps inside what is thrown below, and bounds nested calls: a call deeper than 64 levels does nothing
    /// and gives its failure. Every thin member passes through it.
    template <class Body>
    auto Guarded(Body body) -> decltype(body());
    void Announce(const Text& name, unsigned flags);

    // Lifecycle
    void Trace(TextView line);
    /// Straight into the property's place, with no let.
    void StoreStraight(const PropertyRow& row, const PropertyValue& value);
    PropertyValue DefaultOf(const PropertyRow& row) const;

    // Browser pane
    friend class PaneListener;
    /// Null where the platform has none.
    BrowserPane* Pane() const { return context_.platform.pane.get(); }
    void FocusPane();
    void NavigatePane(const Text& url);
    void RefreshPane(Long level);
    void DocumentCompleted(const Text& url);
    void StatusTextChanged(const Text& text);

    // Clock, stop panel and help pages
    void ClockTick();
    void SetPointer(Long shape);
    Flag DirectoryHelpStands(Text& error);
    void ArmHelp(const Text& location);
    void HelpTick();

    // Toolbar
    Flag ButtonRegister(const Text& name, const Text& tip, Text& error);
    void RunToolbarAction(ToolbarAction action);
    void PressDefaultButton(ToolbarAction action);
    void GoAddress();
    void GoHomePage();
    void GoIndexPage();
    void GoPage(const Text& page);

    State state_;
    RunFlags run_;
    Context context_;
    std::unique_ptr<ControlFrame> frame_;
    int depth_ = 0;
    bool terminated_ = false;
};

} // namespace ostrel
