// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QClipboard>
#include <QMetaEnum>
#include <QMetaProperty>

namespace {

using morvane::test::ScientificSpinBox;
using morvane::ui::QScientificSpinBox;

class QScientificSpinBoxNotation : public ::testing::Test
{
protected:
    QScientificSpinBoxNotation()
    {
        spin.setNotation(QScientificSpinBox::SiPrefix);
        setUnit("V");
        spin.setValue(1);
    }

    void setUnit(const char* unit) { spin.setSuffix(QString::fromUtf8(unit)); }

    /** The value after a text was typed over the number, and Return. */
    double entered(const QString& text)
    {
        spin.setValue(1);
        window.type(text);
        window.commit();
        return spin.value();
    }

    double pasted(const QString& text)
    {
        spin.setValue(1);
        spin.selectAll();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
        window.commit();
        return spin.value();
    }

    morvane::test::SpinBoxWindow<ScientificSpinBox> window;
    ScientificSpinBox& spin = window.spin;
};

TEST_F(QScientificSpinBoxNotation, isScientificInitially)
{
    const ScientificSpinBox fresh;
    EXPECT_EQ(fresh.notation(), QScientificSpinBox::Scientific);
    const QMetaObject& type = QScientificSpinBox::staticMetaObject;
    const QMetaProperty property = type.property(type.indexOfProperty("notation"));
    EXPECT_TRUE(property.isWritable() && property.isDesignable() && property.isEnumType());
    EXPECT_EQ(QByteArray(property.enumerator().valueToKey(QScientificSpinBox::SiPrefix)), "SiPrefix");
}

TEST_F(QScientificSpinBoxNotation, showsThePrefixBeforeTheUnit)
{
    spin.setValue(4.7e-6);
    EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5V"));
    spin.setValue(-0.5);
    EXPECT_EQ(window.shown(), "-500 mV");
    spin.setValue(0);
    EXPECT_EQ(window.shown(), "0 V");
    spin.setDecimals(3);
    spin.setValue(12345.6);
    EXPECT_EQ(window.shown(), "12.3 kV");
    EXPECT_EQ(spin.value(), 12345.6) << "the value keeps all its digits";
}

TEST_F(QScientificSpinBoxNotation, showsOneBlankWhetherTheSuffixBeginsWithABlankOrNot)
{
    for (const char* const unit : {"V", " V", "\u00a0V"}) {
        setUnit(unit);
        spin.setValue(4.7e-6);
        EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5V")) << unit;
        EXPECT_EQ(spin.suffix(), QString::fromUtf8(unit));
        EXPECT_EQ(spin.property("suffix"), QString::fromUtf8(unit));
    }
    setUnit(" V");
    spin.setNotation(QScientificSpinBox::Engineering);
    EXPECT_EQ(window.shown(), "4.7E-06 V");
    spin.setNotation(QScientificSpinBox::SiPrefix);
    EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5V"));
    static_cast<QDoubleSpinBox&>(spin).setSuffix("A");
    EXPECT_EQ(spin.suffix(), "A");
    EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5A"));
}

TEST_F(QScientificSpinBoxNotation, keepsTheSuffixThatWasSetThroughTheBaseClass)
{
    spin.setNotation(QScientificSpinBox::Scientific);
    static_cast<QDoubleSpinBox&>(spin).setSuffix(" Hz");
    spin.setNotation(QScientificSpinBox::SiPrefix);
    spin.setValue(5e6);
    EXPECT_EQ(window.shown(), "5 MHz");
    spin.setNotation(QScientificSpinBox::Scientific);
    EXPECT_EQ(window.shown(), "5000000 Hz");
}

TEST_F(QScientificSpinBoxNotation, takesTypedNumbersInAllSpellings)
{
    for (const char* const text : {"4.7u", "4.7 u", "4.7uV", "4.7 uV", "4.7e-6", "4.7E-6 V", "4.7E-06", "0.0047m"}) {
        EXPECT_EQ(entered(text), 4.7e-6) << text;
        EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5V")) << text;
    }
    EXPECT_EQ(entered("2 k"), 2000);
    EXPECT_EQ(entered("-3M"), -3e6);
    EXPECT_EQ(entered("1 E"), 1e18);
    EXPECT_EQ(window.shown(), "1 EV");
}

TEST_F(QScientificSpinBoxNotation, takesPastedNumbersInAllSpellings)
{
    for (const char* const text :
        {"4.7\u00b5", "4.7 \u03bcV", "4.7 \u00b5V", " 4.7 \u00b5V ", "4.7E-6 V", "4.7e-6\n"}) {
        EXPECT_EQ(pasted(QString::fromUtf8(text)), 4.7e-6) << text;
        EXPECT_EQ(window.shown(), QStringLiteral("4.7 \u00b5V")) << text;
    }
}

TEST_F(QScientificSpinBoxNotation, showsATypedUnitOnce)
{
    window.type("4.7 mV");
    EXPECT_EQ(window.shown(), "4.7 mV");
    setUnit("Hz");
    window.type("4.7 MHz");
    EXPECT_EQ(window.shown(), "4.7 MHz");
    window.commit();
    EXPECT_EQ(spin.value(), 4.7e6);
    setUnit("Pa");
    EXPECT_EQ(entered("4.7 Pa"), 4.7);
    EXPECT_EQ(entered("4.7 PPa"), 4.7e15);
    EXPECT_EQ(entered("4.7 kPa"), 4700);
}

TEST_F(QScientificSpinBoxNotation, takesTheUnitsOwnLetterForTheUnit)
{
    setUnit("m");
    window.type("4.7m");
    EXPECT_EQ(window.shown(), "4.7m") << "what is shown is what counts";
    EXPECT_EQ(spin.property("value"), 4.7);
    window.commit();
    EXPECT_EQ(window.shown(), "4.7 m");
    window.type("4.7mm");
    EXPECT_EQ(window.shown(), "4.7mm");
    EXPECT_EQ(spin.property("value"), 4.7e-3);
    window.commit();
    EXPECT_EQ(window.shown(), "4.7 mm");
    window.commit();
    EXPECT_EQ(spin.value(), 4.7e-3) << "the shown text is read as it is shown";
    EXPECT_EQ(entered("3 k"), 3000);
    EXPECT_EQ(pasted("4.7m"), 4.7);
    EXPECT_EQ(pasted("4.7 mm"), 4.7e-3);
    setUnit("T");
    EXPECT_EQ(entered("4.7T"), 4.7);
    EXPECT_EQ(entered("4.7m"), 4.7e-3);
}

TEST_F(QScientificSpinBoxNotation, takesAWholeLineThatIsReplaced)
{
    setUnit("m");
    spin.setValue(2);
    spin.lineEdit()->selectAll();
    QApplication::clipboard()->setText("4.7 mm");
    QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(spin.property("value"), 4.7e-3);
    spin.lineEdit()->selectAll();
    QTest::keyClicks(&spin, "5");
    EXPECT_EQ(window.shown(), "5m");
}

TEST_F(QScientificSpinBoxNotation, keepsTheOldValueForAnUnfinishedNumber)
{
    for (const char* const text : {"", "-", "1E", "1E-", ".", "1,5"}) {
        EXPECT_EQ(entered(text), 1) << text;
        EXPECT_EQ(window.shown(), "1 V") << text;
    }
}

TEST_F(QScientificSpinBoxNotation, refusesKeysThatCannotBePartOfANumber)
{
    window.type("4x7");
    EXPECT_EQ(window.shown(), "47V");
    window.type("4..7");
    EXPECT_EQ(window.shown(), "4.7V");
    window.type("4 kk");
    EXPECT_EQ(window.shown(), "4 kV");
}

TEST_F(QScientificSpinBoxNotation, editsTheShownTextInPlace)
{
    spin.setValue(4.7e-6);
    spin.lineEdit()->setCursorPosition(3);
    QTest::keyClicks(&spin, "5");
    EXPECT_EQ(window.shown(), QStringLiteral("4.75 \u00b5V"));
    QTest::keyClick(&spin, Qt::Key_Right);
    QTest::keyClick(&spin, Qt::Key_Delete);
    QTest::keyClicks(&spin, "n");
    EXPECT_EQ(window.shown(), "4.75 nV");
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "4.75 V");
    window.commit();
    EXPECT_EQ(spin.value(), 4.75);
    window.type("6");
    QTest::keyClick(&spin, Qt::Key_Escape);
    QTest::keyClicks(&spin, "k");
    QTest::keyClick(&spin, Qt::Key_Tab);
    EXPECT_EQ(spin.value(), 6000);
}

TEST_F(QScientificSpinBoxNotation, limitsTheNumberToTheRange)
{
    spin.setRange(1e-6, 1);
    EXPECT_EQ(entered("2"), 1) << "the old value";
    EXPECT_EQ(entered("2m"), 2e-3);
    QString text = "2 V";
    int pos = 0;
    EXPECT_EQ(spin.validate(text, pos), QValidator::Intermediate) << "2 m";
    text = "-1 V";
    EXPECT_EQ(spin.validate(text, pos), QValidator::Invalid);
    text = "0 V";
    EXPECT_EQ(spin.validate(text, pos), QValidator::Intermediate);
    spin.setRange(-2, -1);
    text = "1 V";
    EXPECT_EQ(spin.validate(text, pos), QValidator::Invalid);
    text = "-1 mV";
    EXPECT_EQ(spin.validate(text, pos), QValidator::Intermediate);
}

TEST_F(QScientificSpinBoxNotation, showsTheSpecialValueText)
{
    spin.setRange(0, 1);
    spin.setSpecialValueText("off");
    spin.setValue(0);
    EXPECT_EQ(window.shown(), "off");
    window.commit();
    EXPECT_EQ(spin.value(), 0);
    EXPECT_EQ(entered("1m"), 1e-3);
    spin.setPrefix("U = ");
    EXPECT_EQ(window.shown(), "U = 1 mV");
    EXPECT_EQ(entered("20m"), 0.02);
    EXPECT_EQ(window.shown(), "U = 20 mV");
}

TEST_F(QScientificSpinBoxNotation, neitherUsesNorChangesTheSharedValidation)
{
    ScientificSpinBox narrow;
    narrow.setRange(0, 10);
    QString text = "50";
    int pos = 2;
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Invalid);
    EXPECT_EQ(spin.validate(text, pos), QValidator::Acceptable);
    ScientificSpinBox other;
    EXPECT_EQ(other.validate(text, pos), QValidator::Invalid) << "the shared result, as ever";
}

TEST_F(QScientificSpinBoxNotation, readsEngineeringNumbersAsScientificOnes)
{
    spin.setNotation(QScientificSpinBox::Engineering);
    spin.setSuffix(" V");
    spin.setValue(4.7e-7);
    EXPECT_EQ(window.shown(), "470E-09 V");
    window.commit();
    EXPECT_EQ(spin.value(), 4.7e-7);
    EXPECT_EQ(entered("1.5E-4"), 1.5e-4);
    EXPECT_EQ(window.shown(), "150E-06 V");
}

} // namespace
