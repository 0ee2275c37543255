#include <gtest/gtest.h>

#include <cmath>

#include "control/OstrelWebHelp.h"
#include "support/TestPlatform.h"

namespace ostrel {

using test::TestPlatform;

TEST(ServiceMembers, TheRemainderIsKeptFromCallToCall) {
    TestPlatform platform;
    OstrelWebHelp web(platform);
    EXPECT_EQ(web.ExtractSingleTag("<A HREF=\"1\"><A HREF=\"2\">end", "a", false, false), "HREF=\"1\"");
    EXPECT_EQ(web.ExtractSingleTag(web.ExtractRemain(), "a", false, false), "HREF=\"2\"");
    EXPECT_EQ(web.ExtractRemain(), "end");
    web.ExtractReset();
    EXPECT_EQ(web.ExtractRemain(), "");
}

TEST(ServiceMembers, FilesTellWhatFailed) {
    TestPlatform platform;
    platform.Disk().Add("C:\\d\\a.htm", "old");
    platform.Disk().readOnly = {"C:\\d\\a.htm"};
    OstrelWebHelp web(platform);
    Text error = "before";
    EXPECT_FALSE(web.KillSelectedFiles("C:\\d\\*.css", error));
    EXPECT_EQ(error, "Files [C:\\d\\*.css] do not exist.");
    EXPECT_FALSE(web.KillSelectedFiles("C:\\d\\*.htm", error));
    EXPECT_EQ(error, "Files [C:\\d\\*.htm] can't be deleted - Path/File access error");
    EXPECT_TRUE(web.KillFiles("C:\\d\\*.htm", error, true, true));
    EXPECT_EQ(error, "");
    EXPECT_EQ(web.ReadFile("C:\\d\\a.htm"), "");
    EXPECT_EQ(web.LastFileError(), "File not found");

    platform.answer = MessageAnswer::No;
    EXPECT_TRUE(web.WriteFileFull("Save", "C:\\d\\b.htm", "new", error, false, true, true));
    EXPECT_TRUE(web.WriteFileFull("Save", "C:\\d\\b.htm", "newer", error, false, true, true));
    EXPECT_EQ(web.ReadFile("C:\\d\\b.htm"), "new");
    EXPECT_EQ(web.LastFileError(), "");
    EXPECT_EQ(platform.questions,
              std::vector<Text>{"Save: File [C:\\d\\b.htm] exists.  Do you want to Overwrite?"});
    EXPECT_FALSE(web.WriteFileFull("Save", "C:\\d\\b.htm", "newer", error, false, false, false));
    EXPECT_EQ(error, "File [C:\\d\\b.htm] exists.");

    EXPECT_TRUE(web.WriteFileFromCSVDatabase("C:\\d\\a.csv", {"A", "B"}, {{"1", "x,y"}, {"2"}}, 2, 3, error,
                                             ",", false));
    EXPECT_EQ(platform.Disk().files["C:\\d\\a.csv"], "A,B,\r\n1,\"x,y\",\r\n2,,\r\n");
}

TEST(ServiceMembers, MessagesAndWaits) {
    TestPlatform platform;
    OstrelWebHelp web(platform);
    web.ProgramName("Program");
    web.MessageError("wrong");
    platform.answer = MessageAnswer::Retry;
    EXPECT_EQ(web.MessageQuery("again?", 5), 4);
    EXPECT_EQ(platform.questions, (std::vector<Text>{"Program: wrong", "Program: again?"}));

    int ticks = 0;
    const auto timer = platform.clock->MakeTimer([&] { ++ticks; });
    timer->Start(100, true);
    const std::uint32_t start = platform.clock->Ticks();
    web.WaitMilliSeconds(250);
    web.WaitMilliSeconds(-1);
    web.WaitSeconds(1);
    EXPECT_EQ(platform.clock->Ticks() - start, 1250u);
    EXPECT_EQ(ticks, 12);
}

TEST(ServiceMembers, AWaitEndsByTheTickCount) {
    struct Row {
        bool seconds;
        Long jump;   ///< by which the count is set off during the wait
        Long nested; ///< a wait inside the wait, in milliseconds
        Long passed; ///< in the end, in milliseconds
    };
    for (const auto& [seconds, jump, nested, passed] : std::vector<Row>{
             {false, 0, 0, 3000},
             {false, 2900, 0, 100},
             {false, 900, 0, 2100},
             {false, 100000, 0, 100},
             {false, -500, 0, 3500},
             {false, 0, 5000, 5100},
             // Each second is a wait of its own, and only the first of them is cut short or drawn out.
             {true, 0, 0, 3000},
             {true, 2900, 0, 2100},
             {true, 0, 5000, 7100},
         }) {
        TestPlatform platform;
        auto& clock = static_cast<VirtualClock&>(*platform.clock);
        OstrelWebHelp web(platform);
        clock.Ticks(4294967000U); // the count wraps meanwhile
        const auto timer = clock.MakeTimer([&, jump = jump, nested = nested] {
            clock.Ticks(clock.Ticks() + static_cast<std::uint32_t>(jump));
            clock.Wait(nested);
        });
        timer->Start(100, false);
        const Date start = clock.Now();
        seconds ? web.WaitSeconds(3) : web.WaitMilliSeconds(3000);
        EXPECT_EQ(std::lround((clock.Now().serial - start.serial) * 86'400'000), passed)
            << seconds << " " << jump << " " << nested;
    }
}

} // namespace ostrel
