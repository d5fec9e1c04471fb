// The write probe with every one of its system calls failing in turn.
#include "faults/SystemCallFaults.h"
#include "support/DiskState.h"
#include "ui/qt/dialogs/WriteAccessProbe.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <boost/filesystem/operations.hpp>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

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

    /** What a probe left behind that could not be removed. */
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
            // What is made to try a place cannot go when the system does not remove it; nothing else changes.
            const bool removing = (call == "unlink" || call == "lstat") && error != EINTR;
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
    const auto opening = std::find(calls.begin(), calls.end(), "fopen");
    if (opening == calls.end()) {
        return; // refused before
    }
    const int failing = static_cast<int>(opening - calls.begin()) + 1;
    for (const int error : {EACCES, ENOSPC, EMFILE, EROFS, EIO, ENAMETOOLONG}) {
        const SystemCallFaults faults(failing, error);
        EXPECT_FALSE(probe()) << std::strerror(error);
    }
}

INSTANTIATE_TEST_SUITE_P(Places, WriteAccessProbeFaults,
    testing::Values(Scenario{"aNewName", "new", true, {"stat", "fopen", "fclose", "lstat", "unlink"}},
        Scenario{"aFile", "file", true, {"stat", "fopen", "fclose"}},
        Scenario{"aFolder", "folder", true, {"stat", "getrandom", "fopen", "fclose", "lstat", "unlink"}},
        Scenario{
            "aLinkToNothing", "dangling", true, {"stat", "fopen", "readlink", "fopen", "fclose", "lstat", "unlink"}},
        Scenario{"aMissingFolder", "missing/new", false, {"stat", "fopen"}}),
    [](const auto& place) { return place.param.name; });

} // namespace morvane::test
