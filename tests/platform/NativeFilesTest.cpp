#include "platform/native/NativeFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <numeric>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/native/NameMask.h"
#include "support/FaultyCalls.h"
#include "support/TemporaryDirectory.h"

using namespace ostrel;
using ostrel::test::TemporaryDirectory;

namespace {

class NativeFilesTest : public testing::Test {
protected:
    FileResult Replace(const Text& path, TextView content, const Text& backup = {}) {
        return files.Replace(path, {&content, 1}, backup);
    }
    mode_t ModeOf(std::string_view name) {
        struct stat status {};
        ::stat(directory.Path(name).c_str(), &status);
        return status.st_mode & 07777;
    }

    TemporaryDirectory directory;
    NativeFiles files;
};

} // namespace

TEST_F(NativeFilesTest, MapsPaths) {
    ASSERT_TRUE(files.ChangeDirectory(directory.Component()));
    struct Row {
        Text path;
        std::string expected; // "-" where there is no such place
    };
    const std::string here = directory.Path();
    for (const auto& [path, expected] : std::vector<Row>{
             {"C:\\data\\out", "/data/out"},
             {"c:/data\\.\\x\\..//out", "/data/out"},
             {"C:\\", "/"},
             {"\\data", "/data"},
             {"C:\\..\\..\\a", "/a"},
             {"C:", here},
             {"C:a.htm", here + "/a.htm"},
             {"a\\b.htm", here + "/a/b.htm"},
             {".", here},
             {"C:\\data\\", "/data/"},
             {"C:\\caf\xE9 \x80", "/caf\xC3\xA9 \xE2\x82\xAC"},
             {"C:\\\x81", "/\xC2\x81"},
             {"D:\\data", "-"},
             {"\\\\server\\share", "-"},
             {"//server/share", "-"},
             {Text("C:\\a\0b", 6), "-"},
             {"", "-"},
         }) {
        NativePaths paths;
        paths.SetCurrent(here);
        EXPECT_EQ(paths.ToSystem(path).value_or("-"), expected) << path;
    }
    EXPECT_EQ(NativePaths::FromSystem("/data/caf\xC3\xA9/"), "C:\\data\\caf\xE9");
    EXPECT_EQ(NativePaths::FromSystem("/"), "C:\\");
    for (const char* path : {"/a\\b", "/\xE4\xB8\xAD", "/\xFF"})
        EXPECT_FALSE(NativePaths::FromSystem(path)) << path;
}

TEST_F(NativeFilesTest, MatchesMasks) {
    struct Row {
        Text name, mask;
        bool expected;
    };
    for (const auto& [name, mask, expected] : std::vector<Row>{
             {"Page.HTM", "*.htm", true},
             {"page.html", "*.htm", false},
             {"aab", "a*b", true},
             {"abab", "*ab", true},
             {"abcbd", "a*b?d", false},
             {"abcbxd", "a*b?d", true},
             {"\xC4.txt", "\xE4.*", true},
             {"plain", "*.*", true},
             {"plain", "pl*.*", true},
             {"plain", "pl.*", false},
             {"", "*", true},
             {"a", "", false},
             {Text(2000, 'a'), "*a*a*a*a*a*a*a*a*b", false},
         })
        EXPECT_EQ(MatchesMask(name, mask), expected) << name << " " << mask;
}

TEST_F(NativeFilesTest, ListsPlainFilesByName) {
    for (const char* name : {"b.htm", "A.HTM", "_.htm", "caf\xC3\xA9.htm", "\xE4\xB8\xAD.htm", "\xFF.htm",
                             "back\\slash.htm", "other.txt"})
        directory.Write(name, "x");
    ::mkdir(directory.Path("dir.htm").c_str(), 0777);
    ASSERT_EQ(::symlink("b.htm", directory.Path("link.htm").c_str()), 0);
    ASSERT_EQ(::symlink("nowhere", directory.Path("dangling.htm").c_str()), 0);
    const std::vector<Text> pages{"A.HTM", "b.htm", "caf\xE9.htm", "link.htm", "_.htm"};
    EXPECT_EQ(files.List(directory.Component("*.htm")), pages);
    ASSERT_TRUE(files.ChangeDirectory(directory.Component()));
    EXPECT_EQ(files.List("*.HTM"), pages);
    EXPECT_EQ(files.List("C:*.htm"), pages);
    EXPECT_EQ(files.List("other.txt"), std::vector<Text>{"other.txt"});
    for (const char* nothing : {"Other.txt", "dir.htm", "missing\\*.*", "D:\\*.*", "", "C:\\"})
        EXPECT_TRUE(files.List(nothing).empty()) << nothing;
}

TEST_F(NativeFilesTest, TellsFilesFromDirectories) {
    directory.Write("a.htm", "12345");
    ::mkdir(directory.Path("sub").c_str(), 0777);
    struct Row {
        Text path;
        bool file, isDirectory;
    };
    for (const auto& [path, file, isDirectory] : std::vector<Row>{
             {directory.Component("a.htm"), true, false},
             {directory.Component("A.htm"), false, false},
             {directory.Component("a.htm\\"), false, false},
             {directory.Component("sub"), false, true},
             {directory.Component("sub\\"), false, true},
             {"C:\\", false, true},
             {"C:", false, true},
             {"D:\\", false, false},
             {"", false, false},
         }) {
        EXPECT_EQ(files.IsFile(path), file) << path;
        EXPECT_EQ(files.IsDirectory(path), isDirectory) << path;
    }
    std::uint64_t size = 0;
    EXPECT_TRUE(files.Size(directory.Component("a.htm"), size));
    EXPECT_EQ(size, 5u);
}

TEST_F(NativeFilesTest, GivesTheComponentsErrorNumbers) {
    directory.Write("plain", "x");
    ::mkdir(directory.Path("sub").c_str(), 0777);
    const Text missing = directory.Component("missing"), below = directory.Component("missing\\a.htm"),
               plain = directory.Component("plain"), sub = directory.Component("sub");
    Text text;
    Date date;
    std::uint64_t size;
    std::unique_ptr<FileReader> reader;
    struct Row {
        const char* what;
        FileResult result;
        Long expected;
    };
    for (const Row& row : std::vector<Row>{
             {"read missing", files.Read(missing, text), 53},
             {"read below missing", files.Read(below, text), 76},
             {"read directory", files.Read(sub, text), 75},
             {"read other drive", files.Read("D:\\a", text), 76},
             {"open missing", files.Open(missing, reader), 53},
             {"open directory", files.Open(sub, reader), 75},
             {"size missing", files.Size(missing, size), 53},
             {"written below missing", files.Written(below, date), 76},
             {"replace below missing", Replace(below, "x"), 76},
             {"replace below a file", Replace(directory.Component("plain\\a.htm"), "x"), 76},
             {"replace directory", Replace(sub, "x"), 75},
             {"replace long name", Replace(directory.Component(Text(300, 'a')), "x"), 52},
             {"replace full device", Replace("C:\\dev\\full", "x"), 61},
             {"delete missing", files.Delete(missing), 53},
             {"delete directory", files.Delete(sub), 75},
             {"rename missing", files.Rename(missing, plain), 53},
             {"rename to a taken name", files.Rename(sub, plain), 58},
             {"rename to a missing directory", files.Rename(plain, below), 76},
             {"make directory that is there", files.MakeDirectory(sub), 58},
             {"make directory below missing", files.MakeDirectory(below), 76},
             {"change to missing", files.ChangeDirectory(missing), 76},
             {"change to a file", files.ChangeDirectory(plain), 76},
             {"change drive", files.ChangeDrive("D:"), 68},
             {"own drive", files.ChangeDrive("c"), 0},
         }) {
        EXPECT_EQ(row.result.number, row.expected) << row.what << ": " << row.result.text;
        EXPECT_EQ(row.result.text.empty(), row.expected == 0) << row.what;
    }
    EXPECT_EQ(files.SystemErrorText(ENOENT), "No such file or directory.");
    for (const Long number : {0, -1, 99999, std::numeric_limits<Long>::min()})
        EXPECT_EQ(files.SystemErrorText(number), "") << number;
}

TEST_F(NativeFilesTest, ReadsWholeFilesAndPieces) {
    Text content(300'000, '\0');
    std::iota(content.begin(), content.end(), '\0');
    directory.Write("a.bin", content);
    Text read = "before";
    ASSERT_TRUE(files.Read(directory.Component("a.bin"), read));
    EXPECT_TRUE(read == content);
    EXPECT_FALSE(files.Read(directory.Component("missing"), read));
    EXPECT_TRUE(read == content);
    ASSERT_TRUE(files.Read("C:\\proc\\self\\status", read)); // of a size that is not told beforehand
    EXPECT_NE(read.find("Name:"), Text::npos);

    std::unique_ptr<FileReader> reader;
    ASSERT_TRUE(files.Open(directory.Component("a.bin"), reader));
    Text joined, piece(7777, ' ');
    for (std::size_t count = piece.size(); count == piece.size();) {
        ASSERT_TRUE(reader->Read(piece.data(), piece.size(), count));
        joined.append(piece, 0, count);
    }
    EXPECT_TRUE(joined == content);
}

TEST_F(NativeFilesTest, ReadsNothingThatMayNotEnd) {
    ASSERT_EQ(::mkfifo(directory.Path("pipe.htm").c_str(), 0600), 0);
    for (const Text& path : {directory.Component("pipe.htm"), Text("C:\\dev\\zero"), directory.Component()}) {
        Text content;
        std::unique_ptr<FileReader> reader;
        EXPECT_FALSE(files.Read(path, content)) << path;
        EXPECT_FALSE(files.Open(path, reader)) << path;
    }
}

TEST_F(NativeFilesTest, ReplacesByManyPieces) {
    std::vector<Text> texts;
    std::vector<TextView> pieces;
    Text expected;
    for (int i = 0; i < 3000; ++i) texts.push_back(Text(static_cast<std::size_t>(i % 7) * 100, 'a' + i % 26));
    for (const Text& text : texts) {
        pieces.push_back(text);
        expected += text;
    }
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(files.Replace(directory.Component("a.htm"), pieces));
        EXPECT_TRUE(directory.Read("a.htm") == expected);
    }
    ASSERT_TRUE(files.Replace(directory.Component("empty.htm"), {}));
    EXPECT_EQ(directory.Names(), (std::set<std::string>{"a.htm", "empty.htm"}));
}

TEST_F(NativeFilesTest, ReplacingKeepsModeLinksAndBackup) {
    directory.Write("page.htm", "one");
    ::chmod(directory.Path("page.htm").c_str(), 0640);
    const Text page = directory.Component("page.htm"), backup = directory.Component("page.bak");
    ASSERT_TRUE(Replace(page, "two", backup));
    ASSERT_TRUE(Replace(page, "three", backup));
    EXPECT_EQ(directory.Read("page.htm"), "three");
    EXPECT_EQ(directory.Read("page.bak"), "two");
    EXPECT_EQ(ModeOf("page.htm"), 0640u);

    ::mkdir(directory.Path("sub").c_str(), 0777);
    ASSERT_EQ(::symlink("../page.htm", directory.Path("sub/link.htm").c_str()), 0);
    ASSERT_EQ(::symlink("sub/link.htm", directory.Path("chain.htm").c_str()), 0);
    ASSERT_EQ(::symlink("new.htm", directory.Path("dangling.htm").c_str()), 0);
    ASSERT_EQ(::symlink("loop.htm", directory.Path("loop.htm").c_str()), 0);
    ASSERT_TRUE(Replace(directory.Component("chain.htm"), "four"));
    ASSERT_TRUE(Replace(directory.Component("dangling.htm"), "five"));
    EXPECT_FALSE(Replace(directory.Component("loop.htm"), "six"));
    EXPECT_EQ(directory.Read("page.htm"), "four");
    EXPECT_EQ(directory.Read("new.htm"), "five");
    EXPECT_TRUE(std::filesystem::is_symlink(directory.Path("chain.htm")));
    EXPECT_TRUE(std::filesystem::is_symlink(directory.Path("dangling.htm")));

    // A backup name that is the file's own, or one more name of it.
    ASSERT_TRUE(Replace(page, "seven", page));
    ASSERT_EQ(::unlink(directory.Path("page.bak").c_str()), 0);
    ASSERT_EQ(::link(directory.Path("page.htm").c_str(), directory.Path("page.bak").c_str()), 0);
    ASSERT_TRUE(Replace(page, "eight", backup));
    EXPECT_EQ(directory.Read("page.htm"), "eight");
    EXPECT_EQ(directory.Read("page.bak"), "seven");

    // A backup that can't be kept costs nothing.
    const FileResult refused = Replace(page, "nine", directory.Component("sub"));
    EXPECT_TRUE(!refused && refused.ofBackup);
    EXPECT_EQ(directory.Read("page.htm"), "eight");

    // A new file needs no backup.
    ASSERT_TRUE(Replace(directory.Component("fresh.htm"), "x", directory.Component("fresh.bak")));
    EXPECT_EQ(directory.Names(), (std::set<std::string>{"chain.htm", "dangling.htm", "fresh.htm", "loop.htm",
                                                        "new.htm", "page.bak", "page.htm", "sub"}));
}

/// What is open, and what a program that is started would inherit of it.
struct Descriptors {
    int open = 0, inherited = 0;

    Descriptors() {
        for (int file = 0; file < 256; ++file) {
            const int flags = ::fcntl(file, F_GETFD);
            open += flags >= 0;
            inherited += flags >= 0 && (flags & FD_CLOEXEC) == 0;
        }
    }
};

TEST_F(NativeFilesTest, NewFilesFollowTheUsersMaskAndNothingStaysOpen) {
    /// Sees what lies in the directory while a page is written.
    struct Watching final : ostrel::test::FaultyCalls {
        int Rename(const char* from, const char* to) override {
            names = place->Names();
            return FaultyCalls::Rename(from, to);
        }
        const TemporaryDirectory* place = nullptr;
        std::set<std::string> names;
    } watching;
    watching.place = &directory;
    watching.unnamedFiles = false;
    NativeFiles named(watching);
    const Descriptors before;
    const mode_t mask = ::umask(027);
    ASSERT_TRUE(Replace(directory.Component("a.htm"), "x"));
    ASSERT_TRUE(named.Replace(directory.Component("b.htm"), {}));
    ASSERT_TRUE(files.MakeDirectory(directory.Component("sub")));
    ::umask(mask);
    EXPECT_EQ(ModeOf("a.htm"), 0640u);
    EXPECT_EQ(ModeOf("b.htm"), 0640u);
    EXPECT_EQ(ModeOf("sub"), 0750u);

    ASSERT_TRUE(named.Replace(directory.Component("a.htm"), {}));
    watching.names.erase("a.htm");
    watching.names.erase("b.htm");
    watching.names.erase("sub");
    ASSERT_EQ(watching.names.size(), 1u);
    EXPECT_TRUE(watching.names.begin()->starts_with(".ostrel-") &&
                watching.names.begin()->ends_with(".part"));

    std::unique_ptr<FileReader> reader;
    ASSERT_TRUE(files.Open(directory.Component("a.htm"), reader));
    EXPECT_EQ(Descriptors().open, before.open + 1);
    EXPECT_EQ(Descriptors().inherited, before.inherited);
    reader.reset();
    Text path;
    ASSERT_TRUE(files.MakeTemporary("wbh", path));
    EXPECT_EQ(std::filesystem::status(NativePaths().ToSystem(path).value()).permissions(),
              std::filesystem::perms(0600));
    ASSERT_TRUE(files.Delete(path));
    EXPECT_FALSE(files.Read(directory.Component("sub"), path));
    EXPECT_EQ(Descriptors().open, before.open);
}

TEST_F(NativeFilesTest, WritesDevicesInPlace) {
    ASSERT_TRUE(Replace("C:\\dev\\null", "x"));
    struct stat status {};
    ASSERT_EQ(::stat("/dev/null", &status), 0);
    EXPECT_TRUE(S_ISCHR(status.st_mode));
}

TEST_F(NativeFilesTest, RenamesDeletesAndClearsAttributes) {
    directory.Write("a", "x");
    const Text a = directory.Component("a"), b = directory.Component("b");
    ASSERT_TRUE(files.Rename(a, b));
    EXPECT_FALSE(files.IsFile(a));
    ::chmod(directory.Path("b").c_str(), 0444);
    ASSERT_TRUE(files.ClearAttributes(b));
    EXPECT_EQ(ModeOf("b"), 0644u);
    ASSERT_TRUE(files.Delete(b));
    EXPECT_TRUE(directory.Names().empty());
}

TEST_F(NativeFilesTest, KeepsItsOwnCurrentDirectory) {
    ::mkdir(directory.Path("sub").c_str(), 0777);
    ASSERT_TRUE(files.ChangeDirectory(directory.Component()));
    ASSERT_TRUE(files.ChangeDirectory("sub"));
    EXPECT_EQ(files.CurrentDirectory(), directory.Component("sub"));
    ASSERT_TRUE(Replace("a.htm", "x"));
    EXPECT_EQ(directory.Read("sub/a.htm"), "x");
    ASSERT_TRUE(files.ChangeDirectory(".."));
    EXPECT_EQ(files.CurrentDirectory(), directory.Component());
    ASSERT_TRUE(files.ChangeDirectory("\\"));
    EXPECT_EQ(files.CurrentDirectory(), "C:\\");
}

TEST_F(NativeFilesTest, MakesTemporaryFilesWhereTheUserWantsThem) {
    const char* const former = std::getenv("TMPDIR");
    const std::string kept = former ? former : "";
    ::setenv("TMPDIR", directory.Path().c_str(), 1);
    EXPECT_EQ(files.TemporaryDirectory(), directory.Component());
    std::set<Text> paths;
    for (int i = 0; i < 50; ++i) {
        Text path;
        ASSERT_TRUE(files.MakeTemporary("wbh", path));
        EXPECT_TRUE(path.starts_with(directory.Component("wbh")) && path.ends_with(".tmp")) << path;
        EXPECT_TRUE(files.IsFile(path)) << path;
        paths.insert(path);
    }
    EXPECT_EQ(paths.size(), 50u);
    Text path = "kept";
    for (const Text& prefix : {Text("..\\"), Text("a/b"), Text("a\0b", 3)})
        EXPECT_FALSE(files.MakeTemporary(prefix, path));
    EXPECT_EQ(path, "kept");
    ::setenv("TMPDIR", directory.Path("missing").c_str(), 1);
    EXPECT_EQ(files.TemporaryDirectory(), "C:\\tmp");
    former ? ::setenv("TMPDIR", kept.c_str(), 1) : ::unsetenv("TMPDIR");

    EXPECT_TRUE(files.IsDirectory(files.ApplicationDirectory()));
}
