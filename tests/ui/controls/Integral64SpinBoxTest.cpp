// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QClipboard>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QSignalSpy>

#include <limits>

namespace {

using morvane::test::Integer64SpinBox;
using morvane::ui::Integral64SpinBox;
using Limits = std::numeric_limits<qint64>;

class Integral64SpinBoxField : public ::testing::Test
{
protected:
    Integral64SpinBoxField() { spin.setRange(Limits::min(), Limits::max()); }

    void paste(const QString& text)
    {
        spin.selectAll();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
    }

    morvane::test::SpinBoxWindow<Integer64SpinBox> window;
    Integer64SpinBox& spin = window.spin;
};

TEST(Integral64SpinBoxNew, beginsAsQSpinBoxDoes)
{
    Integer64SpinBox spin;
    EXPECT_EQ(spin.value(), 0);
    EXPECT_EQ(spin.minimum(), 0);
    EXPECT_EQ(spin.maximum(), 99);
    EXPECT_EQ(spin.singleStep(), 1);
    EXPECT_EQ(spin.base(), Integral64SpinBox::Decimal);
    EXPECT_EQ(spin.groupSeparator(), "");
    EXPECT_EQ(spin.text(), "0");
    EXPECT_FALSE(spin.keyboardTracking());
    EXPECT_FALSE(spin.isRefusalShown());
    EXPECT_GE(spin.sizeHint().width(), QSpinBox().sizeHint().width());
    EXPECT_EQ(spin.sizeHint().height(), QSpinBox().sizeHint().height());
}

TEST_F(Integral64SpinBoxField, holdsNumbersThatAreTooLongForADouble)
{
    window.type("9007199254740993");
    window.commit();
    EXPECT_EQ(spin.value(), 9007199254740993);
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(spin.value(), 9007199254740994);
    window.type("-9223372036854775808");
    window.commit();
    EXPECT_EQ(spin.value(), Limits::min());
    window.type("92233720368547758079");
    EXPECT_EQ(window.shown(), "9223372036854775807") << "the last digit is refused";
}

TEST_F(Integral64SpinBoxField, stepsUpToTheLimitsWithoutOverflow)
{
    spin.setValue(Limits::max() - 3);
    spin.setSingleStep(2);
    QTest::keyClick(&spin, Qt::Key_PageUp);
    EXPECT_EQ(spin.value(), Limits::max());
    spin.setValue(Limits::min() + 3);
    spin.setSingleStep(Limits::max());
    QTest::keyClick(&spin, Qt::Key_PageDown);
    EXPECT_EQ(spin.value(), Limits::min());
    spin.stepBy(std::numeric_limits<int>::max());
    EXPECT_EQ(spin.value(), Limits::max());
    spin.stepBy(std::numeric_limits<int>::min());
    EXPECT_EQ(spin.value(), Limits::min());
    spin.stepBy(1);
    EXPECT_EQ(spin.value(), -1);
    spin.setSingleStep(-1);
    EXPECT_EQ(spin.singleStep(), Limits::max()) << "ignored";
    spin.setRange(0, 9);
    spin.setSingleStep(4);
    spin.setWrapping(true);
    spin.setValue(8);
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(spin.value(), 0);
}

TEST_F(Integral64SpinBoxField, showsAndReadsTheBase)
{
    spin.setValue(255);
    spin.setPrefix("0x");
    spin.setBase(Integral64SpinBox::Hexadecimal);
    EXPECT_EQ(window.shown(), "0xFF");
    window.type("dead");
    window.commit();
    EXPECT_EQ(window.shown(), "0xDEAD");
    EXPECT_EQ(spin.value(), 0xdead);
    EXPECT_EQ(spin.cleanText(), "DEAD");
    paste("0xBEEF");
    window.commit();
    EXPECT_EQ(spin.value(), 0xbeef);
    window.type("1g2");
    EXPECT_EQ(window.shown(), "0x12");
    spin.setPrefix("");
    spin.setBase(Integral64SpinBox::Binary);
    spin.setValue(-5);
    EXPECT_EQ(window.shown(), "-101");
    spin.setBase(static_cast<Integral64SpinBox::Base>(7));
    EXPECT_EQ(spin.base(), Integral64SpinBox::Binary);
}

TEST_F(Integral64SpinBoxField, movesTheSeparatorsWhileDigitsAreTyped)
{
    spin.setGroupSeparator(",");
    window.type("1234567");
    EXPECT_EQ(window.shown(), "1,234,567");
    window.commit();
    EXPECT_EQ(spin.value(), 1234567);
    spin.lineEdit()->setCursorPosition(3);
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "134,567");
    QTest::keyClicks(&spin, "9");
    EXPECT_EQ(window.shown(), "1,934,567");
    QTest::keyClick(&spin, Qt::Key_Home);
    for (const char* const left : {"934,567", "34,567", "4,567", "567", "67", "7", ""}) {
        QTest::keyClick(&spin, Qt::Key_Delete);
        EXPECT_EQ(window.shown(), left);
    }
}

TEST_F(Integral64SpinBoxField, passesSeparatorsWithBackspaceAndDelete)
{
    spin.setGroupSeparator(",");
    spin.setValue(1234567);
    QTest::keyClick(&spin, Qt::Key_End);
    for (const char* const left : {"123,456", "12,345", "1,234", "123", "12", "1", ""}) {
        QTest::keyClick(&spin, Qt::Key_Backspace);
        EXPECT_EQ(window.shown(), left);
    }
    spin.setValue(1);
    spin.setValue(1234567);
    spin.lineEdit()->setCursorPosition(1); // 1|,234,567
    QTest::keyClick(&spin, Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "1,234,567");
    QTest::keyClick(&spin, Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "134,567");
    spin.setValue(1234567);
    spin.lineEdit()->setCursorPosition(2); // 1,|234,567
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "1,234,567");
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "234,567");
}

TEST_F(Integral64SpinBoxField, refusesMisplacedSeparators)
{
    spin.setGroupSeparator(",");
    spin.setRefusalShown(true);
    spin.setValue(9);
    window.type("12,5");
    EXPECT_EQ(window.shown(), "12,5");
    EXPECT_TRUE(spin.isTextRefused());
    window.commit();
    EXPECT_EQ(spin.value(), 9);
    window.type("12,500");
    EXPECT_FALSE(spin.isTextRefused());
    window.commit();
    EXPECT_EQ(spin.value(), 12500);
    paste("12,5");
    EXPECT_TRUE(spin.isTextRefused());
    paste("7,500,000");
    window.commit();
    EXPECT_EQ(spin.value(), 7500000);
    for (const char* const separator : {"1", "-", "a"}) {
        spin.setGroupSeparator(separator);
        EXPECT_EQ(spin.groupSeparator(), ",") << separator;
    }
}

TEST_F(Integral64SpinBoxField, keepsPrefixAndSuffix)
{
    spin.setPrefix("n = ");
    spin.setSuffix(" samples");
    spin.setValue(12);
    EXPECT_EQ(window.shown(), "n = 12 samples");
    spin.lineEdit()->selectAll();
    QTest::keyClicks(&spin, "3");
    EXPECT_EQ(window.shown(), "n = 3 samples");
    QTest::keyClicks(&spin, "4");
    window.commit();
    EXPECT_EQ(spin.value(), 34);
    EXPECT_EQ(spin.lineEdit()->selectedText(), "34");
    QTest::keyClick(&spin, Qt::Key_End);
    QTest::keyClick(&spin, Qt::Key_Delete);
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "n = 3 samples");
    QTest::keyClick(&spin, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(spin.lineEdit()->selectedText(), "3");
    paste(" 56 ");
    EXPECT_EQ(window.shown(), "n = 56 samples");
    QTest::keyClick(&spin, Qt::Key_Tab);
    EXPECT_EQ(spin.value(), 56);
    QTest::keyClick(&window.other, Qt::Key_Backtab);
    EXPECT_EQ(spin.lineEdit()->selectedText(), "56");
}

TEST_F(Integral64SpinBoxField, showsTheSpecialValueTextAtTheMinimum)
{
    spin.setRange(0, 10);
    spin.setSpecialValueText("none");
    EXPECT_EQ(window.shown(), "none") << "at once, as in QSpinBox";
    spin.setProperty("specialValueText", "");
    EXPECT_EQ(window.shown(), "0");
    spin.setProperty("specialValueText", "none");
    EXPECT_EQ(window.shown(), "none");
    spin.setValue(3);
    spin.setValue(0);
    EXPECT_EQ(window.shown(), "none");
    window.commit();
    EXPECT_EQ(spin.value(), 0);
    window.type("4");
    window.commit();
    EXPECT_EQ(spin.value(), 4);
}

TEST_F(Integral64SpinBoxField, emitsOneSignalForEachChange)
{
    QSignalSpy values(&spin, &Integral64SpinBox::valueChanged);
    QSignalSpy texts(&spin, &Integral64SpinBox::textChanged);
    spin.setValue(5);
    spin.setValue(5);
    window.type("12");
    EXPECT_EQ(values.size(), 1);
    window.commit();
    ASSERT_EQ(values.size(), 2);
    EXPECT_EQ(values.at(1).at(0).toLongLong(), 12);
    EXPECT_EQ(texts.at(1).at(0), "12");
    spin.setKeyboardTracking(true);
    window.type("34");
    EXPECT_EQ(values.size(), 4) << "3 and 34";
    EXPECT_EQ(spin.value(), 34);
    spin.setRange(0, 20);
    EXPECT_EQ(values.size(), 5);
    EXPECT_EQ(window.shown(), "20");
}

TEST_F(Integral64SpinBoxField, stepsOnlyWithinTheRangeAndNotIfItIsReadOnly)
{
    spin.setRange(1, 2);
    spin.setValue(1);
    QTest::keyClick(&spin, Qt::Key_Down);
    EXPECT_EQ(spin.value(), 1);
    spin.setReadOnly(true);
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(spin.value(), 1);
    spin.setMinimum(7);
    EXPECT_EQ(spin.maximum(), 7);
    EXPECT_EQ(spin.value(), 7);
    spin.setMaximum(3);
    EXPECT_EQ(spin.minimum(), 3);
    EXPECT_EQ(spin.value(), 3);
}

TEST_F(Integral64SpinBoxField, stepsFromTheTypedNumberAlsoIfTheValueIsAtItsLimit)
{
    spin.setRange(1, 10);
    spin.setValue(10);
    window.type("5");
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(spin.value(), 6);
    spin.setValue(1);
    window.type("8");
    window.clickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(spin.value(), 7);
    window.type("10");
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(window.shown(), "10") << "the typed number is at the limit";
}

TEST_F(Integral64SpinBoxField, hasABaseThatDesignerOffersByName)
{
    const QMetaObject& type = Integral64SpinBox::staticMetaObject;
    const QMetaProperty base = type.property(type.indexOfProperty("base"));
    EXPECT_TRUE(base.isWritable() && base.isDesignable() && base.isEnumType());
    EXPECT_EQ(QByteArray(base.enumerator().valueToKey(16)), "Hexadecimal");
    EXPECT_EQ(QByteArray(type.userProperty().name()), "value");
}

} // namespace
