#include "services/Paths.h"

#include <gtest/gtest.h>

#include <vector>

namespace ostrel::services {

TEST(Paths, Parts) {
    struct Row {
        Text path, directory, name, nameOnly, extension;
    };
    for (const auto& [path, directory, name, nameOnly, extension] : std::vector<Row>{
             {"a/b\\c.txt", "a/b\\", "c.txt", "c", "txt"},
             {"a\\b/c.d.txt", "a\\b/", "c.d.txt", "c.d", "txt"},
             {"c.txt ", "", "c.txt ", "c", "txt"},
             {"C:\\a.b\\c", "C:\\a.b\\", "c", "c", "b\\c"}, // the last dot of the whole path
             {"C:\\", "C:\\", "", "", ""},
             {"", "", "", "", ""},
         }) {
        EXPECT_EQ(FileDirectory(path), directory) << path;
        EXPECT_EQ(FileName(path), name) << path;
        EXPECT_EQ(FileNameOnly(path), nameOnly) << path;
        EXPECT_EQ(FileExtension(path), extension) << path;
    }
}

TEST(Paths, EndsAndJoins) {
    EXPECT_EQ(AddMissingBackslash(""), "");
    EXPECT_EQ(AddMissingBackslash("a"), "a\\");
    EXPECT_EQ(AddMissingBackslash("a\\"), "a\\");
    EXPECT_EQ(AddMissingSlash("a"), "a/");
    EXPECT_EQ(RemoveLastBackslash("a\\\\"), "a\\");
    EXPECT_EQ(RemoveLastSlash("a\\"), "a\\");
    EXPECT_EQ(BuildPath("C:\\a", "b"), "C:\\a\\b");
    EXPECT_EQ(BuildPath("", "b"), "b");
    EXPECT_EQ(BuildPath("C:\\a", "x\\b"), "x\\b");
    EXPECT_EQ(BuildPath("C:\\a", "x/b"), "C:\\a\\x/b");
    EXPECT_EQ(BuildPath("C:\\a", ""), "");
}

TEST(Paths, FileExtensionChange) {
    struct Row {
        Text path, extension, expected;
    };
    for (const auto& [path, extension, expected] : std::vector<Row>{
             {"a.txt", ".bak", "a.bak"},
             {"a.txt", "", "a"},
             {"a", "x", "a.x"},
             {"a", "", "a"},
             {" a.txt ", "..x", "a..x"},
             {"a.txt", ".", "a."},
             {" ", "x", ""},
         })
        EXPECT_EQ(FileExtensionChange(path, extension), expected) << path;
}

TEST(Paths, FileInternet) {
    struct Row {
        Text path;
        bool expected;
    };
    for (const auto& [path, expected] : std::vector<Row>{
             {"c://x", false},
             {"FTP://x", true},
             {"https://", true},
             {"gopher://x", true},
             {"file://x", false},
             {"://x", false},
             {" http://x", false},
             {"http:/x", false},
             {"a http://x", false},
         })
        EXPECT_EQ(FileInternet(path), expected) << path;
}

TEST(Paths, FilePathSimplify) {
    struct Row {
        Text path, directory, expected;
    };
    for (const auto& [path, directory, expected] : std::vector<Row>{
             {"C:\\Help\\a.htm", "c:\\help", "a.htm"},
             {"C:\\Help\\a.htm", "c:\\help\\", "a.htm"},
             {"C:\\Help\\", "C:\\Help", "C:\\Help\\"},
             {"C:\\Helper\\a", "C:\\Help", "C:\\Helper\\a"},
             {"C:\\a", "", "C:\\a"},
         })
        EXPECT_EQ(FilePathSimplify(path, directory), expected) << path;
}

TEST(Paths, FromURL) {
    struct Row {
        Text url, expected;
    };
    for (const auto& [url, expected] : std::vector<Row>{
             {"file:///C:/a%20b.txt", "C:\\a b.txt"},
             {"FILE://server/a", "server\\a"},
             {"a/b", "a\\b"},
             {"%0A%2f%2F%e4", "%0A//\xE4"},
             {"%2541", "%41"},
             {"%%20x", "%%20x"}, // the three characters stay, and the scan goes on behind them
             {"%zz%20", "%zz "},
             {"50%", "50%"},
             {"50%2", "50%2"},
         })
        EXPECT_EQ(FilePathFromURL(url), expected) << url;
    EXPECT_EQ(FilePathFromURLCharacters("a/b%20", false), "a/b ");
}

TEST(Paths, FilePathShorten) {
    const Text path = "C:\\one\\two\\three\\four\\file.htm";
    struct Row {
        Text path, delimiter;
        Long maximum, keep, start, end;
        Text expected;
    };
    for (const auto& [given, delimiter, maximum, keep, start, end, expected] : std::vector<Row>{
             {" " + path + " ", "", 100, 2, 1, 1, path},
             {path, "", 28, 2, 1, 1, "C:\\...\\three\\four\\file.htm"},
             {path, "", 25, 2, 1, 1, "C:\\...\\four\\file.htm"},
             {path, "", 5, 2, 1, 1, "C:\\...\\file.htm"}, // the shortest there may be, though too long
             {path, "", 5, 2, 2, 2, "C:\\one\\...\\four\\file.htm"},
             {path, "", 5, 3, 1, 1, "C:\\one\\...\\file.htm"},
             {path, "/", 5, 2, 1, 1, path},
             {path, "x", 5, 2, 1, 1, path},
             {path, "", 5, 2, 3, 2, path}, // too few to leave any out
             {path, "\\", 5, 0, -1, 0, "C:\\...\\file.htm"},
             {"a/b\\c", "", 1, 0, 1, 1, "a/b\\c"}, // a tie
             {"http://host/a/b/c.htm", "", 5, 8, 1, 1, "http://host/.../c.htm"},
             {path, "", 5, 1000, 1, 1, path},
             {path, "", 5, 2, 2147483647, 2147483647, path},
             {"", "", -1, 0, 1, 1, ""},
         })
        EXPECT_EQ(FilePathShorten(given, delimiter, maximum, keep, start, end), expected) << expected;
}

TEST(Paths, Messages) {
    EXPECT_EQ(ErrorMessageDoesNotExist(" X ", ""), "X does not exist.");
    EXPECT_EQ(ErrorMessageDoesNotExist("File", "a"), "File [a] does not exist.");
    EXPECT_EQ(ErrorMessageDoesNotExist("File", " "), "File [ ] does not exist.");
    EXPECT_EQ(ErrorMessageNotDefined(" File Path "), "File Path has not been defined.");
    EXPECT_EQ(ErrorMessageShortenFile("Read", "C:\\one\\two\\three\\four\\five\\file.htm", ""),
              "Read [C:\\one\\...\\four\\five\\file.htm].");
    EXPECT_EQ(ErrorMessageShortenFile("Read ", "a", "failed"), "Read  [a] failed");
}

} // namespace ostrel::services
