// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

#include <QListView>
#include <QMetaMethod>
#include <QStandardItemModel>

using morvane::test::pressKey;

namespace {

class ComboBoxList : public morvane::test::ComboBoxForm
{
};

} // namespace

TEST_F(ComboBoxList, opensAtTheFirstEntryThatContainsTheText)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("ca");
    openList();
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_EQ(box->view()->currentIndex().row(), 2);
}

TEST_F(ComboBoxList, opensAtTheVeryFirstEntryToo)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(2);
    box->lineEdit()->setText("do");
    openList();
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboBoxList, opensWithTheEntryAsItWasWhenNoneContainsTheText)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(1);
    box->lineEdit()->setText("zzz");
    openList();
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST_F(ComboBoxList, altDownOpensIt)
{
    setUp({"Dog", "Bar", "Car"});
    pressKey(Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return box->view()->isVisible(); }));
}

TEST_F(ComboBoxList, pickingWithTheMouseAnnouncesOnce)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    clickEntry(2);
    EXPECT_EQ(complete.count(), 1);
    EXPECT_EQ(box->currentText(), "Car");
    EXPECT_FALSE(box->isVisible());
    EXPECT_FALSE(box->view()->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, theOutcomeOfTheMouseIsThereWhenItIsAnnounced)
{
    setUp({"Dog", "Bar", "Car"});
    QString announced;
    bool wasVisible = true;
    QObject::connect(box, &morvane::ui::ComboBoxAutoFilter::selectionComplete, [&] {
        announced = box->currentText();
        wasVisible = box->isVisible();
    });
    openList();
    clickEntry(1);
    EXPECT_EQ(announced, "Bar");
    EXPECT_FALSE(wasVisible);
}

TEST_F(ComboBoxList, theMouseIsAnnouncedAfterAllThatTheComboBoxItselfAnnounces)
{
    setUp({"Dog", "Bar", "Car"});
    QStringList order;
    QObject::connect(box, &QComboBox::textActivated, [&](const QString& text) { order.append(text); });
    QObject::connect(box, &morvane::ui::ComboBoxAutoFilter::selectionComplete, [&] { order.append("complete"); });
    openList();
    clickEntry(1);
    EXPECT_EQ(order, QStringList({"Bar", "complete"}));
}

TEST_F(ComboBoxList, aPickedEntryIsTakenThoughAnEarlierOneContainsIt)
{
    setUp({"Scar", "Bar", "Car"});
    openList();
    clickEntry(2);
    EXPECT_EQ(box->currentText(), "Car");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentText(), "Car");
    show();
    openList();
    EXPECT_EQ(box->currentText(), "Car") << "opening is no pick";
}

TEST_F(ComboBoxList, ofEqualEntriesTheOneThatWasClickedIsPicked)
{
    setUp({"Dog", "Car", "Car"});
    openList();
    clickEntry(2);
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, keysPickTheEntryThoughAnEarlierOneContainsIt)
{
    setUp({"Scar", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, aReleaseOverADisabledEntryPicksNothing)
{
    setUp({"Dog", "Bar", "Car"});
    qobject_cast<QStandardItemModel*>(box->model())->item(1)->setEnabled(false);
    openList();
    clickEntry(1);
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_TRUE(box->view()->isVisible());
    expectOutcome(0, 0);
}

TEST_F(ComboBoxList, downAndReturnAnnounceOnce)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->currentText(), "Bar");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Bar");
    EXPECT_FALSE(box->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, returnTakesTheEntryThatAnotherKeyMovedTo)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_End);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, aReturnThatReachesTheComboBoxAnnouncesOnceToo)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_Down);
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(box->view(), &shortcut);
    ASSERT_FALSE(box->view()->isVisible());
    expectOutcome(0, 0);
    activate();
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Bar");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, upAndDownMakeEntriesCurrent)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_EQ(box->lineEdit()->text(), "Car");
    pressKey(Qt::Key_Up);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(0, 0);
}

TEST_F(ComboBoxList, escapeRestoresTheEntryBeforeTheEdit)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(1);
    openList();
    pressKey(Qt::Key_Down);
    ASSERT_EQ(box->currentIndex(), 2);
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_FALSE(box->view()->isVisible());
    EXPECT_FALSE(box->isVisible());
    expectOutcome(0, 1);
}

TEST_F(ComboBoxList, escapeIsTakenFromShortcutsAndLeavesTheListOpenForTheKeyPress)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    shortcut.ignore();
    QCoreApplication::sendEvent(box->view(), &shortcut);
    EXPECT_TRUE(shortcut.isAccepted());
    EXPECT_TRUE(box->view()->isVisible());
    expectOutcome(0, 0);
}

TEST_F(ComboBoxList, escapeInTheListLeavesTheTextToBeValidated)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    pressKey(Qt::Key_Escape);
    box->lineEdit()->setText("no such thing");
    EXPECT_FALSE(box->validateEntry());
}

TEST_F(ComboBoxList, theEntryBeforeTheEditIsThatOfTheFirstOpening)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(1);
    openList();
    pressKey(Qt::Key_Return);
    show();
    box->setCurrentIndex(2);
    openList();
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(1, 1);
}

TEST_F(ComboBoxList, theEntryBeforeTheEditIsTheOneThatTheOpeningMadeCurrent)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->setText("car");
    openList();
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), "Car");
}

TEST_F(ComboBoxList, anActivationBeforeTheFirstOpeningCountsAsTheEntryBeforeTheEdit)
{
    setUp({"Dog", "Bar", "Car"});
    pressKey(Qt::Key_Down);
    ASSERT_EQ(box->currentIndex(), 1);
    expectOutcome(0, 0);
    box->setCurrentIndex(2);
    openList();
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST_F(ComboBoxList, anEntryPressedButNotReleasedPicksNothing)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    QAbstractItemView* const list = box->view();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxList, worksAgainAfterAPickWithTheMouse)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    clickEntry(2);
    show();
    openList();
    clickEntry(1);
    EXPECT_EQ(box->currentText(), "Bar");
    expectOutcome(2, 0);
    show();
    openList();
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), "Dog");
    expectOutcome(2, 1);
    show();
    box->lineEdit()->clear();
    // On the offscreen platform, the closed list would still have the keyboard.
    QTest::keyClick(window.windowHandle(), 'a');
    ASSERT_TRUE(QTest::qWaitFor([this] { return completerPopup()->isVisible(); }));
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->lineEdit()->text(), "Car");
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "Car");
}

TEST_F(ComboBoxList, aPickWithTheMouseLeavesNothingForLaterActivations)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    clickEntry(2);
    show();
    Q_EMIT box->activated(1);
    expectOutcome(1, 0);
    QMetaObject::invokeMethod(box->view(), "pressed", Q_ARG(QModelIndex, box->model()->index(1, 0)));
    Q_EMIT box->activated(1);
    expectOutcome(2, 0);
}

TEST_F(ComboBoxList, itsRowsHaveOneHeight)
{
    setUp({"Dog"});
    EXPECT_TRUE(qobject_cast<QListView*>(box->view())->uniformItemSizes());
    EXPECT_EQ(box->insertPolicy(), QComboBox::NoInsert);
}

TEST_F(ComboBoxList, aMouseReleaseBesideTheEntriesPicksNothing)
{
    setUp({"Dog", "Bar"});
    openList();
    QTest::mouseRelease(box->view()->viewport(), Qt::LeftButton, {}, QPoint(-500, -500));
    expectOutcome(0, 0);
    EXPECT_TRUE(box->isVisible());
}

TEST_F(ComboBoxList, returnIsHandledByTheListAfterTheOutcome)
{
    setUp({"Dog", "Bar", "Car"});
    openList();
    QStringList order;
    QObject::connect(box, &morvane::ui::ComboBoxAutoFilter::selectionComplete, [&] { order.append("outcome"); });
    QObject::connect(box->view(), &QAbstractItemView::activated, [&] { order.append("list"); });
    QTest::keyClick(box->view(), Qt::Key_Down);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(box->view(), &press);
    EXPECT_EQ(order, QStringList({"outcome", "list"}));
}

TEST_F(ComboBoxList, theSignalsOfTheListLeadToTheOutcomes)
{
    setUp({"Dog", "Bar", "Car"});
    QMetaObject::invokeMethod(box->view(), "currentIndexChanged", Q_ARG(QModelIndex, box->model()->index(2, 0)));
    EXPECT_EQ(box->currentIndex(), 2);
    QMetaObject::invokeMethod(box->view(), "editingFinished");
    expectOutcome(1, 0);
    show();
    QMetaObject::invokeMethod(box->view(), "editingCanceled");
    EXPECT_EQ(box->currentIndex(), -1);
    expectOutcome(1, 1);
}

TEST_F(ComboBoxList, signalsAndSlotsKeepNamesAndOrder)
{
    const auto ownMethods = [](const QMetaObject& type) {
        QList<QByteArray> names;
        for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
            names.append(type.method(i).methodSignature());
        }
        return names;
    };
    EXPECT_EQ(ownMethods(morvane::ui::ComboBoxAutoFilter::staticMetaObject),
        QList<QByteArray>(
            {"selectionComplete()", "editingCanceled()", "onItemClicked(QModelIndex)", "onEditingFinished()",
                "onEditingCanceled()", "onCurrentIndexChanged(QModelIndex)", "onItemActivated(int)"}));
    EXPECT_EQ(ownMethods(*box->view()->metaObject()),
        QList<QByteArray>({"editingFinished()", "editingCanceled()", "currentIndexChanged(QModelIndex)"}));
}
