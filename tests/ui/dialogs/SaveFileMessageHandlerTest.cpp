// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

using morvane::DefaultSaveFileMessageHandler;
using morvane::SaveFileMessageHandlerInterface;

static_assert(std::is_abstract_v<SaveFileMessageHandlerInterface>);
static_assert(std::has_virtual_destructor_v<SaveFileMessageHandlerInterface>);
static_assert(std::is_base_of_v<SaveFileMessageHandlerInterface, DefaultSaveFileMessageHandler>);
static_assert(std::is_copy_constructible_v<DefaultSaveFileMessageHandler>);
static_assert(std::is_copy_assignable_v<DefaultSaveFileMessageHandler>);

namespace {

class SaveFileMessageHandlerTexts : public testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(SaveFileMessageHandlerTexts, nameTheFileByteForByte)
{
    const std::string name = GetParam();
    DefaultSaveFileMessageHandler handler;
    EXPECT_EQ(handler.filenameToCheck(name), name);
    EXPECT_EQ(handler.okToOverwriteMessage(), "File " + name + " already exists. Do you want to replace it?");
    EXPECT_EQ(handler.unableToOverwriteMessage(),
        "Unable to save file " + name +
            ", check access permissions for the file and the parent directory. Do you want to try again and choose "
            "a different location?");
    EXPECT_EQ(handler.systemAccessError("disk full"),
        "Unable to access file " + name + ": disk full. Do you want to try again and choose a different location?");
}

INSTANTIATE_TEST_SUITE_P(Names, SaveFileMessageHandlerTexts,
    testing::Values("C:/data/run1.dat", "/tmp/two words", "\xE6\x97\xA5\\\"<b>%1</b>", ""));

TEST(SaveFileMessageHandler, speaksOfAnEmptyNameAtFirst)
{
    DefaultSaveFileMessageHandler handler;
    EXPECT_EQ(handler.okToOverwriteMessage(), "File  already exists. Do you want to replace it?");
    EXPECT_EQ(handler.systemAccessError(""),
        "Unable to access file : . Do you want to try again and choose a different location?");
}

TEST(SaveFileMessageHandler, remembersTheLastName)
{
    DefaultSaveFileMessageHandler handler;
    handler.filenameToCheck("first");
    handler.filenameToCheck("second");
    EXPECT_EQ(handler.okToOverwriteMessage(), "File second already exists. Do you want to replace it?");
}

TEST(SaveFileMessageHandler, copiesTheRememberedName)
{
    DefaultSaveFileMessageHandler handler;
    handler.filenameToCheck("a.dat");
    DefaultSaveFileMessageHandler copy(handler);
    DefaultSaveFileMessageHandler assigned;
    assigned = handler;
    handler.filenameToCheck("b.dat");
    EXPECT_EQ(copy.okToOverwriteMessage(), "File a.dat already exists. Do you want to replace it?");
    EXPECT_EQ(assigned.okToOverwriteMessage(), copy.okToOverwriteMessage());
}

TEST(SaveFileMessageHandler, survivesAssignmentToItself)
{
    DefaultSaveFileMessageHandler handler;
    handler.filenameToCheck("a.dat");
    DefaultSaveFileMessageHandler& same = handler;
    handler = same;
    EXPECT_EQ(handler.okToOverwriteMessage(), "File a.dat already exists. Do you want to replace it?");
}

TEST(SaveFileMessageHandler, isDestroyedThroughTheInterface)
{
    struct Counting : DefaultSaveFileMessageHandler
    {
        explicit Counting(int& count) : destroyed(count) {}
        ~Counting() override { ++destroyed; }
        int& destroyed;
    };
    int destroyed = 0;
    std::unique_ptr<SaveFileMessageHandlerInterface>(std::make_unique<Counting>(destroyed)).reset();
    EXPECT_EQ(destroyed, 1);
}
