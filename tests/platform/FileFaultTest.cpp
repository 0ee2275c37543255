#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/native/NativeFiles.h"
#include "support/FaultyCalls.h"
#include "support/TemporaryDirectory.h"

using namespace ostrel;
using ostrel::test::FaultyCalls;
using ostrel::test::TemporaryDirectory;

namespace {

constexpr TextView OldPage = "<HTML>old page</HTML>";
const Text NewHead(7'000, 'h'), NewBody(20'000, 'b');
const std::vector<TextView> NewPieces{NewHead, NewBody};
const Text NewPage = NewHead + NewBody;

/// One way to write a page, tried with every call failing in turn.
struct Case {
    const char* name;
    bool oldThere;
    bool backup;
    bool link;
    bool unnamed; ///< the file system has files without names
    bool links;   ///< and hard links
};

class FileFaultTest : public testing::TestWithParam<Case> {
protected:
    /// Runs the case in a fresh directory; `fault` is set up before the write.
    void Run(const std::function<void(FaultyCalls&)>& fault, int& calls, bool& failed) {
        const Case& c = GetParam();
        TemporaryDirectory directory;
        std::set<std::string> expected{"page.htm"};
        if (c.link) {
            ASSERT_EQ(::symlink("real.htm", directory.Path("page.htm").c_str()), 0);
            expected.insert("real.htm");
        }
        if (c.oldThere) directory.Write(c.link ? "real.htm" : "page.htm", OldPage);
        if (c.backup) directory.Write("page.bak", "former");
        const std::set<std::string> before = directory.Names();

        FaultyCalls faulty;
        faulty.unnamedFiles = c.unnamed;
        faulty.hardLinks = c.links;
        fault(faulty);
        NativeFiles files(faulty);
        const FileResult result = files.Replace(directory.Component("page.htm"), NewPieces,
                                                c.backup ? directory.Component("page.bak") : Text());
        calls = faulty.count;
        failed = !result;

        const std::string page = directory.Read("page.htm");
        const bool isOld =
            c.oldThere ? page == OldPage : !std::filesystem::exists(directory.Path("page.htm"));
        const bool isNew = page == NewPage;
        EXPECT_TRUE(isOld || isNew) << "a page of " << page.size() << " bytes";
        if (result) {
            EXPECT_TRUE(isNew);
        } else {
            EXPECT_NE(result.number, 0);
            EXPECT_TRUE(result.text.ends_with(".")) << result.text;
        }
        if (c.backup) {
            const std::string backup = directory.Read("page.bak");
            EXPECT_TRUE(backup == OldPage || (isOld && backup == "former")) << backup.size();
            expected.insert("page.bak");
        }
        EXPECT_EQ(directory.Names(), isNew ? expected : before);
    }
};

} // namespace

TEST_P(FileFaultTest, LeavesTheOldPageOrTheNewOne) {
    int calls = 0, unused = 0, failures = 0;
    bool failed = false;
    Run([](FaultyCalls&) {}, calls, failed);
    ASSERT_FALSE(failed);
    ASSERT_GE(calls, 4);
    for (const int error : {ENOSPC, EIO, EACCES, EINTR, EEXIST, ENOENT, EOPNOTSUPP})
        for (int n = 1; n <= calls; ++n) {
            SCOPED_TRACE(std::string(GetParam().name) + ", call " + std::to_string(n) + " fails with " +
                         std::to_string(error));
            Run([&](FaultyCalls& faulty) { faulty.FailAt(n, error); }, unused, failed);
            failures += failed;
        }
    EXPECT_GE(failures, calls);

    SCOPED_TRACE("every close fails");
    Run([](FaultyCalls& faulty) { faulty.closeError = EIO; }, unused, failed);
    EXPECT_TRUE(failed);
    SCOPED_TRACE("every close is interrupted, and done");
    Run([](FaultyCalls& faulty) { faulty.closeError = EINTR; }, unused, failed);
    EXPECT_FALSE(failed);
    SCOPED_TRACE("short writes");
    Run([](FaultyCalls& faulty) { faulty.largestWrite = 777; }, unused, failed);
    EXPECT_FALSE(failed);
    SCOPED_TRACE("the disk is full behind 10,000 bytes");
    Run([](FaultyCalls& faulty) { faulty.roomLeft = 10'000; }, unused, failed);
    EXPECT_TRUE(failed);
}

INSTANTIATE_TEST_SUITE_P(Ways, FileFaultTest,
                         testing::Values(Case{"new", false, false, false, true, true},
                                         Case{"new with named temporaries", false, false, false, false, true},
                                         Case{"replaced", true, false, false, true, true},
                                         Case{"replaced with named temporaries", true, false, false, false,
                                              true},
                                         Case{"backup", true, true, false, true, true},
                                         Case{"backup by a copy", true, true, false, false, false},
                                         Case{"through a link", true, false, true, true, true}),
                         [](const auto& way) { return "Way" + std::to_string(way.index); });

TEST(FileFault, WhatRefusesAccessIsLeftAlone) {
    TemporaryDirectory directory;
    directory.Write("page.htm", OldPage);
    FaultyCalls faulty;
    NativeFiles files(faulty);
    const Text page = directory.Component("page.htm");
    EXPECT_TRUE(files.IsFile(page));
    faulty.accessError = EACCES;
    EXPECT_FALSE(files.IsFile(page));
    const Text before = files.CurrentDirectory();
    for (const FileResult& result :
         {files.Replace(page, NewPieces), files.ChangeDirectory(directory.Component(""))}) {
        EXPECT_EQ(result.number, 75) << result.text;
        EXPECT_FALSE(result.text.empty());
    }
    EXPECT_EQ(directory.Read("page.htm"), OldPage);
    EXPECT_EQ(files.CurrentDirectory(), before);
}

TEST(FileFault, ADeviceThatFailsToCloseIsReported) {
    FaultyCalls faulty;
    faulty.closeError = EIO;
    NativeFiles files(faulty);
    EXPECT_EQ(files.Replace("C:\\dev\\null", NewPieces).number, 57);
}

TEST(FileFault, AKilledProcessLeavesWholePages) {
    TemporaryDirectory directory;
    NativeFiles files;
    const Text page = directory.Component("page.htm"), backup = directory.Component("page.bak");
    const auto isWhole = [](const Text& content) {
        return content.size() == 100'000 && content.find_first_not_of(content[0]) == Text::npos;
    };
    const Text first(100'000, 'a');
    const TextView piece = first;
    ASSERT_TRUE(files.Replace(page, {&piece, 1}));

    for (unsigned round = 0; round < 40; ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (unsigned i = 0;; ++i) {
                const Text content(100'000, static_cast<char>('a' + i % 26));
                const TextView half = TextView(content).substr(0, 50'000);
                const TextView halves[] = {half, half};
                if (!files.Replace(page, halves, i % 2 ? backup : Text())) ::_exit(1);
                const Text fresh = directory.Component("new" + std::to_string(round % 4) + ".htm");
                if (!files.Replace(fresh, halves) || !files.Delete(fresh)) ::_exit(1);
            }
        }
        ::usleep(1000 + round * 731 % 9000);
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));

        Text content;
        ASSERT_TRUE(files.Read(page, content)) << round;
        EXPECT_TRUE(isWhole(content)) << round;
        for (const Text& name : files.List(directory.Component("*.*"))) {
            if (name.ends_with(".part")) continue;
            ASSERT_TRUE(files.Read(directory.Component(name), content)) << name;
            EXPECT_TRUE(isWhole(content)) << name << " in round " << round;
        }
    }
}
