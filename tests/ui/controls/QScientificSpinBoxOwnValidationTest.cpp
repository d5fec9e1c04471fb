// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QMetaProperty>

namespace {

using morvane::test::ScientificSpinBox;
using morvane::ui::QScientificSpinBox;
using ScientificWindow = morvane::test::SpinBoxWindow<ScientificSpinBox>;

QValidator::State stateOf(const QScientificSpinBox& spin, QString text)
{
    int pos = text.size();
    return spin.validate(text, pos);
}

/** The spin boxes share the refusal of this number, which is remembered. By its own range, the wide one accepts it. */
class QScientificSpinBoxOwnValidationShared : public ::testing::Test
{
protected:
    QScientificSpinBoxOwnValidationShared()
    {
        narrow.setRange(0, 10);
        EXPECT_EQ(stateOf(narrow, refused), QValidator::Invalid);
    }

    bool isRemembered() const { return stateOf(wide, refused) == QValidator::Invalid; }

    const QString refused = "50.125";
    QScientificSpinBox narrow;
    QScientificSpinBox wide;
};

} // namespace

TEST_F(QScientificSpinBoxOwnValidationShared, isUsedWithoutOwnValidation)
{
    EXPECT_FALSE(wide.hasOwnValidation());
    EXPECT_TRUE(isRemembered());
    EXPECT_EQ(wide.valueFromText(refused), narrow.minimum());
}

TEST_F(QScientificSpinBoxOwnValidationShared, isNotUsedWithOwnValidation)
{
    wide.setOwnValidation(true);
    EXPECT_TRUE(wide.hasOwnValidation());
    EXPECT_EQ(stateOf(wide, refused), QValidator::Acceptable);
    EXPECT_EQ(wide.valueFromText(refused), 50.125);
    EXPECT_EQ(stateOf(narrow, refused), QValidator::Invalid);
    wide.setOwnValidation(false);
    EXPECT_TRUE(isRemembered()) << "and was not replaced";
}

TEST_F(QScientificSpinBoxOwnValidationShared, isNotReplacedByOneWithOwnValidation)
{
    QScientificSpinBox own;
    own.setOwnValidation(true);
    EXPECT_EQ(stateOf(own, "1"), QValidator::Acceptable);
    EXPECT_EQ(own.valueFromText("2"), 2);
    EXPECT_TRUE(isRemembered());
}

TEST_F(QScientificSpinBoxOwnValidationShared, isNotTouchedByMakingAndSettingUpASpinBox)
{
    QLocale::setDefault(QLocale(QLocale::German));
    for (int number = 0; number < 2; ++number) {
        QWidget parent;
        auto* const spin = new QScientificSpinBox(&parent);
        EXPECT_TRUE(isRemembered());
        spin->setPrefix("E = ");
        spin->setSuffix(" J");
        spin->setRange(1, 20);
        spin->setDecimals(3);
        spin->setValue(7);
        spin->setSpecialValueText("none");
        spin->ensurePolished();
        spin->sizeHint();
        EXPECT_TRUE(isRemembered());
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(QScientificSpinBoxOwnValidationShared, isReplacedByAnyOtherTextTheEmptyOneIncluded)
{
    EXPECT_EQ(stateOf(narrow, ""), QValidator::Intermediate);
    EXPECT_FALSE(isRemembered());
}

TEST(QScientificSpinBoxOwnValidation, isAPropertyThatIsOffInitially)
{
    QScientificSpinBox spin;
    EXPECT_EQ(spin.property("ownValidation"), false);
    EXPECT_TRUE(spin.setProperty("ownValidation", true));
    EXPECT_TRUE(spin.hasOwnValidation());
    const QMetaObject& type = *spin.metaObject();
    EXPECT_TRUE(type.property(type.indexOfProperty("ownValidation")).isDesignable());
}

TEST(QScientificSpinBoxOwnValidation, givesTheSameAnswersAsTheSharedOneGivesForTextsReadAnew)
{
    QScientificSpinBox shared;
    QScientificSpinBox own;
    own.setOwnValidation(true);
    for (QScientificSpinBox* const spin : {&shared, &own}) {
        spin->setRange(-1000, 20000);
    }
    for (const char* const text : {"", "-", "1,5", "1,,5", "15", "  7,7 ", "1E5", "1E2", "x", "99999", "1..5", "."}) {
        QString first = text;
        QString second = text;
        int firstPos = 2;
        int secondPos = 2;
        stateOf(shared, "0.375"); // replaces the remembered text
        const QValidator::State state = shared.validate(first, firstPos);
        EXPECT_EQ(own.validate(second, secondPos), state) << text;
        EXPECT_EQ(secondPos, firstPos) << text;
        EXPECT_EQ(own.valueFromText(text), shared.valueFromText(text)) << text;
    }
}

TEST(QScientificSpinBoxOwnValidation, repairsNoGroupSeparators)
{
    QScientificSpinBox spin;
    QString text = "12,5";
    spin.fixup(text);
    EXPECT_EQ(text, "125") << "as QDoubleSpinBox does";
    spin.setOwnValidation(true);
    text = "12,5";
    spin.fixup(text);
    EXPECT_EQ(text, "12,5");
}

TEST(QScientificSpinBoxOwnValidation, givesTheOldValueBackForAComma)
{
    ScientificWindow window;
    window.spin.setOwnValidation(true);
    window.spin.setValue(9);
    for (const char* const suffix : {"", " V"}) {
        window.spin.setSuffix(suffix);
        window.type("12,5");
        window.commit();
        EXPECT_EQ(window.spin.value(), 9);
        EXPECT_EQ(window.spin.cleanText(), "9");
        window.type("12,5");
        QTest::keyClick(&window.spin, Qt::Key_Tab);
        EXPECT_EQ(window.spin.value(), 9);
        window.spin.setFocus();
    }
    window.type("125");
    window.commit();
    EXPECT_EQ(window.spin.value(), 125);
    window.type("1,250");
    window.commit();
    EXPECT_EQ(window.spin.value(), 1250);
}
