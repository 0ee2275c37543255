#include "services/FileServices.h"

#include <gtest/gtest.h>

#include <functional>

#include "services/Paths.h"
#include "support/TestPlatform.h"

namespace ostrel::services {

namespace {

using test::MemoryFiles;
using test::TestPlatform;

Rope Pieces(std::initializer_list<Text> texts) {
    Rope rope;
    for (const Text& text : texts) rope.Append(text);
    return rope;
}

} // namespace

TEST(FileServices, Tests) {
    MemoryFiles files;
    files.Add("C:\\d\\a.htm", " <html>x</Html> ");
    files.Add("C:\\d\\b.txt", "<HTML>");
    struct Row {
        Text path;
        bool exists, directory, html;
    };
    for (const auto& [path, exists, directory, html] : std::vector<Row>{
             {"", false, false, false},
             {"C:\\d\\a.htm", true, false, true},
             {"C:\\d\\A.HTM", false, false, false},
             {"C:\\d\\b.txt", true, false, false},
             {"C:\\d\\*.HTM", true, false, false},
             {"C:\\d\\?.htm", true, false, false},
             {"C:\\d\\*.css", false, false, false},
             {"C:\\d", false, true, false},
             {"C:\\d\\", false, true, false},
             {"C:\\", false, true, false},
         }) {
        EXPECT_EQ(FileExists(files, path), exists) << path;
        EXPECT_EQ(DirectoryExists(files, path), directory) << path;
        EXPECT_EQ(FileHTML(files, path), html) << path;
    }
}

TEST(FileServices, DirectoryMake) {
    struct Row {
        Text directory, error;
        int failAt;
    };
    for (const auto& [directory, error, failAt] : std::vector<Row>{
             {" C:/a\\b/ ", "", 0},
             {"C:\\d", "", 0},
             {"X:\\a", "Drive [X:] does not exist.", 0},
             {"C:\\d\\file\\b", "Path/File access error", 0},
             {"", "Directory [] may have been created, but can't be found!", 0},
             {" / ", "Directory [] may have been created, but can't be found!", 0},
             {"C:\\a", "Device I/O error", 4},
             {"C:\\a", "Directory [C:\\a] may have been created, but can't be found!", 5},
             {"C:\\a", "Old Directory [C:\\] can't be reset.", 6},
         }) {
        MemoryFiles files;
        files.Add("C:\\d\\file", "x");
        files.failAt = failAt;
        Text message = "before";
        EXPECT_EQ(DirectoryMake(files, directory, message), error.empty()) << directory;
        EXPECT_EQ(message, error);
        EXPECT_EQ(files.current, "C:\\");
        if (error.empty()) {
            EXPECT_TRUE(DirectoryExists(files, directory == "C:\\d" ? directory : "C:\\a\\b"));
        }
    }
}

TEST(FileServices, DirectoryChange) {
    MemoryFiles files;
    files.Add("C:\\d\\a", "");
    Text error;
    EXPECT_TRUE(DirectoryChange(files, "C:\\d", error));
    EXPECT_EQ(files.current, "C:\\d");
    EXPECT_FALSE(DirectoryChange(files, "X:\\d", error));
    EXPECT_EQ(error, "Device unavailable");
    EXPECT_FALSE(DirectoryChange(files, "C:\\none", error));
    EXPECT_EQ(error, "Path not found");
    EXPECT_EQ(files.current, "C:\\d");
}

TEST(FileServices, Kill) {
    struct Row {
        Text path;
        bool notExistError, clearAttributes;
        Text error;
        std::size_t left;
    };
    for (const auto& [path, notExistError, clearAttributes, error, left] : std::vector<Row>{
             {"", true, true, "File Path has not been defined.", 4},
             {"C:\\d\\*.css", true, true, "Files [C:\\d\\*.css] do not exist.", 4},
             {"C:\\d\\*.css", false, true, "", 4},
             {"C:\\d\\a*.HTM", true, false, "", 2},
             {"C:\\d\\a1.htm", true, false, "", 3},
             {"C:\\d\\A1.htm", true, false, "Files [C:\\d\\A1.htm] do not exist.", 4},
             {"C:\\d\\*", true, false, "Files [C:\\d\\*] can't be deleted - Path/File access error", 1},
             {"C:\\d\\*", true, true, "", 0},
         }) {
        MemoryFiles files;
        for (const char* name : {"a1.htm", "a2.htm", "b.htm", "c"}) files.Add(Text("C:\\d\\") + name, "x");
        files.readOnly = {"C:\\d\\b.htm"};
        Text message = "before";
        EXPECT_EQ(KillFiles(files, path, message, notExistError, clearAttributes), error.empty()) << path;
        EXPECT_EQ(message, error) << path;
        EXPECT_EQ(files.files.size(), left) << path;
    }

    MemoryFiles files;
    files.Add("C:\\temp\\owh1.TMP", "");
    files.Add("C:\\temp\\other.tmp", "");
    Text error;
    EXPECT_TRUE(KillTempFiles(files, "owh", error));
    EXPECT_EQ(files.files.size(), 1u);
    EXPECT_FALSE(KillFile(files, "C:\\none", error));
    EXPECT_EQ(error, "File [C:\\none] does not exist.");
    EXPECT_FALSE(KillFile(files, "", error));
    EXPECT_EQ(error, "File Path has not been defined.");
    EXPECT_TRUE(KillFile(files, "C:\\temp\\other.tmp", error));
    EXPECT_EQ(error, "");
}

TEST(FileServices, FileRename) {
    struct Row {
        Text from, to, error;
    };
    for (const auto& [from, to, error] : std::vector<Row>{
             {"", "x", "File has not been defined."},
             {"a.htm", "x", "File [a.htm] must be a full path."},
             {"C:\\d\\none", "x", "File [C:\\d\\none] does not exist."},
             {"C:\\d\\a.htm", "", "New File Name has not been defined."},
             {"C:\\d\\a.htm", "b.htm", "New File [C:\\d\\b.htm] exists."},
             {"C:\\d\\a.htm", "C:\\d\\b.htm", "New File [C:\\d\\b.htm] exists."},
             {"C:\\d\\a.htm", "c.htm", ""},
         }) {
        MemoryFiles files;
        files.Add("C:\\d\\a.htm", "a");
        files.Add("C:\\d\\b.htm", "b");
        Text message = "before";
        EXPECT_EQ(FileRename(files, from, to, message), error.empty());
        EXPECT_EQ(message, error);
        EXPECT_EQ(files.files["C:\\d\\b.htm"], "b");
    }
}

TEST(FileServices, ReadFile) {
    MemoryFiles files;
    files.Add("C:\\d\\a", Text("a\0b", 3));
    files.Add("C:\\d\\empty", "");
    Text error = "before";
    EXPECT_EQ(ReadFile(files, "C:\\d\\a", error), Text("a\0b", 3));
    EXPECT_EQ(error, "");
    EXPECT_EQ(ReadFile(files, "C:\\d\\none", error), "");
    EXPECT_EQ(error, "File not found");
    EXPECT_EQ(ReadFile(files, "C:\\d\\empty", error), "");
    EXPECT_EQ(error, "");
}

TEST(FileServices, SafeWrite) {
    struct Row {
        Text path;
        WriteOptions options;
        Long answer;
        Text error;
        Text content; ///< of the file afterwards
        Text backup;
    };
    const Text path = "C:\\d\\a.htm";
    for (const auto& [given, options, answer, error, content, backup] : std::vector<Row>{
             {"", {}, 6, "File Path has not been defined.", "old", "older"},
             {" ", {}, 6, "Path [] is not a full one.", "old", "older"},
             {"a.htm", {}, 6, "Path [a.htm] is not a full one.", "old", "older"},
             {"C:\\x\\a.htm", {}, 6, "Directory [C:\\x\\] does not exist.", "old", "older"},
             {path, {false, false, {}}, 6, "File [C:\\d\\a.htm] exists.", "old", "older"},
             {" C:\\d\\a.htm ", {false, true, {}}, 6, "", "new", "older"},
             {path, {true, true, {}}, 6, "", "new", "old"},
             {path, {true, false, "Title"}, 6, "", "new", "old"},
             {path, {true, true, "Title"}, 7, "", "old", "older"},
             {"C:\\d\\a.bak", {true, true, {}}, 6, "New File [C:\\d\\a.bak] exists.", "old", "older"},
             {"C:\\d\\a.bak", {false, true, {}}, 6, "", "old", "new"},
         }) {
        TestPlatform platform;
        platform.Disk().Add(path, "old");
        platform.Disk().Add("C:\\d\\a.bak", "older");
        platform.answer = static_cast<MessageAnswer>(answer);
        Text message = "before";
        EXPECT_EQ(WriteFileFull(platform.context, given, Pieces({"n", "ew"}), message, options),
                  error.empty());
        EXPECT_EQ(message, error);
        EXPECT_EQ(platform.Disk().files[path], content) << given;
        EXPECT_EQ(platform.Disk().files["C:\\d\\a.bak"], backup) << given;
        EXPECT_EQ(platform.questions,
                  options.askTitle
                      ? std::vector<Text>{"Title: File [C:\\d\\a.htm] exists.  Do you want to Overwrite?"}
                      : std::vector<Text>{});
    }
}

TEST(FileServices, ABackupLiesBesideItsFile) {
    for (const auto& [path, backup] : std::vector<std::pair<Text, Text>>{
             {"C:\\a.b\\file", "C:\\a.b\\file.bak"},
             {"C:\\a.b\\file.x.htm", "C:\\a.b\\file.x.bak"},
         }) {
        TestPlatform platform;
        platform.Disk().Add("C:\\a.b\\any", "");
        platform.Disk().Add(path, "old");
        Text error;
        EXPECT_TRUE(WriteFileFull(platform.context, path, Pieces({"new"}), error, {.createBackup = true}));
        EXPECT_EQ(platform.Disk().files[backup], "old") << path;
    }
}

TEST(FileServices, SafeWriteTellsOfABackupThatFailed) {
    TestPlatform platform;
    platform.Disk().Add("C:\\d\\a.htm", "old");
    platform.Disk().directories.insert("C:\\d\\a.bak");
    Text error;
    EXPECT_FALSE(
        WriteFileFull(platform.context, "C:\\d\\a.htm", Pieces({"new"}), error, {.createBackup = true}));
    EXPECT_EQ(error, "File [C:\\d\\a.htm] was not renamed - Path/File access error");
    EXPECT_EQ(platform.Disk().files["C:\\d\\a.htm"], "old");
}

TEST(FileServices, AFailedCallNeverCostsTheOldFile) {
    for (const bool backup : {false, true}) {
        for (int failAt = 1;; ++failAt) {
            TestPlatform platform;
            MemoryFiles& files = platform.Disk();
            files.Add("C:\\d\\a.htm", "old");
            files.failAt = failAt;
            Text error;
            const bool written = WriteFileFull(platform.context, "C:\\d\\a.htm", Pieces({"new"}), error,
                                               {.createBackup = backup});
            EXPECT_EQ(files.files["C:\\d\\a.htm"], written ? "new" : "old") << failAt;
            EXPECT_EQ(error.empty(), written) << failAt;
            if (failAt > files.calls) break;
        }
    }
}

TEST(FileServices, FileEquals) {
    Text large(200'000, 'x');
    large += "end";
    struct Row {
        Text content;
        std::vector<Text> pieces;
        bool expected;
    };
    for (const auto& [content, pieces, expected] : std::vector<Row>{
             {"", {}, true},
             {"abc", {"a", "bc"}, true},
             {"abc", {"a", "bd"}, false},
             {"abc", {"ab"}, false},
             {"", {"a"}, false},
             {large, {large.substr(0, 70'000), large.substr(70'000)}, true},
             {large, {large.substr(0, 200'000), "eny"}, false},
         }) {
        MemoryFiles files;
        files.Add("C:\\a", content);
        Rope rope;
        for (const Text& piece : pieces) rope.Append(piece);
        EXPECT_EQ(FileEquals(files, "C:\\a", rope), expected) << content.size();
        EXPECT_FALSE(FileEquals(files, "C:\\none", rope));
        EXPECT_LE(files.reads, 2);
        for (files.failAt = 1; expected && files.failAt <= 3; ++files.failAt) {
            files.calls = 0;
            const bool equal = FileEquals(files, "C:\\a", rope);
            EXPECT_EQ(equal, files.failAt > files.calls) << files.failAt;
        }
    }
}

TEST(FileServices, TemporaryNames) {
    MemoryFiles files;
    struct Row {
        Text tag, start;
    };
    for (const auto& [tag, start] :
         std::vector<Row>{{"x", "C:\\temp\\wbh"}, {"ABCD", "C:\\temp\\abc"}, {"", "C:\\temp\\wbh"}}) {
        const Text path = WinTempFile(files, tag, "default");
        EXPECT_TRUE(path.starts_with(start) && path.ends_with(".tmp")) << path;
        EXPECT_TRUE(files.files.contains(path));
    }
    files.temporary.clear();
    EXPECT_EQ(WinTempFile(files, "x", "default"), "default");
    EXPECT_EQ(FormatErrorMessage(files, 0), "");
    EXPECT_EQ(FormatErrorMessage(files, 53), "File not found");
    EXPECT_EQ(FormatErrorMessage(files, 9999), "Error Number = 9999");
}

TEST(FileServices, WorkFiles) {
    ServiceProperties properties;
    EXPECT_EQ(WorkFilePath(properties, 1), "");
    properties.DirectoryHelp = "C:\\help";
    EXPECT_EQ(WorkFilePath(properties, 1), "");
    properties.WorkFileRoot = "$$w";
    EXPECT_EQ(WorkFilePath(properties, 9), "C:\\help\\$$w9.html");
    EXPECT_EQ(WorkFilePath(properties, 10), "");
    EXPECT_EQ(WorkFilePath(properties, -1), "");

    properties.WorkFileNext = 8;
    WorkFileNextIncrement(properties);
    EXPECT_EQ(properties.WorkFileNext, 9);
    WorkFileNextIncrement(properties);
    EXPECT_EQ(properties.WorkFileNext, 0);

    MemoryFiles files;
    for (const char* name : {"$$w0.html", "$$w5.html", "$$w9.html", "$$w10.html", "other.html"})
        files.Add(Text("C:\\help\\") + name, "x");
    WorkFilesKill(files, properties);
    EXPECT_EQ(files.files.size(), 2u);
}

} // namespace ostrel::services
