#include "platform/native/NativeSettings.h"

#include <gtest/gtest.h>

#include <cerrno>

#include <sys/wait.h>
#include <unistd.h>

#include "support/FaultyCalls.h"
#include "support/TemporaryDirectory.h"

using namespace ostrel;
using ostrel::test::FaultyCalls;
using ostrel::test::TemporaryDirectory;

namespace {

constexpr Long User = -2147483647, Machine = -2147483646;

class NativeSettingsTest : public testing::Test {
protected:
    std::optional<Text> Get(const Text& key) { return store.Get("Desk", "Editor", key); }

    TemporaryDirectory directory;
    NativeSettings store{directory.Path("config/ostrelwebhelp")};
};

Text AllBytes() {
    Text text;
    for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
    return text;
}

} // namespace

TEST_F(NativeSettingsTest, KeepsAnyTextUnderAnyName) {
    const std::vector<Text> texts{
        "",         "plain", " blanks ",         "\"quoted\" \\ = #", "a\r\nb\n",      "\\x41",
        AllBytes(), "\\",    Text(100'000, '"'), "caf\xE9 \x80",      Text("a\0b", 3),
    };
    for (const Text& text : texts) {
        EXPECT_EQ(store.Save("Desk", "Editor", text, text), "");
        EXPECT_EQ(store.Save(text, text, "key", text), "");
    }
    NativeSettings other(directory.Path("config/ostrelwebhelp"));
    for (const Text& text : texts) {
        EXPECT_EQ(other.Get("Desk", "Editor", text), text);
        EXPECT_EQ(other.Get(text, text, "key"), text);
    }
}

TEST_F(NativeSettingsTest, NamesIgnoreCase) {
    store.Save("Desk", "Editor", "Font\xC9", "one");
    store.Save("DESK", "editor", "FONT\xE9", "two");
    EXPECT_EQ(store.Get("desk", "EDITOR", "font\xE9"), "two");
    store.Save("Desk", "Other", "Key", "kept");
    store.Save("Desk2", "Editor", "Key", "kept");
    EXPECT_EQ(store.DeleteKey("desk", "Editor", "missing"), "");
    EXPECT_EQ(store.DeleteKey("desk", "editor", "font\xC9"), "");
    EXPECT_EQ(Get("Font\xC9"), std::nullopt);
    store.Save("Desk", "Editor", "a", "1");
    store.Save("Desk", "Editor", "b", "2");
    EXPECT_EQ(store.DeleteSection("DESK", "EDITOR"), "");
    EXPECT_EQ(Get("a"), std::nullopt);
    EXPECT_EQ(store.Get("Desk", "Other", "Key"), "kept");
    EXPECT_EQ(store.Get("Desk2", "Editor", "Key"), "kept");
}

TEST_F(NativeSettingsTest, ADamagedLineLosesOnlyItself) {
    for (const char* key : {"a", "b", "c", "d"}) store.Save("Desk", "Editor", key, Text("value ") + key);
    const std::string name = "config/ostrelwebhelp/settings";
    const std::string intact = directory.Read(name);
    const std::size_t second = intact.find('\n') + 1, third = intact.find('\n', second) + 1;
    const std::string line = intact.substr(second, third - second - 1);
    for (std::size_t i = 0; i <= line.size(); ++i)
        for (const std::string& damage : {std::string(1, '\0'), std::string("\xFF"), std::string("\n"),
                                          std::string("\""), line.substr(0, i)}) {
            std::string damaged = intact;
            i < line.size() ? damaged.replace(second + i, 1, damage) : damaged.insert(second + i, damage);
            directory.Write(name, "# a comment\n" + damaged);
            for (const char* key : {"a", "c", "d"}) EXPECT_EQ(Get(key), Text("value ") + key) << damaged;
        }

    directory.Write(name, "# a comment\r\nnot a setting\r\n  \"Desk\" \"Editor\"\t\"e\"=\"x\"  \r\n"
                          "\"Desk\" \"Editor\" \"f\" = \"old\"\n\"desk\" \"editor\" \"F\" = \"new\"");
    EXPECT_EQ(Get("e"), "x");
    EXPECT_EQ(Get("f"), "new");
    EXPECT_EQ(store.Save("Desk", "Editor", "f", "newest"), "");
    EXPECT_EQ(directory.Read(name), "# a comment\r\nnot a setting\r\n  \"Desk\" \"Editor\"\t\"e\"=\"x\"  \r\n"
                                    "\"Desk\" \"Editor\" \"f\" = \"newest\"\n");
}

TEST_F(NativeSettingsTest, AFailureLeavesTheStoreAsItWas) {
    store.Save("Desk", "Editor", "kept", "value");
    const std::string name = "config/ostrelwebhelp/settings";
    const std::string before = directory.Read(name);
    FaultyCalls counting;
    NativeSettings(directory.Path("config/ostrelwebhelp"), counting).Save("Desk", "Editor", "new", "x");
    ASSERT_GT(counting.count, 8);
    for (const int error : {EIO, EACCES, ENOSPC, EINTR})
        for (int n = 1; n <= counting.count; ++n) {
            directory.Write(name, before);
            FaultyCalls faulty;
            faulty.FailAt(n, error);
            NativeSettings failing(directory.Path("config/ostrelwebhelp"), faulty);
            const Text fault = failing.Save("Desk", "Editor", "new", "x");
            EXPECT_EQ(Get("kept"), "value") << n;
            if (fault.empty()) {
                EXPECT_EQ(Get("new"), "x") << n << " " << error;
            }
            EXPECT_EQ(directory.Names(), std::set<std::string>{"config"});
        }

    // What cannot be read is not overwritten.
    std::filesystem::remove(directory.Path(name));
    std::filesystem::create_directory(directory.Path(name));
    EXPECT_NE(store.Save("Desk", "Editor", "new", "x"), "");
    EXPECT_TRUE(std::filesystem::is_directory(directory.Path(name)));

    NativeSettings nowhere{std::string()};
    EXPECT_NE(nowhere.Save("Desk", "Editor", "new", "x"), "");
    EXPECT_EQ(nowhere.Get("Desk", "Editor", "new"), std::nullopt);
}

TEST_F(NativeSettingsTest, TwoProcessesLoseNothing) {
    constexpr int processes = 3, keys = 60;
    pid_t children[processes];
    for (int p = 0; p < processes; ++p) {
        children[p] = ::fork();
        ASSERT_GE(children[p], 0);
        if (children[p] != 0) continue;
        bool good = true;
        for (int k = 0; k < keys; ++k) {
            const Text key = std::to_string(p) + "-" + std::to_string(k);
            good = store.Save("Desk", "Editor", key, key).empty() && Get(key) == key && good;
            if (k % 3 == 0) good = store.DeleteKey("Desk", "Editor", key).empty() && good;
        }
        ::_exit(good ? 0 : 1);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    for (int p = 0; p < processes; ++p)
        for (int k = 0; k < keys; ++k) {
            const Text key = std::to_string(p) + "-" + std::to_string(k);
            EXPECT_EQ(Get(key), k % 3 == 0 ? std::nullopt : std::optional(key));
        }
}

TEST_F(NativeSettingsTest, DirectKeysAreNotCreatedButForTheBrowser) {
    const Text setup = "SOFTWARE\\Microsoft\\Internet Explorer\\PageSetup";
    EXPECT_EQ(store.Query(User, setup, "header"), std::nullopt);
    EXPECT_EQ(store.Set(User, setup, "header", Text("&w")), "");
    EXPECT_EQ(store.Set(User, "software\\microsoft\\internet explorer\\PAGESETUP\\", "margin", Double(0.75)),
              "");
    EXPECT_EQ(store.Query(User, setup, "HEADER"), Variant(Text("&w")));
    EXPECT_EQ(store.Query(User, setup + "\\", "margin"), Variant(Double(0.75)));
    EXPECT_EQ(store.Query(Machine, setup, "header"), std::nullopt);
    EXPECT_EQ(store.Get("user", setup, "header"), std::nullopt);

    for (const Text& key : {Text("Software\\Desk"), setup.substr(0, 20), Text(),
                            Text("SOFTWARE\\Microsoft\\Internet Explorers")}) {
        EXPECT_NE(store.Set(User, key, "name", Text("x")), "") << key;
        EXPECT_EQ(store.Query(User, key, "name"), std::nullopt) << key;
    }
    EXPECT_NE(store.Set(0, setup, "header", Text("x")), "");
    EXPECT_EQ(store.Query(0, setup, "header"), std::nullopt);

    // A key that somebody made is there, and so are those above it.
    directory.Write("config/ostrelwebhelp/keys", "\"user\" \"Software\\\\Desk\\\\Main\" \"n\" = 42\n");
    EXPECT_EQ(store.Query(User, "software\\desk\\main", "N"), Variant(Double(42)));
    EXPECT_EQ(store.Set(User, "Software\\Desk", "name", Text("x")), "");
    EXPECT_EQ(store.Query(User, "Software\\Desk", "name"), Variant(Text("x")));
    EXPECT_NE(store.Set(Machine, "Software\\Desk", "name", Text("x")), "");
}

TEST(UserConfigDirectory, FollowsTheEnvironment) {
    struct Row {
        const char *config, *home;
        std::string expected;
    };
    const auto put = [](const char* name, const char* value) {
        value ? ::setenv(name, value, 1) : ::unsetenv(name);
    };
    const auto keep = [](const char* name) {
        const char* const value = std::getenv(name);
        return value ? std::optional<std::string>(value) : std::nullopt;
    };
    const auto config = keep("XDG_CONFIG_HOME"), home = keep("HOME");
    for (const Row& row : std::vector<Row>{
             {"/x/config", "/home/u", "/x/config/ostrelwebhelp"},
             {nullptr, "/home/u", "/home/u/.config/ostrelwebhelp"},
             {"relative", "/home/u", "/home/u/.config/ostrelwebhelp"},
             {"", nullptr, ""},
         }) {
        put("XDG_CONFIG_HOME", row.config);
        put("HOME", row.home);
        EXPECT_EQ(UserConfigDirectory(), row.expected);
    }
    put("XDG_CONFIG_HOME", config ? config->c_str() : nullptr);
    put("HOME", home ? home->c_str() : nullptr);
}
