// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/PropertyAdapter.h"
#include "property/Property.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <boost/make_shared.hpp>

#include <cstdint>
#include <limits>

enum class Unit
{
    Metre,
    Inch
};
Q_DECLARE_METATYPE(Unit)

namespace {

using morvane::Property;
using morvane::PropertyAbstract;
using morvane::ValidationResult;
using morvane::ui::PropertyAdapter;

static_assert(!std::is_copy_constructible_v<PropertyAdapter>);
static_assert(!std::is_convertible_v<boost::shared_ptr<Property<int>>, PropertyAdapter>);

template <typename T>
class AtMost : public morvane::ValidatorInterface<T>
{
public:
    explicit AtMost(T limit) : m_limit(limit) {}
    ValidationResult validate(const T& v) const override
    {
        return v <= m_limit ? ValidationResult() : ValidationResult("größer als erlaubt");
    }

private:
    T m_limit;
};

/** What a property of T is after @p value was set; invalid if it was refused. */
template <typename T>
QVariant afterSetting(const QVariant& value)
{
    PropertyAdapter adapter(boost::make_shared<Property<T>>());
    return adapter.setValue(value) ? adapter.value() : QVariant();
}

TEST(PropertyAdapter, hasTheValueOfTheProperty)
{
    const auto property = boost::make_shared<Property<std::string>>("Gr\xC3\xB6\xC3\x9F"
                                                                    "e");
    const PropertyAdapter adapter(property);
    EXPECT_EQ(adapter.value(), QVariant(QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                                                          "e")));
    property->setValue("other");
    EXPECT_EQ(adapter.value(), QVariant(QStringLiteral("other")));
    EXPECT_EQ(adapter.property("value"), adapter.value());
}

TEST(PropertyAdapter, tellsOncePerChangeWhoeverMadeIt)
{
    const auto property = boost::make_shared<Property<int>>(1);
    PropertyAdapter adapter(property);
    const QSignalSpy changes(&adapter, &PropertyAdapter::valueChanged);
    property->setValue(2);
    EXPECT_TRUE(adapter.setValue(3));
    EXPECT_TRUE(adapter.setValue(3));
    EXPECT_TRUE(adapter.setProperty("value", 4));
    ASSERT_EQ(changes.size(), 3);
    EXPECT_EQ(changes[0][0], QVariant(2));
    EXPECT_EQ(changes[1][0], QVariant(3));
    EXPECT_EQ(changes[2][0], QVariant(4));
    EXPECT_EQ(property->value(), 4);
}

TEST(PropertyAdapter, tellsTheReasonOfTheValidator)
{
    const auto property = boost::make_shared<Property<int>>(1);
    property->setValidator(boost::make_shared<AtMost<int>>(10));
    PropertyAdapter adapter(property);
    const QSignalSpy changes(&adapter, &PropertyAdapter::valueChanged);
    const QSignalSpy refusals(&adapter, &PropertyAdapter::valueRejected);
    EXPECT_FALSE(adapter.setValue(11));
    EXPECT_EQ(property->value(), 1);
    EXPECT_EQ(changes.size(), 0);
    ASSERT_EQ(refusals.size(), 1);
    EXPECT_EQ(refusals[0][0], QVariant(11));
    EXPECT_EQ(refusals[0][1].toString(), QString::fromUtf8("größer als erlaubt"));
}

TEST(PropertyAdapter, refusesValuesOfTheWrongKindWithASentence)
{
    PropertyAdapter adapter(boost::make_shared<Property<int>>(1));
    const QSignalSpy refusals(&adapter, &PropertyAdapter::valueRejected);
    EXPECT_FALSE(adapter.setValue(QStringLiteral("twelve")));
    EXPECT_FALSE(adapter.setValue(QVariant()));
    ASSERT_EQ(refusals.size(), 2);
    EXPECT_EQ(refusals[0][1].toString(), QStringLiteral("\"twelve\" cannot be used here."));
    EXPECT_EQ(adapter.value(), QVariant(1));
}

TEST(PropertyAdapter, takesOtherTypesIfNothingIsLost)
{
    EXPECT_EQ(afterSetting<int>(QStringLiteral("12")), QVariant(12));
    EXPECT_EQ(afterSetting<int>(12.0), QVariant(12));
    EXPECT_EQ(afterSetting<int>(-12LL), QVariant(-12));
    EXPECT_EQ(afterSetting<int>(std::numeric_limits<int>::min()), QVariant(std::numeric_limits<int>::min()));
    EXPECT_EQ(afterSetting<double>(12), QVariant(12.0));
    EXPECT_EQ(afterSetting<double>(QStringLiteral("1e300")), QVariant(1e300));
    EXPECT_EQ(afterSetting<bool>(1), QVariant(true));
    EXPECT_EQ(afterSetting<std::string>(12), QVariant(QStringLiteral("12")));
    EXPECT_EQ(afterSetting<QString>(12), QVariant(QStringLiteral("12")));
    EXPECT_EQ(afterSetting<qlonglong>(QStringLiteral("9223372036854775807")),
        QVariant(std::numeric_limits<qlonglong>::max()));
    EXPECT_EQ(afterSetting<qulonglong>(QStringLiteral("18446744073709551615")),
        QVariant(std::numeric_limits<qulonglong>::max()));
    EXPECT_EQ(afterSetting<qulonglong>(5), QVariant(5ULL));
    EXPECT_EQ(afterSetting<float>(0.5), QVariant(0.5F));
}

TEST(PropertyAdapter, takesNoNumberThatWouldBecomeAnother)
{
    EXPECT_FALSE(afterSetting<int>(1.5).isValid());
    EXPECT_FALSE(afterSetting<int>(qQNaN()).isValid());
    EXPECT_FALSE(afterSetting<int>(1e300).isValid());
    EXPECT_FALSE(afterSetting<int>(2147483648LL).isValid());
    EXPECT_FALSE(afterSetting<int>(std::numeric_limits<qulonglong>::max()).isValid());
    EXPECT_FALSE(afterSetting<unsigned>(-1).isValid());
    EXPECT_FALSE(afterSetting<std::uint8_t>(256).isValid());
    EXPECT_FALSE(afterSetting<qlonglong>(0x1p63).isValid());
    EXPECT_FALSE(afterSetting<qulonglong>(-1).isValid());
    EXPECT_FALSE(afterSetting<qulonglong>(QStringLiteral("-1")).isValid());
    EXPECT_FALSE(afterSetting<qulonglong>(1.5).isValid());
    EXPECT_FALSE(afterSetting<float>(1e300).isValid());
    EXPECT_FALSE(afterSetting<double>(QStringLiteral("1,5")).isValid());
}

TEST(PropertyAdapter, keepsInfinity)
{
    EXPECT_EQ(afterSetting<float>(qInf()), QVariant(std::numeric_limits<float>::infinity()));
    EXPECT_EQ(afterSetting<double>(-qInf()), QVariant(-qInf()));
}

TEST(PropertyAdapter, takesEnumerations)
{
    PropertyAdapter adapter(boost::make_shared<Property<Unit>>());
    EXPECT_TRUE(adapter.setValue(QVariant::fromValue(Unit::Inch)));
    EXPECT_EQ(adapter.value().value<Unit>(), Unit::Inch);
    EXPECT_FALSE(adapter.setValue(QStringLiteral("inch")));
    EXPECT_EQ(adapter.value().value<Unit>(), Unit::Inch);
}

TEST(PropertyAdapter, withoutAPropertyRefusesEverything)
{
    PropertyAdapter adapter(boost::shared_ptr<PropertyAbstract<int>>{});
    const QSignalSpy refusals(&adapter, &PropertyAdapter::valueRejected);
    EXPECT_FALSE(adapter.value().isValid());
    EXPECT_FALSE(adapter.setValue(1));
    EXPECT_EQ(refusals.size(), 1);
}

TEST(PropertyAdapter, keepsThePropertyAliveAndStopsObservingAtItsEnd)
{
    auto property = boost::make_shared<Property<int>>(1);
    const boost::weak_ptr<Property<int>> observer = property;
    auto adapter = std::make_unique<PropertyAdapter>(property);
    property.reset();
    EXPECT_TRUE(adapter->setValue(2));
    property = observer.lock();
    ASSERT_TRUE(property);
    EXPECT_EQ(property->value(), 2);
    adapter.reset();
    EXPECT_TRUE(property->signalValueChanged.num_slots() == 1) << "only the property's own slot is left";
    property->setValue(3);
}

TEST(PropertyAdapter, maybeDestroyedWhenItTells)
{
    const auto property = boost::make_shared<Property<int>>(1);
    property->setValidator(boost::make_shared<AtMost<int>>(10));
    auto* adapter = new PropertyAdapter(property);
    QObject::connect(adapter, &PropertyAdapter::valueChanged, [&] { delete adapter; });
    EXPECT_TRUE(adapter->setValue(2));
    EXPECT_EQ(property->value(), 2);

    adapter = new PropertyAdapter(property);
    QObject::connect(adapter, &PropertyAdapter::valueRejected, [&] { delete adapter; });
    EXPECT_FALSE(adapter->setValue(11));
}

TEST(PropertyAdapter, exceptionsOfObserversReachTheCaller)
{
    const auto property = boost::make_shared<Property<int>>(1);
    property->signalValueChanged.connect([](int) { throw std::runtime_error("observer"); });
    PropertyAdapter adapter(property);
    EXPECT_THROW(adapter.setValue(2), std::runtime_error);
    EXPECT_EQ(adapter.value(), QVariant(2));
}

} // namespace
