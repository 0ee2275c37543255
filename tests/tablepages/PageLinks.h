#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

/// What a reader of a page can click on and jump to, as a parser sees it that is none of ours.
struct PageLinks {
    std::vector<std::string> targets;
    std::set<std::string> anchors;
};

PageLinks ReadLinks(const std::string& html);

/// The links of all pages that lead to no file among these, or to no anchor there: "page -> target". Files
/// are known by their names.
std::vector<std::string> BrokenLinks(const std::map<std::string, std::string>& files);
/// The same of all files in a folder.
std::vector<std::string> BrokenLinks(const std::filesystem::path& folder);
