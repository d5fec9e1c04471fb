// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"

#include <boost/signals2/shared_connection_block.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using morvane::InvalidPropertyValueException;
using morvane::Property;
using ::testing::ElementsAre;

namespace {

class PropertyObserverTest : public ::testing::Test
{
protected:
    void observeTyped(const std::string& name)
    {
        m_property.signalValueChanged.connect([this, name](int v) { m_told.push_back(name + std::to_string(v)); });
    }
    void observeUntyped(const std::string& name)
    {
        m_property.signalPropertyChanged.connect([this, name] { m_told.push_back(name); });
    }

    Property<int> m_property;
    std::vector<std::string> m_told;
};

} // namespace

TEST_F(PropertyObserverTest, toldAfterTheValueIsStored)
{
    m_property.signalValueChanged.connect([this](int v) { EXPECT_EQ(m_property.value(), v); });
    m_property.signalPropertyChanged.connect([this] { EXPECT_EQ(m_property.value(), 7); });
    observeTyped("typed ");
    m_property.setValue(7);
    EXPECT_THAT(m_told, ElementsAre("typed 7"));
}

TEST_F(PropertyObserverTest, toldInTheOrderOfConnectionWithTheUntypedOnesFirst)
{
    observeTyped("typed a ");
    observeUntyped("untyped a");
    observeTyped("typed b ");
    observeUntyped("untyped b");
    m_property.setValue(1);
    EXPECT_THAT(m_told, ElementsAre("untyped a", "untyped b", "typed a 1", "typed b 1"));
}

TEST_F(PropertyObserverTest, toldBeforeTheUntypedOnesOnlyWhenConnectedAtTheFrontOrInAGroup)
{
    using boost::signals2::at_back;
    using boost::signals2::at_front;
    const auto note = [this](const char* name) { return [this, name](int) { m_told.push_back(name); }; };
    observeUntyped("untyped");
    m_property.signalValueChanged.connect(note("back"), at_back);
    m_property.signalValueChanged.connect(1, note("group, back"), at_back);
    m_property.signalValueChanged.connect(1, note("group, front"), at_front);
    m_property.signalValueChanged.connect(note("front"), at_front);
    m_property.setValue(1);
    EXPECT_THAT(m_told, ElementsAre("front", "group, front", "group, back", "untyped", "back"));
}

TEST_F(PropertyObserverTest, keepsTheUntypedOnesFromBeingToldWhenItThrowsBeforeThem)
{
    observeUntyped("untyped");
    const auto thrower = m_property.signalValueChanged.connect(
        [](int) { throw std::runtime_error("observer"); }, boost::signals2::at_front);
    EXPECT_THROW(m_property.setValue(1), std::runtime_error);
    EXPECT_TRUE(m_told.empty());
    thrower.disconnect();
    m_property.setValue(2);
    EXPECT_THAT(m_told, ElementsAre("untyped"));
}

TEST_F(PropertyObserverTest, toldByABareEmissionOfTheTypedSignalToo)
{
    observeUntyped("untyped");
    m_property.signalValueChanged(9);
    EXPECT_THAT(m_told, ElementsAre("untyped"));
    EXPECT_EQ(m_property.value(), 0);
}

TEST_F(PropertyObserverTest, mayThrowAndTheValueIsStoredAlready)
{
    observeTyped("before ");
    const auto thrower = m_property.signalValueChanged.connect([](int) { throw std::runtime_error("observer"); });
    observeTyped("after ");
    EXPECT_THROW(m_property.setValue(1), std::runtime_error);
    EXPECT_EQ(m_property.value(), 1);
    EXPECT_THAT(m_told, ElementsAre("before 1"));

    thrower.disconnect();
    m_property.setValue(2);
    EXPECT_EQ(m_property.value(), 2);
    EXPECT_THAT(m_told, ElementsAre("before 1", "before 2", "after 2"));
}

TEST_F(PropertyObserverTest, mayThrowFromTheUntypedSignal)
{
    observeTyped("typed ");
    m_property.signalPropertyChanged.connect([] { throw std::runtime_error("observer"); });
    EXPECT_THROW(m_property.setValue(1), std::runtime_error);
    EXPECT_EQ(m_property.value(), 1);
    EXPECT_TRUE(m_told.empty());
    m_property.setValue(1); // already the value, so no observer is called and nothing throws
}

TEST_F(PropertyObserverTest, maySetThePropertyAgain)
{
    observeTyped("first ");
    m_property.signalValueChanged.connect([this](int v) {
        if (v < 3) {
            m_property.setValue(v + 1);
        }
    });
    observeTyped("last ");
    m_property.setValue(1);
    EXPECT_EQ(m_property.value(), 3);
    EXPECT_THAT(m_told, ElementsAre("first 1", "first 2", "first 3", "last 3", "last 2", "last 1"));
}

TEST_F(PropertyObserverTest, maySetThePropertyAgainFromTheUntypedSignal)
{
    m_property.signalPropertyChanged.connect([this] { m_property.setValue(10); });
    observeUntyped("untyped");
    observeTyped("typed ");
    m_property.setValue(1);
    EXPECT_EQ(m_property.value(), 10);
    EXPECT_THAT(m_told, ElementsAre("untyped", "typed 10", "untyped", "typed 1"));
}

TEST_F(PropertyObserverTest, maySetTheValueBack)
{
    m_property.signalValueChanged.connect([this](int) { m_property.setValue(0); });
    observeTyped("last ");
    m_property.setValue(5);
    EXPECT_EQ(m_property.value(), 0);
    EXPECT_THAT(m_told, ElementsAre("last 0", "last 5"));
}

TEST_F(PropertyObserverTest, meetsTheValidatorWhenItSetsThePropertyAgain)
{
    struct BelowTen : public virtual morvane::ValidatorInterface<int>
    {
        morvane::ValidationResult validate(const int& v) const override
        {
            return v < 10 ? morvane::ValidationResult() : morvane::ValidationResult("too large");
        }
    };
    m_property.setValidator(boost::make_shared<BelowTen>());
    m_property.signalValueChanged.connect([this](int) { m_property.setValue(11); });
    EXPECT_THROW(m_property.setValue(1), InvalidPropertyValueException);
    EXPECT_EQ(m_property.value(), 1);
}

TEST_F(PropertyObserverTest, mayReplaceTheValidator)
{
    m_property.signalValueChanged.connect(
        [this](int) { m_property.setValidator(boost::make_shared<morvane::AllowAnyValueValidator<int>>()); });
    m_property.setValue(1);
    m_property.setValue(2);
    EXPECT_EQ(m_property.value(), 2);
}

TEST_F(PropertyObserverTest, mayComeAndGoWhileOthersAreTold)
{
    boost::signals2::connection second;
    m_property.signalValueChanged.connect([&](int v) {
        second.disconnect();
        if (v == 1) {
            observeTyped("late ");
        }
    });
    second = m_property.signalValueChanged.connect([this](int) { m_told.push_back("second"); });
    m_property.setValue(1);
    m_told.clear();
    m_property.setValue(2);
    EXPECT_THAT(m_told, ElementsAre("late 2"));
}

TEST_F(PropertyObserverTest, isNotToldWhenDisconnectedOrBlocked)
{
    const auto connection = m_property.signalPropertyChanged.connect([this] { m_told.push_back("untyped"); });
    {
        const boost::signals2::shared_connection_block block(connection);
        m_property.setValue(1);
    }
    EXPECT_TRUE(m_told.empty());
    m_property.setValue(2);
    EXPECT_THAT(m_told, ElementsAre("untyped"));
    connection.disconnect();
    m_property.setValue(3);
    EXPECT_THAT(m_told, ElementsAre("untyped"));
}
