#include "tablepages/PageLinks.h"

#include <fstream>
#include <iterator>
#include <memory>

#include <libxml/HTMLparser.h>

namespace {

std::string Attribute(xmlNode* node, const char* name) {
    const std::unique_ptr<xmlChar, void (*)(void*)> value(
        xmlGetProp(node, reinterpret_cast<const xmlChar*>(name)), [](void* p) { xmlFree(p); });
    return value ? reinterpret_cast<const char*>(value.get()) : "";
}

void Collect(xmlNode* node, PageLinks& links) {
    for (; node; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && std::string(reinterpret_cast<const char*>(node->name)) == "a") {
            if (const auto target = Attribute(node, "href"); !target.empty()) links.targets.push_back(target);
            if (const auto anchor = Attribute(node, "name"); !anchor.empty()) links.anchors.insert(anchor);
        }
        Collect(node->children, links);
    }
}

} // namespace

PageLinks ReadLinks(const std::string& html) {
    PageLinks links;
    const std::unique_ptr<xmlDoc, void (*)(xmlDocPtr)> document(
        htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "windows-1252",
                       HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET |
                           HTML_PARSE_COMPACT),
        xmlFreeDoc);
    if (document) Collect(xmlDocGetRootElement(document.get()), links);
    return links;
}

std::vector<std::string> BrokenLinks(const std::map<std::string, std::string>& files) {
    std::map<std::string, PageLinks> pages;
    for (const auto& [name, content] : files) {
        const bool page = name.ends_with(".htm") || name.ends_with(".html");
        pages[name] = page ? ReadLinks(content) : PageLinks{};
    }
    std::vector<std::string> broken;
    for (const auto& [name, links] : pages)
        for (const auto& target : links.targets) {
            const auto mark = target.find('#');
            const auto hit = pages.find(mark == 0 ? name : target.substr(0, mark));
            if (hit == pages.end() ||
                (mark != std::string::npos && !hit->second.anchors.count(target.substr(mark + 1))))
                broken.push_back(name + " -> " + target);
        }
    return broken;
}

std::vector<std::string> BrokenLinks(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(file), {}};
    }
    return BrokenLinks(files);
}
