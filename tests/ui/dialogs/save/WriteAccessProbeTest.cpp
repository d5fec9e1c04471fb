// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/DiskNames.h"
#include "WriteAccessProbeFixture.h"

using morvane::ui::checkWriteAccess;
using morvane::ui::pathFromUtf8;
using morvane::ui::probeOpenForAppend;
using namespace morvane::test;

namespace {

using WriteAccessProbe = WriteAccessProbeTest;

TEST_F(WriteAccessProbe, acceptsANewNameAndLeavesNothingBehind)
{
    expectAnswer(true, path("new.dat"));
    expectAnswer(true, path("two words"));
    expectAnswer(true, path("\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80.dat"));
    expectAnswer(true, path("it's [quoted]; & %1"));
}

TEST_F(WriteAccessProbe, acceptsAnExistingFileAndKeepsItsBytesAndTimes)
{
    expectAnswer(true, makeFile("old.dat"));
    expectAnswer(true, makeFile("empty.dat", ""));
    expectAnswer(true, makeFile("\xC3\xA4.dat"));
}

TEST_F(WriteAccessProbe, refusesADirectoryThatVanished)
{
    fs::create_directory(path("folder"));
    const fs::path target = path("folder/new.dat");
    EXPECT_TRUE(checkWriteAccess(target));
    fs::remove(path("folder"));
    expectAnswer(false, target);
}

TEST_F(WriteAccessProbe, triesADirectoryWithAScratchFile)
{
    fs::create_directory(path("folder"));
    expectAnswer(true, path("folder"));
    expectAnswer(true, path("folder/"));
    fs::create_directory(path("100 %"));
    expectAnswer(true, path("100 %"));
}

TEST_F(WriteAccessProbe, neverRemovesWhatItDidNotMake)
{
    const fs::path file = makeFile("appeared meanwhile");
    EXPECT_TRUE(probeOpenForAppend(file, true));
    EXPECT_EQ(fs::file_size(file), 7u);
}

TEST_F(WriteAccessProbe, refusesAPlaceThatIsNotThere)
{
    expectAnswer(false, path("missing/new.dat"));
    makeFile("file");
    expectAnswer(false, path("file/new.dat"));
    expectAnswer(false, "");
}

TEST_F(WriteAccessProbe, refusesANameThatTheDiskDoesNotTake)
{
    expectAnswer(false, pathFromUtf8(refusedPath(m_directory.path(), QStringLiteral("new")).toStdString()));
    expectAnswer(false, path(std::string(5000, 'n')));
}

} // namespace
