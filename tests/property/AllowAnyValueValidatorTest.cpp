// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/AllowAnyValueValidator.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

using morvane::AllowAnyValueValidator;
using morvane::ValidationResult;
using morvane::ValidatorInterface;

static_assert(std::is_abstract_v<ValidatorInterface<int>>);
static_assert(std::has_virtual_destructor_v<ValidatorInterface<int>>);
static_assert(std::is_base_of_v<ValidatorInterface<int>, AllowAnyValueValidator<int>>);

namespace {

/** static_cast from a base to a derived class does not compile if the base is virtual. */
template <typename Derived, typename Base, typename = void>
struct IsVirtualBase : std::is_base_of<Base, Derived>
{
};
template <typename Derived, typename Base>
struct IsVirtualBase<Derived, Base, std::void_t<decltype(static_cast<Derived*>(std::declval<Base*>()))>>
    : std::false_type
{
};

static_assert(IsVirtualBase<AllowAnyValueValidator<int>, ValidatorInterface<int>>::value);
static_assert(IsVirtualBase<AllowAnyValueValidator<std::string>, ValidatorInterface<std::string>>::value);

struct Named
{
    virtual ~Named() = default;
    std::string name = "named";
};

/** Both inherits the interface in two ways, but has only one object of it. */
class Left : public virtual ValidatorInterface<int>
{
};
class Both : public Named, public Left, public AllowAnyValueValidator<int>
{
};

} // namespace

TEST(AllowAnyValueValidator, acceptsEveryValue)
{
    const AllowAnyValueValidator<int> numbers;
    for (const int v : {0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_TRUE(numbers.validate(v).isValid());
        EXPECT_EQ(numbers.validate(v).errorString(), "");
    }
    const AllowAnyValueValidator<std::string> texts;
    for (const std::string& v : {std::string(), std::string("\xFF\0", 2), std::string(1 << 20, 'x')}) {
        EXPECT_TRUE(texts.validate(v).isValid());
    }
}

TEST(AllowAnyValueValidator, worksThroughItsVirtualBase)
{
    const boost::shared_ptr<ValidatorInterface<int>> validator = boost::make_shared<AllowAnyValueValidator<int>>();
    EXPECT_TRUE(validator->validate(1).isValid());
    EXPECT_NE(dynamic_cast<AllowAnyValueValidator<int>*>(validator.get()), nullptr);
}

TEST(AllowAnyValueValidator, sharesTheInterfaceWithOtherBasesOfASubclass)
{
    const auto both = boost::make_shared<Both>();
    const boost::shared_ptr<ValidatorInterface<int>> validator = both;
    EXPECT_EQ(static_cast<ValidatorInterface<int>*>(static_cast<Left*>(both.get())), validator.get());
    EXPECT_TRUE(validator->validate(1).isValid());
}
