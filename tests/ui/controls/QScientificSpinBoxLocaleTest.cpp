// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QClipboard>

namespace {

using morvane::test::ScientificSpinBox;
using morvane::ui::QScientificSpinBox;

class QScientificSpinBoxLocale : public ::testing::Test
{
protected:
    QScientificSpinBoxLocale()
    {
        spin.setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
        spin.setValue(1);
    }

    double entered(const QString& text)
    {
        spin.setValue(1);
        window.type(text);
        window.commit();
        return spin.value();
    }

    void paste(const QString& text)
    {
        spin.setValue(1);
        spin.selectAll();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
    }

    double pasted(const QString& text)
    {
        paste(text);
        window.commit();
        return spin.value();
    }

    morvane::test::SpinBoxWindow<ScientificSpinBox> window;
    ScientificSpinBox& spin = window.spin;
};

TEST_F(QScientificSpinBoxLocale, isThatOfCInitiallyAndAfterAReset)
{
    EXPECT_EQ(ScientificSpinBox().numberLocale(), QLocale::c());
    spin.setValue(1234.5);
    spin.resetNumberLocale();
    EXPECT_EQ(spin.numberLocale(), QLocale::c());
    EXPECT_EQ(window.shown(), "1234.5");
    EXPECT_EQ(entered("1,500"), 1500) << "as ever";
}

TEST_F(QScientificSpinBoxLocale, writesItsDecimalPointAndItsGroupsIfTheyAreWanted)
{
    spin.setValue(1234567.5);
    EXPECT_EQ(window.shown(), "1234567,5");
    spin.setGroupSeparatorShown(true);
    EXPECT_EQ(window.shown(), "1.234.567,5");
    spin.setValue(1.5e-7);
    EXPECT_EQ(window.shown(), "1,5E-07");
    spin.setNumberLocale(QLocale(QLocale::Swedish, QLocale::Sweden));
    EXPECT_EQ(window.shown(), QStringLiteral("1,5E\u221207"));
}

TEST_F(QScientificSpinBoxLocale, readsWhatIsTypedInItsOwnWay)
{
    EXPECT_EQ(entered("1,500"), 1.5);
    EXPECT_EQ(entered("1.500"), 1500);
    EXPECT_EQ(entered("-2,5e-3"), -2.5e-3);
    EXPECT_EQ(entered("1.5"), 1) << "neither a group nor a decimal point";
    EXPECT_EQ(window.shown(), "1");
}

TEST_F(QScientificSpinBoxLocale, readsWhatItHasWritten)
{
    spin.setGroupSeparatorShown(true);
    for (const double value : {1.125, 1234.0, 1234567.5, -12.345}) {
        spin.setValue(value);
        window.commit();
        EXPECT_EQ(spin.value(), value);
        EXPECT_FALSE(spin.isTextRefused());
    }
}

TEST_F(QScientificSpinBoxLocale, takesPastedNumbersWithOneMeaning)
{
    EXPECT_EQ(pasted("1.5"), 1.5);
    EXPECT_EQ(window.shown(), "1,5");
    EXPECT_EQ(pasted("1,5"), 1.5);
    EXPECT_EQ(pasted("1.500,25"), 1500.25);
    EXPECT_EQ(pasted("1,500.25"), 1500.25);
    EXPECT_EQ(pasted("1.234.567"), 1234567);
    EXPECT_EQ(pasted("1,234,567"), 1234567);
    EXPECT_EQ(pasted("3.125E-06"), 3.125e-6);
    EXPECT_EQ(pasted(QStringLiteral("\u22120.125")), -0.125);
}

TEST_F(QScientificSpinBoxLocale, refusesPastedNumbersWithTwoMeaningsUntilTheyAreEdited)
{
    spin.setRefusalShown(true);
    for (const char* const text : {"1,500", "1.500"}) {
        paste(text);
        EXPECT_EQ(window.shown(), text) << "it can be seen and edited";
        EXPECT_TRUE(spin.isTextRefused()) << text;
        window.commit();
        EXPECT_EQ(spin.value(), 1) << text;
        EXPECT_FALSE(spin.isTextRefused()) << text;
    }
    paste("1,500");
    QTest::keyClick(&spin, Qt::Key_Backspace);
    EXPECT_FALSE(spin.isTextRefused());
    QTest::keyClicks(&spin, "0");
    EXPECT_EQ(window.shown(), "1,500");
    EXPECT_FALSE(spin.isTextRefused()) << "typed";
    window.commit();
    EXPECT_EQ(spin.value(), 1.5);
}

TEST_F(QScientificSpinBoxLocale, knowsAPastedNumberThatIsAlmostTheOneItReplaces)
{
    const auto pasteOver = [this](double value, const QString& text) {
        spin.setValue(value);
        spin.selectAll();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&spin, Qt::Key_V, Qt::ControlModifier);
        window.commit();
        return spin.value();
    };
    EXPECT_EQ(pasteOver(1.5, "1.5"), 1.5) << "the one meaning";
    EXPECT_EQ(pasteOver(2.5, "3.5"), 3.5);
    EXPECT_EQ(pasteOver(1.125, "1.125"), 1.125) << "two meanings: not 1125";
    EXPECT_EQ(pasteOver(1.125, "2.125"), 1.125);
    EXPECT_EQ(pasteOver(1.125, "2,125"), 1.125);
    EXPECT_EQ(pasteOver(1.125, "1,125"), 1.125) << "as it is shown";
}

TEST_F(QScientificSpinBoxLocale, movesItsGroupsWhileDigitsAreTypedAndDeleted)
{
    const auto press = [this](Qt::Key key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(&spin, key);
        }
    };
    spin.setDecimals(10);
    spin.setGroupSeparatorShown(true);
    spin.setPrefix("F = ");
    spin.setSuffix(" N");
    spin.setValue(1234567.5);
    EXPECT_EQ(window.shown(), "F = 1.234.567,5 N");
    spin.lineEdit()->setCursorPosition(9); // behind the 4
    press(Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "F = 123.567,5 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 7);
    QTest::keyClicks(&spin, "89");
    EXPECT_EQ(window.shown(), "F = 12.389.567,5 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 10);
    window.commit();
    EXPECT_EQ(spin.value(), 12389567.5);
    spin.lineEdit()->setCursorPosition(4);
    press(Qt::Key_Delete, 2);
    EXPECT_EQ(window.shown(), "F = 389.567,5 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 4);
    QTest::keyClicks(&spin, "-7");
    EXPECT_EQ(window.shown(), "F = -7.389.567,5 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 6);
    spin.lineEdit()->setCursorPosition(16);
    QTest::keyClicks(&spin, "4");
    window.commit();
    EXPECT_EQ(spin.value(), -7389567.54);

    spin.setValue(1234567);
    spin.lineEdit()->setCursorPosition(10);
    press(Qt::Key_Backspace);
    EXPECT_EQ(window.shown(), "F = 1.234.567 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 9) << "before the separator";
    press(Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "F = 1.234.567 N");
    EXPECT_EQ(spin.lineEdit()->cursorPosition(), 10) << "behind it again";
    press(Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "F = 123.467 N");
    spin.setValue(-7389567.54);

    window.type("1.2345");
    EXPECT_EQ(window.shown(), "F = 1.2345 N");
    EXPECT_FALSE(spin.hasAcceptableInput()) << "the point was typed, and may be meant as decimal point";
    QTest::keyClicks(&spin, "6");
    window.commit();
    EXPECT_EQ(spin.value(), -7389567.54);
}

TEST_F(QScientificSpinBoxLocale, undoesAndRedoesWhatWasTyped)
{
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(&spin, key, modifiers);
    };
    window.type("1,500");
    window.type("7");
    press(Qt::Key_Z);
    EXPECT_EQ(window.shown(), "1,500");
    EXPECT_TRUE(spin.hasAcceptableInput()) << "typed, not pasted";
    while (window.shown() != "1") {
        press(Qt::Key_Z);
    }
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window.shown(), "1,500");
    EXPECT_TRUE(spin.hasAcceptableInput());
    window.commit();
    EXPECT_EQ(spin.value(), 1.5);
    EXPECT_EQ(pasted("1,500"), 1) << "typing it once does not allow to paste it";
}

TEST_F(QScientificSpinBoxLocale, typesOnAfterTheLanguageHasChanged)
{
    spin.setValue(5);
    spin.setNumberLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    spin.lineEdit()->setCursorPosition(1);
    QTest::keyClicks(&spin, ".125");
    window.commit();
    EXPECT_EQ(spin.value(), 5.125);
    EXPECT_EQ(pasted("1,500"), 1) << "also in English";
}

TEST_F(QScientificSpinBoxLocale, readsAndWritesTheDigitsOfTheLanguage)
{
    spin.setNumberLocale(QLocale(QLocale::Arabic, QLocale::Egypt));
    spin.setValue(1.5);
    EXPECT_EQ(window.shown(), QStringLiteral("\u0661\u066b\u0665"));
    window.commit();
    EXPECT_EQ(spin.value(), 1.5);
    EXPECT_EQ(pasted(QStringLiteral("\u0662\u0663")), 23);
    EXPECT_EQ(entered("45"), 45);
}

TEST_F(QScientificSpinBoxLocale, goesWithPrefixes)
{
    spin.setNotation(QScientificSpinBox::SiPrefix);
    spin.setSuffix("V");
    spin.setValue(4.7e-6);
    EXPECT_EQ(window.shown(), QStringLiteral("4,7 \u00b5V"));
    EXPECT_EQ(entered("2,5m"), 2.5e-3);
    EXPECT_EQ(pasted("2.5 mV"), 2.5e-3);
    EXPECT_EQ(pasted("2.5"), 2.5);
    EXPECT_EQ(window.shown(), "2,5 V");
    EXPECT_EQ(pasted("2.500 mV"), 1) << "two meanings";
}

TEST_F(QScientificSpinBoxLocale, doesNotDependOnTheLocalesOfTheProcessAndTheWidget)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(entered("1,5"), 1.5);
    EXPECT_EQ(window.shown(), "1,5");
    spin.setGroupSeparatorShown(true);
    spin.setValue(12345);
    EXPECT_EQ(window.shown(), "12.345");
    QLocale::setDefault(QLocale::c());
}

} // namespace
