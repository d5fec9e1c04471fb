// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Each system call of the write probe fails in turn.
#include "faults/SystemCallFaults.h"
#include "support/DiskState.h"
#include "ui/qt/dialogs/save/WriteAccessProbe_p.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <boost/filesystem/operations.hpp>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

using morvane::ui::checkWriteAccess;
using morvane::ui::probeOpenForAppend;

namespace morvane::test {

namespace {

namespace fs = boost::filesystem;
using Names = std::vector<std::string>;

struct Scenario
{
    const char* name;
    const char* target;
    bool writable;
    /** In the order of the probe. */
    Names calls;
};

void PrintTo(const Scenario& scenario, std::ostream* out)
{
    *out << scenario.name;
}

const int errors[] = {EACCES, ENOSPC, EMFILE, EROFS, EIO, ENAMETOOLONG, EINTR};

class WriteAccessProbeFaults : public testing::TestWithParam<Scenario>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_directory.isValid());
        QFile file(m_directory.filePath("file"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("content");
        file.close();
        fs::create_directory(path("folder"));
        fs::create_symlink("nothing", path("dangling"));
    }

    fs::path path(const std::string& name) const { return fs::path(m_directory.path().toStdString()) / name; }
    bool probe() const { return checkWriteAccess(path(GetParam().target)); }

    /** Removes the files that a probe could not remove. */
    void removeWhatIsNew() const
    {
        for (const char* const folder : {"", "folder"}) {
            for (const fs::directory_entry& entry : fs::directory_iterator(path(folder))) {
                const std::string name = entry.path().filename().string();
                if (name != "file" && name != "folder" && name != "dangling") {
                    fs::remove(entry.path());
                }
            }
        }
    }

    Names callsWithoutFault() const
    {
        const SystemCallFaults faults;
        probe();
        return SystemCallFaults::calls();
    }

    const QTemporaryDir m_directory;
};

} // namespace

TEST_P(WriteAccessProbeFaults, makesTheCallsThatAreMadeToFail)
{
    const SystemCallFaults faults;
    EXPECT_EQ(probe(), GetParam().writable);
    EXPECT_EQ(SystemCallFaults::calls(), GetParam().calls);
}

TEST_P(WriteAccessProbeFaults, answersWhicheverCallFailsAndHarmsNothing)
{
    const DiskState before(m_directory.path());
    const Names calls = callsWithoutFault();
    for (int failing = 1; failing <= static_cast<int>(calls.size()); ++failing) {
        const std::string call = calls[static_cast<std::size_t>(failing - 1)];
        for (const int error : errors) {
            SCOPED_TRACE(call + ", call " + std::to_string(failing) + ": " + std::strerror(error));
            bool answer = false;
            {
                const SystemCallFaults faults(failing, error);
                EXPECT_NO_THROW(answer = probe());
            }
            EXPECT_TRUE(GetParam().writable || !answer) << "a refused place";
            // When the removal fails, the file of the probe may stay; nothing else may change.
            const bool removing = (call == "unlink" || call == "lstat" || call == "fstat") && error != EINTR;
            if (!removing) {
                EXPECT_EQ(DiskState(m_directory.path()).text(), before.text());
            } else {
                EXPECT_EQ(answer, GetParam().writable) << "the place was writable all the same";
                EXPECT_LE(QDir(m_directory.path()).count() + QDir(m_directory.filePath("folder")).count(), 8u);
            }
            removeWhatIsNew();
            ASSERT_EQ(DiskState(m_directory.path()).text(), before.text());
        }
    }
}

TEST_P(WriteAccessProbeFaults, isNotMisledByAnInterruption)
{
    const int count = static_cast<int>(callsWithoutFault().size());
    for (int failing = 1; failing <= count; ++failing) {
        const SystemCallFaults faults(failing, EINTR);
        EXPECT_EQ(probe(), GetParam().writable) << "call " << failing;
    }
}

TEST_P(WriteAccessProbeFaults, refusesWhenTheFileCannotBeOpened)
{
    const Names calls = callsWithoutFault();
    const auto opening = std::find(calls.begin(), calls.end(), "open");
    if (opening == calls.end()) {
        return; // refused before
    }
    const int failing = static_cast<int>(opening - calls.begin()) + 1;
    for (const int error : {EACCES, ENOSPC, EMFILE, EROFS, EIO, ENAMETOOLONG}) {
        const SystemCallFaults faults(failing, error);
        EXPECT_FALSE(probe()) << std::strerror(error);
    }
}

namespace {

/** Another program that changes files between two calls of the probe. */
class WriteAccessProbeFaultRival : public testing::Test
{
protected:
    QString path(const char* name) const { return m_directory.filePath(QLatin1String(name)); }
    bool probe(const char* name) const { return checkWriteAccess(path(name).toStdString()); }
    QStringList entries() const { return QDir(m_directory.path()).entryList(QDir::Files | QDir::System); }

    void write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    QByteArray contentOf(const char* name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    /** Writes the content under another name and renames that onto this one, as careful programs do. */
    void renameOnto(const char* name) const
    {
        write("theirs", "theirs");
        fs::rename(path("theirs").toStdString(), path(name).toStdString());
    }

    const QTemporaryDir m_directory;
};

} // namespace

TEST_F(WriteAccessProbeFaultRival, keepsAFileThatItRenamesOntoTheName)
{
    for (const char* const call : {"fstat", "lstat", "rename"}) {
        SCOPED_TRACE(call);
        const SystemCallFaults rival(call, [this] { renameOnto("new"); });
        EXPECT_TRUE(probe("new"));
        EXPECT_EQ(contentOf("new"), "theirs");
        EXPECT_EQ(entries(), QStringList("new"));
        fs::remove(path("new").toStdString());
    }
}

TEST_F(WriteAccessProbeFaultRival, keepsWhatItWritesIntoTheFileThatTheProbeMade)
{
    const SystemCallFaults rival("fstat", [this] { write("new", "theirs"); });
    EXPECT_TRUE(probe("new"));
    EXPECT_EQ(contentOf("new"), "theirs");
}

TEST_F(WriteAccessProbeFaultRival, keepsTheLaterOfTwoFilesThatItRenamesOntoTheName)
{
    std::unique_ptr<SystemCallFaults> next;
    const auto renameTwice = [&] {
        renameOnto("new");
        next = std::make_unique<SystemCallFaults>("link", [this] {
            write("later", "later");
            fs::rename(path("later").toStdString(), path("new").toStdString());
        });
    };
    const SystemCallFaults rival("rename", renameTwice);
    EXPECT_TRUE(probe("new"));
    EXPECT_EQ(contentOf("new"), "later");
    EXPECT_EQ(entries(), QStringList("new"));
}

TEST_F(WriteAccessProbeFaultRival, getsItsNameBackWhereThereAreNoHardLinks)
{
    std::unique_ptr<SystemCallFaults> next;
    const auto renameWithoutLinks = [&] {
        renameOnto("new");
        next = std::make_unique<SystemCallFaults>(3, EPERM); // rename, lstat, link
    };
    const SystemCallFaults rival("rename", renameWithoutLinks);
    EXPECT_TRUE(probe("new"));
    EXPECT_EQ(SystemCallFaults::calls(), (Names{"rename", "lstat", "link", "rename", "close"}));
    EXPECT_EQ(contentOf("new"), "theirs");
    EXPECT_EQ(entries(), QStringList("new"));
}

TEST_F(WriteAccessProbeFaultRival, mayTakeTheFileAwayThatTheProbeMade)
{
    const SystemCallFaults rival("lstat", [this] { fs::remove(path("new").toStdString()); });
    EXPECT_TRUE(probe("new"));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(WriteAccessProbeFaultRival, keepsAFileThatItMakesBeforeTheProbeDoes)
{
    const SystemCallFaults rival("open", [this] { renameOnto("new"); });
    EXPECT_TRUE(probe("new"));
    EXPECT_EQ(contentOf("new"), "theirs");
}

TEST_F(WriteAccessProbeFaultRival, seesItsFileVanishAgainAndTheProbeLeavesNothing)
{
    write("old", "content");
    const SystemCallFaults rival("open", [this] { fs::remove(path("old").toStdString()); });
    EXPECT_TRUE(probe("old")) << "the name was there when its status was read";
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(WriteAccessProbeFaultRival, removesTheNameBetweenTwoLooksAtIt)
{
    write("new", "content");
    const SystemCallFaults rival("readlink", [this] { fs::remove(path("new").toStdString()); });
    EXPECT_TRUE(probeOpenForAppend(path("new").toStdString(), true));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(WriteAccessProbeFaultRival, isNoReasonToTakeAnUnreadableStatusForAnAbsentFile)
{
    write("old", "content");
    const SystemCallFaults faults(1, EIO);
    EXPECT_TRUE(probe("old"));
    EXPECT_EQ(SystemCallFaults::calls().front(), "stat");
    EXPECT_EQ(contentOf("old"), "content");
}

INSTANTIATE_TEST_SUITE_P(Places, WriteAccessProbeFaults,
    testing::Values(Scenario{"aNewName", "new", true,
                        {"stat", "open", "fstat", "lstat", "getrandom", "rename", "lstat", "unlink", "close"}},
        Scenario{"aFile", "file", true, {"stat", "open", "close"}},
        Scenario{"aFolder", "folder", true,
            {"stat", "getrandom", "open", "fstat", "lstat", "getrandom", "rename", "lstat", "unlink", "close"}},
        Scenario{"aLinkToNothing", "dangling", true,
            {"stat", "open", "readlink", "open", "fstat", "lstat", "getrandom", "rename", "lstat", "unlink", "close"}},
        Scenario{"aMissingFolder", "missing/new", false, {"stat", "open"}}),
    [](const auto& place) { return place.param.name; });

} // namespace morvane::test
