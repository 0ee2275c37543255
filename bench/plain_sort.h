#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/Array.h"
#include "text/CodePage.h"

namespace plain {

/// What a program of the trade does: fold once, then sort an index with eight bytes of the key beside it.
/// `text` gives the text of a pointer.
template <class TextOf>
void SortIndex(TextOf textOf, ostrel::Array<ostrel::Long>& pointers) {
    struct Entry {
        std::uint64_t prefix;
        std::uint32_t begin, length;
        ostrel::Long pointer;
    };
    std::string folded;
    std::vector<Entry> entries;
    entries.reserve(static_cast<std::size_t>(pointers.Count()));
    for (const ostrel::Long pointer : pointers) {
        const std::string_view text = textOf(pointer);
        const std::size_t begin = folded.size();
        for (const char c : text) folded += static_cast<char>(ostrel::UpperByte(c));
        std::uint64_t prefix = 0;
        for (std::size_t i = 0; i < 8; ++i)
            prefix = prefix << 8 | (i < text.size() ? static_cast<unsigned char>(folded[begin + i]) : 0);
        entries.push_back({prefix, static_cast<std::uint32_t>(begin),
                           static_cast<std::uint32_t>(folded.size() - begin), pointer});
    }
    const auto key = [&](const Entry& entry) {
        return std::string_view(folded).substr(entry.begin, entry.length);
    };
    std::sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
        if (left.prefix != right.prefix) return left.prefix < right.prefix;
        const int order = key(left).compare(key(right));
        return order != 0 ? order < 0 : left.pointer < right.pointer;
    });
    for (std::size_t i = 0; i < entries.size(); ++i)
        pointers.Put(static_cast<ostrel::Long>(i) + 1, entries[i].pointer);
}

} // namespace plain
