// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using boost::signals2::connection;
using morvane::Property;
using morvane::PropertyAbstract;
using morvane::PropertyItemInterface;

namespace {

class PlainValidator : public morvane::AllowAnyValueValidator<int>
{
};

/** Reports the end of an observer that is owned by its own connection. */
struct Token
{
};

} // namespace

TEST(PropertyLifetime, endsWithTheLastPointer)
{
    boost::shared_ptr<PropertyAbstract<int>> one = boost::make_shared<Property<int>>(1);
    boost::shared_ptr<PropertyItemInterface> two = one;
    const boost::weak_ptr<PropertyItemInterface> watch = two;
    one.reset();
    EXPECT_FALSE(watch.expired());
    two.reset();
    EXPECT_TRUE(watch.expired());
}

TEST(PropertyLifetime, voidsTheConnectionsOfItsObservers)
{
    auto property = boost::make_shared<Property<int>>(1);
    const auto token = boost::make_shared<Token>();
    const connection typed = property->signalValueChanged.connect([token](int) {});
    const connection untyped = property->signalPropertyChanged.connect([token] {});
    EXPECT_TRUE(typed.connected() && untyped.connected());
    EXPECT_EQ(token.use_count(), 3);
    property.reset();
    EXPECT_FALSE(typed.connected() || untyped.connected());
    EXPECT_EQ(token.use_count(), 1);
    typed.disconnect();
    untyped.disconnect();
}

TEST(PropertyLifetime, releasesItsValidator)
{
    auto property = boost::make_shared<Property<int>>(1);
    boost::weak_ptr<PlainValidator> validator;
    {
        const auto made = boost::make_shared<PlainValidator>();
        validator = made;
        property->setValidator(made);
    }
    EXPECT_FALSE(validator.expired());
    property.reset();
    EXPECT_TRUE(validator.expired());
}

TEST(PropertyLifetime, hasOneForwardingConnectionFromTheStart)
{
    const Property<int> property;
    EXPECT_EQ(property.signalValueChanged.num_slots(), 1U);
    EXPECT_EQ(property.signalPropertyChanged.num_slots(), 0U);
}

TEST(PropertyLifetime, letsATrackedOwnerKeepItAliveWhileItAnnounces)
{
    auto property = boost::make_shared<Property<int>>(1);
    const boost::weak_ptr<Property<int>> watch = property;
    int value = 0;
    property->signalValueChanged.connect([&property](int) { property.reset(); });
    property->signalValueChanged.connect([&](int) {
        const auto alive = watch.lock();
        value = alive ? alive->value() : -1;
    });
    const boost::shared_ptr<Property<int>> caller = property;
    caller->setValue(5);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(caller.use_count(), 1);
}

TEST(PropertyLifetime, setsManyPropertiesInAChain)
{
    std::vector<boost::shared_ptr<Property<int>>> chain;
    for (int i = 0; i < 1000; ++i) {
        chain.push_back(boost::make_shared<Property<int>>());
        if (i > 0) {
            auto* const next = chain.back().get();
            chain[static_cast<std::size_t>(i) - 1]->signalValueChanged.connect(
                [next](int v) { next->setValue(v + 1); });
        }
    }
    chain.front()->setValue(1);
    EXPECT_EQ(chain.back()->value(), 1000);
}
