#include "services/Settings.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/TestPlatform.h"

namespace ostrel::services {

using test::TestPlatform;

namespace {

struct SettingsTest : testing::Test {
    TestPlatform platform;
    ServiceProperties properties;
    Settings settings{platform.context, properties};

    void SetUp() override { properties.RegistryApp = "App"; }
};

} // namespace

TEST_F(SettingsTest, NothingIsStoredWithoutAnApplication) {
    settings.Save("S", "K", "kept");
    properties.RegistryApp.clear();
    EXPECT_EQ(settings.Get("S", "K", "default"), "default");
    EXPECT_EQ(settings.GetDouble("S", "K", 0.1 + 0.2), 0.1 + 0.2);
    EXPECT_EQ(settings.GetLong("S", "K", 7), 7);
    EXPECT_TRUE(settings.GetBoolean("S", "K", true));
    settings.Save("S", "K", "lost");
    settings.DeleteKey("S", "K");
    settings.DeleteSection("S");
    properties.RegistryApp = "App";
    EXPECT_EQ(settings.Get("S", "K", "default"), "kept");
}

TEST_F(SettingsTest, ReadsTextAsWhatIsAsked) {
    struct Row {
        Text stored;
        bool whenTrue, whenFalse; ///< for the defaults true and false
        Double number;
        Long whole;
    };
    for (const auto& [stored, whenTrue, whenFalse, number, whole] : std::vector<Row>{
             {"YES", true, true, 0, 0},
             {"True", true, true, 0, 0},
             {"-1", true, true, -1, -1},
             {"1", true, true, 1, 1},
             {"No", false, false, 0, 0},
             {"0", false, false, 0, 0},
             {"FALSE", false, false, 0, 0},
             {"maybe", true, false, 0, 0},
             {"", true, false, 0, 0},
             {"2.5", true, false, 2.5, 2},
             {"12 apples", true, false, 12, 12},
             {"1e3", true, false, 1000, 1000},
             {"9999999999", true, false, 9999999999.0, 0},
         }) {
        settings.Save("S", "K", stored);
        EXPECT_EQ(settings.Get("s", "k", "default"), stored);
        EXPECT_EQ(settings.GetBoolean("S", "K", true), whenTrue) << stored;
        EXPECT_EQ(settings.GetBoolean("S", "K", false), whenFalse) << stored;
        EXPECT_EQ(settings.GetDouble("S", "K", 77), number) << stored;
        EXPECT_EQ(settings.GetLong("S", "K", 77), whole) << stored;
    }
}

TEST_F(SettingsTest, WritesAndDeletes) {
    settings.SaveBoolean("S", "flag", true);
    settings.SaveDouble("S", "double", -0.5);
    settings.SaveLong("S", "long", -3);
    settings.Save("T", "K", "");
    EXPECT_EQ(settings.Get("S", "flag", ""), "True");
    EXPECT_EQ(settings.Get("S", "double", ""), "-0.5");
    EXPECT_EQ(settings.Get("S", "long", ""), "-3");
    EXPECT_EQ(settings.Get("T", "K", "default"), "");

    settings.DeleteKey("S", "");
    settings.DeleteKey("", "flag");
    settings.DeleteSection("");
    EXPECT_EQ(platform.Store().settings.size(), 4u);
    settings.DeleteKey("S", "flag");
    EXPECT_EQ(settings.Get("S", "flag", "gone"), "gone");
    settings.DeleteSection("S");
    EXPECT_EQ(platform.Store().settings.size(), 1u);
}

TEST_F(SettingsTest, AFailedWriteIsTraced) {
    std::vector<Text> traces;
    platform.events.StatusTextChange.Listen([&](Text& text) { traces.push_back(text); });
    platform.Store().failure = "Disk full";
    settings.Save("S", "K", "v");
    settings.DeleteKey("S", "K");
    settings.DeleteSection("S");
    settings.Set(0, "Key", "Name", Text("v"), 1);
    EXPECT_EQ(traces, std::vector<Text>(4, "Settings Error - Disk full"));
}

TEST_F(SettingsTest, DirectKeys) {
    EXPECT_EQ(settings.Query(0, "Key", "none"), Variant(Text()));
    struct Row {
        Variant value;
        Long type;
        Variant stored;
    };
    for (const auto& [value, type, stored] : std::vector<Row>{
             {Text("a"), 1, Text("a")},
             {2.5, 1, Text("2.5")},
             {Text("7"), 4, 7.0},
             {2.5, 4, 2.0},
             {Text("x"), 4, Text("before")},
             {1e10, 4, Text("before")},
             {Text("a"), 3, Text("before")},
         }) {
        platform.Store().keys["Name"] = Text("before");
        settings.Set(0, "Key", "Name", value, type);
        EXPECT_EQ(settings.Query(0, "Key", "Name"), stored);
    }
}

} // namespace ostrel::services
