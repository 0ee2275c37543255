#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

#include "support/MemoryFiles.h"
#include "ui/Dialogs.h"
#include "ui/MessageBox.h"
#include "ui/ScriptedUser.h"

namespace ostrel::test {
namespace {

using Verb = UserStep::Verb;

/// A form with one of everything.
struct SampleForm final : Form {
    TextBox txtName{*this, "txtName", "Name"};
    TextBox txtKept{*this, "txtKept"};
    FrameBox fraMore{*this, "fraMore", "More"};
    CheckBox chkBold{*this, "chkBold", "Bold", 'B'};
    CheckBox chkItalic{*this, "chkItalic", "Italic", 'I'};
    OptionButton optLeft{*this, "optLeft", "Left", 'L'};
    OptionButton optRight{*this, "optRight", "Right", 'R'};
    ListBox lisLines{*this, "lisLines", [this] { heard += "click;"; }, [this] { heard += "double;"; }};
    ComboBox cboFree{*this, "cboFree"};
    ComboBox cboFixed{*this, "cboFixed", "", false};
    ControlArray<Button> cmdInsert{"cmdInsert", 1, 3, [this](Text arrayName, Long i) {
                                       return std::make_unique<Button>(
                                           *this, arrayName, "", [this, i] { heard += FromLong(i) + ";"; });
                                   }};
    RichText rtfText{*this, "rtfText"};
    Menu mnuPopup{*this, "mnuPopup"};
    MenuItem mnuCut{*this, mnuPopup, "mnuCut", "Cut", [this] { heard += "cut;"; }};
    MenuItem mnuBar{*this, mnuPopup, "mnuBar", "-"};
    MenuItem mnuGone{*this, mnuPopup, "mnuGone", "Gone"};
    FormTimer tmrChoose{*this, "tmrChoose", 100, [this] {
                            heard += "tick;";
                            tmrChoose.Stop();
                        }};
    Button cmdOK{*this, "cmdOK", "OK", Purpose::Accept};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Purpose::Cancel};
    Text heard;

    SampleForm() : Form("frmSample", "Sample") {
        for (Control* control : {static_cast<Control*>(&chkBold), static_cast<Control*>(&chkItalic)})
            control->container = &fraMore;
        txtKept.trims = false;
        lisLines.items = cboFree.items = cboFixed.items = {"one", "two"};
    }
    void PrepareMenu() override {
        mnuCut.enabled = rtfText.SelLength() > 0;
        mnuGone.visible = false;
    }
    bool Accept() override { return !txtName.text->empty() || Fault(txtName, "Must Enter a Name."); }
    using Form::Options;
    using Form::SetOptions;

private:
    static Text FromLong(Long number) { return std::to_string(number); }
};

class Forms : public testing::Test {
protected:
    bool Run(std::vector<UserStep> steps) {
        user.Queue("frmSample", std::move(steps));
        return ShowDialog(dialogs, form, At{});
    }
    HeadlessPlatform platform = MakeHeadlessPlatform(true, std::make_unique<MemoryFiles>());
    ScriptedUser user{platform};
    Events events;
    RunFlags run;
    Context context{events, platform, run};
    DialogProperties properties;
    Dialogs dialogs{context, properties};
    SampleForm form;
};

TEST_F(Forms, AUserFillsItInAndAccepts) {
    EXPECT_TRUE(Run({{Verb::Set, "txtName", Text("  x ")},
                     {Verb::Set, "txtKept", Text(" y ")},
                     {Verb::Set, "chkBold", Flag(true)},
                     {Verb::Click, "chkItalic", {}},
                     {Verb::Click, "chkItalic", {}},
                     {Verb::Set, "optLeft", Flag(true)},
                     {Verb::Click, "optRight", {}},
                     {Verb::Set, "lisLines", Long{1}},
                     {Verb::Set, "lisLines", Text("one")},
                     {Verb::Set, "lisLines", Long{2}},
                     {Verb::DoubleClick, "lisLines", {}},
                     {Verb::Set, "cboFree", Text("free")},
                     {Verb::Set, "cboFixed", Text("free")},
                     {Verb::Set, "cboFixed", Text("two")},
                     {Verb::Click, "cmdInsert(3)", {}},
                     {Verb::Click, "cmdInsert(4)", {}},
                     {Verb::Click, "nobody", {}},
                     {Verb::Click, "cmdOK", {}},
                     {Verb::Click, "cmdInsert(1)", {}}}));
    EXPECT_EQ(*form.txtName.text, "x");
    EXPECT_EQ(*form.txtKept.text, " y ");
    EXPECT_EQ(form.Options("RIBL"), "RB");
    EXPECT_EQ(*form.lisLines.index, 0);
    EXPECT_EQ(*form.cboFree.text, "free");
    EXPECT_EQ(*form.cboFixed.text, "two");
    EXPECT_EQ(*form.cboFixed.index, 1);
    EXPECT_EQ(form.heard, "click;click;double;3;");
}

TEST_F(Forms, AFaultKeepsItOpen) {
    EXPECT_FALSE(Run({{Verb::Set, "txtName", Text("   ")},
                      {Verb::Click, "cmdOK", {}},
                      {Verb::Look, "focus", {}},
                      {Verb::Close, "", {}}}));
    const auto messages = user.TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Must Enter a Name.");
    EXPECT_EQ(messages[0].title, "Sample Error");
    EXPECT_TRUE(std::get<FieldValue>(user.TakeSeen()[0].value) == FieldValue(Text("txtName")));
    EXPECT_EQ(user.TakeShown(), (std::vector<Text>{"frmSample", "MessageBox"}));
}

TEST_F(Forms, WhatIsHiddenOrDisabledCannotBeWorked) {
    form.fraMore.visible = false;
    form.txtName.enabled = false;
    form.cboFree.locked = true;
    form.cmdInsert.Find(2)->visible = false;
    Run({{Verb::Set, "chkBold", Flag(true)},
         {Verb::Set, "txtName", Text("x")},
         {Verb::Set, "cboFree", Text("x")},
         {Verb::Click, "cmdInsert(2)", {}},
         {Verb::Click, "mnuCut", {}},
         {Verb::Menu, "cmdInsert(1)", {}}});
    EXPECT_EQ(form.Options("B"), "");
    EXPECT_EQ(*form.txtName.text, "");
    EXPECT_EQ(*form.cboFree.text, "");
    EXPECT_EQ(form.heard, "");
}

TEST_F(Forms, MainTextGoesBackByRunsOfKeys) {
    RichText& text = form.rtfText;
    text.Content("0123");
    text.Select(1, 2);
    for (const char* key : {"A", "B", "Enter", "C"}) form.Key({key});
    text.Type(5, 1, {}); // Backspace
    text.Type(5, 1, {}); // Delete
    std::vector<Text> seen;
    const auto look = [&] { seen.push_back(text.Content() + "@" + std::to_string(text.SelStart())); };
    while (text.Undo()) look();
    while (text.Redo()) look();
    EXPECT_EQ(seen, (std::vector<Text>{"0ab\r\nc3@7", "0ab\r\n3@5", "0ab3@3", "0123@3", "0ab3@3",
                                       "0ab\r\n3@5", "0ab\r\nc3@6", "0ab\r\n@5"}));
}

TEST_F(Forms, MainTextTakesKeysSelectionAndMenu) {
    Run({{Verb::Set, "rtfText", Text("abcd")},
         {Verb::Menu, "mnuCut", {}},
         {Verb::Select, "", {}, 1, 99},
         {Verb::Menu, "mnuCut", {}},
         {Verb::Look, "rtfText.SelLength", {}},
         {Verb::Look, "mnuPopup.entries", {}},
         {Verb::Key, "Shift+X", {}},
         {Verb::Key, "Enter", {}},
         {Verb::Key, "Ctrl+B", {}},
         {Verb::Look, "rtfText.text", {}}});
    EXPECT_EQ(form.heard, "cut;");
    const auto seen = user.TakeSeen();
    ASSERT_EQ(seen.size(), 3u);
    EXPECT_TRUE(std::get<FieldValue>(seen[0].value) == FieldValue(Long{3}));
    EXPECT_TRUE(std::get<FieldValue>(seen[1].value) == FieldValue(std::vector<Text>{"Cut", "-"}));
    EXPECT_TRUE(std::get<FieldValue>(seen[2].value) == FieldValue(Text("aX\r\n")));
}

TEST_F(Forms, TimersRunBeforeAFormIsClosed) {
    form.tmrChoose.Start();
    EXPECT_FALSE(Run({{Verb::Set, "txtName", Text("x")}}));
    EXPECT_EQ(form.heard, "tick;");
    form.tmrChoose.Start();
    EXPECT_FALSE(ShowDialog(dialogs, form, At{})) << "nobody is queued";
    EXPECT_EQ(form.heard, "tick;tick;");
    platform.VirtualTime()->Advance(1000);
    EXPECT_EQ(form.heard, "tick;tick;") << "not without its form";
}

TEST_F(Forms, OptionLettersIgnoreCase) {
    form.SetOptions("xbR");
    EXPECT_EQ(form.Options("BILR"), "BR");
}

TEST_F(Forms, EndByTheirButtons) {
    EXPECT_TRUE(Run({{Verb::Set, "txtName", Text("x")}, {Verb::Click, "cmdOK", {}}}));
    EXPECT_FALSE(Run({{Verb::Click, "cmdCancel", {}}, {Verb::Look, "caption", {}}}));
    EXPECT_TRUE(user.TakeSeen().empty());
}

TEST_F(Forms, CountTheChangesOfTheirFields) {
    auto changed = [&, last = form.Revision()](const Control* control = nullptr) mutable {
        const bool counted = form.Revision() > last;
        last = form.Revision();
        return counted && (!control || control->Revision() == last);
    };
    form.txtName.text = Text("a");
    EXPECT_TRUE(changed(&form.txtName));
    form.txtName.text = Text("a");
    EXPECT_FALSE(changed());
    form.lisLines.items.Change().push_back("three");
    EXPECT_TRUE(changed(&form.lisLines));
    EXPECT_LT(form.lisLines.index.Revision(), form.lisLines.items.Revision());
    form.caption = Text("Other");
    EXPECT_TRUE(changed());
    form.rtfText.Content("text");
    EXPECT_TRUE(changed(&form.rtfText));
    form.rtfText.Colour(0, 1, 255);
    EXPECT_TRUE(changed(&form.rtfText));
    EXPECT_TRUE(form.txtName.Enter(Text("b")) && form.txtName.AsEntered());
    form.txtName.text = Text("c");
    EXPECT_FALSE(form.txtName.AsEntered());
}

TEST_F(Forms, AreShownAsDialogsOfTheComponent) {
    struct Window final : FormWindow {
        Bounds PlaceOf(const Control&) const override { return {700, 900, 0, 0}; }
    } window;
    platform.Display().Area({0, 0, 9000, 6000});
    properties.DialogOnTop = true;
    properties.Icon = {"C:\\a.ico"};
    events.GetControlPosition.Listen([](Long& top, Long& left) {
        top = 200;
        left = 50;
    });
    SampleForm owner;
    owner.left = 1000;
    owner.top = 2000;
    struct Row {
        DialogPlace place;
        const FormWindow* window;
        Long left, top;
    };
    form.width = 3000;
    form.height = 1000;
    const Long most = std::numeric_limits<Long>::max();
    for (const auto& [place, shownIn, left, top] :
         std::vector<Row>{{At{.left = 10, .top = 20}, nullptr, 10, 20},
                          {At{.left = 8000, .top = -5}, nullptr, 6000, 0},
                          {Centred{}, nullptr, 3000, 2500},
                          {Beside{owner.cmdOK}, nullptr, 1120, 800},
                          {Beside{owner.cmdOK}, &window, 1820, 1700},
                          {FromComponent{.left = 30, .top = 40}, nullptr, 80, 240},
                          {FromComponent{.left = most, .top = most}, nullptr, 6000, 5000}}) {
        owner.Window(shownIn);
        ShowDialog(dialogs, form, place);
        EXPECT_EQ(*form.left, left);
        EXPECT_EQ(*form.top, top);
    }
    EXPECT_TRUE(form.onTop);
    EXPECT_EQ(form.icon->path, "C:\\a.ico");
}

TEST_F(Forms, EventsOfADialogComeInPairs) {
    std::vector<Text> heard;
    bool fails = false;
    events.ListenToAll([&](EventBase& event, std::span<const ArgumentRef> arguments) {
        heard.push_back(Text(event.Name()) + " " + *std::get<Text*>(arguments[0]));
        if (fails) throw std::runtime_error("");
    });
    const auto flow = [&](bool throws) {
        const DialogEvents pair(context, "Font");
        heard.push_back("shown");
        if (throws) throw std::runtime_error("");
    };
    flow(false);
    EXPECT_THROW(flow(true), std::runtime_error);
    fails = true;
    EXPECT_THROW(flow(false), std::runtime_error);
    EXPECT_EQ(heard, (std::vector<Text>{"DialogOpen Font", "shown", "DialogClose Font", "DialogOpen Font",
                                        "shown", "DialogClose Font", "DialogOpen Font", "DialogClose Font"}));
}

TEST_F(Forms, EndWhereAHandlerThrows) {
    form.lisLines.onClick = [] { throw std::runtime_error(""); };
    form.tmrChoose.Start();
    EXPECT_THROW(Run({{Verb::Set, "lisLines", Long{0}}}), std::runtime_error);
    EXPECT_FALSE(form.Open());
    platform.VirtualTime()->Advance(1000);
    EXPECT_EQ(form.heard, "");
}

TEST(FitOnScreen, TheLaterRuleWins) {
    struct Row {
        Bounds form, expected;
    };
    for (const auto& [form, expected] : std::vector<Row>{{{10, 20, 100, 50}, {10, 20, 100, 50}},
                                                         {{950, 780, 100, 50}, {900, 750, 100, 50}},
                                                         {{-5, -5, 100, 50}, {0, 0, 100, 50}},
                                                         {{300, 300, 2000, 900}, {0, 0, 2000, 900}}})
        EXPECT_EQ(FitOnScreen(form, {0, 0, 1000, 800}), expected);
}

TEST(FitOnScreen, TakesAnyScreenAndAnyForm) {
    constexpr Long most = std::numeric_limits<Long>::max(), least = std::numeric_limits<Long>::min();
    const Bounds wide{most, least, 100, 50};
    EXPECT_EQ(FitOnScreen(wide, {most, most, most, most}), (Bounds{most, most, 100, 50}));
    EXPECT_EQ(FitOnScreen(wide, {least, least, least, least}), (Bounds{least, least, 100, 50}));
    EXPECT_EQ(CentreOnScreen(wide, {most, least, most, least}), (Bounds{most, least, 100, 50}));
    EXPECT_EQ(CentreOnScreen(wide, {10, 20, 1000, 800}), (Bounds{460, 395, 100, 50}));
}

TEST(MessageBoxes, EndByTheirMostHarmlessAnswer) {
    HeadlessPlatform platform = MakeHeadlessPlatform(true, std::make_unique<MemoryFiles>());
    const std::vector<Long> harmless{1, 2, 3, 7, 7, 2};
    for (int seated = 0; seated < 2; ++seated) {
        std::optional<ScriptedUser> user;
        if (seated) user.emplace(platform);
        for (std::size_t buttons = 0; buttons < harmless.size(); ++buttons)
            EXPECT_EQ(
                platform.screen->Message(MessageKind::Query, "t", "c", static_cast<MessageButtons>(buttons)),
                static_cast<MessageAnswer>(harmless[buttons]));
    }
}

TEST(MessageBoxes, AUserPressesAButtonByItsWord) {
    HeadlessPlatform platform = MakeHeadlessPlatform(true, std::make_unique<MemoryFiles>());
    ScriptedUser user(platform);
    struct Row {
        Long buttons;
        Text word;
        Long answer;
    };
    for (const auto& [buttons, word, answer] :
         std::vector<Row>{{0, "OK", 1}, {2, "Retry", 4}, {2, "Ignore", 5}, {3, "Yes", 6}, {4, "Cancel", 7}}) {
        user.Queue("MessageBox", {{Verb::Look, "text", {}}, {Verb::Click, word, {}}});
        EXPECT_EQ(platform.screen->Message(MessageKind::Query, "Sure?", "Desk",
                                           static_cast<MessageButtons>(buttons)),
                  static_cast<MessageAnswer>(answer));
    }
    EXPECT_TRUE(std::get<FieldValue>(user.TakeSeen()[0].value) == FieldValue(Text("Sure?")));
}

} // namespace
} // namespace ostrel::test
