// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "property/Property.h"
#include "support/QtPrinters.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/PropertyAdapter.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <boost/make_shared.hpp>

namespace {

using morvane::Property;
using morvane::ValidationResult;
using morvane::ui::PropertyAdapter;

class Even : public morvane::ValidatorInterface<int>
{
public:
    ValidationResult validate(const int& v) const override
    {
        return v % 2 == 0 ? ValidationResult() : ValidationResult("odd");
    }
};

class LongEnough : public morvane::ValidatorInterface<std::string>
{
public:
    ValidationResult validate(const std::string& v) const override
    {
        return v.size() >= 3 ? ValidationResult() : ValidationResult("too short");
    }
};

TEST(PropertyAdapterBinding, checkBoxAndPropertyFollowEachOther)
{
    const auto property = boost::make_shared<Property<bool>>(true);
    PropertyAdapter adapter(property);
    QCheckBox box;
    ASSERT_TRUE(adapter.bindTo(&box));
    EXPECT_TRUE(box.isChecked());
    box.click();
    EXPECT_FALSE(property->value());
    box.click();
    EXPECT_TRUE(property->value());
    property->setValue(false);
    EXPECT_FALSE(box.isChecked());
}

TEST(PropertyAdapterBinding, severalControlsShareOneProperty)
{
    const auto property = boost::make_shared<Property<int>>(3);
    PropertyAdapter adapter(property);
    QSpinBox first;
    QSpinBox second;
    ASSERT_TRUE(adapter.bindTo(&first));
    ASSERT_TRUE(adapter.bindTo(&second, "value"));
    QTest::keyClick(&first, Qt::Key_Up);
    EXPECT_EQ(second.value(), 4);
    QTest::keyClick(&second, Qt::Key_Up);
    QTest::keyClick(&second, Qt::Key_Up);
    EXPECT_EQ(first.value(), 6);
    EXPECT_EQ(property->value(), 6);
}

TEST(PropertyAdapterBinding, rejectedValueIsPutBack)
{
    const auto property = boost::make_shared<Property<int>>(4);
    property->setValidator(boost::make_shared<Even>());
    PropertyAdapter adapter(property);
    QSpinBox box;
    ASSERT_TRUE(adapter.bindTo(&box));
    const QSignalSpy refusals(&adapter, &PropertyAdapter::valueRejected);
    for (int i = 1; i <= 2; ++i) { // the same thing twice
        QTest::keyClick(&box, Qt::Key_Up);
        EXPECT_EQ(box.value(), 4);
        EXPECT_EQ(refusals.size(), i);
    }
    box.setSingleStep(2);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(property->value(), 6);
    EXPECT_EQ(box.value(), 6);
}

TEST(PropertyAdapterBinding, lineEditIsReadWhenItIsLeftIfItsSignalSaysSo)
{
    const auto property = boost::make_shared<Property<std::string>>("metre");
    property->setValidator(boost::make_shared<LongEnough>());
    PropertyAdapter adapter(property);
    QLineEdit line;
    ASSERT_TRUE(adapter.bindTo(&line, "text", SIGNAL(editingFinished())));
    line.selectAll();
    QTest::keyClicks(&line, "inch");
    EXPECT_EQ(property->value(), "metre");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(property->value(), "inch");
    line.selectAll();
    QTest::keyClicks(&line, "ft");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_EQ(property->value(), "inch");
    EXPECT_EQ(line.text(), QStringLiteral("inch"));
}

TEST(PropertyAdapterBinding, controlThatShowsTheValueDifferentlyChangesNothing)
{
    const auto property = boost::make_shared<Property<int>>(500);
    PropertyAdapter adapter(property);
    QSpinBox box; // up to 99
    ASSERT_TRUE(adapter.bindTo(&box));
    EXPECT_EQ(box.value(), 99);
    EXPECT_EQ(property->value(), 500);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(property->value(), 98);
}

TEST(PropertyAdapterBinding, laterControlIsRightWhenAnObserverSetsTheValueAgain)
{
    const auto property = boost::make_shared<Property<int>>(0);
    property->signalValueChanged.connect([&](int value) {
        if (value == 1) {
            property->setValue(7);
        }
    });
    PropertyAdapter adapter(property);
    QSpinBox box;
    QComboBox list;
    list.addItems({"0", "1", "2", "3", "4", "5", "6", "7"});
    ASSERT_TRUE(adapter.bindTo(&box));
    ASSERT_TRUE(adapter.bindTo(&list, "currentIndex"));
    property->setValue(1);
    EXPECT_EQ(box.value(), 7);
    EXPECT_EQ(list.currentIndex(), 7);
}

/** The spin boxes replace the property `value` of Qt's. */
template <typename Value>
void expectBound(QAbstractSpinBox& box, Value value, Value next)
{
    const auto property = boost::make_shared<Property<Value>>(value);
    PropertyAdapter adapter(property);
    ASSERT_TRUE(adapter.bindTo(&box));
    EXPECT_EQ(box.property("value").value<Value>(), value);
    box.stepUp();
    EXPECT_EQ(property->value(), next);
    property->setValue(value);
    EXPECT_EQ(box.property("value").value<Value>(), value);
}

TEST(PropertyAdapterBinding, spinBoxesOfTheLibraryAreBoundByTheirValue)
{
    morvane::ui::IntegralSpinBox integral(nullptr);
    expectBound<int>(integral, 4, 5);
    morvane::ui::Integral64SpinBox integral64;
    integral64.setMaximum(Q_INT64_C(0x100000000000));
    expectBound<qint64>(integral64, Q_INT64_C(0x10000000000), Q_INT64_C(0x10000000001));
    morvane::ui::QScientificSpinBox scientific;
    scientific.setStepMode(morvane::ui::QScientificSpinBox::Decade);
    expectBound<double>(scientific, 0.5, 5);
}

TEST(PropertyAdapterBinding, refusesWhatCannotBeBound)
{
    PropertyAdapter adapter(boost::make_shared<Property<int>>(1));
    QSpinBox box;
    QLabel label;
    EXPECT_FALSE(adapter.bindTo(nullptr));
    EXPECT_FALSE(adapter.bindTo(&box, "noSuchProperty"));
    EXPECT_FALSE(adapter.bindTo(&box, "value", SIGNAL(noSuchSignal())));
    EXPECT_FALSE(adapter.bindTo(&box, "value", ""));
    EXPECT_FALSE(adapter.bindTo(&box, "cleanText")) << "cannot be written";
    EXPECT_FALSE(adapter.bindTo(&label, "wordWrap")) << "has no notify signal";
    EXPECT_EQ(box.value(), 0);
    EXPECT_TRUE(adapter.findChildren<QObject*>().isEmpty());
    EXPECT_TRUE(adapter.bindTo(&box, "value", "valueChanged( int )"));
}

TEST(PropertyAdapterBinding, eitherSideMayGoFirst)
{
    const auto property = boost::make_shared<Property<int>>(1);
    auto box = std::make_unique<QSpinBox>();
    {
        PropertyAdapter adapter(property);
        ASSERT_TRUE(adapter.bindTo(box.get()));
    }
    property->setValue(2);
    EXPECT_EQ(box->value(), 1);
    box->setValue(5);
    EXPECT_EQ(property->value(), 2);

    PropertyAdapter adapter(property);
    ASSERT_TRUE(adapter.bindTo(box.get()));
    EXPECT_EQ(box->value(), 2);
    box.reset();
    property->setValue(3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(adapter.findChildren<QObject*>().isEmpty());
}

TEST(PropertyAdapterBinding, refusedControlMayDestroyTheAdapter)
{
    const auto property = boost::make_shared<Property<int>>(4);
    property->setValidator(boost::make_shared<Even>());
    auto* const adapter = new PropertyAdapter(property);
    QSpinBox box;
    ASSERT_TRUE(adapter->bindTo(&box));
    QObject::connect(adapter, &PropertyAdapter::valueRejected, [adapter] { delete adapter; });
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(box.value(), 5);
    EXPECT_EQ(property->value(), 4);
}

} // namespace
