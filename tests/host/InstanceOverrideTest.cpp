// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/InstanceOverride.h"

#include "host/ApplicationSettings.h"
#include "host/HelpLauncher.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

using namespace morvane;

static_assert(!std::is_copy_constructible_v<InstanceOverride<HelpLauncher>>);
static_assert(!std::is_copy_assignable_v<InstanceOverride<HelpLauncher>>);
static_assert(!std::is_convertible_v<HelpLauncher&, InstanceOverride<HelpLauncher>>);

template <typename Service>
class InstanceOverrideTest : public ::testing::Test
{
};

using Services = ::testing::Types<ApplicationSettings, HelpLauncher>;
TYPED_TEST_SUITE(InstanceOverrideTest, Services);

TYPED_TEST(InstanceOverrideTest, startsWithOneDefaultObject)
{
    EXPECT_EQ(&TypeParam::getInstance(), &TypeParam::getInstance());
}

TYPED_TEST(InstanceOverrideTest, replacesTheObjectUntilNullBringsTheDefaultBack)
{
    TypeParam* const original = &TypeParam::getInstance();
    TypeParam one;
    TypeParam two;
    EXPECT_EQ(TypeParam::setInstance(&one), nullptr);
    EXPECT_EQ(&TypeParam::getInstance(), &one);
    EXPECT_EQ(TypeParam::setInstance(&two), &one);
    EXPECT_EQ(&TypeParam::getInstance(), &two);
    EXPECT_EQ(TypeParam::setInstance(nullptr), &two);
    EXPECT_EQ(&TypeParam::getInstance(), original);
    EXPECT_EQ(TypeParam::setInstance(nullptr), nullptr);
}

TYPED_TEST(InstanceOverrideTest, nestsAndRestores)
{
    TypeParam* const original = &TypeParam::getInstance();
    TypeParam one;
    TypeParam two;
    {
        InstanceOverride<TypeParam> outer(one);
        EXPECT_EQ(&TypeParam::getInstance(), &one);
        {
            InstanceOverride<TypeParam> inner(two);
            EXPECT_EQ(&TypeParam::getInstance(), &two);
        }
        EXPECT_EQ(&TypeParam::getInstance(), &one);
    }
    EXPECT_EQ(&TypeParam::getInstance(), original);
}

TYPED_TEST(InstanceOverrideTest, restoresWhenAnExceptionPasses)
{
    TypeParam* const original = &TypeParam::getInstance();
    TypeParam replacement;
    try {
        InstanceOverride<TypeParam> guard(replacement);
        throw std::runtime_error("passing");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(&TypeParam::getInstance(), original);
}

namespace {

class RecordingLauncher : public HelpLauncher
{
public:
    void showHelp(const std::string& topic) override { topics += topic + ';'; }
    std::string topics;
};

class ConstantSettings : public ApplicationSettings
{
public:
    QByteArray getByteArrayValue(const std::string& key) override { return "of " + QByteArray::fromStdString(key); }
    void depositValue(const std::string& key, const QByteArray& value) override
    {
        deposited = key + value.toStdString();
    }
    std::string deposited;
};

} // namespace

TEST(InstanceOverrideHostSubclasses, answerInThePlaceOfTheDefaults)
{
    RecordingLauncher launcher;
    ConstantSettings settings;
    const InstanceOverride<HelpLauncher> launcherGuard(launcher);
    const InstanceOverride<ApplicationSettings> settingsGuard(settings);
    HelpLauncher::getInstance().showHelp("topic");
    ApplicationSettings::getInstance().depositValue("key", "value");
    EXPECT_EQ(launcher.topics, "topic;");
    EXPECT_EQ(settings.deposited, "keyvalue");
    EXPECT_EQ(ApplicationSettings::getInstance().getByteArrayValue("x"), "of x");
}
