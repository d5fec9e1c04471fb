// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ValidationResult.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

using morvane::ValidationResult;

static_assert(std::is_default_constructible_v<ValidationResult>);
static_assert(std::is_copy_constructible_v<ValidationResult> && std::is_copy_assignable_v<ValidationResult>);
static_assert(!std::is_convertible_v<std::string, ValidationResult>, "a text never becomes a verdict by itself");
static_assert(std::has_virtual_destructor_v<ValidationResult>);

TEST(ValidationResult, isValidByDefault)
{
    const ValidationResult result;
    EXPECT_TRUE(result.isValid());
    EXPECT_EQ(result.errorString(), "");
}

TEST(ValidationResult, isInvalidWithAText)
{
    const ValidationResult result("not a number");
    EXPECT_FALSE(result.isValid());
    EXPECT_EQ(result.errorString(), "not a number");
}

TEST(ValidationResult, isInvalidEvenWithoutAText)
{
    EXPECT_FALSE(ValidationResult(std::string()).isValid());
    EXPECT_EQ(ValidationResult(std::string()).errorString(), "");
}

TEST(ValidationResult, keepsAnyBytesOfTheText)
{
    const std::string text("\xC3\xA4\0\xFF", 4);
    EXPECT_EQ(ValidationResult(text).errorString(), text);
}

TEST(ValidationResult, isCopiedWhole)
{
    auto invalid = std::make_unique<ValidationResult>("reason");
    const ValidationResult copy(*invalid);
    ValidationResult assigned;
    assigned = *invalid;
    invalid.reset();
    EXPECT_FALSE(copy.isValid());
    EXPECT_EQ(copy.errorString(), "reason");
    EXPECT_FALSE(assigned.isValid());
    EXPECT_EQ(assigned.errorString(), "reason");
    assigned = ValidationResult();
    EXPECT_TRUE(assigned.isValid());
    EXPECT_EQ(assigned.errorString(), "");
}
