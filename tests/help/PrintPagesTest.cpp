#include "help/PrintPages.h"

#include <gtest/gtest.h>

#include "help/SearchWorld.h"

namespace ostrel::help {

TEST(PrintSelection, Masks) {
    struct Row {
        Text directory, select, ignore, error;
        std::vector<Text> paths;
    };
    constexpr TextView none = "Select Mask did not select any files.";
    for (const auto& [directory, select, ignore, error, paths] : std::vector<Row>{
             {"C:\\pages", "*.htm", "", "", {"C:\\pages\\B.htm", "C:\\pages\\a.htm", "C:\\pages\\c.htm"}},
             {"C:\\pages\\", "*.htm", "A*", "", {"C:\\pages\\B.htm", "C:\\pages\\c.htm"}},
             {"", "C:\\pages\\a.htm", "C:\\pages\\B.htm", "", {"C:\\pages\\a.htm"}},
             {"C:\\pages", "*.htm", "*.htm", Text(none), {}},
             {"C:\\pages", "*.gif", "", Text(none), {}},
             {"C:\\none", "*.htm", "", Text(none), {}},
             {"", "*.htm", "a.htm", "Property [DirectoryHelp] has not been defined.", {}},
             {"C:\\none", "*.htm", "a.htm", "Property [DirectoryHelp] [C:\\none] does not exist.", {}},
         }) {
        test::PageWorld world;
        Context context{world.events, world.platform, world.run};
        for (const char* name : {"a.htm", "B.htm", "c.htm", "d.txt"})
            world.files->Add(Text("C:\\pages\\") + name, "");
        std::vector<Text> chosen{"old"};
        Text said;
        EXPECT_EQ(SelectPagesToPrint(context, directory, select, ignore, chosen, said),
                  error.empty() ? PrintSelection::Chosen : PrintSelection::Failed)
            << select;
        EXPECT_EQ(said, error);
        EXPECT_EQ(chosen, paths);
        world.run.HostStop = true;
        if (error.empty()) {
            EXPECT_EQ(SelectPagesToPrint(context, directory, select, ignore, chosen, said),
                      PrintSelection::Stopped);
        }
    }
}

} // namespace ostrel::help
