// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ExceptionBase.h"
#include "host/InvalidPropertyValueException.h"

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <string>
#include <type_traits>

using morvane::ExceptionBase;
using morvane::InvalidPropertyValueException;

static_assert(std::is_base_of_v<std::exception, ExceptionBase>);
static_assert(std::is_base_of_v<ExceptionBase, InvalidPropertyValueException>);
static_assert(std::is_convertible_v<InvalidPropertyValueException*, std::exception*>, "one std::exception, public");
static_assert(std::is_copy_constructible_v<InvalidPropertyValueException>);
static_assert(std::is_copy_assignable_v<InvalidPropertyValueException>);
static_assert(!std::is_convertible_v<std::string, ExceptionBase>);
static_assert(noexcept(std::declval<const ExceptionBase&>().what()));
static_assert(std::has_virtual_destructor_v<InvalidPropertyValueException>);

namespace {

template <typename Caught>
std::string textCaughtAs(const std::string& message)
{
    try {
        throw InvalidPropertyValueException(message);
    } catch (const Caught& caught) {
        EXPECT_NE(dynamic_cast<const InvalidPropertyValueException*>(&caught), nullptr);
        return caught.what();
    }
}

} // namespace

TEST(Exception, isCaughtAsEachOfItsTypes)
{
    for (const std::string message : {"too large", "", "zu gro\xC3\x9F"}) {
        EXPECT_EQ(textCaughtAs<InvalidPropertyValueException>(message), message);
        EXPECT_EQ(textCaughtAs<ExceptionBase>(message), message);
        EXPECT_EQ(textCaughtAs<std::exception>(message), message);
    }
}

TEST(Exception, baseIsThrownOnItsOwnToo)
{
    EXPECT_THROW(throw ExceptionBase("reason"), ExceptionBase);
    EXPECT_STREQ(ExceptionBase("reason").what(), "reason");
    EXPECT_STREQ(ExceptionBase("").what(), "");
}

TEST(Exception, keepsLongMessagesAndEndsThemAtANul)
{
    const std::string text(100000, 'x');
    EXPECT_EQ(InvalidPropertyValueException(text).what(), text);
    EXPECT_STREQ(InvalidPropertyValueException(std::string("a\0b", 3)).what(), "a");
}

TEST(Exception, copiesKeepTheirOwnText)
{
    auto original = std::make_unique<InvalidPropertyValueException>("original");
    const InvalidPropertyValueException copy(*original);
    InvalidPropertyValueException assigned("other");
    assigned = *original;
    original.reset();
    EXPECT_STREQ(copy.what(), "original");
    EXPECT_STREQ(assigned.what(), "original");
    const InvalidPropertyValueException& same = assigned;
    assigned = same;
    EXPECT_STREQ(assigned.what(), "original");
}

TEST(Exception, isRethrownFromAnExceptionPointer)
{
    std::exception_ptr pointer;
    try {
        throw InvalidPropertyValueException("kept");
    } catch (...) {
        pointer = std::current_exception();
    }
    try {
        std::rethrow_exception(pointer);
    } catch (const ExceptionBase& caught) {
        EXPECT_STREQ(caught.what(), "kept");
        return;
    }
    FAIL();
}
