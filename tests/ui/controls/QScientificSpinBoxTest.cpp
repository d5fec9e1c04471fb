// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QDoubleValidator>
#include <QSignalSpy>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>

namespace {

using morvane::test::ScientificSpinBox;
using morvane::ui::QScientificSpinBox;

constexpr double largest = 1.7976931348623157e308;

static_assert(!std::is_copy_constructible_v<QScientificSpinBox> && !std::is_move_constructible_v<QScientificSpinBox>);
static_assert(std::has_virtual_destructor_v<QScientificSpinBox>);
static_assert(std::is_base_of_v<QDoubleSpinBox, QScientificSpinBox>);

/** State of a text that no spin box has in its cache. */
QValidator::State freshState(const QScientificSpinBox& spin, QString text, int pos)
{
    QString other = QStringLiteral("0.1234567890123");
    int ignored = 0;
    QScientificSpinBox().validate(other, ignored);
    return spin.validate(text, pos);
}

QValidator::State freshState(const QScientificSpinBox& spin, const QString& text)
{
    return freshState(spin, text, text.size());
}

double anyDouble(std::mt19937_64& random)
{
    const quint64 bits = random();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

TEST(QScientificSpinBox, startsAtZeroWithTheWholeRange)
{
    const QScientificSpinBox spin;
    EXPECT_EQ(spin.text(), "0");
    EXPECT_EQ(spin.value(), 0.0);
    EXPECT_EQ(spin.minimum(), -largest);
    EXPECT_EQ(spin.maximum(), largest);
    EXPECT_EQ(spin.decimals(), 8);
    EXPECT_FALSE(spin.keyboardTracking());
    EXPECT_EQ(spin.parent(), nullptr);
}

TEST(QScientificSpinBox, keystrokesAreFilteredByAValidatorOfScientificNotation)
{
    const ScientificSpinBox spin;
    const auto* const validator = qobject_cast<const QDoubleValidator*>(spin.lineEdit()->validator());
    ASSERT_NE(validator, nullptr);
    EXPECT_EQ(validator->parent(), &spin);
    EXPECT_EQ(validator->decimals(), 1000);
    EXPECT_EQ(validator->notation(), QDoubleValidator::ScientificNotation);
    EXPECT_EQ(validator->bottom(), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(validator->top(), std::numeric_limits<double>::infinity());
}

TEST(QScientificSpinBox, decimalsEndAtTwelveAndHaveNoLowerEnd)
{
    QScientificSpinBox spin;
    spin.setDecimals(20);
    EXPECT_EQ(spin.decimals(), 12);
    spin.setDecimals(12);
    EXPECT_EQ(spin.decimals(), 12);
    spin.setDecimals(-3);
    EXPECT_EQ(spin.decimals(), -3);
    spin.setDecimals(std::numeric_limits<int>::min());
    EXPECT_EQ(spin.decimals(), std::numeric_limits<int>::min());
    EXPECT_EQ(spin.text(), "0");
}

TEST(QScientificSpinBox, decimalsOfTheBaseClassStay)
{
    QScientificSpinBox spin;
    QDoubleSpinBox& base = spin;
    EXPECT_EQ(base.decimals(), 323);
    spin.setDecimals(3);
    EXPECT_EQ(base.decimals(), 323);
    spin.setProperty("decimals", 4);
    EXPECT_EQ(spin.decimals(), 4);
    EXPECT_EQ(spin.property("decimals"), 4);
    EXPECT_EQ(base.decimals(), 323);
}

TEST(QScientificSpinBox, decimalsChangeTheTextButNotTheValue)
{
    QScientificSpinBox spin;
    spin.setValue(1234.5678);
    EXPECT_EQ(spin.text(), "1234.5678");
    QSignalSpy changes(&spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    spin.setDecimals(3);
    EXPECT_EQ(spin.text(), "1.23E+03");
    EXPECT_EQ(spin.value(), 1234.5678);
    EXPECT_EQ(changes.count(), 0);
    spin.setValue(9876.5);
    EXPECT_EQ(spin.text(), "9.88E+03");
}

TEST(QScientificSpinBox, writesNumbersInScientificNotationWhereTheyAreLongOrSmall)
{
    const QScientificSpinBox spin;
    EXPECT_EQ(spin.textFromValue(0.000015), "1.5E-05");
    EXPECT_EQ(spin.textFromValue(100), "100");
    EXPECT_EQ(spin.textFromValue(123456789), "1.2345679E+08");
    EXPECT_EQ(spin.textFromValue(-largest), "-1.7976931E+308");
    EXPECT_EQ(spin.textFromValue(5e-324), "4.9406565E-324");
}

TEST(QScientificSpinBox, readsPrefixSuffixAndWhiteSpaceAroundTheNumber)
{
    QScientificSpinBox spin;
    spin.setPrefix("E = ");
    spin.setSuffix(" J");
    EXPECT_EQ(spin.valueFromText("E =  1.5E-07  J"), 1.5e-07);
    EXPECT_EQ(spin.valueFromText("2.5"), 2.5);
}

TEST(QScientificSpinBox, unacceptableTextGivesAnEndOfTheRange)
{
    QScientificSpinBox spin;
    spin.setRange(-5, 5);
    EXPECT_EQ(spin.valueFromText("nonsense"), -5);
    EXPECT_EQ(spin.valueFromText(""), -5);
    spin.setRange(-5, -1);
    EXPECT_EQ(spin.valueFromText("other nonsense"), -1);
    spin.setRange(-5, 0);
    EXPECT_EQ(spin.valueFromText("more nonsense"), 0);
}

TEST(QScientificSpinBox, emptyTextAndStartsOfNumbersAreIntermediate)
{
    QScientificSpinBox spin;
    for (const char* const text : {"", " ", ".", "+", "-", "+.", "-."}) {
        EXPECT_EQ(freshState(spin, text), QValidator::Intermediate) << text;
    }
    spin.setRange(1, 2);
    EXPECT_EQ(freshState(spin, "-"), QValidator::Invalid);
    EXPECT_EQ(freshState(spin, "-."), QValidator::Invalid);
    spin.setRange(-2, -1);
    EXPECT_EQ(freshState(spin, "+"), QValidator::Invalid);
    spin.setRange(1, 1);
    EXPECT_EQ(freshState(spin, ""), QValidator::Invalid);
}

TEST(QScientificSpinBox, groupSeparatorsAreReadButNotLiked)
{
    QScientificSpinBox spin;
    EXPECT_EQ(freshState(spin, "1,234.5"), QValidator::Acceptable) << "as US English writes it";
    EXPECT_EQ(freshState(spin, "1,5"), QValidator::Intermediate);
    EXPECT_EQ(freshState(spin, ",5"), QValidator::Invalid);
    EXPECT_EQ(freshState(spin, "1,,5"), QValidator::Invalid);
    EXPECT_EQ(freshState(spin, "1.5,5"), QValidator::Invalid);
    spin.setRange(-10, 10);
    EXPECT_EQ(freshState(spin, "1,5"), QValidator::Invalid) << "numbers below 1000 have no groups";
}

TEST(QScientificSpinBox, groupSeparatorsAreAllowedFromAThousandOn)
{
    QScientificSpinBox spin;
    spin.setRange(-999, 999);
    EXPECT_EQ(freshState(spin, "1,23"), QValidator::Invalid);
    spin.setRange(-999, 1000);
    EXPECT_EQ(freshState(spin, "1,23"), QValidator::Intermediate);
    spin.setRange(-1000, 0);
    EXPECT_EQ(freshState(spin, "-1,23"), QValidator::Intermediate);
}

TEST(QScientificSpinBox, pointTypedOnThePointIsSteppedOver)
{
    const QScientificSpinBox spin;
    QString text = "1..5";
    int pos = 2;
    EXPECT_EQ(freshState(spin, text, pos), QValidator::Acceptable);
    EXPECT_EQ(spin.validate(text, pos), QValidator::Acceptable);
    EXPECT_EQ(text, "1..5") << "stays as typed";
    EXPECT_EQ(freshState(spin, "1..5", 3), QValidator::Invalid);
}

TEST(QScientificSpinBox, validationMovesThePositionAndLeavesTheTextAlone)
{
    const QScientificSpinBox spin;
    QString text = "  7,7 ";
    int pos = 5;
    EXPECT_EQ(spin.validate(text, pos), QValidator::Intermediate);
    EXPECT_EQ(text, "  7,7 ");
    EXPECT_EQ(pos, 1) << "three blanks and one separator less";
}

TEST(QScientificSpinBox, numbersThatMayGrowIntoTheRangeAreIntermediate)
{
    QScientificSpinBox spin;
    spin.setDecimals(2);
    spin.setRange(150, 170);
    EXPECT_EQ(freshState(spin, "1"), QValidator::Intermediate);
    EXPECT_EQ(freshState(spin, "16"), QValidator::Intermediate);
    EXPECT_EQ(freshState(spin, "28"), QValidator::Invalid);
    EXPECT_EQ(freshState(spin, "171"), QValidator::Invalid) << "only gets larger";
    EXPECT_EQ(freshState(spin, "-1"), QValidator::Invalid);
}

TEST(QScientificSpinBox, allSpinBoxesShareTheAnswerForTheLastText)
{
    QScientificSpinBox wide;
    QScientificSpinBox narrow;
    narrow.setRange(0, 1);
    QString text = "123.25";
    int pos = 6;
    EXPECT_EQ(wide.validate(text, pos), QValidator::Acceptable);
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Acceptable) << "the range is not looked at";
    EXPECT_EQ(narrow.valueFromText(text), 123.25);
    EXPECT_EQ(freshState(narrow, text), QValidator::Invalid);
}

TEST(QScientificSpinBox, theSharedAnswerIsFiledUnderTheTextAsItWasRead)
{
    const QScientificSpinBox wide;
    QScientificSpinBox narrow;
    narrow.setRange(0, 1);
    QString text = " 321.25 ";
    int pos = 8;
    EXPECT_EQ(wide.validate(text, pos), QValidator::Acceptable);
    QString trimmed = "321.25";
    EXPECT_EQ(narrow.validate(trimmed, pos), QValidator::Acceptable);
    EXPECT_EQ(wide.validate(text, pos), QValidator::Acceptable);
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Invalid) << "with blanks it was never filed";
}

TEST(QScientificSpinBox, theSharedAnswerLeavesThePositionAlone)
{
    const QScientificSpinBox spin;
    QString text = "1,5";
    int pos = 3;
    EXPECT_EQ(freshState(spin, text), QValidator::Intermediate);
    QString read = "15";
    EXPECT_EQ(spin.validate(read, pos), QValidator::Intermediate) << "the answer for 1,5";
    EXPECT_EQ(pos, 3);
}

TEST(QScientificSpinBox, emptyTextIsAlwaysReadAnew)
{
    QScientificSpinBox spin;
    EXPECT_EQ(freshState(spin, ""), QValidator::Intermediate);
    spin.setRange(2, 2);
    QString text;
    int pos = 0;
    EXPECT_EQ(spin.validate(text, pos), QValidator::Invalid);
}

TEST(QScientificSpinBox, theTextOfAMillionRandomDoublesGivesThemBackRounded)
{
    QScientificSpinBox spin;
    std::mt19937_64 random(7);
    char text[1077];
    for (int i = 0; i < 1000000; ++i) {
        double value = anyDouble(random);
        if (!std::isfinite(value)) {
            continue;
        }
        if (i % 4 == 0) {
            value = std::ldexp(value, -1074 - std::ilogb(value) + i % 60);
        }
        std::snprintf(text, sizeof text, "%.*G", spin.decimals(), value);
        ASSERT_EQ(spin.valueFromText(spin.textFromValue(value)), std::strtod(text, nullptr)) << text;
    }
}

TEST(QScientificSpinBox, theTextOfTheExtremesGivesThemBackRounded)
{
    const QScientificSpinBox spin;
    EXPECT_EQ(spin.valueFromText(spin.textFromValue(largest)), 1.7976931e308);
    EXPECT_EQ(spin.valueFromText(spin.textFromValue(-largest)), -1.7976931e308);
    EXPECT_EQ(spin.valueFromText(spin.textFromValue(5e-324)), 5e-324);
    EXPECT_EQ(spin.valueFromText(spin.textFromValue(-5e-324)), -5e-324);
    EXPECT_EQ(spin.valueFromText(spin.textFromValue(2.2250738585072014e-308)), 2.2250739e-308);
}

TEST(QScientificSpinBox, aTextRoundedOutOfTheDoublesIsNotAcceptable)
{
    QScientificSpinBox spin;
    spin.setDecimals(3);
    EXPECT_EQ(spin.textFromValue(largest), "1.8E+308");
    EXPECT_EQ(spin.valueFromText("1.8E+308"), -largest);
}

TEST(QScientificSpinBox, infinitiesSetByProgramBecomeTheLimits)
{
    QScientificSpinBox spin;
    spin.setValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(spin.value(), largest);
    spin.setValue(-std::numeric_limits<double>::infinity());
    EXPECT_EQ(spin.value(), -largest);
    spin.setRange(-1, 1);
    spin.setValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(spin.value(), 1);
}

TEST(QScientificSpinBox, notANumberSetByProgramBecomesTheMaximum)
{
    QScientificSpinBox spin;
    spin.setRange(-10, 10);
    spin.setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(spin.value(), 10);
    EXPECT_EQ(spin.text(), "10");
}

TEST(QScientificSpinBox, valuesSetByProgramAreRoundedFarBehindThePoint)
{
    QScientificSpinBox spin;
    spin.setValue(5e-324);
    EXPECT_EQ(spin.value(), 0);
    spin.setValue(1.6021766340123457e-300);
    EXPECT_NEAR(spin.value(), 1.6021766340123457e-300, 1e-322);
    spin.setValue(0.1234567890123456);
    EXPECT_EQ(spin.value(), 0.1234567890123456);
}

TEST(QScientificSpinBox, infiniteLimitsAndStepsAreTaken)
{
    QScientificSpinBox spin;
    spin.setRange(-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity());
    spin.setValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(spin.text(), "INF");
    spin.interpretText();
    spin.setRange(-largest, largest);
    spin.setValue(0);
    spin.setSingleStep(largest);
    spin.stepBy(std::numeric_limits<int>::max());
    EXPECT_EQ(spin.value(), largest);
    spin.stepBy(std::numeric_limits<int>::min());
    EXPECT_EQ(spin.value(), -largest);
}

TEST(QScientificSpinBox, hintOfTheSizeFollowsTheDecimals)
{
    QScientificSpinBox spin;
    const int wide = spin.sizeHint().width();
    spin.setDecimals(1);
    EXPECT_LT(spin.sizeHint().width(), wide);
}
