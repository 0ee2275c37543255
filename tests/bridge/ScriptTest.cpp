#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "bridge/Bridge.h"

namespace ostrel::bridge {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Scripts() {
    std::vector<fs::path> scripts;
    for (const auto& entry : fs::directory_iterator(fs::path(OSTREL_TEST_DIR) / "scripts"))
        if (entry.path().extension() == ".jsonl") scripts.push_back(entry.path());
    std::sort(scripts.begin(), scripts.end());
    return scripts;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

/// The directory as a path of the component stands in JSON.
std::string DirectoryInJson(const fs::path& directory) {
    return Replaced("C:" + directory.string(), "/", "\\\\");
}

/// Lines "> request" and "< answer" in turn, on the virtual clock; lines with "#" in front say what follows.
/// {DIR} stands for an empty directory of the script's own.
class ScriptTest : public testing::TestWithParam<fs::path> {
protected:
    void SetUp() override {
        directory_ = fs::temp_directory_path() /
                     ("ostrel-script-" + std::to_string(::getpid()) + "-" + GetParam().stem().string());
        fs::remove_all(directory_);
        fs::create_directories(directory_);
        setenv("XDG_CONFIG_HOME", (directory_.string() + "-settings").c_str(), 1);
    }
    void TearDown() override {
        fs::remove_all(directory_);
        fs::remove_all(directory_.string() + "-settings");
    }
    fs::path directory_;
};

TEST_P(ScriptTest, AnswersAsWritten) {
    const std::string place = DirectoryInJson(directory_);
    HeadlessPlatform platform = MakeHeadlessPlatform(true);
    Bridge bridge(platform);
    std::ifstream script(GetParam());
    std::string line, answer;
    int number = 0, asked = 0;
    while (std::getline(script, line)) {
        ++number;
        if (line.starts_with("> ")) {
            answer = bridge.Answer(Replaced(line.substr(2), "{DIR}", place));
        } else if (line.starts_with("< ")) {
            ++asked;
            const std::string got = Replaced(answer, place, "{DIR}");
            EXPECT_EQ(nlohmann::json::parse(got, nullptr, false),
                      nlohmann::json::parse(line.substr(2), nullptr, false))
                << GetParam().filename().string() << ":" << number << "\ngot " << got;
        }
    }
    EXPECT_GT(asked, 0);
}

INSTANTIATE_TEST_SUITE_P(Scripts, ScriptTest, testing::ValuesIn(Scripts()), [](const auto& script) {
    std::string name = script.param.stem().string();
    std::erase_if(name, [](unsigned char c) { return !std::isalnum(c); });
    return name;
});

} // namespace

} // namespace ostrel::bridge
