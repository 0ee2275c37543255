#include "bridge/Bridge.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ostrel::bridge {

namespace {

class BridgeTest : public testing::Test {
protected:
    Json Ask(const std::string& line) {
        const std::string answer = bridge_.Answer(line);
        EXPECT_EQ(answer.find('\n'), std::string::npos);
        Json json = Json::parse(answer, nullptr, false);
        EXPECT_TRUE(json.is_object()) << answer;
        return json;
    }

    HeadlessPlatform platform_ = MakeHeadlessPlatform(true);
    Bridge bridge_{platform_};
};

std::string Nested(int depth) {
    return std::string(static_cast<std::size_t>(depth), '[') +
           std::string(static_cast<std::size_t>(depth), ']');
}

TEST_F(BridgeTest, AnswersWhateverStandsOnALine) {
    const std::vector<std::string> lines{
        "",
        " ",
        "null",
        "7",
        "\"get\"",
        "[{\"get\":\"PageTitle\"}]",
        "{",
        "{\"get\":}",
        "{\"get\":\"PageTitle\"} x",
        std::string("{\"get\":\"PageTitle\"}\0", 20),
        "{\"get\":\"Page\x80\"}",
        "{\"get\":\"\\ud800\"}",
        "{\"set\":\"HelpDelay\",\"value\":1e999}",
        "{\"set\":\"HelpDelay\",\"value\":123456789012345678901234567890}",
        "{\"get\":7}",
        "{\"get\":{\"get\":\"PageTitle\"}}",
        "{\"call\":\"CreateBreak\",\"args\":{}}",
        "{\"call\":\"CreateBreak\",\"args\":[1]}",
        "{\"on\":\"PageCreated\",\"nth\":0}",
        "{\"on\":\"PageCreated\",\"set\":[]}",
        "{\"on\":\"PageCreated\",\"set\":{\"File\":\"x\"}}",
        "{\"on\":\"PageCreated\",\"set\":{\"FilePath\":7}}",
        "{\"on\":\"PageCreated\",\"do\":[7]}",
        "{\"form\":\"MessageBox\",\"do\":[[\"hit\",\"OK\"]]}",
        "{\"form\":\"MessageBox\",\"do\":[[\"click\"]]}",
        "{\"form\":\"MessageBox\",\"do\":[[\"close\",\"OK\"]]}",
        "{\"form\":\"frmNone\",\"do\":[]}",
        "{\"browser\":\"TitleChange\",\"args\":[7]}",
        "{\"pane\":\"tight\"}",
        "{\"advance\":-1}",
        "{\"ticks\":4294967296}",
        "{\"new\":\"old\"}",
        "{\"get\":\"PageTitle\",\"id\":null}",
        "{\"get\":\"PageTitle\",\"quiet\":\"yes\"}",
        "{\"get\":\"PageTitle\",\"x\":" + Nested(64) + "}",
        Nested(1000000),
        std::string(1000000, '{'),
    };
    for (const std::string& line : lines) {
        const Json answer = Ask(line);
        ASSERT_TRUE(answer.contains("error")) << line.substr(0, 100);
        const std::string sentence = answer["error"];
        EXPECT_TRUE(sentence.ends_with('.')) << sentence;
    }
    EXPECT_TRUE(Ask("{\"get\":\"PageTitle\",\"x\":" + Nested(63) + "}").contains("result"));
}

TEST_F(BridgeTest, RulesThatRaiseTheirOwnEventsEnd) {
    Ask(R"({"on":"StatusTextChange","do":[{"resize":[900,900]},{"resize":[900,900]}]})");
    const Json answer = Ask(R"({"resize":[900,900]})");
    EXPECT_GT(answer["events"].size(), 64U);
    Ask(R"({"off":"StatusTextChange"})");
    EXPECT_EQ(Ask(R"({"resize":[900,900]})")["events"].size(), 1U);
}

TEST_F(BridgeTest, DescribesEverything) {
    const Json all = Ask(R"({"describe":"all"})")["result"];
    std::size_t persisted = 0, indexed = 0;
    for (const Json& property : all["properties"]) {
        persisted += property["persisted"] == true;
        indexed += property["indexed"] == true;
    }
    EXPECT_EQ(persisted, 251U);
    EXPECT_EQ(indexed, 23U);
    EXPECT_EQ(all["events"].size(), 41U);
    for (const Json& event : all["events"]) EXPECT_EQ(event["args"].size(), event["kinds"].size()) << event;
    for (const Json& member : all["members"])
        EXPECT_TRUE(member["doc"].get<std::string>().ends_with('.')) << member;
    for (const Json& form : all["forms"]) EXPECT_FALSE(form["controls"].empty()) << form;
}

} // namespace

} // namespace ostrel::bridge
