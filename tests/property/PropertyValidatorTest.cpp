// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

using morvane::AllowAnyValueValidator;
using morvane::ExceptionBase;
using morvane::InvalidPropertyValueException;
using morvane::Property;
using morvane::ValidationResult;
using morvane::ValidatorInterface;

namespace {

class FunctionValidator : public virtual ValidatorInterface<int>
{
public:
    using Function = std::function<ValidationResult(int)>;

    explicit FunctionValidator(Function function) : m_function(std::move(function)) {}
    ValidationResult validate(const int& v) const override
    {
        ValidationResult result = m_function(v);
        ++calls; // uses this object after the function, which may have replaced the validator
        return result;
    }

    mutable int calls = 0;

private:
    Function m_function;
};

ValidationResult acceptPositive(int v)
{
    return v > 0 ? ValidationResult() : ValidationResult(std::to_string(v) + " is not positive");
}

class PropertyValidatorTest : public ::testing::Test
{
protected:
    PropertyValidatorTest()
    {
        m_property.signalValueChanged.connect([this](int) { ++m_changes; });
        m_property.signalPropertyChanged.connect([this] { ++m_changes; });
    }

    boost::shared_ptr<FunctionValidator> install(FunctionValidator::Function function)
    {
        auto validator = boost::make_shared<FunctionValidator>(std::move(function));
        EXPECT_TRUE(m_property.setValidator(validator));
        return validator;
    }

    Property<int> m_property{-5};
    int m_changes = 0;
};

} // namespace

TEST_F(PropertyValidatorTest, rejectsWithTheValidatorsTextAndLeavesTheOldValue)
{
    install(acceptPositive);
    m_property.setValue(3);
    m_changes = 0;
    try {
        m_property.setValue(0);
        FAIL() << "accepted";
    } catch (const InvalidPropertyValueException& rejection) {
        EXPECT_STREQ(rejection.what(), "0 is not positive");
    }
    EXPECT_EQ(m_property.value(), 3);
    EXPECT_EQ(m_changes, 0);
    m_property.setValue(4);
    EXPECT_EQ(m_property.value(), 4);
    EXPECT_EQ(m_changes, 2);
}

TEST_F(PropertyValidatorTest, rejectsWithoutATextToo)
{
    install([](int) { return ValidationResult(std::string()); });
    EXPECT_THROW(m_property.setValue(1), ExceptionBase);
    EXPECT_THROW(m_property.setValue(1), std::exception);
    EXPECT_EQ(m_property.value(), -5);
}

TEST_F(PropertyValidatorTest, isNotAskedAboutTheInitialNorThePresentValue)
{
    const auto validator = install(acceptPositive);
    EXPECT_EQ(validator->calls, 0);
    EXPECT_EQ(m_property.value(), -5);
}

TEST_F(PropertyValidatorTest, isAskedAboutTheValueThatIsHeldAlready)
{
    const auto validator = install(acceptPositive);
    EXPECT_THROW(m_property.setValue(-5), InvalidPropertyValueException);
    EXPECT_EQ(validator->calls, 1);
}

TEST_F(PropertyValidatorTest, refusesToBeWithoutAValidator)
{
    install(acceptPositive);
    EXPECT_FALSE(m_property.setValidator(nullptr));
    EXPECT_FALSE(m_property.setValidator(boost::shared_ptr<ValidatorInterface<int>>()));
    EXPECT_THROW(m_property.setValue(0), InvalidPropertyValueException);
    EXPECT_FALSE(Property<int>().setValidator(nullptr));
}

TEST_F(PropertyValidatorTest, releasesTheValidatorThatIsReplaced)
{
    boost::weak_ptr<FunctionValidator> first = install(acceptPositive);
    EXPECT_FALSE(first.expired());
    EXPECT_TRUE(m_property.setValidator(boost::make_shared<AllowAnyValueValidator<int>>()));
    EXPECT_TRUE(first.expired());
    m_property.setValue(-6);
    EXPECT_EQ(m_property.value(), -6);
}

TEST_F(PropertyValidatorTest, keepsTheValidatorAliveThatReplacesItself)
{
    boost::weak_ptr<FunctionValidator> first;
    bool aliveAfterwards = false;
    first = install([&](int v) {
        m_property.setValidator(boost::make_shared<FunctionValidator>(acceptPositive));
        aliveAfterwards = !first.expired();
        return v == 1 ? ValidationResult() : ValidationResult("only one");
    });
    m_property.setValue(1);
    EXPECT_TRUE(aliveAfterwards);
    EXPECT_TRUE(first.expired());
    EXPECT_EQ(m_property.value(), 1);
    m_property.setValue(2); // the new validator decides
    EXPECT_EQ(m_property.value(), 2);
    EXPECT_THROW(m_property.setValue(0), InvalidPropertyValueException);
}

TEST_F(PropertyValidatorTest, keepsTheVerdictOfAValidatorThatReplacesItself)
{
    install([&](int) {
        m_property.setValidator(boost::make_shared<AllowAnyValueValidator<int>>());
        return ValidationResult("rejected by the first");
    });
    EXPECT_THROW(m_property.setValue(1), InvalidPropertyValueException);
    EXPECT_EQ(m_property.value(), -5);
    m_property.setValue(1);
    EXPECT_EQ(m_property.value(), 1);
}

TEST_F(PropertyValidatorTest, hasReleasedTheReplacedValidatorWhenItThrows)
{
    boost::weak_ptr<FunctionValidator> first;
    first = install([&](int) {
        m_property.setValidator(boost::make_shared<AllowAnyValueValidator<int>>());
        return ValidationResult("no");
    });
    try {
        m_property.setValue(1);
        FAIL() << "accepted";
    } catch (const InvalidPropertyValueException&) {
        EXPECT_TRUE(first.expired());
    }
}

TEST_F(PropertyValidatorTest, letsAValidatorsOwnExceptionPass)
{
    install([](int) -> ValidationResult { throw std::out_of_range("broken validator"); });
    EXPECT_THROW(m_property.setValue(1), std::out_of_range);
    EXPECT_EQ(m_property.value(), -5);
    EXPECT_EQ(m_changes, 0);
}

TEST_F(PropertyValidatorTest, letsAValidatorSetThePropertyAgain)
{
    bool inside = false;
    install([&](int) {
        if (!inside) {
            inside = true;
            m_property.setValue(50);
        }
        return ValidationResult();
    });
    m_property.setValue(1);
    EXPECT_EQ(m_property.value(), 1);
    EXPECT_EQ(m_changes, 4) << "two changes, two kinds of observer";
}

TEST_F(PropertyValidatorTest, mayBeSharedByProperties)
{
    const auto validator = install(acceptPositive);
    Property<int> other;
    EXPECT_TRUE(other.setValidator(validator));
    EXPECT_THROW(other.setValue(-1), InvalidPropertyValueException);
    EXPECT_THROW(m_property.setValue(-1), InvalidPropertyValueException);
    EXPECT_EQ(validator->calls, 2);
}
