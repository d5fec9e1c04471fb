// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include "support/SpinBoxButton.h"

#include <limits>

namespace {

using morvane::test::ScientificSpinBox;
using morvane::ui::QScientificSpinBox;

class QScientificSpinBoxStepMode : public ::testing::Test
{
protected:
    void press(Qt::Key key, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(&spin, key);
        }
    }

    double after(double value, Qt::Key key, int times = 1)
    {
        spin.setValue(value);
        press(key, times);
        return spin.value();
    }

    morvane::test::SpinBoxWindow<ScientificSpinBox> window;
    ScientificSpinBox& spin = window.spin;
};

TEST_F(QScientificSpinBoxStepMode, isLinearInitially)
{
    EXPECT_EQ(spin.stepMode(), QScientificSpinBox::Linear);
    EXPECT_EQ(after(4.5, Qt::Key_Up), 5.5);
}

TEST_F(QScientificSpinBoxStepMode, decadesAreExactInBothDirections)
{
    spin.setStepMode(QScientificSpinBox::Decade);
    EXPECT_EQ(after(1e-6, Qt::Key_Up), 1e-5);
    EXPECT_EQ(after(4.7e-6, Qt::Key_Up, 9), 4.7e3);
    EXPECT_EQ(after(4.7e3, Qt::Key_Down, 9), 4.7e-6);
    EXPECT_EQ(after(1.1, Qt::Key_PageUp), 1.1e10);
    EXPECT_EQ(window.spin.lineEdit()->selectedText(), window.shown());
    window.turnWheel(120);
    EXPECT_EQ(spin.value(), 1.1e11);
    window.clickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(spin.value(), 1.1e10);
}

TEST_F(QScientificSpinBoxStepMode, decadesOfNegativeNumbersAreUpTowardsZero)
{
    spin.setStepMode(QScientificSpinBox::Decade);
    EXPECT_EQ(after(-1e-5, Qt::Key_Up), -1e-6);
    EXPECT_EQ(after(-1e-5, Qt::Key_Down), -1e-4);
}

TEST_F(QScientificSpinBoxStepMode, decadesBeginWithTheSingleStepAtZero)
{
    spin.setStepMode(QScientificSpinBox::Decade);
    spin.setSingleStep(1e-3);
    EXPECT_EQ(after(0, Qt::Key_Up), 1e-3);
    EXPECT_EQ(after(0, Qt::Key_Down, 2), -1e-2);
    spin.setValue(0);
    spin.stepBy(0);
    EXPECT_EQ(spin.value(), 0);
}

TEST_F(QScientificSpinBoxStepMode, decadesEndAtTheRange)
{
    spin.setStepMode(QScientificSpinBox::Decade);
    spin.setRange(1e-7, 3);
    EXPECT_EQ(after(1, Qt::Key_Up), 3);
    EXPECT_EQ(after(1e-6, Qt::Key_Down, 3), 1e-7);
    spin.setRange(-1e308, 1e308);
    EXPECT_EQ(after(5e307, Qt::Key_Up), 1e308);
}

TEST_F(QScientificSpinBoxStepMode, manyStepsAtOnceEndAtTheRange)
{
    spin.setRange(-1e300, 1e300);
    for (const auto mode :
        {QScientificSpinBox::Decade, QScientificSpinBox::OneTwoFive, QScientificSpinBox::LastDigit}) {
        spin.setStepMode(mode);
        for (const double value : {2.5, -2.5}) {
            spin.setValue(value);
            spin.stepBy(std::numeric_limits<int>::max());
            EXPECT_GE(spin.value(), value);
            spin.setValue(value);
            spin.stepBy(std::numeric_limits<int>::min());
            EXPECT_LE(spin.value(), value);
        }
    }
    spin.setStepMode(QScientificSpinBox::Decade);
    spin.setValue(1);
    spin.stepBy(std::numeric_limits<int>::max());
    EXPECT_EQ(spin.value(), 1e300);
}

TEST_F(QScientificSpinBoxStepMode, oneTwoFiveGoesThroughTheSequence)
{
    spin.setStepMode(QScientificSpinBox::OneTwoFive);
    spin.setValue(1e-6);
    for (const double next : {2e-6, 5e-6, 1e-5, 2e-5}) {
        press(Qt::Key_Up);
        EXPECT_EQ(spin.value(), next);
    }
    for (const double next : {1e-5, 5e-6, 2e-6, 1e-6, 5e-7}) {
        press(Qt::Key_Down);
        EXPECT_EQ(spin.value(), next);
    }
    EXPECT_EQ(after(3, Qt::Key_Up), 5);
    EXPECT_EQ(after(3, Qt::Key_Down), 2);
    EXPECT_EQ(after(1.5, Qt::Key_Down), 1);
    EXPECT_EQ(after(7, Qt::Key_Up), 10);
    EXPECT_EQ(after(0.15, Qt::Key_Up), 0.2);
    EXPECT_EQ(after(-3, Qt::Key_Up), -2);
    EXPECT_EQ(after(-3, Qt::Key_Down), -5);
    EXPECT_EQ(after(1, Qt::Key_PageUp), 2000);
}

TEST_F(QScientificSpinBoxStepMode, takesTheTypedNumberFirst)
{
    for (const auto mode : {QScientificSpinBox::Decade, QScientificSpinBox::OneTwoFive}) {
        spin.setStepMode(mode);
        spin.setValue(1);
        window.type("2");
        press(Qt::Key_Down);
        EXPECT_EQ(spin.value(), mode == QScientificSpinBox::Decade ? 0.2 : 1);
    }
}

TEST_F(QScientificSpinBoxStepMode, stepsFromTheTypedNumberAlsoIfTheValueIsAtItsLimit)
{
    spin.setRange(1, 100);
    spin.setStepMode(QScientificSpinBox::Decade);
    spin.setValue(1);
    window.type("50");
    press(Qt::Key_Down);
    EXPECT_EQ(spin.value(), 5);
    spin.setValue(100);
    window.type("3");
    window.clickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(spin.value(), 30);
    spin.setReadOnly(true);
    press(Qt::Key_Up);
    EXPECT_EQ(spin.value(), 30);
    spin.setReadOnly(false);
    spin.setStepMode(QScientificSpinBox::Linear);
    spin.setValue(100);
    window.type("50");
    press(Qt::Key_Up);
    EXPECT_EQ(window.shown(), "50") << "as Qt does it, which counts from value()";
}

TEST_F(QScientificSpinBoxStepMode, lastDigitStepsTheDigitBeforeTheCursor)
{
    spin.setStepMode(QScientificSpinBox::LastDigit);
    spin.setValue(12.34);
    spin.selectAll();
    press(Qt::Key_Up);
    EXPECT_EQ(spin.value(), 12.35) << "the last one";
    EXPECT_FALSE(spin.lineEdit()->hasSelectedText());
    spin.lineEdit()->setCursorPosition(1);
    press(Qt::Key_Down, 2);
    EXPECT_EQ(spin.value(), -7.65);
    spin.setValue(12.34);
    spin.lineEdit()->setCursorPosition(4);
    press(Qt::Key_Up, 3);
    EXPECT_EQ(window.shown(), "12.64");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 4);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(window.shown(), "13.64");
}

TEST_F(QScientificSpinBoxStepMode, lastDigitStaysWhereAZeroIsNotShown)
{
    spin.setStepMode(QScientificSpinBox::LastDigit);
    spin.setValue(4.78);
    press(Qt::Key_End);
    for (const char* const shown : {"4.79", "4.8", "4.81", "4.82"}) {
        press(Qt::Key_Up);
        EXPECT_EQ(window.shown(), shown);
    }
    for (const char* const shown : {"4.81", "4.8", "4.79"}) {
        press(Qt::Key_Down);
        EXPECT_EQ(window.shown(), shown);
    }
}

TEST_F(QScientificSpinBoxStepMode, lastDigitGoesThroughPrefixesAndZero)
{
    spin.setStepMode(QScientificSpinBox::LastDigit);
    spin.setNotation(QScientificSpinBox::SiPrefix);
    spin.setSuffix("V");
    spin.setPrefix("U = ");
    spin.setValue(0.9998);
    spin.lineEdit()->setCursorPosition(9); // U = 999.8| mV
    press(Qt::Key_Up);
    EXPECT_EQ(window.shown(), "U = 999.9 mV");
    press(Qt::Key_Up);
    EXPECT_EQ(window.shown(), "U = 1 V");
    press(Qt::Key_Up);
    EXPECT_EQ(window.shown(), "U = 1.0001 V");
    press(Qt::Key_Down, 2);
    EXPECT_EQ(window.shown(), "U = 999.9 mV");
    spin.setValue(2e-3);
    spin.lineEdit()->setCursorPosition(5);
    for (const char* const shown : {"U = 1 mV", "U = 0 V", "U = -1 mV", "U = -2 mV"}) {
        press(Qt::Key_Down);
        EXPECT_EQ(window.shown(), shown);
    }
}

TEST_F(QScientificSpinBoxStepMode, lastDigitTakesTheTypedNumberWithItsCursor)
{
    spin.setStepMode(QScientificSpinBox::LastDigit);
    window.type("1.250");
    press(Qt::Key_Up);
    EXPECT_EQ(spin.value(), 1.251);
    window.type("-");
    press(Qt::Key_Up);
    EXPECT_EQ(spin.value(), 1.252) << "no number: the old one";
    window.type("7");
    window.commit();
    press(Qt::Key_Up);
    EXPECT_EQ(spin.value(), 8);
}

TEST_F(QScientificSpinBoxStepMode, lastDigitIsExactOverManySteps)
{
    spin.setStepMode(QScientificSpinBox::LastDigit);
    spin.setValue(0.1);
    press(Qt::Key_End);
    press(Qt::Key_Up, 29);
    EXPECT_EQ(spin.value(), 3);
    press(Qt::Key_Down, 60);
    EXPECT_EQ(spin.value(), -3);
    EXPECT_EQ(window.shown(), "-3");
}

TEST_F(QScientificSpinBoxStepMode, hostsStepsComeFirst)
{
    int ups = 0;
    spin.signalIncrement.connect([&ups] { ++ups; });
    for (const auto mode :
        {QScientificSpinBox::Decade, QScientificSpinBox::OneTwoFive, QScientificSpinBox::LastDigit}) {
        spin.setStepMode(mode);
        EXPECT_EQ(after(10, Qt::Key_Up), 10);
        EXPECT_EQ(spin.lineEdit()->selectedText(), "10");
        EXPECT_LT(after(10, Qt::Key_Down), 10);
    }
    EXPECT_EQ(ups, 3);
}

} // namespace
