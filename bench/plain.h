#pragma once

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include <sys/resource.h>

// What the plain programs share: the shortest way to a page of the same bytes as the component's default one.

namespace plain {

inline constexpr std::string_view RightColumns = "     rrr  ";

inline double CpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Cuts CSV text into fields as it comes in pieces; calls `row` with the fields of each row. A field that
/// lies in the piece unquoted is not copied.
class CsvReader {
public:
    template <class Row>
    void Read(std::string_view piece, Row row) {
        rest_.append(piece);
        std::size_t done = 0;
        while (const std::size_t next = ReadRow(done)) {
            row(fields_);
            done = next;
        }
        rest_.erase(0, done);
    }
    template <class Row>
    void Finish(Row row) {
        if (!rest_.empty()) Read("\n", row);
    }

private:
    /// The place behind the row that begins at `at`, or 0 where it is not whole yet.
    std::size_t ReadRow(std::size_t at) {
        fields_.clear();
        unquoted_.clear();
        const char* const data = rest_.data();
        const std::size_t size = rest_.size();
        while (at < size) {
            if (data[at] == '"') {
                std::string text;
                for (++at;; ++at) {
                    if (at + 1 >= size) return 0;
                    if (data[at] == '"' && data[++at] != '"') break;
                    text += data[at];
                }
                unquoted_.push_back(std::move(text));
                fields_.emplace_back(nullptr, unquoted_.size());
            } else {
                const std::size_t begin = at;
                while (at < size && data[at] != ',' && data[at] != '\n') ++at;
                fields_.emplace_back(data + begin, at - begin);
            }
            if (at >= size) return 0;
            if (data[at++] != '\n') continue;
            for (std::string_view& field : fields_)
                if (!field.data()) field = unquoted_[field.size() - 1];
            return at;
        }
        return 0;
    }

    std::string rest_;
    std::vector<std::string_view> fields_;
    std::vector<std::string> unquoted_;
};

inline void AppendEscaped(std::string& output, std::string_view text) {
    for (;;) {
        const std::size_t special = text.find_first_of("&<>\"");
        output.append(text.substr(0, special));
        if (special == std::string_view::npos) return;
        switch (text[special]) {
        case '&':
            output += "&amp;";
            break;
        case '<':
            output += "&lt;";
            break;
        case '>':
            output += "&gt;";
            break;
        default:
            output += "&quot;";
            break;
        }
        text.remove_prefix(special + 1);
    }
}

/// A row of a page, as the component writes it by default. `escape` where the fields are plain text.
template <class Fields>
void AppendRow(std::string& output, const Fields& fields, bool escape) {
    output += "<TR>\r\n";
    std::size_t column = 0;
    for (const auto& field : fields) {
        const bool right = column < RightColumns.size() && RightColumns[column] == 'r';
        output += right ? "<TD VALIGN=\"TOP\" ALIGN=\"RIGHT\">&nbsp;" : "<TD VALIGN=\"TOP\">&nbsp;";
        if (escape)
            AppendEscaped(output, field);
        else
            output += field;
        output += "&nbsp;</TD>\r\n";
        ++column;
    }
    output += "</TR>\r\n\r\n";
}

template <class Fields>
void AppendHead(std::string& output, const Fields& names) {
    output += "<HTML>\r\n\r\n<HEAD>\r\n\r\n</HEAD>\r\n\r\n<BODY>\r\n\r\n"
              "<TABLE CELLSPACING=\"0\" CELLPADDING=\"0\" BORDER=\"0\">\r\n\r\n";
    AppendRow(output, names, true);
}

inline void AppendFoot(std::string& output) { output += "</TABLE>\r\n\r\n</BODY>\r\n\r\n</HTML>"; }

} // namespace plain
