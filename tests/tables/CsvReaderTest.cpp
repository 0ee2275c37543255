#include "tables/CsvReader.h"

#include <csv.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tables/CsvSniffer.h"
#include "tables/CsvSource.h"

namespace ostrel::tables {
namespace {

using Records = std::vector<std::vector<std::string>>;

Records ReadAll(std::string_view text, CsvFormat format, std::size_t chunk = 1 << 20) {
    MemorySource source(text);
    CellStore cells;
    CsvReader reader(source, format, cells, chunk);
    Records records;
    for (std::size_t count = 0; reader.ReadRecord(count);) {
        auto& record = records.emplace_back();
        const PackedCell* row = cells.Cells() + (cells.Count() - count);
        for (std::size_t i = 0; i < count; ++i) record.emplace_back(row[i].Plain());
    }
    return records;
}

std::string FaultOf(std::string_view text, CsvFormat format = {}) {
    try {
        ReadAll(text, format);
    } catch (const InputError& error) {
        return error.what();
    }
    return "none";
}

TEST(CsvReader, FindsValuesWhereverTheChunksEnd) {
    struct Row {
        std::string text;
        Records records;
    };
    for (const auto& [text, records] : std::vector<Row>{
             {"a,b\n1,2\n", {{"a", "b"}, {"1", "2"}}},
             {"a,b\r\n1,2", {{"a", "b"}, {"1", "2"}}},
             {"a,b\r1,2\r", {{"a", "b"}, {"1", "2"}}},
             {"a,\n,b\n", {{"a", ""}, {"", "b"}}},
             {"a,", {{"a", ""}}},
             {"\n\r\n a , b\n\n\n", {{" a ", " b"}}},
             {"\"\"\n", {{""}}},
             {"\"a,b\",\"c\"\"d\"\"\"\n", {{"a,b", "c\"d\""}}},
             {"\"a\r\nb\nc\rd\",e\n", {{"a\r\nb\nc\rd", "e"}}},
             {"5\" disk,a\"b\"\n", {{"5\" disk", "a\"b\""}}}, // quotes inside a value
             {"\"a\"b,\"c\" \n", {{"ab", "c "}}},             // text behind the closing quote
             {"\"a\"\"b\"\"\",\"\"\"\"", {{"a\"b\"", "\""}}},
         })
        for (std::size_t chunk : {1, 2, 3, 5, 1 << 20})
            EXPECT_EQ(ReadAll(text, {',', TextEncoding::Utf8}, chunk), records) << text << " by " << chunk;
}

TEST(CsvReader, NamesTheLineOfWhatIsWrong) {
    struct Row {
        std::string text, fault;
    };
    for (const auto& [text, fault] : std::vector<Row>{
             {"", "input is empty."},
             {"a,b\n1,\"2\n3\n4", "input, line 2: the quote that opens a value here is not closed."},
             {"a\n\"x\r\ny\"\n\"open", "input, line 4: the quote that opens a value here is not closed."},
             {std::string("a\r\nb\rc\0", 7), "input, line 3: there is a NUL byte, so this is not text."},
             {std::string("\"a\n\0\"", 5), "input, line 2: there is a NUL byte, so this is not text."},
             {"\xFF\xFE"
              "a",
              "input, line 1: the text is UTF-16; only UTF-8 and Windows-1252 are read."},
             {std::string("\xFE\xFF\0a", 4),
              "input, line 1: the text is UTF-16; only UTF-8 and Windows-1252 are read."},
             {"a\n\xC3\xA9\xC3\xA9\n\xE9\n",
              "input, line 3: a value is not UTF-8; --encoding windows-1252 may be what it is."},
             {"a\n" + std::string(CsvReader::MaxColumns, ','),
              "input, line 2: the row has more than 10000 values."},
             {"a\n" + std::string(CsvReader::MaxColumns, ',') + "\n",
              "input, line 2: the row has more than 10000 values."},
         })
        EXPECT_EQ(FaultOf(text, {',', TextEncoding::Unknown}), fault) << text.substr(0, 40);
    EXPECT_EQ(ReadAll(std::string(CsvReader::MaxColumns - 1, ','), {}).front().size(), CsvReader::MaxColumns);
}

TEST(CsvReader, TakesAValueOf64MiBAndNoMore) {
    const std::string largest = "h\n" + std::string(CsvReader::MaxValueBytes, 'x');
    EXPECT_EQ(ReadAll(largest + "\n", {}).back().front().size(), CsvReader::MaxValueBytes);
    EXPECT_EQ(FaultOf(largest + "x\n"), "input, line 2: a value is larger than 64 MiB.");
}

TEST(CsvReader, FindsOutEncodingAndDelimiter) {
    struct Row {
        std::string text, plain;
    };
    for (const auto& [text, plain] : std::vector<Row>{
             {"caf\xC3\xA9", "caf\xE9"},
             {"\xEF\xBB\xBF\"caf\xC3\xA9\"", "caf\xE9"},
             {"caf\xE9", "caf\xE9"},
             {"\xC3\xA9t\xC3\xA9 \xE2\x82\xAC", "\xE9t\xE9 \x80"},
             {"\xE4\xB8\xAD", "&#20013;"},
         })
        EXPECT_EQ(ReadAll(text + "\n", {}).front().front(), plain) << text;
    struct Head {
        std::string text;
        char delimiter;
    };
    for (const auto& [text, delimiter] : std::vector<Head>{
             {"a,b\n1,2\n", ','},
             {"a;b\n1,5;2,5\n3,5;4,5\n", ';'},
             {"a\tb, c\n1\t2\n", '\t'},
             {"a|b|c\n\"x,y\"|2|3\n", '|'},
             {"\"a;b;c\",d\n1,2\n", ','},
             {"name, first;born\nx, y;1\nz;2\n", ';'},
             {"alone\n1\n", ','},
             {"a;b", ';'},
         })
        EXPECT_EQ(SniffDelimiter(text), delimiter) << text;
}

// The library reads the same texts by a way of its own.
class LibraryReader {
public:
    explicit LibraryReader(const std::string& text) {
        csv_parser parser;
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_space_func(&parser, [](unsigned char) { return 0; });
        const std::size_t read = csv_parse(&parser, text.data(), text.size(), OnValue, OnRecord, this);
        csv_fini(&parser, OnValue, OnRecord, this);
        good_ = read == text.size();
        csv_free(&parser);
    }
    bool Good() const { return good_; }
    const Records& Read() const { return records_; }

private:
    static void OnValue(void* value, std::size_t size, void* self) {
        static_cast<LibraryReader*>(self)->record_.emplace_back(static_cast<char*>(value), size);
    }
    static void OnRecord(int, void* self) {
        auto* reader = static_cast<LibraryReader*>(self);
        reader->records_.push_back(std::move(reader->record_));
        reader->record_.clear();
    }
    Records records_;
    std::vector<std::string> record_;
    bool good_ = false;
};

std::string RandomCsv(std::mt19937& random) {
    const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    std::string text;
    for (int record = pick(6); record >= 0; --record) {
        for (int value = pick(4); value >= 0; --value) {
            const bool quoted = pick(2) == 0;
            if (quoted) text += '"';
            for (int i = pick(5); i > 0; --i) {
                const char c = quoted ? "a ,\r\n\"&"[pick(7)] : "a b&"[pick(4)];
                text.append(c == '"' ? 2 : 1, c);
            }
            if (quoted) text += '"';
            if (value > 0) text += ',';
        }
        text += pick(2) == 0 ? "\n" : "\r\n";
    }
    return text;
}

TEST(CsvReader, ReadsWhatTheLibraryReads) {
    std::mt19937 random(20240229);
    for (int i = 0; i < 500; ++i) {
        const std::string text = RandomCsv(random);
        const LibraryReader library(text);
        ASSERT_TRUE(library.Good()) << text;
        for (std::size_t chunk : {1, 4, 1 << 20})
            ASSERT_EQ(ReadAll(text, {',', TextEncoding::Utf8}, chunk), library.Read())
                << text << " by " << chunk;
    }
}

TEST(InputTable, WantsRowsAsWideAsTheHeader) {
    struct Row {
        std::string text, fault;
    };
    for (const auto& [text, fault] : std::vector<Row>{
             {"a,b\n1,2\n3\n", "input, line 3: the row has 1 value where the header has 2 columns."},
             {"a,b\n\"1\n\",2\n1,2,3\n",
              "input, line 4: the row has 3 values where the header has 2 columns."},
             {"\n\na,b\n", "input, line 3: there is a header and no row below it."},
             {"\n\r\n", "input holds no text."},
         }) {
        MemorySource bytes(text);
        CsvSource rows(bytes, {',', TextEncoding::Unknown}, true);
        InputTable table(Markup::Escape);
        try {
            ReadTable(rows, table);
            ADD_FAILURE() << text;
        } catch (const InputError& error) {
            EXPECT_EQ(error.what(), fault);
        }
    }
    MemorySource bytes("1,x\n2,y\n");
    CsvSource rows(bytes, {}, false);
    InputTable table(Markup::Escape);
    ReadTable(rows, table);
    EXPECT_EQ(table.rows, 2);
    EXPECT_EQ(table.names, (std::vector<Text>{"Column 1", "Column 2"}));
    EXPECT_EQ(table.types, (std::vector<ColumnType>{ColumnType::Number, ColumnType::Text}));
}

} // namespace
} // namespace ostrel::tables
