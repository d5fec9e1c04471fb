// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

using morvane::test::pressKey;
using morvane::test::type;

namespace {

class ComboBoxKeys : public morvane::test::ComboBoxForm
{
};

} // namespace

TEST_F(ComboBoxKeys, returnTakesTheFirstEntryWithTheTextWhateverItsCase)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->clear();
    type("ar");
    pressKey(Qt::Key_Return);

    EXPECT_EQ(box->currentText(), "Bar");
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_FALSE(box->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, enterIsReturn)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("C");
    pressKey(Qt::Key_Enter);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, tabEndsTheEditingThoughOtherFieldsWaitForTheFocus)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->clear();
    type("ca");
    pressKey(Qt::Key_Tab);

    EXPECT_EQ(box->currentText(), "Car");
    EXPECT_FALSE(box->isVisible());
    EXPECT_TRUE(after.hasFocus());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, tabEndsTheEditingWhenTheCompleterOffersNothing)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("Car");
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, shiftTabGoesBackAndKeepsWhatWasTyped)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("ca");
    pressKey(Qt::Key_Backtab, Qt::ShiftModifier);

    EXPECT_TRUE(before.hasFocus());
    EXPECT_EQ(box->lineEdit()->text(), "ca");
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(box->isVisible());
    expectOutcome(0, 0);

    pressKey(Qt::Key_Tab);
    ASSERT_TRUE(box->hasFocus());
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, shiftTabWhileTheCompleterIsOpenKeepsWhatWasTyped)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->clear();
    type("ar");
    pressKey(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(completerPopup()->isVisible());
    EXPECT_EQ(box->lineEdit()->text(), "ar");
    expectOutcome(0, 0);
}

TEST_F(ComboBoxKeys, losingTheFocusNeitherEndsNorChangesTheEditing)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("car");
    after.setFocus();
    EXPECT_EQ(box->lineEdit()->text(), "car");
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(box->isVisible());
    expectOutcome(0, 0);
}

TEST_F(ComboBoxKeys, escapeCancelsAndRestoresNothing)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(1);
    box->lineEdit()->setText("ca");
    pressKey(Qt::Key_Escape);

    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_EQ(box->lineEdit()->text(), "ca");
    EXPECT_FALSE(box->isVisible());
    expectOutcome(0, 1);
}

TEST_F(ComboBoxKeys, everyTextIsValidOnceEscapeWasPressed)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("nothing like it");
    EXPECT_FALSE(box->validateEntry());
    pressKey(Qt::Key_Escape);
    EXPECT_TRUE(box->validateEntry());
    box->lineEdit()->setText("Car");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboBoxKeys, aTextThatNoEntryHoldsEndsTheEditingWithTheEntryAsItWas)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(2);
    box->lineEdit()->setText("zzz");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_FALSE(box->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxKeys, anEmptyTextTakesTheFirstEntry)
{
    setUp({"Dog", "Bar"});
    box->setCurrentIndex(1);
    box->lineEdit()->clear();
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboBoxKeys, keysBeforeTheSetUpAreThoseOfAPlainComboBox)
{
    box->setList({"Dog", "Bar"});
    show();
    pressKey(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(box->validateEntry());
    box->setSelectedText("Bar");
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(0, 0);
}

TEST_F(ComboBoxKeys, controlTabIsNoFocusKeyAndEndsTheEditing)
{
    setUp({"Dog", "Bar"});
    box->lineEdit()->setText("ba");
    pressKey(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(1, 0);
}
