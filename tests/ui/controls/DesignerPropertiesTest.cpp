// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What a person sets in Qt Designer, and what delegates and bindings read: the properties of the meta-objects.

#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/PropertyAdapter.h"
#include "ui/qt/util/TablePasteHandler.h"

#include <gtest/gtest.h>

#include <QMetaEnum>
#include <QMetaProperty>

namespace {

using namespace morvane::ui;

struct Expected
{
    const QMetaObject* type;
    const char* name;
    const char* enumKey = nullptr; ///< one of the names that Designer offers
};

void PrintTo(const Expected& expected, std::ostream* stream)
{
    *stream << expected.type->className() << "::" << expected.name;
}

class DesignerProperty : public ::testing::TestWithParam<Expected>
{
};

TEST_P(DesignerProperty, canBeReadAndWrittenInDesigner)
{
    const Expected& expected = GetParam();
    const QMetaProperty property = expected.type->property(expected.type->indexOfProperty(expected.name));
    ASSERT_TRUE(property.isValid());
    EXPECT_TRUE(property.isReadable() && property.isWritable() && property.isDesignable());
    EXPECT_EQ(property.isEnumType(), expected.enumKey != nullptr);
    if (expected.enumKey) {
        EXPECT_GE(property.enumerator().keyToValue(expected.enumKey), 0);
    }
}

const QMetaObject* const scientific = &QScientificSpinBox::staticMetaObject;
const QMetaObject* const integral64 = &Integral64SpinBox::staticMetaObject;
const QMetaObject* const combo = &ComboBoxAutoFilter::staticMetaObject;

INSTANTIATE_TEST_SUITE_P(OfEachClass, DesignerProperty,
    ::testing::Values(Expected{scientific, "decimals"}, Expected{scientific, "value"},
        Expected{scientific, "ownValidation"}, Expected{scientific, "notation", "SiPrefix"},
        Expected{scientific, "numberLocale"}, Expected{scientific, "stepMode", "LastDigit"},
        Expected{scientific, "refusalShown"}, Expected{scientific, "suffix"}, Expected{scientific, "minimumText"},
        Expected{scientific, "maximumText"}, Expected{scientific, "singleStepText"}, Expected{scientific, "valueText"},
        Expected{&IntegralSpinBox::staticMetaObject, "value"},
        Expected{&IntegralSpinBox::staticMetaObject, "refusalShown"}, Expected{integral64, "value"},
        Expected{integral64, "minimum"}, Expected{integral64, "maximum"}, Expected{integral64, "singleStep"},
        Expected{integral64, "prefix"}, Expected{integral64, "suffix"}, Expected{integral64, "base", "Hexadecimal"},
        Expected{integral64, "groupSeparator"}, Expected{integral64, "refusalShown"}, Expected{combo, "filtering"},
        Expected{combo, "editMode", "FormField"}, Expected{combo, "matchingWords"}, Expected{combo, "ignoringAccents"},
        Expected{combo, "matchShown"}, Expected{&ElidedTextLabel::staticMetaObject, "copyable"},
        Expected{&TablePasteHandler::staticMetaObject, "addingRows"},
        Expected{&PropertyAdapter::staticMetaObject, "value"}));

// Qt 5 cannot name a signal of a base class that has overloads, so the values of the other spin boxes have none.
TEST(DesignerProperty, aValueTellsThatItHasChangedWhereTheClassHasTheSignal)
{
    EXPECT_EQ(integral64->userProperty().notifySignal().methodSignature(), "valueChanged(qlonglong)");
    EXPECT_EQ(
        PropertyAdapter::staticMetaObject.userProperty().notifySignal().methodSignature(), "valueChanged(QVariant)");
}

} // namespace
