// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <QMetaProperty>

#include <limits>

namespace {

using morvane::ui::QScientificSpinBox;

TEST(QScientificSpinBoxForm, keepsEveryDigitOfItsNumbers)
{
    QScientificSpinBox spinBox;
    for (const double number : {1e-18, 0.1, 8.8541878128e-12, 1.0 / 3.0, 12345678.9, -2.5e200}) {
        spinBox.setValue(number);
        const QByteArray text = spinBox.valueText();
        spinBox.setValue(0);
        spinBox.setValueText(text);
        EXPECT_EQ(spinBox.value(), number) << text.toStdString();
    }
}

TEST(QScientificSpinBoxForm, writesTheShortestText)
{
    QScientificSpinBox spinBox;
    spinBox.setValue(2.5e-15);
    spinBox.setSingleStep(0.1);
    EXPECT_EQ(spinBox.valueText(), "2.5E-15");
    EXPECT_EQ(spinBox.singleStepText(), "0.1");
    EXPECT_EQ(spinBox.minimumText(), "-1.7976931348623157E+308");
    EXPECT_EQ(spinBox.maximumText(), "1.7976931348623157E+308");
}

TEST(QScientificSpinBoxForm, takesTheRangeAndTheStepAsText)
{
    QScientificSpinBox spinBox;
    spinBox.setMinimumText("1e-18");
    spinBox.setMaximumText("1E-6");
    spinBox.setSingleStepText("2e-9");
    EXPECT_EQ(spinBox.minimum(), 1e-18);
    EXPECT_EQ(spinBox.maximum(), 1e-6);
    EXPECT_EQ(spinBox.singleStep(), 2e-9);
}

TEST(QScientificSpinBoxForm, leavesEverythingAloneForWhatIsNoNumber)
{
    QScientificSpinBox spinBox;
    spinBox.setValue(3);
    for (const char* const text : {"", "three", "1,5", "1e", "nan", "inf", "-inf", "1e999", "0x"}) {
        spinBox.setValueText(text);
        spinBox.setMaximumText(text);
        EXPECT_EQ(spinBox.value(), 3) << text;
        EXPECT_EQ(spinBox.maximum(), std::numeric_limits<double>::max()) << text;
    }
}

TEST(QScientificSpinBoxForm, speaksTheSameWhateverTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    QScientificSpinBox spinBox;
    spinBox.setValueText("1.5E-07");
    EXPECT_EQ(spinBox.value(), 1.5e-7);
    EXPECT_EQ(spinBox.valueText(), "1.5E-07");
    QLocale::setDefault(QLocale::c());
}

TEST(QScientificSpinBoxForm, editsTextsAndNotTheNumbersOfItsRange)
{
    const QScientificSpinBox spinBox;
    const QMetaObject& type = *spinBox.metaObject();
    const auto isDesignable = [&](const char* name) {
        return type.property(type.indexOfProperty(name)).isDesignable();
    };
    EXPECT_TRUE(isDesignable("minimumText"));
    EXPECT_TRUE(isDesignable("valueText"));
    EXPECT_FALSE(isDesignable("minimum"));
    EXPECT_FALSE(isDesignable("maximum"));
    EXPECT_FALSE(isDesignable("singleStep"));
    EXPECT_STREQ(type.userProperty().name(), "value") << "for item delegates and mappers";
}

} // namespace
