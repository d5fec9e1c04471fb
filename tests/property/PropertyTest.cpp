// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

using morvane::Property;
using morvane::PropertyAbstract;
using morvane::PropertyItemInterface;

static_assert(!std::is_copy_constructible_v<Property<int>> && !std::is_copy_assignable_v<Property<int>>);
static_assert(!std::is_move_constructible_v<Property<int>> && !std::is_move_assignable_v<Property<int>>);
static_assert(!std::is_copy_constructible_v<PropertyItemInterface>);
static_assert(std::is_abstract_v<PropertyItemInterface> && std::is_abstract_v<PropertyAbstract<int>>);
static_assert(!std::is_abstract_v<Property<int>>);
static_assert(std::is_base_of_v<PropertyItemInterface, PropertyAbstract<int>>);
static_assert(std::is_base_of_v<PropertyAbstract<int>, Property<int>>);
static_assert(std::has_virtual_destructor_v<PropertyItemInterface>);
static_assert(!std::is_convertible_v<int, Property<int>>, "a value never becomes a property by itself");
static_assert(std::is_default_constructible_v<Property<std::string>>);

namespace {

struct Point
{
    int x = 0;
    int y = 0;
};

bool operator==(const Point& a, const Point& b)
{
    return a.x == b.x && a.y == b.y;
}

/** Two different values for each of the types. */
template <typename T>
struct Samples;
template <>
struct Samples<int>
{
    static int first() { return 7; }
    static int second() { return std::numeric_limits<int>::min(); }
};
template <>
struct Samples<bool>
{
    static bool first() { return true; }
    static bool second() { return false; }
};
template <>
struct Samples<double>
{
    static double first() { return 0.1; }
    static double second() { return std::nextafter(0.1, 1.0); }
};
template <>
struct Samples<std::string>
{
    static std::string first() { return "x"; }
    static std::string second() { return std::string("x\0", 2); }
};
template <>
struct Samples<Point>
{
    static Point first() { return {1, 2}; }
    static Point second() { return {1, 3}; }
};

template <typename T>
class PropertyOfType : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { ASSERT_FALSE(Samples<T>::first() == Samples<T>::second()); }

    /** Records what the observers of @p property are told. */
    void observe(PropertyAbstract<T>& property)
    {
        property.signalValueChanged.connect([this](const T& v) { m_typed.push_back(v); });
        property.signalPropertyChanged.connect([this] { ++m_untyped; });
    }

    std::vector<T> m_typed;
    int m_untyped = 0;
};

using Types = ::testing::Types<int, bool, double, std::string, Point>;
TYPED_TEST_SUITE(PropertyOfType, Types);

} // namespace

TYPED_TEST(PropertyOfType, startsWithAValueInitialisedT)
{
    EXPECT_TRUE(Property<TypeParam>().value() == TypeParam());
}

TYPED_TEST(PropertyOfType, startsWithTheGivenValue)
{
    const Property<TypeParam> property(Samples<TypeParam>::first());
    EXPECT_TRUE(property.value() == Samples<TypeParam>::first());
    EXPECT_TRUE(property.getValue() == Samples<TypeParam>::first());
}

TYPED_TEST(PropertyOfType, announcesANewValueOnceToEachKindOfObserver)
{
    Property<TypeParam> property(Samples<TypeParam>::first());
    this->observe(property);
    property.setValue(Samples<TypeParam>::second());
    EXPECT_TRUE(property.value() == Samples<TypeParam>::second());
    ASSERT_EQ(this->m_typed.size(), 1U);
    EXPECT_TRUE(this->m_typed.front() == Samples<TypeParam>::second());
    EXPECT_EQ(this->m_untyped, 1);
}

TYPED_TEST(PropertyOfType, tellsNobodyOfTheValueItHasAlready)
{
    Property<TypeParam> property(Samples<TypeParam>::first());
    this->observe(property);
    property.setValue(Samples<TypeParam>::first());
    property.setValue(property.value());
    EXPECT_TRUE(this->m_typed.empty());
    EXPECT_EQ(this->m_untyped, 0);
    EXPECT_TRUE(property.value() == Samples<TypeParam>::first());
}

TYPED_TEST(PropertyOfType, announcesEachChangeThereAndBack)
{
    Property<TypeParam> property(Samples<TypeParam>::first());
    this->observe(property);
    for (int i = 0; i < 3; ++i) {
        property.setValue(Samples<TypeParam>::second());
        property.setValue(Samples<TypeParam>::first());
    }
    EXPECT_EQ(this->m_typed.size(), 6U);
    EXPECT_EQ(this->m_untyped, 6);
}

TYPED_TEST(PropertyOfType, isSharedThroughItsBase)
{
    const boost::shared_ptr<PropertyAbstract<TypeParam>> property =
        boost::make_shared<Property<TypeParam>>(Samples<TypeParam>::first());
    const boost::shared_ptr<PropertyItemInterface> item = property;
    item->signalPropertyChanged.connect([this] { ++this->m_untyped; });
    property->setValue(Samples<TypeParam>::second());
    item->refresh();
    EXPECT_TRUE(property->value() == Samples<TypeParam>::second());
    EXPECT_EQ(this->m_untyped, 1);
}

TEST(Property, comparesTextsByEveryByteAndTheLength)
{
    const std::vector<std::string> texts = {"", "a", "b", "ab", "a ", "A", std::string(1, '\0'), std::string("a\0", 2),
        std::string("a\0b", 3), "\xC3\xA4", "a\xCC\x88", std::string(1 << 20, 'x'), std::string((1 << 20) + 1, 'x')};
    for (const std::string& from : texts) {
        for (const std::string& to : texts) {
            Property<std::string> property(from);
            int changes = 0;
            property.signalPropertyChanged.connect([&changes] { ++changes; });
            property.setValue(to);
            EXPECT_EQ(changes, from == to ? 0 : 1);
            EXPECT_EQ(property.value(), to);
        }
    }
}

TEST(Property, announcesNotANumberEachTimeBecauseItNeverEqualsItself)
{
    Property<double> property;
    int changes = 0;
    property.signalPropertyChanged.connect([&changes] { ++changes; });
    property.setValue(std::nan(""));
    property.setValue(std::nan(""));
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(std::isnan(property.value()));
}

TEST(Property, returnsItsValueAsACopy)
{
    Property<std::string> property(std::string("before"));
    const std::string copy = property.value();
    property.setValue("after");
    EXPECT_EQ(copy, "before");
}

TEST(Property, refreshesWithoutAnyEffect)
{
    Property<int> property(3);
    int changes = 0;
    property.signalPropertyChanged.connect([&changes] { ++changes; });
    property.refresh();
    EXPECT_EQ(property.value(), 3);
    EXPECT_EQ(changes, 0);
}
