// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QClipboard>
#include <QLocale>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>
#include <string>

namespace {

using morvane::test::ScientificSpinBox;
using ScientificWindow = morvane::test::SpinBoxWindow<ScientificSpinBox>;

/** Sets another locale for the process during a test. */
class UserLocale
{
public:
    explicit UserLocale(const char* name) { QLocale::setDefault(QLocale(QLatin1String(name))); }
    ~UserLocale() { QLocale::setDefault(QLocale::c()); }
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;
};

/** Sets a German locale for the C library during a test: the installed one, or else one that is compiled for the test.
 */
class CLibraryLocale
{
public:
    CLibraryLocale()
    {
        for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252"}) {
            if (std::setlocale(LC_NUMERIC, name)) {
                return;
            }
        }
        QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", m_directory.filePath("de_DE.UTF-8")});
        qputenv("LOCPATH", m_directory.path().toUtf8());
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    }
    ~CLibraryLocale()
    {
        std::setlocale(LC_NUMERIC, m_before.c_str());
        qunsetenv("LOCPATH");
    }
    CLibraryLocale(const CLibraryLocale&) = delete;
    CLibraryLocale& operator=(const CLibraryLocale&) = delete;

private:
    const std::string m_before = std::setlocale(LC_NUMERIC, nullptr);
    const QTemporaryDir m_directory;
};

class QScientificSpinBoxTypingLocale : public ::testing::TestWithParam<const char*>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Users, QScientificSpinBoxTypingLocale,
    ::testing::Values("en_US", "de_DE", "de_CH", "fr_FR", "ar_EG", "hi_IN", "fa_IR", "C"),
    [](const auto& locale) { return std::string(locale.param); });

TEST_P(QScientificSpinBoxTypingLocale, takesAScientificNumberKeyByKey)
{
    const UserLocale user(GetParam());
    ScientificWindow window;
    const QString number = QStringLiteral("1.5E-07");
    window.spin.selectAll();
    for (int typed = 1; typed <= number.size(); ++typed) {
        QTest::keyClick(&window.spin, number.at(typed - 1).toLatin1());
        ASSERT_EQ(window.shown(), number.left(typed));
    }
    EXPECT_EQ(window.spin.value(), 0) << "not committed yet";
    window.commit();
    EXPECT_EQ(window.spin.value(), 1.5e-07);
    EXPECT_EQ(window.shown(), number);
}

TEST_P(QScientificSpinBoxTypingLocale, textValueAndValidationAgree)
{
    const UserLocale user(GetParam());
    ScientificWindow window;
    window.spin.setValue(-1234.5);
    EXPECT_EQ(window.shown(), "-1234.5");
    QString text = window.spin.textFromValue(-1234.5);
    int pos = text.size();
    EXPECT_EQ(window.spin.validate(text, pos), QValidator::Acceptable);
    EXPECT_EQ(window.spin.valueFromText(text), -1234.5);
    EXPECT_TRUE(window.spin.lineEdit()->hasAcceptableInput());
}

TEST_P(QScientificSpinBoxTypingLocale, aNumberOutsideTheRangeIsNotRepairedIntoAnotherOne)
{
    const UserLocale user(GetParam());
    ScientificWindow window;
    window.spin.setRange(2, 20);
    window.spin.setValue(3);
    window.type("1.5");
    window.commit();
    EXPECT_EQ(window.spin.value(), 3);
    EXPECT_EQ(window.shown(), "3");
}

TEST_P(QScientificSpinBoxTypingLocale, groupsOfDigitsAreCommaSeparated)
{
    const UserLocale user(GetParam());
    ScientificWindow window;
    window.type("1,234.5");
    EXPECT_EQ(window.shown(), "1,234.5");
    window.commit();
    EXPECT_EQ(window.spin.value(), 1234.5);
}

TEST(QScientificSpinBoxTyping, theLocaleOfTheCLibraryDoesNotMatter)
{
    const CLibraryLocale german;
    char written[8];
    std::snprintf(written, sizeof written, "%.1f", 1.5);
    if (std::string(written) != "1,5") {
        GTEST_SKIP() << "no locale with a decimal comma can be had here";
    }
    ScientificWindow window;
    window.type("1.5E-07");
    window.commit();
    EXPECT_EQ(window.spin.value(), 1.5e-07);
    EXPECT_EQ(window.shown(), "1.5E-07");
}

TEST(QScientificSpinBoxTyping, keysThatNoNumberHasAreRefused)
{
    ScientificWindow window;
    window.type("1x.5y");
    EXPECT_EQ(window.shown(), "1.5");
    window.type(QStringLiteral("1..5"));
    EXPECT_EQ(window.shown(), "1.5");
}

TEST(QScientificSpinBoxTyping, valueCountsFromReturnOn)
{
    ScientificWindow window;
    QSignalSpy changes(&window.spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    window.type("12");
    EXPECT_EQ(changes.count(), 0);
    window.commit();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(window.spin.value(), 12);
}

TEST(QScientificSpinBoxTyping, valueCountsFromLossOfFocusOn)
{
    ScientificWindow window;
    window.type("2.5E3");
    QTest::keyClick(&window.spin, Qt::Key_Tab);
    ASSERT_TRUE(window.other.hasFocus());
    EXPECT_EQ(window.spin.value(), 2500);
    EXPECT_EQ(window.shown(), "2500");
}

TEST(QScientificSpinBoxTyping, valueBeyondTheRangeGoesBackToTheLastOne)
{
    ScientificWindow window;
    window.spin.setRange(0, 10);
    window.spin.setValue(4);
    window.type("11");
    EXPECT_EQ(window.shown(), "11");
    window.commit();
    EXPECT_EQ(window.spin.value(), 4);
    EXPECT_EQ(window.shown(), "4");
}

TEST(QScientificSpinBoxTyping, correctionToTheNearestValueGoesToTheEndThatStandsForUnacceptableText)
{
    ScientificWindow window;
    window.spin.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    window.spin.setRange(2, 10);
    window.spin.setValue(4);
    window.type("99");
    window.commit();
    EXPECT_GE(window.spin.value(), 2);
    EXPECT_LE(window.spin.value(), 10);
}

TEST(QScientificSpinBoxTyping, unfinishedExponentGoesBackToTheLastValue)
{
    ScientificWindow window;
    window.spin.setValue(7);
    window.type("1.5E-");
    EXPECT_EQ(window.shown(), "1.5E-");
    window.commit();
    EXPECT_EQ(window.spin.value(), 7);
    EXPECT_EQ(window.shown(), "7");
}

TEST(QScientificSpinBoxTyping, committingRoundsToTheDigitsShown)
{
    ScientificWindow window;
    window.spin.setValue(1.23456789012);
    EXPECT_EQ(window.spin.value(), 1.23456789012);
    EXPECT_EQ(window.shown(), "1.2345679");
    window.commit();
    EXPECT_EQ(window.spin.value(), 1.2345679);
}

TEST(QScientificSpinBoxTyping, typedDigitsBeyondTheShownOnesCountUntilTheNextCommit)
{
    ScientificWindow window;
    window.type("6.02214076E+23");
    QTest::keyClick(&window.spin, Qt::Key_Tab);
    EXPECT_EQ(window.shown(), "6.0221408E+23");
    EXPECT_EQ(window.spin.value(), 6.02214076e23);
    window.spin.setFocus();
    QTest::keyClick(&window.spin, Qt::Key_Tab);
    EXPECT_EQ(window.spin.value(), 6.02214076e23) << "nothing was typed";
    window.commit();
    EXPECT_EQ(window.spin.value(), 6.0221408e23);
}

TEST(QScientificSpinBoxTyping, deletedTextGoesBackToTheLastValue)
{
    ScientificWindow window;
    window.spin.setValue(5);
    window.spin.selectAll();
    QTest::keyClick(&window.spin, Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "");
    window.commit();
    EXPECT_EQ(window.spin.value(), 5);
    EXPECT_EQ(window.shown(), "5");
}

TEST(QScientificSpinBoxTyping, clearingByProgramLeavesTheValueUntilSomethingIsTyped)
{
    ScientificWindow window;
    window.spin.setValue(5);
    window.spin.clear();
    window.commit();
    EXPECT_EQ(window.spin.value(), 5);
    EXPECT_EQ(window.shown(), "");
    QTest::keyClicks(&window.spin, "6");
    window.commit();
    EXPECT_EQ(window.spin.value(), 6);
}

TEST(QScientificSpinBoxTyping, undoTakesTypedKeysBack)
{
    ScientificWindow window;
    window.spin.setValue(5);
    window.type("1");
    QTest::keyClick(&window.spin, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.shown(), "5");
    window.commit();
    EXPECT_EQ(window.spin.value(), 5);
}

TEST(QScientificSpinBoxTyping, aNumberMayBePasted)
{
    ScientificWindow window;
    QApplication::clipboard()->setText("6.02214076e23");
    window.spin.selectAll();
    QTest::keyClick(&window.spin, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window.shown(), "6.02214076e23");
    window.commit();
    EXPECT_EQ(window.spin.value(), 6.02214076e23);
}

TEST(QScientificSpinBoxTyping, pastedNonsenseIsRefused)
{
    ScientificWindow window;
    for (const QString& text : {QString("nonsense"), QString(100000, 'x'), QString(QChar(0xd800)), QString("1\n2"),
             QString("\u0661\u0662"), QString("1.5.5")}) {
        window.spin.setValue(3);
        QApplication::clipboard()->setText(text);
        window.spin.selectAll();
        QTest::keyClick(&window.spin, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(window.shown(), "3");
        window.commit();
        EXPECT_EQ(window.spin.value(), 3);
    }
}

TEST(QScientificSpinBoxTyping, typingBetweenPrefixAndSuffix)
{
    ScientificWindow window;
    window.spin.setPrefix("E = ");
    window.spin.setSuffix(" J");
    window.spin.setValue(1);
    EXPECT_EQ(window.shown(), "E = 1 J");
    window.type("1.5E-07");
    EXPECT_EQ(window.shown(), "E = 1.5E-07 J");
    window.commit();
    EXPECT_EQ(window.spin.value(), 1.5e-07);
    EXPECT_EQ(window.spin.cleanText(), "1.5E-07");
}

TEST(QScientificSpinBoxTyping, theSameKeysAreRefusedBetweenPrefixAndSuffix)
{
    ScientificWindow window;
    window.spin.setPrefix("E = ");
    window.spin.setSuffix(" J");
    window.type("1x.5y");
    EXPECT_EQ(window.shown(), "E = 1.5 J");
    window.type("1..5");
    EXPECT_EQ(window.shown(), "E = 1.5 J");
    window.type(" 2 ");
    EXPECT_EQ(window.shown(), "E = 2 J");
    EXPECT_TRUE(window.spin.hasAcceptableInput());
}

TEST(QScientificSpinBoxTyping, prefixAndSuffixThatAreTypedOverComeBack)
{
    ScientificWindow window;
    window.spin.setPrefix("E = ");
    window.spin.setSuffix(" J");
    window.spin.lineEdit()->selectAll();
    QTest::keyClicks(&window.spin, "12");
    EXPECT_EQ(window.shown(), "E = 12 J");
    EXPECT_EQ(window.spin.lineEdit()->cursorPosition(), 6);
    window.spin.lineEdit()->selectAll();
    QTest::keyClick(&window.spin, Qt::Key_Delete);
    EXPECT_EQ(window.shown(), "E =  J");
    QTest::keyClicks(&window.spin, "3");
    EXPECT_EQ(window.shown(), "E = 3 J");
    window.commit();
    EXPECT_EQ(window.spin.value(), 3);
}

TEST(QScientificSpinBoxTyping, aKeyAtAnEdgeOfTheNumberThatOnlyTouchesTheSuffixChangesNothing)
{
    ScientificWindow window;
    window.spin.setSuffix("%");
    window.spin.setValue(1.23456789012);
    window.spin.lineEdit()->setCursorPosition(9);
    QTest::keyClick(&window.spin, Qt::Key_Delete);
    QTest::keyClicks(&window.spin, " ");
    EXPECT_EQ(window.shown(), "1.2345679%");
    QTest::keyClick(&window.spin, Qt::Key_Tab);
    EXPECT_EQ(window.spin.value(), 1.23456789012) << "nothing was typed, so no digit is lost";
}

TEST(QScientificSpinBoxTyping, undoWorksBetweenPrefixAndSuffix)
{
    ScientificWindow window;
    window.spin.setSuffix(" J");
    window.spin.setValue(5);
    window.type("1");
    QTest::keyClick(&window.spin, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.shown(), "5 J");
}

TEST(QScientificSpinBoxTyping, whiteSpaceAroundAPastedNumberIsLeftOut)
{
    ScientificWindow window;
    for (const QString& affix : {QString(), QString(" J")}) {
        window.spin.setSuffix(affix);
        for (const QString& text : {QString("1.5E3\n"), QString("1.5E3\r\n"), QString("\t1.5E3"), QString("  1.5E3  "),
                 QString(QChar(0xa0)) + "1.5E3\t\n"}) {
            window.spin.setValue(3);
            QApplication::clipboard()->setText(text);
            window.spin.selectAll();
            QTest::keyClick(&window.spin, Qt::Key_V, Qt::ControlModifier);
            EXPECT_EQ(window.shown(), "1.5E3" + affix);
            EXPECT_EQ(window.spin.lineEdit()->cursorPosition(), 5);
            QTest::keyClick(&window.spin, Qt::Key_Tab);
            EXPECT_EQ(window.spin.value(), 1500);
            window.spin.setFocus();
        }
    }
}

TEST(QScientificSpinBoxTyping, theCursorStaysBehindWhatWasPutIn)
{
    ScientificWindow window;
    window.spin.setPrefix("E = ");
    window.spin.setValue(12);
    window.spin.lineEdit()->setCursorPosition(5);
    QTest::keyClicks(&window.spin, "34");
    EXPECT_EQ(window.shown(), "E = 1342");
    QApplication::clipboard()->setText("\t5");
    window.spin.lineEdit()->setCursorPosition(4);
    QTest::keyClick(&window.spin, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(&window.spin, "6");
    EXPECT_EQ(window.shown(), "E = 561342");
}

TEST(QScientificSpinBoxTyping, whiteSpaceAloneDeletesNothing)
{
    ScientificWindow window;
    for (const QString& affix : {QString(), QString(" J")}) {
        window.spin.setSuffix(affix);
        window.spin.setValue(3);
        QApplication::clipboard()->setText(" \t\n");
        window.spin.selectAll();
        QTest::keyClick(&window.spin, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(window.shown(), "3" + affix);
    }
}

TEST(QScientificSpinBoxTyping, specialValueTextStandsForTheMinimum)
{
    ScientificWindow window;
    window.spin.setRange(0, 10);
    window.spin.setSpecialValueText("auto");
    window.spin.setValue(0);
    EXPECT_EQ(window.shown(), "auto");
    window.commit();
    EXPECT_EQ(window.spin.value(), 0);
    EXPECT_EQ(window.shown(), "auto");
    window.type("4");
    window.commit();
    EXPECT_EQ(window.shown(), "4");
    window.type("0");
    window.commit();
    EXPECT_EQ(window.shown(), "auto");
}

TEST(QScientificSpinBoxTyping, onlyANumberIsTypedOverTheSpecialValueText)
{
    ScientificWindow window;
    window.spin.setRange(0, 10);
    window.spin.setSuffix(" J");
    window.spin.setSpecialValueText("auto");
    window.spin.setValue(0);
    window.type("x");
    EXPECT_EQ(window.shown(), "auto");
    window.type("4");
    EXPECT_EQ(window.shown(), "4 J");
    window.commit();
    EXPECT_EQ(window.spin.value(), 4);
    window.spin.setValue(0);
    EXPECT_EQ(window.shown(), "auto");
    window.type("4");
    EXPECT_EQ(window.shown(), "4 J") << "the number from before";
}

TEST(QScientificSpinBoxTyping, readOnlyTakesNoKeysAndNoSteps)
{
    ScientificWindow window;
    window.spin.setReadOnly(true);
    window.type("5");
    QTest::keyClick(&window.spin, Qt::Key_Up);
    window.turnWheel(120);
    window.commit();
    EXPECT_EQ(window.spin.value(), 0);
    EXPECT_EQ(window.shown(), "0");
}

TEST(QScientificSpinBoxTyping, withKeyboardTrackingEveryAcceptableKeyCounts)
{
    ScientificWindow window;
    window.spin.setKeyboardTracking(true);
    window.type("1.5E-07");
    EXPECT_EQ(window.spin.value(), 1.5e-07);
    EXPECT_EQ(window.shown(), "1.5E-07");
}
