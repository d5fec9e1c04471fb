// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QPointer>
#include <QSignalSpy>

#include <limits>
#include <ostream>
#include <type_traits>

namespace {

using morvane::test::IntegerSpinBox;
using morvane::ui::IntegralSpinBox;
using IntegerWindow = morvane::test::SpinBoxWindow<IntegerSpinBox>;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

static_assert(!std::is_default_constructible_v<IntegralSpinBox>);
static_assert(!std::is_copy_constructible_v<IntegralSpinBox> && !std::is_move_constructible_v<IntegralSpinBox>);
static_assert(std::has_virtual_destructor_v<IntegralSpinBox>);
static_assert(std::is_base_of_v<QSpinBox, IntegralSpinBox>);

struct WrapCase
{
    int value;
    int singleStep;
    int steps;
    int result;
};

void PrintTo(const WrapCase& c, std::ostream* out)
{
    *out << c.value << " after " << c.steps << " steps of " << c.singleStep;
}

class IntegralSpinBoxWrap : public ::testing::TestWithParam<WrapCase>
{
};

} // namespace

TEST(IntegralSpinBox, startsWithTheDefaultsOfItsBase)
{
    const IntegralSpinBox spin(nullptr);
    EXPECT_EQ(spin.minimum(), 0);
    EXPECT_EQ(spin.maximum(), 99);
    EXPECT_EQ(spin.singleStep(), 1);
    EXPECT_EQ(spin.value(), 0);
    EXPECT_FALSE(spin.keyboardTracking());
}

TEST(IntegralSpinBox, belongsToItsParent)
{
    QWidget parent;
    const QPointer<IntegralSpinBox> spin = new IntegralSpinBox(&parent);
    EXPECT_EQ(spin->parentWidget(), &parent);
}

TEST(IntegralSpinBox, valueCountsFromReturnOn)
{
    IntegerWindow window;
    QSignalSpy changes(&window.spin, QOverload<int>::of(&QSpinBox::valueChanged));
    window.type("42");
    EXPECT_EQ(changes.count(), 0);
    window.commit();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(window.spin.value(), 42);
}

INSTANTIATE_TEST_SUITE_P(Arithmetic, IntegralSpinBoxWrap,
    ::testing::Values(WrapCase{10, 5, 1, 15}, WrapCase{highest, 1, 1, lowest}, WrapCase{lowest, 1, -1, highest},
        WrapCase{0, highest, 2, -2}, WrapCase{0, highest, lowest, lowest}, WrapCase{7, 65536, 65536, 7},
        WrapCase{highest, highest, highest, lowest}, WrapCase{lowest, 2, lowest, lowest}, WrapCase{1, 0, highest, 1}));

TEST_P(IntegralSpinBoxWrap, stepsWrapAroundIn32Bits)
{
    const WrapCase& wrap = GetParam();
    IntegralSpinBox spin(nullptr);
    spin.setRange(lowest, highest);
    spin.setSingleStep(wrap.singleStep);
    spin.setValue(wrap.value);
    spin.stepBy(wrap.steps);
    EXPECT_EQ(spin.value(), wrap.result);
}

TEST(IntegralSpinBox, wrappedResultIsBroughtIntoTheRange)
{
    IntegralSpinBox spin(nullptr);
    spin.setRange(0, highest);
    spin.setValue(highest - 1);
    spin.stepBy(5);
    EXPECT_EQ(spin.value(), 0);
}

TEST(IntegralSpinBox, numbersOfOtherBasesStepAsWell)
{
    IntegerWindow window;
    window.spin.setDisplayIntegerBase(16);
    window.spin.setValue(9);
    QTest::keyClick(&window.spin, Qt::Key_Up);
    EXPECT_EQ(window.shown(), "a");
}
