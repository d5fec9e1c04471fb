// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Features of POSIX systems only: links, permissions of users, pipes, limits.
#include "WriteAccessProbeFixture.h"

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <string>

using morvane::ui::checkWriteAccess;
using namespace morvane::test;

namespace {

class WriteAccessProbePosix : public WriteAccessProbeTest
{
};

/** Runs @p prepare and then @p question in a child process, and returns the answer of @p question. */
bool askInChild(const std::function<void()>& prepare, const std::function<bool()>& question)
{
    const pid_t child = fork();
    if (child == 0) {
        prepare();
        _exit(question() ? 10 : 11);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << "the child died";
    EXPECT_TRUE(WEXITSTATUS(status) == 10 || WEXITSTATUS(status) == 11);
    return WEXITSTATUS(status) == 10;
}

void becomeAnotherUser()
{
    if (setgid(65534) != 0 || setuid(65534) != 0) {
        _exit(1);
    }
}

TEST_F(WriteAccessProbePosix, takesANameThatDiffersInCaseForAnotherFile)
{
    makeFile("Report.dat");
    expectAnswer(true, path("report.DAT"));
}

TEST_F(WriteAccessProbePosix, acceptsNamesWithQuotesAndLineFeeds)
{
    expectAnswer(true, path("it's \"quoted\"\n"));
}

TEST_F(WriteAccessProbePosix, refusesADirectoryThatTakesNoFiles)
{
    expectAnswer(false, "/proc/new.dat");
    expectAnswer(false, "/proc");
}

TEST_F(WriteAccessProbePosix, refusesNamesThatTheDiskDoesNotTake)
{
    expectAnswer(true, path(std::string(255, 'n')));
    expectAnswer(false, path(std::string(256, 'n')));
    expectAnswer(false, path(std::string(5000, 'n')));
}

TEST_F(WriteAccessProbePosix, followsAGoodLinkToItsFile)
{
    makeFile("file");
    fs::create_symlink("file", path("link"));
    expectAnswer(true, path("link"));
}

TEST_F(WriteAccessProbePosix, triesTheTargetOfADanglingLinkAndKeepsTheLink)
{
    fs::create_symlink("not-there", path("link"));
    expectAnswer(true, path("link"));
    fs::create_symlink(path("link"), path("link to link"));
    expectAnswer(true, path("link to link"));
    fs::create_symlink("missing/not-there", path("nowhere"));
    expectAnswer(false, path("nowhere"));
}

TEST_F(WriteAccessProbePosix, followsAsManyDanglingLinksAsTheSystem)
{
    const auto name = [](int link) { return "link" + std::to_string(link); };
    fs::create_symlink("not-there", path(name(1)));
    for (int link = 2; link <= 45; ++link) {
        fs::create_symlink(name(link - 1), path(name(link)));
    }
    for (const int link : {1, 2, 39, 40, 41, 45}) {
        SCOPED_TRACE(link);
        std::FILE* const file = std::fopen(path(name(link)).c_str(), "a");
        const bool systemFollows = file != nullptr;
        if (file) {
            std::fclose(file);
            fs::remove(path("not-there"));
        }
        EXPECT_EQ(systemFollows, link <= 40);
        expectAnswer(systemFollows, path(name(link)));
    }
}

TEST_F(WriteAccessProbePosix, refusesALoopOfLinksAndKeepsIt)
{
    fs::create_symlink("b", path("a"));
    fs::create_symlink("a", path("b"));
    expectAnswer(false, path("a"));
}

TEST_F(WriteAccessProbePosix, opensDevicesAndPipesWithoutWaiting)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    expectAnswer(true, path("pipe"));
    expectAnswer(true, "/dev/null");
    expectAnswer(true, "/dev/full");
}

TEST_F(WriteAccessProbePosix, refusesAnImmutableFile)
{
    const fs::path file = makeFile("fixed");
    if (std::system(("chattr +i '" + file.string() + "' 2>/dev/null").c_str()) != 0) {
        GTEST_SKIP() << "this file system has no immutable files";
    }
    expectAnswer(false, file);
    ASSERT_EQ(std::system(("chattr -i '" + file.string() + "'").c_str()), 0);
}

TEST_F(WriteAccessProbePosix, refusesWhatAnotherUserMayNotWrite)
{
    if (getuid() != 0) {
        GTEST_SKIP() << "only root can become another user";
    }
    const fs::path file = makeFile("read-only");
    fs::create_directory(path("closed"));
    fs::create_directory(path("open"));
    ASSERT_EQ(chmod(m_directory.path().toUtf8().constData(), 0755), 0);
    ASSERT_EQ(chmod(path("closed").c_str(), 0755), 0);
    ASSERT_EQ(chmod(path("open").c_str(), 0777), 0);
    ASSERT_EQ(chmod(file.c_str(), 0444), 0);
    const DiskState before(m_directory.path());
    const auto answer = [](const fs::path& target) {
        return askInChild(&becomeAnotherUser, [&] { return checkWriteAccess(target); });
    };

    EXPECT_FALSE(answer(file));
    EXPECT_FALSE(answer(path("new")));
    EXPECT_FALSE(answer(path("closed")));
    EXPECT_FALSE(answer(path("closed/new")));
    EXPECT_TRUE(answer(path("open")));
    EXPECT_TRUE(answer(path("open/new")));
    EXPECT_EQ(DiskState(m_directory.path()).text(), before.text());
}

TEST_F(WriteAccessProbePosix, answersWithoutDescriptorsLeft)
{
    const fs::path file = makeFile("file");
    const auto useUp = [&] {
        // When the sanitizer checks a type for the first time, it needs descriptors.
        checkWriteAccess(path("none/new"));
        const rlimit limit{3, 3};
        if (setrlimit(RLIMIT_NOFILE, &limit) != 0) {
            _exit(1);
        }
    };
    EXPECT_FALSE(askInChild(useUp, [&] { return checkWriteAccess(file); }));
    EXPECT_FALSE(askInChild(useUp, [&] { return checkWriteAccess(path("new")); }));
    EXPECT_FALSE(fs::exists(path("new")));
    EXPECT_TRUE(checkWriteAccess(file));
}

TEST_F(WriteAccessProbePosix, answersOnAFullDevice)
{
    fs::create_directory(path("full"));
    if (mount("tmpfs", path("full").c_str(), "tmpfs", 0, "size=8k,nr_inodes=3") != 0) {
        GTEST_SKIP() << "this process may not mount a file system";
    }
    makeFile("full/old", QByteArray(8192, 'x'));
    EXPECT_TRUE(checkWriteAccess(path("full/new"))) << "an empty file still fits";
    makeFile("full/last", "");
    const DiskState before(QString::fromStdString(path("full").string()));
    EXPECT_FALSE(checkWriteAccess(path("full/new")));
    EXPECT_FALSE(checkWriteAccess(path("full")));
    EXPECT_TRUE(checkWriteAccess(path("full/old")));
    EXPECT_EQ(DiskState(QString::fromStdString(path("full").string())).text(), before.text());
    EXPECT_EQ(umount(path("full").c_str()), 0);
}

} // namespace
