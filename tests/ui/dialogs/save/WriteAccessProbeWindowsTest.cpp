// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Features of Windows only: open files that are locked, attributes, names without distinction of case.
#include "windows/ExclusiveFile.h"

#include "WriteAccessProbeFixture.h"
#include <cstdio>

using morvane::ui::checkWriteAccess;
using namespace morvane::test;

namespace {

class WriteAccessProbeWindows : public WriteAccessProbeTest
{
};

TEST_F(WriteAccessProbeWindows, refusesAFileThatIsOpenWithoutSharing)
{
    const fs::path file = makeFile("\xE9\x96\x8B \xF0\x9F\x94\x92.dat");
    {
        const ExclusiveFile holder(file.native());
        ASSERT_TRUE(holder.isOpen());
        EXPECT_FALSE(checkWriteAccess(file));
    }
    expectAnswer(true, file);
}

TEST_F(WriteAccessProbeWindows, refusesAReadOnlyFile)
{
    const fs::path file = makeFile("fixed.dat");
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    if (std::FILE* const opened = _wfopen(file.c_str(), L"a+")) {
        std::fclose(opened);
        GTEST_SKIP() << "read-only files bind nobody here: Wine, run by root";
    }
    expectAnswer(false, file);
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
}

TEST_F(WriteAccessProbeWindows, takesANameThatDiffersInCaseForTheSameFile)
{
    makeFile("Report.dat");
    expectAnswer(true, path("report.DAT"));
}

TEST_F(WriteAccessProbeWindows, takesNamesWithEitherSeparator)
{
    fs::create_directory(path("folder"));
    expectAnswer(true, path("folder/new.dat"));
    expectAnswer(true, path("folder\\new.dat"));
}

TEST_F(WriteAccessProbeWindows, refusesReservedCharacters)
{
    for (const char* const name : {"a?.dat", "a*.dat", "a<b>.dat", "a|b.dat", "a\"b.dat", "a\nb.dat"}) {
        expectAnswer(false, path(name));
    }
}

} // namespace
