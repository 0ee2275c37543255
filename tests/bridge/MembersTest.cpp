#include "bridge/Members.h"

#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "control/OstrelWebHelp.h"
#include "control/PropertyTable.h"

namespace ostrel::bridge {

namespace {

/// The members that the chief header declares for the host, each as "Name(Argument, Argument)".
std::set<std::string> DeclaredMembers() {
    std::ifstream file(OSTREL_TEST_DIR "/../src/control/OstrelWebHelp.h");
    std::stringstream content;
    content << file.rdbuf();
    std::string text = content.str();
    const std::size_t start = text.find("    // Browser pane\n");
    const std::size_t end = text.find("    // The second component");
    if (start == std::string::npos || end == std::string::npos) return {};
    text = std::regex_replace(text.substr(start, end - start), std::regex("//[^\n]*"), "");

    std::set<std::string> members;
    const std::regex declaration(R"((\w+)\(([^;]*)\);)");
    const std::regex argument(R"((\w+)\s*(=[^,]*)?(,|$))");
    for (std::sregex_iterator hit(text.begin(), text.end(), declaration), none; hit != none; ++hit) {
        std::string member = (*hit)[1].str() + "(";
        const std::string arguments = (*hit)[2];
        for (std::sregex_iterator one(arguments.begin(), arguments.end(), argument); one != none; ++one)
            member += (member.back() == '(' ? "" : ", ") + (*one)[1].str();
        members.insert(member + ")");
    }
    return members;
}

std::set<std::string> RowsOfMembers() {
    std::set<std::string> members;
    for (const Family& family : Families())
        for (const Member& row : family.members) {
            if (row.name.starts_with("OstrelProperties.")) continue;
            std::string member = std::string(row.name) + "(";
            for (const Argument& argument : row.arguments)
                member += (member.back() == '(' ? "" : ", ") + std::string(argument.name);
            EXPECT_TRUE(members.insert(member + ")").second) << row.name << " stands twice";
        }
    return members;
}

TEST(Members, EveryDeclaredOneHasARowWithItsArguments) {
    const std::set<std::string> declared = DeclaredMembers();
    EXPECT_GT(declared.size(), 200U);
    EXPECT_EQ(declared, RowsOfMembers());
}

TEST(Members, NoneHasTheNameOfAProperty) {
    for (const PropertyRow& row : AllProperties()) EXPECT_EQ(FindMember(row.name), nullptr) << row.name;
}

TEST(Properties, EachSaysWhatItMeansInOneSentence) {
    for (const PropertyRow& row : AllProperties()) {
        EXPECT_FALSE(row.doc.empty()) << row.name;
        EXPECT_TRUE(row.doc.ends_with('.')) << row.name;
    }
}

} // namespace

} // namespace ostrel::bridge
