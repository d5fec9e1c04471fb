// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The steps of setting a value, each of which a subclass can replace.

#include "property/Property.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using morvane::InvalidPropertyValueException;
using morvane::Property;
using morvane::PropertyAbstract;
using ::testing::ElementsAre;

namespace {

using Steps = std::vector<std::string>;

/** Records each step with its argument, then does what Property does. */
class RecordingProperty : public Property<int>
{
public:
    using Property<int>::Property;

    int value() const override
    {
        m_steps.push_back("value");
        return Property<int>::value();
    }

    Steps takeSteps() const { return std::move(m_steps); }

protected:
    void storeValue(const int& v) override
    {
        record("storeValue", v);
        Property<int>::storeValue(v);
    }
    bool isEqual(const int& v) const override
    {
        record("isEqual", v);
        return Property<int>::isEqual(v);
    }
    void validate(const int& v) const override
    {
        record("validate", v);
        Property<int>::validate(v);
    }
    void emitValueChanged(const int& v) override
    {
        record("emitValueChanged", v);
        Property<int>::emitValueChanged(v);
    }

    void record(const char* step, int v) const { m_steps.push_back(step + (' ' + std::to_string(v))); }

private:
    mutable Steps m_steps;
};

class RejectingProperty : public RecordingProperty
{
protected:
    void validate(const int& v) const override
    {
        record("validate", v);
        throw InvalidPropertyValueException("never");
    }
};

/** Keeps even numbers only. */
class EvenProperty : public Property<int>
{
protected:
    void storeValue(const int& v) override { Property<int>::storeValue(v / 2 * 2); }
};

/** Treats numbers as equal if they differ by less than ten. */
class CoarseProperty : public Property<int>
{
protected:
    bool isEqual(const int& v) const override { return std::abs(value() - v) < 10; }
};

class SilentProperty : public Property<int>
{
protected:
    void emitValueChanged(const int&) override {}
};

class FullProperty : public Property<int>
{
protected:
    void storeValue(const int&) override { throw std::runtime_error("no room"); }
};

/** Lets tests call the protected storing step with the stored object itself. */
class ExposedText : public PropertyAbstract<std::string>
{
public:
    std::string value() const override { return m_value; }
    const std::string& stored() const { return m_value; }

protected:
    void storeValue(const std::string& v) override { m_value = v; }

private:
    std::string m_value;
};

/** Remembers the address of the object that was last assigned to, so that a test finds the member of a property. */
struct Tracked
{
    Tracked() = default;
    Tracked(const Tracked&) = default;
    Tracked& operator=(const Tracked& other)
    {
        number = other.number;
        target = this;
        ++assignments;
        return *this;
    }
    bool operator==(const Tracked& other) const { return number == other.number; }

    int number = 0;
    static inline const Tracked* target = nullptr;
    static inline int assignments = 0;
};

class SelfStoringProperty : public Property<Tracked>
{
public:
    void store(const Tracked& v) { storeValue(v); }
};

} // namespace

TEST(PropertySteps, runInOrderForANewValue)
{
    RecordingProperty property(1);
    property.setValue(2);
    EXPECT_THAT(property.takeSteps(),
        ElementsAre("validate 2", "isEqual 2", "value", "storeValue 2", "value", "emitValueChanged 2"));
}

TEST(PropertySteps, endAfterTheComparisonForTheSameValue)
{
    RecordingProperty property(1);
    property.setValue(1);
    EXPECT_THAT(property.takeSteps(), ElementsAre("validate 1", "isEqual 1", "value"));
}

TEST(PropertySteps, endAtOnceWhenTheValueIsRejected)
{
    RejectingProperty property;
    EXPECT_THROW(property.setValue(1), InvalidPropertyValueException);
    EXPECT_THROW(property.setValue(0), InvalidPropertyValueException) << "even the value that it holds";
    EXPECT_THAT(property.takeSteps(), ElementsAre("validate 1", "validate 0"));
}

TEST(PropertySteps, takeNoneForTheInitialValue)
{
    EXPECT_THAT(RecordingProperty(5).takeSteps(), ElementsAre());
}

TEST(PropertySteps, runThroughThePlainReaderToo)
{
    const RecordingProperty property(5);
    EXPECT_EQ(property.getValue(), 5);
    EXPECT_THAT(property.takeSteps(), ElementsAre("value"));
}

TEST(PropertySteps, announceTheValueAsItWasStored)
{
    EvenProperty property;
    std::vector<int> seen;
    property.signalValueChanged.connect([&seen](int v) { seen.push_back(v); });
    property.setValue(5);
    EXPECT_EQ(property.value(), 4);
    EXPECT_THAT(seen, ElementsAre(4));
}

TEST(PropertySteps, compareAsASubclassDoes)
{
    CoarseProperty property;
    int changes = 0;
    property.signalPropertyChanged.connect([&changes] { ++changes; });
    property.setValue(9);
    EXPECT_EQ(property.value(), 0);
    EXPECT_EQ(changes, 0);
    property.setValue(10);
    EXPECT_EQ(property.value(), 10);
    EXPECT_EQ(changes, 1);
}

TEST(PropertySteps, announceAsASubclassDoes)
{
    SilentProperty property;
    int changes = 0;
    property.signalPropertyChanged.connect([&changes] { ++changes; });
    property.signalValueChanged.connect([&changes](int) { ++changes; });
    property.setValue(1);
    EXPECT_EQ(property.value(), 1);
    EXPECT_EQ(changes, 0);
}

TEST(PropertySteps, announceNothingWhenStoringThrows)
{
    FullProperty property;
    int changes = 0;
    property.signalPropertyChanged.connect([&changes] { ++changes; });
    EXPECT_THROW(property.setValue(1), std::runtime_error);
    EXPECT_EQ(property.value(), 0);
    EXPECT_EQ(changes, 0);
}

TEST(PropertySteps, needOnlyStoringAndReadingFromASubclass)
{
    ExposedText property;
    std::vector<std::string> seen;
    property.signalValueChanged.connect([&seen](const std::string& v) { seen.push_back(v); });
    property.setValue("text");
    property.setValue(property.stored());
    EXPECT_THAT(seen, ElementsAre("text"));
}

TEST(PropertySteps, handObserversACopyThatNeitherStoringNorTheCallerChanges)
{
    ExposedText property;
    std::string argument = "first";
    const std::string* announced = nullptr;
    property.signalValueChanged.connect([&](const std::string& v) {
        announced = &v;
        argument = "changed by the observer";
        EXPECT_EQ(v, "first");
    });
    property.setValue(argument);
    EXPECT_NE(announced, &argument);
    EXPECT_NE(announced, &property.stored());
    EXPECT_EQ(property.value(), "first");
}

TEST(PropertySteps, skipTheAssignmentOfTheMemberToItself)
{
    SelfStoringProperty property;
    Tracked value;
    value.number = 3;
    property.store(value);
    ASSERT_EQ(Tracked::assignments, 1);
    property.store(*Tracked::target);
    EXPECT_EQ(Tracked::assignments, 1);
    EXPECT_EQ(property.value().number, 3);
}
