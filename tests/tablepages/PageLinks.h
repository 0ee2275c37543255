#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

/// What a reader of a page can click on and jump to, as a parser sees it that is none of ours.
struct PageLinks {
    std::vector<std::string> targets;
    std::set<std::string> anchors;
};

PageLinks ReadLinks(const std::string& html);

/// The links of all pages in a folder that lead to no file in it, or to no anchor there: "page -> target".
std::vector<std::string> BrokenLinks(const std::filesystem::path& folder);
