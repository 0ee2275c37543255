#include "cli/ShownTable.h"

#include <memory>
#include <string_view>

#include <libxml/HTMLparser.h>

namespace {

std::string_view NameOf(const xmlNode* node) {
    return node->type == XML_ELEMENT_NODE ? reinterpret_cast<const char*>(node->name) : "";
}

void CollectText(const xmlNode* node, std::string& text) {
    for (; node; node = node->next) {
        if (node->type == XML_TEXT_NODE) text += reinterpret_cast<const char*>(node->content);
        if (NameOf(node) == "br") text += '\n';
        CollectText(node->children, text);
    }
}

std::string TextOf(const xmlNode* cell) {
    std::string text;
    CollectText(cell->children, text);
    for (std::size_t at; (at = text.find("\xC2\xA0")) != std::string::npos;) text.replace(at, 2, " ");
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void CollectRows(const xmlNode* node, std::vector<std::vector<std::string>>& rows) {
    for (; node; node = node->next) {
        if (NameOf(node) != "tr") {
            CollectRows(node->children, rows);
            continue;
        }
        std::vector<std::string> row;
        bool filled = false;
        for (const xmlNode* cell = node->children; cell; cell = cell->next) {
            if (NameOf(cell) != "td") continue;
            row.push_back(TextOf(cell));
            filled = filled || !row.back().empty();
        }
        if (filled) rows.push_back(std::move(row));
    }
}

} // namespace

std::vector<std::vector<std::string>> ShownTable(const std::string& html) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDocPtr)> document(
        htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "windows-1252",
                       HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET |
                           XML_PARSE_HUGE),
        xmlFreeDoc);
    std::vector<std::vector<std::string>> rows;
    if (document) CollectRows(xmlDocGetRootElement(document.get()), rows);
    return rows;
}
