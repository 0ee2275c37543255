#include <gtest/gtest.h>

#include "control/ControlBench.h"

namespace ostrel::test {
namespace {

/// The toolbar buttons that are shown, from left to right, as "name@left".
Text Row(const OstrelWebHelp& web) {
    std::vector<const Child*> shown;
    for (const Child* child : web.View().All())
        if (child->kind == ChildKind::CommandButton && child->parent == &web.View().picToolbar &&
            child->visible && child != &web.View().cmdURL)
            shown.push_back(child);
    std::sort(shown.begin(), shown.end(), [](const Child* a, const Child* b) { return a->left < b->left; });
    Text row;
    for (const Child* child : shown)
        row += (row.empty() ? "" : " ") + child->name + "@" + std::to_string(child->left);
    return row;
}

TEST(ToolbarLayout, FormatsPlaceTheButtons) {
    struct Case {
        Text format;
        Long width;
        Text expected;
    };
    const Text usual = "cmdOpen@60 cmdBack@540 cmdNext@900 cmdStop2@1380 cmdRefresh@1740 cmdHome@2100 "
                       "cmdPrint@2580 cmdFull@2940";
    for (const auto& [format, width, expected] : std::vector<Case>{
             {"", 9600, usual + " cmdClose@9150"},
             {"/Home", 9600, usual + " cmdClose@9150"},
             {"Home/Close", 9600, "cmdHome@60 cmdClose@9150"},
             {"Home/", 9600, "cmdHome@60"},
             {"  hOmE   Nothing Space forward ", 9600, "cmdHome@60 cmdNext@540"},
             {"Home/Index Back Search/Edit Close", 9600,
              "cmdHome@60 cmdIndex@8430 cmdBack@8790 cmdClose@9150"},
             // The left limit is 540. A button that would reach it stays away, and so do those before it.
             {"Home/Index Back Close", 1711, "cmdHome@60 cmdIndex@541 cmdBack@901 cmdClose@1261"},
             {"Home/Index Back Close", 1710, "cmdHome@60 cmdBack@900 cmdClose@1260"},
             {"Home/Back Space Close", 1400, "cmdHome@60 cmdClose@950"},
             {"Home/Close", 500, "cmdHome@60"},
             {"Home/Close", 0, "cmdHome@60"},
         }) {
        ControlBench bench;
        bench.web->SearchLocation(0);
        bench.web->ToolbarFormat(format);
        bench.web->ToolbarVisible(true);
        bench.web->ResizeTo(width, 6000);
        EXPECT_EQ(Row(*bench.web), expected) << format << " in " << width;
    }
}

TEST(ToolbarLayout, UsualButtonsFollowTheOptions) {
    ControlBench bench;
    Text error;
    bench.web->IndexPage("index.htm");
    bench.web->ButtonAdd("Mine", "a.bmp", "", error);
    bench.web->ButtonAdd("Other", "b.bmp", "", error);
    bench.web->ToolbarVisible(true);
    EXPECT_EQ(Row(*bench.web),
              "cmdOpen@60 cmdBack@540 cmdNext@900 cmdStop2@1380 cmdRefresh@1740 cmdHome@2100 cmdIndex@2460 "
              "cmdSearch@2820 cmdPrint@3300 cmdFull@3660 cmdButton(1)@4140 cmdButton(2)@4500 cmdClose@9150");
}

TEST(ToolbarLayout, SizesHaveTheirLeast) {
    struct Case {
        Long height, buttonHeight, buttonWidth;
        bool address;
        Long stripHeight, top, usedHeight, usedWidth;
    };
    for (const auto& c : std::vector<Case>{
             {0, 0, 0, false, 345, 0, 315, 360},
             {0, 100, 100, false, 345, 0, 315, 360},
             {0, 500, 700, false, 530, 0, 500, 700},
             {1000, 0, 0, false, 1000, 328, 315, 360}, // 327.5 goes to the even one
             {1002, 0, 0, false, 1002, 328, 315, 360}, // 328.5 too
             {0, 0, 0, true, 660, 0, 315, 360},
             {700, 0, 0, true, 700, 20, 315, 360},
         }) {
        ControlBench bench;
        bench.web->ToolbarHeight(c.height);
        bench.web->ToolbarButtonHeight(c.buttonHeight);
        bench.web->ToolbarButtonWidth(c.buttonWidth);
        bench.web->ToolbarAddressVisible(c.address);
        bench.web->ToolbarVisible(true);
        Long top = -1, height = -1, width = -1;
        bench.web->ToolbarButtonSizePosition(top, height, width);
        EXPECT_EQ(top, c.top);
        EXPECT_EQ(height, c.usedHeight);
        EXPECT_EQ(width, c.usedWidth);
        EXPECT_EQ(bench.web->View().picToolbar.height, c.stripHeight);
        EXPECT_EQ(bench.web->BrowserTop(), c.stripHeight);
        EXPECT_EQ(bench.web->View().brwBrowser.height, 7200 - c.stripHeight);
        bench.web->ToolbarVisible(false);
        bench.web->ToolbarButtonSizePosition(top, height, width);
        EXPECT_EQ(top + height + width, 0);
        EXPECT_EQ(bench.web->BrowserTop(), 0);
        EXPECT_EQ(bench.web->View().brwBrowser.height, 7200);
    }
}

TEST(ToolbarLayout, AddressLineFillsItsRow) {
    ControlBench bench;
    bench.web->ToolbarAddressVisible(true);
    bench.web->ToolbarAddressLocked(true);
    bench.web->ToolbarVisible(true);
    const Children& view = bench.web->View();
    // "Address:" is 8 characters of 90 by 195 twips.
    EXPECT_EQ(view.lblURL.left, 60);
    EXPECT_EQ(view.lblURL.width, 720);
    EXPECT_EQ(view.txtURL.top, 345);
    EXPECT_EQ(view.lblURL.top, 345 + 45);
    EXPECT_EQ(view.txtURL.left, 900);
    EXPECT_EQ(view.cmdURL.left, 9600 - 30 - 60 - 480);
    EXPECT_EQ(view.cmdURL.height, 315);
    EXPECT_EQ(view.cmdURL.top, 345 - 16 + 1); // half of -30 is -15
    EXPECT_EQ(view.txtURL.width, 9030 - 900 - 120);
    EXPECT_TRUE(view.txtURL.locked);
    EXPECT_FALSE(view.Default(ActionIndex).enabled);
    bench.web->ToolbarButtonHeight(318);
    EXPECT_EQ(view.txtURL.top, 348);
    EXPECT_EQ(view.cmdURL.top, 332); // 331.5 goes to the even one
    bench.web->ToolbarHeight(665);
    EXPECT_EQ(view.txtURL.top, 349);
    EXPECT_EQ(view.cmdURL.top, 332); // 332.5 too: only the sum is rounded
    bench.web->ToolbarHeight(0);
    bench.web->ToolbarAddressButton(false);
    EXPECT_FALSE(view.cmdURL.visible);
    EXPECT_EQ(view.txtURL.width, 9510 - 900);
    bench.web->IndexPage("i.htm");
    bench.web->ToolbarAddressLocked(false);
    EXPECT_FALSE(view.txtURL.locked);
    EXPECT_TRUE(view.Default(ActionIndex).enabled);
    bench.web->ToolbarAddressVisible(false);
    EXPECT_FALSE(view.txtURL.visible || view.lblURL.visible || view.cmdURL.visible);
}

TEST(ToolbarLayout, AnyNumberIsSurvived) {
    for (const Long wild : {Long{2147483647}, Long{-2147483647 - 1}}) {
        ControlBench bench;
        bench.web->ToolbarVisible(true);
        bench.web->ToolbarAddressVisible(true);
        bench.web->ToolbarHeight(wild);
        bench.web->ToolbarButtonHeight(wild);
        bench.web->ToolbarButtonWidth(wild);
        bench.web->ToolbarButtonMargin(wild);
        bench.web->ToolbarButtonSpace(wild);
        bench.web->StopShow("x");
        bench.web->ResizeTo(wild, wild);
        bench.web->StopHide();
        EXPECT_LE(bench.web->View().picToolbar.height, 2147483647);
    }
}

TEST(ToolbarLayout, LetsAnnounceAndLayOut) {
    ControlBench bench;
    bench.Settle();
    bench.web->ToolbarButtonSpace(7);
    bench.web->HomePage("h");
    EXPECT_EQ(bench.changed, (Lines{"ToolbarButtonSpace", "HomePage"}));
    EXPECT_EQ(bench.Take(), Lines{"StatusTextChange Web Help - Resize"});
}

TEST(UserButtons, AreRegisteredUnderRules) {
    ControlBench bench;
    Text error;
    struct Case {
        Text name, bitmap, error;
    };
    for (const auto& c : std::vector<Case>{
             {"Mine", "  ", "BitMap has not been specified."},
             {"  ", "a.bmp", "Name has not been specified."},
             {" Home ", "a.bmp", "New Button Name [Home] conflicts with default Button."},
             {"PROPERTIES", "a.bmp", "New Button Name [PROPERTIES] conflicts with default Button."},
             {" Mine ", "a.bmp", ""},
             {"mINE", "a.bmp", "New Button Name [mINE] conflicts with existing Button."},
             {"Stop", "a.bmp", ""},
             {"Refresh", "a.bmp", ""},
             {"Space", "a.bmp", ""},
         }) {
        EXPECT_EQ(bool(bench.web->ButtonAdd(c.name, c.bitmap, " tip ", error)), c.error.empty()) << c.name;
        EXPECT_EQ(error, c.error);
    }
    EXPECT_EQ(bench.web->View().UserButton(1)->tip, "tip");
    bench.web->ToolbarFormat("Stop Space Mine");
    bench.web->ToolbarVisible(true);
    EXPECT_EQ(Row(*bench.web), "cmdStop2@60 cmdButton(1)@540");
    for (int i = 5; i <= 100; ++i)
        EXPECT_TRUE(bench.web->ButtonAddPicture("B" + std::to_string(i), {}, "", error)) << error;
    EXPECT_FALSE(bench.web->ButtonAddPicture("One more", {}, "", error));
    EXPECT_EQ(error, "100 Buttons have already been added.");
    bench.web->ButtonClear();
    EXPECT_EQ(bench.web->View().UserButtons(), 0);
    EXPECT_EQ(Row(*bench.web), "cmdStop2@60");
    bench.Settle();
    bench.web->ButtonClear();
    EXPECT_TRUE(bench.Take().empty());
}

TEST(UserButtons, TakeTheirPictureFromTheRunDirectory) {
    ControlBench bench;
    Text error;
    bench.Files().Add("C:\\bin\\a.bmp", "BM");
    EXPECT_TRUE(bench.web->ButtonAdd("A", "a.bmp", "", error));
    EXPECT_TRUE(bench.web->ButtonAdd("B", "missing.bmp", "", error));
    EXPECT_EQ(bench.web->View().UserButton(1)->picture.path, "C:\\bin\\a.bmp");
    EXPECT_EQ(bench.web->View().UserButton(2)->picture.path, "");
}

TEST(ToolbarMembers, FindButtonsByTokenOrName) {
    ControlBench bench;
    Text error;
    bench.web->ButtonAdd("Mine", "a.bmp", "", error);
    bench.web->ToolbarFormat("Forward Mine");
    bench.web->ToolbarVisible(true);
    EXPECT_EQ(bench.web->ToolbarButtonLeft(" FORWARD "), 60);
    EXPECT_EQ(bench.web->ToolbarButtonLeft("mine"), 420);
    EXPECT_EQ(bench.web->ToolbarButtonLeft("home"), -1);
    EXPECT_EQ(bench.web->ToolbarButtonLeft("nobody"), -1);
    EXPECT_TRUE(bench.web->ToolbarButtonVisible("Mine"));
    EXPECT_FALSE(bench.web->ToolbarButtonVisible("nobody"));
    EXPECT_TRUE(bench.web->ToolbarButtonEnabled("forward"));
    bench.web->ToolbarButtonEnabledSet("forward", false);
    EXPECT_FALSE(bench.web->View().Find("cmdNext")->enabled);
    bench.web->ToolbarButtonMousePointerSet("mine", 11);
    EXPECT_EQ(bench.web->ToolbarButtonMousePointer("MINE"), 11);
    bench.web->ToolbarButtonMousePointerSet("nobody", 11);
    EXPECT_EQ(bench.web->ToolbarButtonMousePointer("nobody"), 0);
}

TEST(ToolbarClicks, GoTheirWay) {
    ControlBench bench;
    Text error;
    bench.web->ButtonAdd("Mine", "a.bmp", "", error);
    bench.web->ToolbarFormat("Back Refresh Home Full Mine Edit/Close");
    bench.web->ToolbarVisible(true);
    bench.web->HomePage("C:\\home.htm");
    bench.Settle();
    bench.Pane().Hold();
    bench.web->ToolbarButtonEnabledSet("back", false);
    EXPECT_FALSE(bench.web->PressChild("back"));
    EXPECT_FALSE(bench.web->PressChild("index")) << "not shown";
    EXPECT_FALSE(bench.web->PressChild("nobody"));
    EXPECT_TRUE(bench.Take().empty());
    EXPECT_TRUE(bench.web->PressChild("REFRESH"));
    EXPECT_TRUE(bench.web->PressChild("cmdHome"));
    EXPECT_TRUE(bench.web->PressChild("full"));
    EXPECT_TRUE(bench.web->PressChild("mine"));
    EXPECT_TRUE(bench.web->PressChild("cmdButton(1)"));
    EXPECT_TRUE(bench.web->PressChild("edit"));
    EXPECT_EQ(bench.Take(),
              (Lines{"ToolbarClick Refresh False", "ToolbarClick Home False", "ToolbarClick Full False",
                     "ToolbarClick Mine False", "ToolbarClick Mine False", "ToolbarClick Edit False"}));
    const auto asked = bench.Pane().TakeLog();
    ASSERT_EQ(asked.size(), 3u);
    EXPECT_EQ(asked[0].name + std::to_string(std::get<Long>(asked[0].arguments[0])), "Refresh23");
    EXPECT_EQ(std::get<Text>(asked[1].arguments[0]), "C:\\home.htm");
    EXPECT_EQ(std::get<Text>(asked[2].arguments[0]), "about:blank");
    EXPECT_EQ(std::get<Text>(asked[2].arguments[1]), "_blank");

    const int token = bench.web->events.ToolbarClick.Listen([](Text&, Flag& kill) { kill = true; });
    EXPECT_TRUE(bench.web->PressChild("close"));
    EXPECT_TRUE(bench.web->ToolbarVisible()) << "killed";
    bench.web->events.ToolbarClick.End(token);
    bench.changed.clear();
    EXPECT_TRUE(bench.web->PressChild("close"));
    EXPECT_EQ(bench.changed, Lines{"ToolbarVisible"});
    EXPECT_FALSE(bench.web->PressChild("home")) << "the strip is gone";
}

TEST(ToolbarClicks, ByCodeRaiseNothing) {
    ControlBench bench;
    bench.Settle();
    bench.Pane().Hold();
    const Long focused = bench.Pane().Focused();
    bench.web->ButtonClick(" Back ");
    EXPECT_EQ(bench.Pane().Focused(), focused + 1);
    bench.web->ButtonClick("Full");
    bench.web->ButtonClick("nobody");
    bench.web->ButtonClick("edit");
    EXPECT_EQ(bench.Pane().Focused(), focused + 2) << "not after full, nor for an unknown name";
    EXPECT_TRUE(bench.Take().empty());
    EXPECT_EQ(bench.Pane().TakeLog().size(), 2u);
}

TEST(ToolbarClicks, AListenerMayTakeTheButtonsAway) {
    ControlBench bench;
    Text error;
    bench.web->ButtonAdd("Mine", "a.bmp", "", error);
    bench.web->ToolbarVisible(true);
    bench.web->events.ToolbarClick.Listen([&](Text& name, Flag&) {
        bench.web->ButtonClear();
        EXPECT_EQ(name, "Mine");
    });
    EXPECT_TRUE(bench.web->PressChild("Mine"));
    EXPECT_FALSE(bench.web->PressChild("Mine"));
}

TEST(AddressLine, LoadsWhatWasTyped) {
    ControlBench bench;
    bench.web->ToolbarAddressVisible(true);
    EXPECT_FALSE(bench.web->TypeIntoChild("txtURL", "x")) << "hidden with the strip";
    bench.web->ToolbarVisible(true);
    bench.Settle();
    bench.Pane().Hold();
    EXPECT_TRUE(bench.web->TypeIntoChild("txtURL", "  http://a/  "));
    EXPECT_TRUE(bench.web->PressChild("cmdURL"));
    EXPECT_TRUE(bench.web->TypeIntoChild("txtURL", "   "));
    EXPECT_TRUE(bench.web->PressChild("txtURL"));
    EXPECT_TRUE(bench.web->TypeIntoChild("txtURL", "b.htm"));
    bench.web->ToolbarAddressLocked(true);
    EXPECT_FALSE(bench.web->TypeIntoChild("txtURL", "c.htm"));
    bench.web->PressChild("txtURL");
    EXPECT_FALSE(bench.web->TypeIntoChild("cmdURL", "x"));
    const auto asked = bench.Pane().TakeLog();
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(std::get<Text>(asked[0].arguments[0]), "http://a/");
    EXPECT_EQ(bench.platform.Display().TakeBeeps(), 0);
}

TEST(Mouse, SpeaksInTheControlsCoordinates) {
    ControlBench bench;
    Text error;
    bench.web->ButtonAdd("Mine", "a.bmp", "", error);
    bench.web->ToolbarFormat("Home Mine");
    bench.web->ToolbarHeight(445);
    bench.web->ToolbarVisible(true);
    bench.Settle();
    struct Case {
        Text child;
        bool raised;
    };
    for (const auto& c : std::vector<Case>{{"", true},
                                           {"picToolbar", true},
                                           {"cmdHome", true},
                                           {"cmdButton(1)", true},
                                           {"cmdBack", false},
                                           {"cmdButton(0)", false},
                                           {"cmdURL", false},
                                           {"brwBrowser", false},
                                           {"nobody", false}})
        EXPECT_EQ(bool(bench.web->MouseOverChild(MouseAction::Move, c.child, 1, 2, 5, 6)), c.raised)
            << c.child;
    bench.web->MouseOverChild(MouseAction::Down, "", 1, 0, 1.5F, 0);
    bench.web->MouseOverChild(MouseAction::Up, "", 2, 4, 0, 0);
    EXPECT_EQ(bench.Take(), (Lines{"MouseMove 1 2 5 6", "MouseMove 1 2 5 6", "MouseMove 1 2 65 56",
                                   "MouseMove 1 2 425 56", "MouseDown 1 0 1.5 0", "MouseUp 2 4 0 0"}));
}

} // namespace
} // namespace ostrel::test
