#include "tablepages/ReportHost.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "text/NumberText.h"

namespace ostrel::test {

namespace {

Text ArgumentText(const ArgumentRef& argument) {
    return std::visit(
        [](auto* value) -> Text {
            using Value = std::remove_pointer_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, Text>)
                return *value;
            else if constexpr (std::is_same_v<Value, Flag>)
                return *value ? "True" : "False";
            else if constexpr (std::is_arithmetic_v<Value>)
                return FromDouble(static_cast<Double>(*value));
            else
                return "...";
        },
        argument);
}

} // namespace

void ReportHost::Hear() {
    events.ListenToAll([this](EventBase& event, std::span<const ArgumentRef> arguments) {
        Text line(event.Name());
        for (const ArgumentRef& argument : arguments) line += " [" + ArgumentText(argument) + "]";
        heard.push_back(std::move(line));
    });
}

bool ReportHost::Make() { return tablepages::PageCreateTable(Scope(), Input(), error); }

std::set<Text> ReportHost::FileNames() {
    const Array<Text> fileNames = tablepages::FileNames(Scope(), Input());
    return {fileNames.begin(), fileNames.end()};
}

tablepages::TableScope ReportHost::Scope() {
    return {PageScopeOf(context, state), state.table, state.headerLinks, state.separate};
}

tablepages::TableInput ReportHost::Input() const {
    return {filePath, title, cells.Rows(), cells.Columns(), names, right, CellTable(cells), CellTable(tags)};
}

Text ReportHost::Family() const {
    Text family;
    for (const auto& [name, content] : ByName()) family += "=== " + name + "\r\n" + content + "\r\n";
    return family;
}

std::map<std::string, std::string> ReportHost::ByName() const {
    std::map<std::string, std::string> pages;
    for (const auto& [path, content] : files->files) pages[path.substr(path.rfind('\\') + 1)] = content;
    return pages;
}

Text ReportHost::Page(const Text& name) const {
    const auto hit = files->files.find("C:\\out\\" + name);
    return hit == files->files.end() ? Text() : hit->second;
}

void ExpectGolden(const Text& name, const Text& content) {
    const std::string path = std::string(OSTREL_TEST_DIR "/golden/tables/") + name;
    if (std::getenv("OSTREL_UPDATE_GOLDEN")) {
        std::ofstream(path, std::ios::binary) << content;
        return;
    }
    std::ifstream file(path, std::ios::binary);
    std::stringstream golden;
    golden << file.rdbuf();
    EXPECT_TRUE(file) << path;
    EXPECT_EQ(golden.str(), content) << name;
}

} // namespace ostrel::test
