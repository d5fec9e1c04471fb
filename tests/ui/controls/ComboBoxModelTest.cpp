// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

#include <QElapsedTimer>
#include <QStandardItemModel>
#include <QStringListModel>

#include <memory>

using morvane::test::pressKey;
using morvane::test::type;

namespace {

/** A model of many entries that needs no memory for them. */
class NumberModel : public QAbstractListModel
{
public:
    explicit NumberModel(int rows) : m_rows(rows) {}
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_rows; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole || role == Qt::EditRole ? QString("entry %1").arg(index.row()) : QVariant();
    }

private:
    int m_rows;
};

class ComboBoxModel : public morvane::test::ComboBoxForm
{
protected:
    void setUpModel(QAbstractItemModel* model)
    {
        box->setListModel(
            model, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideMiddle, Qt::MatchContains);
        show();
    }
};

} // namespace

TEST_F(ComboBoxModel, setListAppendsAndDoesNotSetUpTheFiltering)
{
    box->setList({"a", "b"});
    box->setList({"c"});
    EXPECT_EQ(box->count(), 3);
    EXPECT_FALSE(box->isEditable());
    EXPECT_EQ(box->completer(), nullptr);
}

TEST_F(ComboBoxModel, settingUpTwiceMakesANewLineAndCompleterAndEndsTheEditingOnce)
{
    setUp({"Dog", "Bar", "Car"});
    const QPointer<QLineEdit> line = box->lineEdit();
    const QPointer<QCompleter> completer = box->completer();
    box->setCurrentIndex(2);
    box->setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseSensitive, Qt::ElideLeft, Qt::MatchStartsWith);

    EXPECT_FALSE(line);
    ASSERT_TRUE(completer);
    EXPECT_EQ(completer->parent(), box);
    EXPECT_NE(box->completer(), completer);
    EXPECT_EQ(box->lineEdit()->text(), "Car");
    EXPECT_EQ(completerPopup()->textElideMode(), Qt::ElideLeft);

    box->lineEdit()->clear();
    type("a");
    EXPECT_TRUE(completerPopup()->isVisible());
    EXPECT_FALSE(completer->popup()->isVisible());
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Bar");
    expectOutcome(1, 0);

    delete box;
    EXPECT_FALSE(completer);
}

TEST_F(ComboBoxModel, theBoxCanBeEditedEvenWhereItIsToldNot)
{
    box->setList({"Dog", "Bar"});
    box->setCompleterAttributes(
        false, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    show();
    EXPECT_TRUE(box->isEditable());
    box->lineEdit()->clear();
    type("ba");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Bar");
}

TEST_F(ComboBoxModel, twoBoxesShareAModelThatOutlivesThem)
{
    QStringListModel model({"Dog", "Bar"});
    auto second = std::make_unique<morvane::ui::ComboBoxAutoFilter>(nullptr);
    second->setListModel(
        &model, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideMiddle, Qt::MatchContains);
    setUpModel(&model);
    second->lineEdit()->setText("ba");
    EXPECT_TRUE(second->validateEntry());
    EXPECT_EQ(second->currentIndex(), 1);
    EXPECT_EQ(box->currentIndex(), 0);
    second.reset();
    model.setStringList({"Egg", "Car"});
    box->lineEdit()->setText("ca");
    EXPECT_TRUE(box->validateEntry());
    delete box;
    EXPECT_EQ(model.rowCount(), 2);
}

TEST_F(ComboBoxModel, aModelThatDiesLeavesAnEmptyBox)
{
    auto model = std::make_unique<QStringListModel>(QStringList({"Dog", "Bar"}));
    setUpModel(model.get());
    model.reset();
    box->lineEdit()->clear();
    type("ba");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), -1);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, aResetWhileTheCompleterIsOpenLeavesTheNewEntriesToFilter)
{
    QStringListModel model({"Dog", "Bar", "Car"});
    setUpModel(&model);
    box->lineEdit()->clear();
    type("ar");
    model.setStringList({"Egg", "Jar"});
    // After the reset, a combo box selects the first entry and shows its text.
    EXPECT_EQ(box->lineEdit()->text(), "Egg");
    box->lineEdit()->clear();
    type("ar");
    ASSERT_EQ(box->completer()->completionModel()->rowCount(), 1);
    EXPECT_EQ(box->completer()->completionModel()->index(0, 0).data().toString(), "Jar");
}

TEST_F(ComboBoxModel, aResetAfterTypingEndsWithTheNewEntries)
{
    QStringListModel model({"Dog", "Bar", "Car"});
    setUpModel(&model);
    box->lineEdit()->setText("ar");
    model.setStringList({"Egg", "Jar"});
    box->lineEdit()->setText("ar");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Jar");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, rowsRemovedWhileTheListIsOpenAreGoneFromIt)
{
    QStringListModel model({"Dog", "Bar", "Car", "Egg"});
    setUpModel(&model);
    box->setCurrentIndex(3);
    openList();
    model.removeRows(2, 2);
    pressKey(Qt::Key_Up);
    EXPECT_EQ(box->count(), 2);
    pressKey(Qt::Key_Escape);
    // The entry that was current before the edit is one of the removed ones.
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->currentText(), "");
    expectOutcome(0, 1);
}

TEST_F(ComboBoxModel, allRowsRemovedWhileTheListIsOpenEndTheEditingWithNothing)
{
    QStringListModel model({"Dog", "Bar"});
    setUpModel(&model);
    openList();
    model.removeRows(0, 2);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), -1);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, rowsRemovedWhileTheCompleterIsOpenAreGoneFromIt)
{
    QStringListModel model({"Dog", "Bar", "Car", "Jar"});
    setUpModel(&model);
    box->lineEdit()->clear();
    type("ar");
    ASSERT_TRUE(completerPopup()->isVisible());
    pressKey(Qt::Key_Down);
    model.removeRows(1, 2);
    ASSERT_EQ(box->completer()->completionModel()->rowCount(), 1);
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->lineEdit()->text(), "Jar");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Jar");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, allRowsRemovedWhileTheCompleterIsOpenEndTheEditingWithNothing)
{
    QStringListModel model({"Dog", "Bar"});
    setUpModel(&model);
    box->lineEdit()->clear();
    type("a");
    model.removeRows(0, 2);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_FALSE(box->isVisible());
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, aResetWhileTheListIsOpenShowsTheNewEntries)
{
    QStringListModel model({"Dog", "Bar", "Car"});
    setUpModel(&model);
    openList();
    model.setStringList({"Egg", "Jar"});
    EXPECT_EQ(box->view()->model()->rowCount(), 2);
    box->view()->setCurrentIndex(box->view()->model()->index(0, 0));
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Jar");
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, anEmptyModelHasNoListAndEndsWithNothing)
{
    setUp({});
    box->showPopup();
    EXPECT_FALSE(box->view()->isVisible());
    type("a");
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), -1);
    expectOutcome(1, 0);
    EXPECT_FALSE(box->validateEntry());
}

TEST_F(ComboBoxModel, withTheCompleterStandInAMillionRowsAreFilteredAndEnded)
{
    NumberModel model(1000000);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setUpModel(&model);
    box->lineEdit()->clear();
    type("99999");
    EXPECT_EQ(box->completer()->completionCount(), 19);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 99999);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, aMillionRowsAreFilteredAndEndedInAFormField)
{
    NumberModel model(1000000);
    box->setEditMode(morvane::ui::ComboBoxAutoFilter::FormField);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setUpModel(&model);
    box->lineEdit()->clear();
    type("Entry 99999");
    EXPECT_EQ(completerPopup()->currentIndex().data().toString(), "entry 99999");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 99999);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, aMillionRowsOpenInTheList)
{
    NumberModel model(1000000);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setUpModel(&model);
    box->lineEdit()->setText("entry 999999");
    openList();
    EXPECT_EQ(box->currentIndex(), 999999);
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Return);
    // "entry 99999" comes first and does not contain the picked text.
    EXPECT_EQ(box->currentIndex(), 999998);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, entriesWithLineFeedsAreFoundByTheirText)
{
    setUp({"one", "two\nlines", "two lines"});
    openList();
    pressKey(Qt::Key_Down);
    EXPECT_EQ(box->currentIndex(), 1);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 1);
    box->setSelectedText("two\nlines");
    EXPECT_EQ(box->lineEdit()->selectedText().size(), 9);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, entriesWithLineFeedsAreOfferedInOneRowEach)
{
    setUp({"one", "two\nlines", "two lines"});
    box->lineEdit()->clear();
    type("two");
    ASSERT_TRUE(QTest::qWaitFor([this] { return completerPopup()->isVisible(); }));
    const QAbstractItemModel* const offered = box->completer()->completionModel();
    ASSERT_EQ(offered->rowCount(), 2);
    const int height = completerPopup()->visualRect(offered->index(0, 0)).height();
    EXPECT_EQ(completerPopup()->visualRect(offered->index(1, 0)).height(), height);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxModel, anEntryIsFoundAsFindTextFindsIt)
{
    const QStringList entries = {"", "Straße", "STRASSE", "İstanbul", "istanbul", "ISTANBUL", "kelvin",
        QChar(0x212a) + QString("elvin sign"), "𐐀 capital", "𐐨 small", "ς", "Σ", QString::fromUtf8("e\xcc\x81"), "é",
        "a*b", "[ab]", "two\nlines", QString(300, 'x') + "y"};
    setUp(QStringList(entries.begin() + 1, entries.end()));
    for (const QString& entry : entries) {
        for (const QString& text : {entry, entry.toUpper(), entry.toLower(), entry.mid(1), entry + "?"}) {
            box->setCurrentIndex(-1);
            box->lineEdit()->setText(text);
            const int expected = box->findText(box->lineEdit()->text(), Qt::MatchContains);
            EXPECT_EQ(box->validateEntry(), expected >= 0) << text.toStdString();
            EXPECT_EQ(box->currentIndex(), expected) << text.toStdString();
        }
    }
}

TEST_F(ComboBoxModel, theColumnThatIsShownIsSearched)
{
    QStandardItemModel model(2, 2);
    model.setItem(0, 0, new QStandardItem("Car"));
    model.setItem(0, 1, new QStandardItem("Dog"));
    model.setItem(1, 0, new QStandardItem("Dog"));
    model.setItem(1, 1, new QStandardItem("Car"));
    box->setModelColumn(1);
    setUpModel(&model);
    box->lineEdit()->setText("car");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST_F(ComboBoxModel, aDisabledEntryIsNotValidated)
{
    QStandardItemModel model;
    for (const char* const text : {"Dog", "Car", "Bar"}) {
        model.appendRow(new QStandardItem(text));
    }
    model.item(1)->setEnabled(false);
    setUpModel(&model);
    QSignalSpy activated(box.data(), SIGNAL(activated(int)));
    box->lineEdit()->setText("Car");
    EXPECT_FALSE(box->validateEntry());
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_EQ(activated.count(), 0);
    expectOutcome(1, 0);
    box->lineEdit()->setText("ar");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 2);
    box->setSelectedText("Car");
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST_F(ComboBoxModel, theExactTextOfAnEntryActivatesIt)
{
    setUp({"Dog", "Bar", "Car"});
    QSignalSpy activated(box.data(), SIGNAL(activated(int)));
    QSignalSpy textActivated(box.data(), SIGNAL(textActivated(QString)));
    box->lineEdit()->setText("Car");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(activated.count(), 1);
    EXPECT_EQ(textActivated.count(), 1);
    show();
    box->lineEdit()->setText("ba");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(activated.count(), 1) << "a part of its text does not";
    expectOutcome(2, 0);
}

TEST_F(ComboBoxModel, suggestionsFollowTheColumnAndTheModel)
{
    QStandardItemModel first(1, 2);
    first.setItem(0, 0, new QStandardItem("Car"));
    first.setItem(0, 1, new QStandardItem("Dog"));
    setUpModel(&first);
    box->setModelColumn(1);
    box->completer()->setCompletionPrefix("og");
    EXPECT_EQ(box->completer()->currentCompletion(), "Dog");
    QStringListModel second({"Jar", "Star"});
    box->setModelColumn(0);
    box->setModel(&second);
    box->completer()->setCompletionPrefix("ar");
    EXPECT_EQ(box->completer()->completionCount(), 2);
    delete box;
}

TEST_F(ComboBoxModel, aColumnThatTheProgramGivesToTheCompleterStays)
{
    QStandardItemModel model(2, 2);
    model.setItem(0, 0, new QStandardItem("Car"));
    model.setItem(0, 1, new QStandardItem("Dog"));
    setUpModel(&model);
    box->completer()->setCompletionColumn(1);
    box->setCurrentIndex(1);
    EXPECT_EQ(box->completer()->completionColumn(), 1);
}

TEST_F(ComboBoxModel, setSelectedTextFindsTheExactTextAndSelectsItsLength)
{
    setUp({"Dog", "Bar", "Car"});
    box->setSelectedText("Car");
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_EQ(box->lineEdit()->selectedText(), "Car");
    box->setSelectedText("Dog");
    EXPECT_EQ(box->currentIndex(), 0);

    box->setCurrentIndex(1);
    box->setSelectedText("car");
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_EQ(box->lineEdit()->selectedText(), "Bar");

    box->setSelectedText("Do");
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_EQ(box->lineEdit()->selectedText(), "Ba");

    box->setSelectedText("");
    EXPECT_EQ(box->lineEdit()->selectedText(), "");
    box->setSelectedText("longer than the line");
    EXPECT_EQ(box->lineEdit()->selectedText(), "Bar");
}

TEST_F(ComboBoxModel, setFromValueFindsTheEntryByItsData)
{
    box->addItem("Dog", 7);
    box->addItem("Bar", "x");
    box->addItem("Car", "X");
    setUp({});
    box->setFromValue("X");
    EXPECT_EQ(box->currentIndex(), 2);
    box->setFromValue(8);
    EXPECT_EQ(box->currentIndex(), 2);

    QSignalSpy changes(box.data(), SIGNAL(currentIndexChanged(int)));
    box->setFromValue("X");
    EXPECT_EQ(changes.count(), 0);
    box->setFromValue(7);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(ComboBoxModel, setFromValueKeepsTheTypedTextOfTheEntryThatIsCurrent)
{
    box->addItem("Dog", 7);
    setUp({});
    box->lineEdit()->setText("typed");
    box->setFromValue(7);
    EXPECT_EQ(box->lineEdit()->text(), "typed");
}
