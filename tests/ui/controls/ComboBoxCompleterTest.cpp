// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

using morvane::test::pressKey;
using morvane::test::type;

namespace {

struct CountedObject : QObject
{
    using QObject::receivers;
};

int connectionsOf(const QCompleter& completer)
{
    const auto receivers = &CountedObject::receivers;
    return (completer.*receivers)(SIGNAL(activated(QString))) + (completer.*receivers)(SIGNAL(highlighted(QString)));
}

class ComboBoxCompleter : public morvane::test::ComboBoxForm
{
protected:
    void typeInto(const QString& text)
    {
        box->lineEdit()->clear();
        type(text);
        ASSERT_TRUE(QTest::qWaitFor([this] { return completerPopup()->isVisible(); }));
    }

    QStringList offered() const
    {
        QStringList result;
        const QAbstractItemModel* const model = box->completer()->completionModel();
        for (int row = 0; row < model->rowCount(); ++row) {
            result.append(model->index(row, 0).data().toString());
        }
        return result;
    }
};

} // namespace

TEST_F(ComboBoxCompleter, typingNarrowsTheListToTheEntriesThatContainTheText)
{
    setUp({"Bar", "Car", "Dog"});
    typeInto("ar");
    EXPECT_EQ(offered(), QStringList({"Bar", "Car"}));
    EXPECT_EQ(box->completer()->property("modelFiltering").toInt(), 1);
    type("x");
    EXPECT_EQ(offered(), QStringList());
}

TEST_F(ComboBoxCompleter, theListHeedsCaseWhereItIsToldTo)
{
    setUp({"Bar", "CAR", "Dog"}, Qt::CaseSensitive);
    typeInto("ar");
    EXPECT_EQ(offered(), QStringList({"Bar"}));
}

TEST_F(ComboBoxCompleter, endingTheEditingNeverHeedsCase)
{
    setUp({"Dog", "CAR", "car"}, Qt::CaseSensitive);
    typeInto("car");
    EXPECT_EQ(offered(), QStringList({"car"}));
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxCompleter, typingMarksTheFirstEntryAndLeavesTheLineAlone)
{
    setUp({"Dog", "Bar", "Car"});
    typeInto("ar");
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "Bar");
    EXPECT_TRUE(completerPopup()->selectionModel()->isSelected(completerPopup()->currentIndex()));
    EXPECT_EQ(box->lineEdit()->text(), "ar");
}

TEST_F(ComboBoxCompleter, typingMarksTheOnlyEntryThereIs)
{
    setUp({"Bar"});
    typeInto("ar");
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "Bar");
}

TEST_F(ComboBoxCompleter, theCompletersCurrentRowIsMarkedWithTheNextKey)
{
    setUp({"Dog", "Bar", "Car"});
    typeInto("ar");
    box->completer()->setCurrentRow(1);
    pressKey(Qt::Key_Shift);
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "Car");
    EXPECT_EQ(box->lineEdit()->text(), "ar");
}

TEST_F(ComboBoxCompleter, movingThroughTheListWritesTheMarkedEntry)
{
    setUp({"Dog", "Bar", "Car", "Scar"});
    typeInto("ar");
    const auto expectMark = [this](const char* text) {
        EXPECT_EQ(completerPopup()->currentIndex().data().toString(), text);
        EXPECT_EQ(box->lineEdit()->text(), text);
    };
    pressKey(Qt::Key_Down);
    expectMark("Car");
    pressKey(Qt::Key_Down);
    expectMark("Scar");
    pressKey(Qt::Key_Up);
    expectMark("Car");
    pressKey(Qt::Key_PageDown);
    expectMark("Scar");
    pressKey(Qt::Key_PageUp);
    expectMark("Bar");
    pressKey(Qt::Key_End, Qt::ControlModifier);
    expectMark("Scar");
    pressKey(Qt::Key_Home, Qt::ControlModifier);
    expectMark("Bar");
    expectOutcome(0, 0);
}

TEST_F(ComboBoxCompleter, aKeyThatMovesNothingKeepsTheMark)
{
    setUp({"Dog", "Bar", "Car", "Scar"}, Qt::CaseInsensitive, QCompleter::UnfilteredPopupCompletion);
    typeInto("ar");
    pressKey(Qt::Key_Down);
    const QString marked = completerPopup()->currentIndex().data().toString();
    EXPECT_EQ(box->lineEdit()->text(), marked);
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Left}) {
        pressKey(key);
        EXPECT_EQ(completerPopup()->currentIndex().data().toString(), marked);
        EXPECT_EQ(box->lineEdit()->text(), marked);
    }
}

TEST_F(ComboBoxCompleter, aTextFromAnInputMethodMarksLikeATypedOne)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->clear();
    QInputMethodEvent composing("ar", {});
    QCoreApplication::sendEvent(box, &composing);
    EXPECT_FALSE(completerPopup()->isVisible());
    QInputMethodEvent committed;
    committed.setCommitString("ar");
    QCoreApplication::sendEvent(box, &committed);
    ASSERT_TRUE(QTest::qWaitFor([this] { return completerPopup()->isVisible(); }));
    EXPECT_EQ(box->lineEdit()->text(), "ar");
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "Bar");
    EXPECT_TRUE(completerPopup()->selectionModel()->isSelected(completerPopup()->currentIndex()));
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->lineEdit()->text(), "Car");
    QInputMethodEvent more;
    more.setCommitString("x");
    QCoreApplication::sendEvent(box, &more);
    EXPECT_EQ(box->lineEdit()->text(), "Carx");
}

TEST_F(ComboBoxCompleter, homeAloneGoesToTheBeginningOfTheLine)
{
    setUp({"Dog", "Bar", "Car", "Far"});
    typeInto("ar");
    pressKey(Qt::Key_Home);
    EXPECT_EQ(box->lineEdit()->cursorPosition(), 0);
    EXPECT_EQ(box->lineEdit()->text(), "ar");
}

TEST_F(ComboBoxCompleter, keysLeaveItConnectedToTheLineAsItWas)
{
    setUp({"Dog", "Bar", "Car", "Far"});
    typeInto("a");
    const int asItWas = connectionsOf(*box->completer());
    EXPECT_GE(asItWas, 2);
    for (const Qt::Key key :
        {Qt::Key_R, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Home, Qt::Key_Shift}) {
        pressKey(key);
        EXPECT_EQ(connectionsOf(*box->completer()), asItWas) << key;
    }
    Q_EMIT box->completer()->activated(QString("no entry"));
    EXPECT_EQ(box->lineEdit()->text(), "no entry");
}

TEST_F(ComboBoxCompleter, tabClosesTheListOfALineThatTheHostHasPutIn)
{
    setUp({"Dog", "Bar", "Car"});
    QCompleter* const completer = box->completer();
    box->setLineEdit(new QLineEdit);
    box->setCompleter(completer);
    after.setFocus();
    box->setFocus();
    typeInto("ca");
    pressKey(Qt::Key_Tab);
    EXPECT_FALSE(completerPopup()->isVisible());
    EXPECT_TRUE(after.hasFocus());
    expectOutcome(0, 0);
}

TEST_F(ComboBoxCompleter, returnTakesTheMarkedEntryAndActivatesItOnce)
{
    setUp({"Dog", "Scar", "Car"});
    QSignalSpy activated(box.data(), SIGNAL(activated(int)));
    QSignalSpy textActivated(box.data(), SIGNAL(textActivated(QString)));
    QSignalSpy activatedByText(box.data(), SIGNAL(activated(QString))); // only Qt 5 has it
    typeInto("ar");
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->currentIndex(), 0);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_FALSE(completerPopup()->isVisible());
    EXPECT_FALSE(box->isVisible());
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated.at(0).at(0).toInt(), 2);
    EXPECT_EQ(textActivated.count(), 1);
    EXPECT_EQ(activatedByText.count(), activatedByText.isValid() ? 1 : 0);
    expectOutcome(1, 0);
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 2) << "for the delegate that asks again";
}

TEST_F(ComboBoxCompleter, aTypedTextOutdoesWhatWasMarkedBefore)
{
    setUp({"Dog", "Scar", "Car"});
    typeInto("ar");
    pressKey(Qt::Key_Down);
    box->lineEdit()->setText("sc");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Scar");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxCompleter, anEntryThatTheProgramMakesCurrentOutdoesThePickedOne)
{
    setUp({"Car", "Car", "Dog"});
    typeInto("ca");
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    ASSERT_EQ(box->currentIndex(), 1);
    box->setCurrentIndex(2);
    box->setCurrentIndex(0);
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboBoxCompleter, tabEndsTheEditingFromTheList)
{
    setUp({"Dog", "Bar", "Car"});
    typeInto("ca");
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(box->currentText(), "Car");
    EXPECT_FALSE(completerPopup()->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxCompleter, escapeCancelsFromTheList)
{
    setUp({"Dog", "Bar", "Car"});
    typeInto("ca");
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_FALSE(completerPopup()->isVisible());
    EXPECT_FALSE(box->isVisible());
    expectOutcome(0, 1);
}

TEST_F(ComboBoxCompleter, anEntryClickedInTheListIsTaken)
{
    setUp({"Dog", "Scar", "Car"});
    QSignalSpy activated(box.data(), SIGNAL(activated(int)));
    typeInto("ar");
    const QModelIndex car = box->completer()->completionModel()->index(1, 0);
    QTest::mouseClick(completerPopup()->viewport(), Qt::LeftButton, {}, completerPopup()->visualRect(car).center());
    EXPECT_EQ(box->lineEdit()->text(), "Car");
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(activated.count(), 1);
    expectOutcome(1, 0);
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 2);
}

TEST_F(ComboBoxCompleter, theRightButtonTakesNothing)
{
    setUp({"Dog", "Scar", "Car"});
    typeInto("ar");
    const QModelIndex car = box->completer()->completionModel()->index(1, 0);
    QTest::mouseClick(completerPopup()->viewport(), Qt::RightButton, {}, completerPopup()->visualRect(car).center());
    EXPECT_TRUE(box->isVisible());
    expectOutcome(0, 0);
}

TEST_F(ComboBoxCompleter, aReturnThatTheLineSeesFirstClosesTheListToo)
{
    setUp({"Dog", "Bar", "Car"});
    typeInto("ca");
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    EXPECT_FALSE(completerPopup()->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxCompleter, inlineCompletionHasNoListAndEndsTheSame)
{
    setUp({"Dog", "Bar", "Car"}, Qt::CaseInsensitive, QCompleter::InlineCompletion);
    box->lineEdit()->clear();
    type("ca");
    EXPECT_EQ(box->completer()->popup(), nullptr);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxCompleter, withTheCompleterStandInUnfilteredCompletionOffersEveryEntry)
{
    setUp({"Dog", "Bar", "Car"}, Qt::CaseInsensitive, QCompleter::UnfilteredPopupCompletion);
    typeInto("ca");
    EXPECT_EQ(offered().size(), 3);
    EXPECT_EQ(box->lineEdit()->text(), "ca");
}

TEST_F(ComboBoxCompleter, theListShortensItsEntriesAsTold)
{
    setUp({"Dog", "Bar", "Car"});
    EXPECT_EQ(completerPopup()->textElideMode(), Qt::ElideRight);
}

TEST_F(ComboBoxCompleter, withTheCompleterStandInWildcardsAreText)
{
    setUp({"Dog", "a*b", "a[b", "ab"});
    typeInto("*");
    EXPECT_EQ(offered(), QStringList({"a*b"}));
    typeInto("[");
    EXPECT_EQ(offered(), QStringList({"a[b"}));
}
