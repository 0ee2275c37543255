#include <gtest/gtest.h>

#include "bridge/Members.h"
#include "control/OstrelWebHelp.h"

namespace ostrel::bridge {

namespace {

/// Calls the member with the default of every argument and gives what it writes, without the braces.
std::string Call(OstrelWebHelp& web, const Member& member, const char* arguments = "[]") {
    CallAnswer answer;
    member.call(member, web, Json::parse(arguments), answer);
    return answer.result + (answer.out.empty() ? "" : " ") + answer.out;
}

TEST(EmptyPlatform, EveryMemberReturns) {
    Platform platform;
    OstrelWebHelp web(platform);
    web.InitProperties();
    for (const Family& family : Families())
        for (const Member& member : family.members) Call(web, member);
    EXPECT_EQ(web.LastFileError(), "Device unavailable.");
}

TEST(EmptyPlatform, MembersReportWhatIsMissing) {
    Platform platform;
    std::vector<Text> told;
    OstrelWebHelp web(platform, [&](EventBase& event, std::span<const ArgumentRef> arguments) {
        if (event.Name() == "StatusTextChange") told.push_back(*std::get<Text*>(arguments[0]));
    });
    web.InitProperties();
    web.RegistryApp("Program");
    web.Offline(true);
    struct Row {
        const char* member;
        const char* arguments;
        std::string answer;
    };
    for (const auto& [name, arguments, answer] : std::vector<Row>{
             {"DirectoryChange", R"(["C:\\d"])", R"(false "ErrorMessage":"Device unavailable.")"},
             {"WriteFile", R"(["C:\\a.htm","x"])", R"(false "ErrorMessage":"Device unavailable.")"},
             {"KillFile", R"(["C:\\a.htm"])", R"(false "ErrorMessage":"File [C:\\a.htm] does not exist.")"},
             {"LoadURL", R"(["C:\\a.htm"])", R"(true "ErrorMessage":"")"},
             {"LocationURL", "[]", "\"\""},
             {"ReadyState", "[]", "0"},
             {"MessageQuery", R"(["Sure?",4])", "0"},
             {"RegistryGetSetting", R"(["s","k","fallback"])", "\"fallback\""},
             {"RegistrySaveSetting", R"(["s","k","v"])", "null"},
             {"WaitSeconds", "[5]", "null"},
         }) {
        const Member* member = FindMember(name);
        ASSERT_TRUE(member) << name;
        EXPECT_EQ(Call(web, *member, arguments), answer) << name;
    }
    EXPECT_FALSE(web.Offline());
    EXPECT_EQ(told.back(), "Settings Error - Device unavailable.");
}

} // namespace

} // namespace ostrel::bridge
