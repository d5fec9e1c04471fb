// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include "e2e/Eventually.h"
#include "hands/HandsTest.h"
#include "support/QtPrinters.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QStyleOptionComboBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace morvane::test {

namespace {

using ui::ComboBoxAutoFilter;

void setUpFilter(ComboBoxAutoFilter& box)
{
    box.setCompleterAttributes(
        true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
}

/** A dialog: a field, the combo box, a field, and the button that Return presses. */
class FilterComboHands : public HandsTest
{
protected:
    FilterComboHands()
    {
        // QComboBox ignores a release of the mouse button within this time after its list has opened.
        QApplication::setDoubleClickInterval(1);
    }
    ~FilterComboHands() override { QApplication::setDoubleClickInterval(m_doubleClickInterval); }

    void open(const QStringList& entries, ComboBoxAutoFilter::EditMode mode = ComboBoxAutoFilter::SingleEdit)
    {
        box->setList(entries);
        openWith(mode);
    }

    void openWith(ComboBoxAutoFilter::EditMode mode)
    {
        box->setEditMode(mode);
        setUpFilter(*box);
        auto* const layout = new QVBoxLayout(&dialog);
        // The combo box is at the bottom, so that its lists hide no other widget.
        for (QWidget* const widget : std::initializer_list<QWidget*>{&before, &after, &accept, box}) {
            layout->addWidget(widget);
        }
        QWidget::setTabOrder(&before, box);
        QWidget::setTabOrder(box, &after);
        accept.setDefault(true);
        connectAll();
        dialog.move(200, 100);
        dialog.resize(300, 220);
        show(dialog);
        enter();
    }

    void connectAll()
    {
        QObject::connect(box, &ComboBoxAutoFilter::selectionComplete, &dialog, [this] {
            ++completed;
            outcome = box->itemText(box->currentIndex());
        });
        QObject::connect(box, &ComboBoxAutoFilter::editingCanceled, &dialog, [this] { ++canceled; });
        QObject::connect(&dialog, &QDialog::rejected, &dialog, [this] { ++rejected; });
        QObject::connect(&accept, &QPushButton::clicked, &dialog, [this] { ++accepted; });
    }

    /** Goes into the combo box with the keyboard, which selects its text. */
    void enter()
    {
        before.setFocus();
        press(Key::Tab);
        ASSERT_TRUE(box->hasFocus());
    }

    QAbstractItemView& suggestions() const { return *box->completer()->popup(); }

    void typeText(const QString& text)
    {
        type(text);
        ASSERT_TRUE(eventually([this] { return suggestions().isVisible(); }));
        settle();
    }

    QModelIndex suggestion(const QString& text) const
    {
        const QAbstractItemModel& offered = *suggestions().model();
        for (int row = 0; row < offered.rowCount(); ++row) {
            const QModelIndex index = offered.index(row, box->completer()->completionColumn());
            if (index.data().toString() == text) {
                return index;
            }
        }
        ADD_FAILURE() << text.toStdString() << " is not offered";
        return QModelIndex();
    }

    QString marked() const { return suggestions().currentIndex().data().toString(); }
    QString line() const { return box->lineEdit()->text(); }
    QString entry() const { return box->itemText(box->currentIndex()); }

    QPoint arrow() const
    {
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.editable = true;
        return box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, box).center();
    }

    void openList()
    {
        click(*box, arrow());
        ASSERT_TRUE(eventually([this] { return box->view()->isVisible(); }));
        settle();
    }

    void clickEntry(const QString& text) { click(*box->view(), listIndex(text)); }

    QModelIndex listIndex(const QString& text) const
    {
        return box->model()->index(box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive), box->modelColumn());
    }

    void expectOutcome(int expectedCompleted, int expectedCanceled)
    {
        settle();
        EXPECT_EQ(completed, expectedCompleted);
        EXPECT_EQ(canceled, expectedCanceled);
    }

    /** @p text is the text that was announced last. */
    void expectTaken(const QString& text, int expectedCompleted = 1, int expectedCanceled = 0)
    {
        expectOutcome(expectedCompleted, expectedCanceled);
        EXPECT_EQ(outcome, text);
    }

    QDialog dialog;
    QLineEdit before;
    QPointer<ComboBoxAutoFilter> box = new ComboBoxAutoFilter(&dialog);
    QLineEdit after;
    QPushButton accept{QStringLiteral("Accept")};
    int completed = 0;
    int canceled = 0;
    int rejected = 0;
    int accepted = 0;
    QString outcome;

private:
    const int m_doubleClickInterval = QApplication::doubleClickInterval();
};

class FilterComboHandsField : public FilterComboHands
{
protected:
    void open(const QStringList& entries) { FilterComboHands::open(entries, ComboBoxAutoFilter::FormField); }

    /** Begins an edit and goes on in another window, beside the dialog. */
    void typeAndSwitchTo(QLineEdit& other)
    {
        other.setGeometry(700, 100, 200, 60);
        type("ca");
        show(other);
        expectOutcome(0, 0);
    }
};

// Keys in the suggestions.

TEST_F(FilterComboHands, returnTakesTheMarkedSuggestion)
{
    open({"Bar", "Car", "Dog"});
    typeText("ar");
    press(Key::Down);
    EXPECT_EQ(marked(), "Car");
    EXPECT_EQ(line(), "Car");
    press(Key::Return);
    EXPECT_EQ(outcome, "Car");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(accepted + rejected, 0);
    expectOutcome(1, 0);
}

TEST_F(FilterComboHands, everyKeyThatMovesInTheSuggestionsWritesTheMarkedOne)
{
    open({"Bar", "Car", "Far", "Jar"});
    typeText("ar");
    EXPECT_EQ(line(), "ar");
    press(Key::Down);
    EXPECT_EQ(line(), "Car");
    press(Key::Up);
    EXPECT_EQ(line(), "Bar");
    press(Key::PageDown);
    EXPECT_EQ(line(), "Jar");
    press(Key::PageUp);
    EXPECT_EQ(line(), "Bar");
    press({Key::Control}, Key::End);
    EXPECT_EQ(line(), "Jar");
    press({Key::Control}, Key::Home);
    EXPECT_EQ(line(), "Bar");
    EXPECT_EQ(marked(), "Bar");
    expectOutcome(0, 0);
}

TEST_F(FilterComboHands, theOnlySuggestionIsWrittenByUpAndDownToo)
{
    for (const Key key : {Key::Down, Key::Up, Key::PageDown}) {
        if (!box->count()) {
            open({"Bar", "Dog"});
        }
        press({Key::Control}, 'a');
        typeText("do");
        press(key);
        EXPECT_EQ(line(), "Dog");
        EXPECT_EQ(marked(), "Dog");
    }
}

TEST_F(FilterComboHands, theMarkedSuggestionIsTakenThoughAnEarlierEntryContainsItsText)
{
    const Key keys[] = {Key::Return, Key::Enter, Key::Tab};
    open({"Scar", "Car", "Dog"});
    for (const Key key : keys) {
        box->show();
        enter();
        typeText("ar");
        press(Key::Down);
        EXPECT_EQ(marked(), "Car");
        press(key);
        EXPECT_EQ(outcome, "Car");
        EXPECT_FALSE(box->isVisible());
        box->setCurrentIndex(2);
    }
    expectOutcome(3, 0);
}

TEST_F(FilterComboHands, ofSuggestionsWithOneTextTheMarkedOneIsTaken)
{
    open({"Car", "Car", "Dog"});
    typeText("ca");
    press(Key::Down);
    press(Key::Return);
    EXPECT_EQ(box->currentIndex(), 1);
    expectOutcome(1, 0);
}

TEST_F(FilterComboHands, typingOnAfterAMarkGoesByTheLinesTextAgain)
{
    open({"Bar", "Car", "Card", "Scard"});
    typeText("ar");
    press(Key::Down);
    EXPECT_EQ(line(), "Car");
    typeText("d");
    EXPECT_EQ(line(), "Card");
    press(Key::Backspace);
    press(Key::Backspace);
    press(Key::Backspace);
    press(Key::Backspace);
    typeText("ba");
    press(Key::Return);
    expectTaken("Bar");
}

TEST_F(FilterComboHands, downOnTheLastSuggestionGivesTheTypedTextBack)
{
    open({"Bar", "Car", "Dog"});
    typeText("ar");
    press(Key::Down);
    press(Key::Down);
    EXPECT_EQ(line(), "ar");
    press(Key::Shift);
    EXPECT_EQ(line(), "ar");
    EXPECT_FALSE(suggestions().currentIndex().isValid());
    press(Key::Return);
    EXPECT_EQ(outcome, "Bar");
}

TEST_F(FilterComboHands, aModifierAloneChangesNeitherLineNorMark)
{
    open({"Bar", "Car", "Dog"});
    typeText("ar");
    for (const Key modifier : {Key::Control, Key::Shift, Key::Alt}) {
        press(modifier);
        EXPECT_EQ(line(), "ar");
        EXPECT_EQ(marked(), "Bar");
    }
    press(Key::Down);
    for (const Key modifier : {Key::Control, Key::Shift}) {
        press(modifier);
        EXPECT_EQ(line(), "Car");
        EXPECT_EQ(marked(), "Car");
    }
    press(Key::Return);
    EXPECT_EQ(outcome, "Car");
}

TEST_F(FilterComboHands, theMarkStaysWhileTheCursorMovesInTheLine)
{
    open({"Scar", "Car", "Dog"});
    typeText("ar");
    press(Key::Down);
    press(Key::Left);
    EXPECT_EQ(box->lineEdit()->cursorPosition(), 2);
    EXPECT_EQ(marked(), "Car");
    press(Key::Return);
    EXPECT_EQ(outcome, "Car");
}

// The mouse.

TEST_F(FilterComboHands, aClickedSuggestionIsTaken)
{
    open({"Scar", "Car", "Dog"});
    typeText("ar");
    click(suggestions(), suggestion("Car"));
    EXPECT_EQ(outcome, "Car");
    EXPECT_EQ(entry(), "Car");
    EXPECT_FALSE(box->isVisible());
    EXPECT_FALSE(suggestions().isVisible());
    expectOutcome(1, 0);
}

TEST_F(FilterComboHands, aSuggestionThatTheMouseIsLetGoOverIsTaken)
{
    open({"Scar", "Car", "Dog"});
    typeText("ar");
    drag(onScreen(suggestions(), suggestion("Scar")), onScreen(suggestions(), suggestion("Car")));
    EXPECT_FALSE(box->isVisible());
    expectTaken("Car");
}

TEST_F(FilterComboHands, aSuggestionPressedAndLetGoBesideIsTakenWithReturnOnly)
{
    open({"Scar", "Car", "Dog"});
    typeText("ar");
    const QPoint start = onScreen(suggestions(), suggestion("Car"));
    screen().pressButton(start);
    screen().move(start + QPoint(0, 200));
    screen().releaseButton(start + QPoint(0, 200));
    settle();
    expectOutcome(0, 0);
    press(Key::Return);
    EXPECT_EQ(outcome, line());
    expectOutcome(1, 0);
}

TEST_F(FilterComboHands, aClickInTheListTakesTheEntryThoughAnEarlierOneContainsItsText)
{
    open({"Cargo", "Car", "Dog"});
    openList();
    clickEntry("Car");
    EXPECT_FALSE(box->isVisible());
    expectTaken("Car");
}

TEST_F(FilterComboHands, ofEntriesWithOneTextTheClickedOneIsTaken)
{
    open({"Dog", "Car", "Car"});
    openList();
    click(*box->view(), box->model()->index(2, 0));
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(1, 0);
}

TEST_F(FilterComboHands, pressingTheArrowDraggingAndLettingGoTakesTheEntry)
{
    open({"Cargo", "Car", "Dog"});
    const QPoint start = onScreen(*box, arrow());
    screen().pressButton(start);
    settle();
    ASSERT_TRUE(eventually([this] { return box->view()->isVisible(); }));
    settle();
    screen().move(onScreen(*box->view(), listIndex("Dog")));
    screen().move(onScreen(*box->view(), listIndex("Car")));
    settle();
    screen().releaseButton(onScreen(*box->view(), listIndex("Car")));
    settle();
    EXPECT_FALSE(box->isVisible());
    expectTaken("Car");
}

TEST_F(FilterComboHands, returnInTheListTakesTheEntryItIsOn)
{
    open({"Cargo", "Car", "Dog"});
    openList();
    press(Key::Down);
    press(Key::Return);
    expectTaken("Car");
}

TEST_F(FilterComboHands, theEditorOfACellStoresTheClickedSuggestion)
{
    struct Delegate : QStyledItemDelegate
    {
        QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override
        {
            auto* const box = new ComboBoxAutoFilter(parent);
            box->setList({"Scar", "Car", "Dog"});
            setUpFilter(*box);
            auto* const self = const_cast<Delegate*>(this);
            connect(box, &ComboBoxAutoFilter::selectionComplete, self, [self, box] {
                Q_EMIT self->commitData(box);
                Q_EMIT self->closeEditor(box);
            });
            return self->editor = box;
        }
        void setEditorData(QWidget* widget, const QModelIndex& index) const override
        {
            static_cast<ComboBoxAutoFilter*>(widget)->setSelectedText(index.data().toString());
        }
        void setModelData(QWidget* widget, QAbstractItemModel* model, const QModelIndex& index) const override
        {
            auto* const box = static_cast<ComboBoxAutoFilter*>(widget);
            if (box->validateEntry()) {
                model->setData(index, box->itemText(box->currentIndex()));
            }
        }
        ComboBoxAutoFilter* editor = nullptr;
    };
    Delegate delegate;
    QTableWidget table(2, 1);
    table.setItemDelegate(&delegate);
    table.setItem(0, 0, new QTableWidgetItem("Dog"));
    table.setItem(1, 0, new QTableWidgetItem("Dog"));
    table.resize(300, 200);
    show(table);
    for (const bool isClicked : {true, false}) {
        const int row = isClicked ? 0 : 1;
        table.setCurrentCell(row, 0);
        table.editItem(table.item(row, 0));
        type("ar");
        QAbstractItemView& popup = *delegate.editor->completer()->popup();
        ASSERT_TRUE(eventually([&] { return popup.isVisible(); }));
        settle();
        if (isClicked) {
            click(popup, popup.model()->index(1, 0));
        } else {
            press(Key::Down);
            press(Key::Tab);
        }
        EXPECT_TRUE(eventually([&] { return table.item(row, 0)->text() == "Car"; }))
            << table.item(row, 0)->text().toStdString();
    }
}

// Escape.

TEST_F(FilterComboHands, escapeOverOpenSuggestionsCancelsAndLeavesTheDialog)
{
    open({"Bar", "Car", "Dog"});
    typeText("ar");
    press(Key::Escape);
    EXPECT_FALSE(suggestions().isVisible());
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(rejected, 0);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(entry(), "Bar");
    expectOutcome(0, 1);
}

TEST_F(FilterComboHandsField, escapeOverOpenSuggestionsCancelsAndLeavesTheDialog)
{
    open({"Bar", "Car", "Dog"});
    typeText("ar");
    press(Key::Down);
    press(Key::Escape);
    EXPECT_FALSE(suggestions().isVisible());
    EXPECT_EQ(rejected, 0);
    EXPECT_EQ(line(), "Bar");
    expectOutcome(0, 1);
}

// A field of a form.

TEST_F(FilterComboHandsField, returnEnterTabAndLosingTheFocusFinishAndTheFieldStays)
{
    open({"Bar", "Car", "Dog"});
    int expected = 0;
    const auto finish = [&](const char* text, const char* entryTaken, const std::function<void()>& leave) {
        enter();
        typeText(text);
        leave();
        EXPECT_TRUE(box->isVisible());
        EXPECT_FALSE(suggestions().isVisible());
        EXPECT_EQ(outcome, entryTaken);
        EXPECT_EQ(line(), entryTaken);
        expectOutcome(++expected, 0);
    };
    finish("ca", "Car", [this] { press(Key::Return); });
    finish("do", "Dog", [this] { press(Key::Enter); });
    finish("ar", "Bar", [this] { press(Key::Tab); });
    EXPECT_TRUE(after.hasFocus());
    finish("ca", "Car", [this] { press({Key::Shift}, Key::Tab); });
    EXPECT_TRUE(before.hasFocus());
    finish("do", "Dog", [this] {
        click(after); // this click only closes the suggestions
        click(after);
    });
    EXPECT_TRUE(after.hasFocus());
    EXPECT_EQ(accepted + rejected, 0);
}

TEST_F(FilterComboHandsField, theSameIsTypedTwice)
{
    open({"Bar", "Car", "Dog"});
    for (int time = 1; time <= 3; ++time) {
        typeText("do");
        press(Key::Return);
        EXPECT_EQ(outcome, "Dog");
        expectOutcome(time, 0);
    }
}

TEST_F(FilterComboHandsField, anEqualTextGoesBeforeOneThatContainsIt)
{
    open({"Scar", "CAR", "Car", "Dog"});
    typeText("car");
    EXPECT_EQ(marked(), "CAR");
    press(Key::Tab);
    EXPECT_EQ(outcome, "CAR");
    enter();
    typeText("Car");
    EXPECT_EQ(marked(), "Car");
    press(Key::Return);
    EXPECT_EQ(outcome, "Car");
    enter();
    typeText("ca");
    press(Key::Return);
    expectTaken("Scar", 3);
}

TEST_F(FilterComboHandsField, aTextThatMatchesNothingGivesTheEntryBackAndCancels)
{
    open({"Bar", "Car", "Dog"});
    box->setCurrentIndex(1);
    int expected = 0;
    for (const Key key : {Key::Return, Key::Tab, Key::Return}) {
        enter();
        type("xyz");
        press(key);
        EXPECT_EQ(line(), "Car");
        EXPECT_EQ(entry(), "Car");
        EXPECT_TRUE(box->isVisible());
        expectOutcome(0, ++expected);
    }
    EXPECT_EQ(accepted, 0);
}

TEST_F(FilterComboHandsField, anEmptiedLineMatchesNothing)
{
    open({"Bar", "Car", "Dog"});
    box->setCurrentIndex(1);
    press({Key::Control}, 'a');
    press(Key::Delete);
    press(Key::Tab);
    EXPECT_EQ(line(), "Car");
    expectOutcome(0, 1);
}

TEST_F(FilterComboHandsField, escapeCancelsEachTimeAnewAndThenBelongsToTheDialog)
{
    open({"Bar", "Car", "Dog"});
    box->setCurrentIndex(2);
    for (int time = 1; time <= 2; ++time) {
        enter();
        type(time == 1 ? "ar" : "xyz");
        press(Key::Escape);
        EXPECT_EQ(line(), "Dog");
        EXPECT_TRUE(box->isVisible());
        EXPECT_TRUE(box->hasFocus());
        EXPECT_EQ(rejected, 0);
        expectOutcome(0, time);
    }
    typeText("ca");
    press(Key::Return);
    EXPECT_EQ(outcome, "Car") << "entries are taken as ever after Escape";
    expectOutcome(1, 2);
    press(Key::Escape);
    EXPECT_EQ(rejected, 1);
    expectOutcome(1, 2);
}

TEST_F(FilterComboHandsField, escapeInTheListGivesTheEntryBackAndLeavesTheDialog)
{
    open({"Bar", "Car", "Dog"});
    for (int time = 1; time <= 2; ++time) {
        box->setCurrentIndex(time);
        openList();
        press(Key::Up);
        press(Key::Escape);
        EXPECT_FALSE(box->view()->isVisible());
        EXPECT_EQ(box->currentIndex(), time);
        EXPECT_EQ(rejected, 0);
        expectOutcome(0, time);
    }
}

TEST_F(FilterComboHandsField, escapeAfterSteppingWithKeysOrWheelGivesTheEntryBack)
{
    open({"Bar", "Car", "Dog"});
    press(Key::Down);
    press(Key::Down);
    EXPECT_EQ(entry(), "Dog");
    press(Key::Escape);
    EXPECT_EQ(entry(), "Bar");
    EXPECT_EQ(rejected, 0);
    wheel(*box, Turn::Down);
    EXPECT_EQ(entry(), "Car");
    press(Key::Escape);
    EXPECT_EQ(line(), "Bar");
    expectOutcome(0, 2);
    press(Key::Down);
    press(Key::Down);
    press(Key::Tab);
    expectTaken("Dog", 1, 2);
}

TEST_F(FilterComboHandsField, returnWithoutAnEditPressesTheDefaultButton)
{
    open({"Bar", "Car", "Dog"});
    typeText("ca");
    press(Key::Return);
    EXPECT_EQ(accepted, 0);
    EXPECT_TRUE(box->hasFocus());
    press(Key::Return);
    EXPECT_EQ(accepted, 1);
    EXPECT_EQ(outcome, "Car");
}

TEST_F(FilterComboHandsField, losingTheFocusWithoutAnEditAnnouncesNothing)
{
    open({"Bar", "Car", "Dog"});
    press(Key::Tab);
    EXPECT_TRUE(after.hasFocus());
    press({Key::Shift}, Key::Tab);
    EXPECT_TRUE(box->hasFocus());
    click(before);
    openList();
    screen().click(onScreen(dialog, QPoint(3, 3)));
    settle();
    ASSERT_TRUE(eventually([this] { return !box->view()->isVisible(); }));
    click(before);
    EXPECT_TRUE(before.hasFocus());
    expectOutcome(0, 0);
}

TEST_F(FilterComboHandsField, switchingWindowsDoesNotFinish)
{
    open({"Bar", "Car", "Dog"});
    QLineEdit other;
    typeAndSwitchTo(other);
    activate(dialog);
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(line(), "ca");
    expectOutcome(0, 0);
    press(Key::Tab);
    EXPECT_TRUE(box->isVisible());
    expectTaken("Car");
}

TEST_F(FilterComboHandsField, comingBackIntoAnotherFieldFinishes)
{
    open({"Bar", "Car", "Dog"});
    QLineEdit other;
    typeAndSwitchTo(other);
    click(after);
    ASSERT_TRUE(eventually([this] { return after.hasFocus(); }));
    expectTaken("Car");
}

TEST_F(FilterComboHandsField, clicksInBothListsTakeTheEntryAndTheFieldStays)
{
    open({"Cargo", "Car", "Dog"});
    openList();
    clickEntry("Car");
    EXPECT_TRUE(box->isVisible());
    expectTaken("Car");
    typeText("do");
    click(suggestions(), suggestion("Dog"));
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->hasFocus());
    expectTaken("Dog", 2);
    typeText("ca");
    click(suggestions(), suggestion("Car"));
    EXPECT_EQ(outcome, "Car");
    press(Key::Tab);
    EXPECT_EQ(line(), "Car");
    expectOutcome(3, 0);
}

TEST_F(FilterComboHandsField, losingTheFocusToAnotherFieldWithSuggestionsOpenFinishes)
{
    open({"Bar", "Car", "Dog"});
    typeText("dog");
    after.setFocus();
    settle();
    EXPECT_EQ(outcome, "Dog");
    EXPECT_FALSE(suggestions().isVisible());
    expectOutcome(1, 0);
}

TEST_F(FilterComboHandsField, tabStaysWhereASlotHasMovedTheFocus)
{
    open({"Bar", "Car", "Dog"});
    QObject::connect(box, &ComboBoxAutoFilter::selectionComplete, &before, [this] { before.setFocus(); });
    typeText("og");
    press(Key::Tab);
    EXPECT_EQ(outcome, "Dog");
    EXPECT_TRUE(before.hasFocus());
    expectOutcome(1, 0);
}

TEST_F(FilterComboHandsField, openingTheListDoesNotFinish)
{
    open({"Cargo", "Car", "Dog"});
    type("xyz");
    openList();
    expectOutcome(0, 0);
    press(Key::Down);
    press(Key::Escape);
    EXPECT_EQ(line(), "Cargo");
    EXPECT_EQ(rejected, 0);
    expectOutcome(0, 1);
    typeText("do");
    press({Key::Alt}, Key::Down);
    press({Key::Control}, 'a');
    press(Key::Escape);
    EXPECT_EQ(entry(), "Cargo");
    expectOutcome(0, 2);
    openList();
    press(Key::Down);
    press(Key::Return);
    EXPECT_EQ(outcome, "Car");
    EXPECT_EQ(accepted, 0);
    expectOutcome(1, 2);
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(FilterComboHandsField, tabInTheListTakesTheEntryAndMovesOn)
{
    open({"Cargo", "Car", "Dog"});
    openList();
    press(Key::Down);
    press(Key::Tab);
    EXPECT_FALSE(box->view()->isVisible());
    EXPECT_EQ(outcome, "Car");
    EXPECT_TRUE(after.hasFocus());
    expectOutcome(1, 0);
}

TEST_F(FilterComboHandsField, withoutALineItIsAFieldOfAFormToo)
{
    open({"Bar", "Car", "Dog"});
    box->setEditable(false);
    settle();
    enter();
    press(Key::Down);
    press(Key::Tab);
    EXPECT_TRUE(after.hasFocus());
    expectTaken("Car");
    enter();
    press(Key::Down);
    press(Key::Escape);
    EXPECT_EQ(entry(), "Car");
    EXPECT_EQ(rejected, 0);
    expectOutcome(1, 1);
    press(Key::Return);
    EXPECT_EQ(accepted, 1);
    press(Key::Escape);
    EXPECT_EQ(rejected, 1);
}

// Models.

TEST_F(FilterComboHands, suggestionsComeFromTheShownColumn)
{
    QStandardItemModel model;
    model.appendRow({new QStandardItem("Bar"), new QStandardItem("Ant")});
    model.appendRow({new QStandardItem("Car"), new QStandardItem("Bee")});
    model.appendRow({new QStandardItem("Dog"), new QStandardItem("Beetle")});
    box->setModel(&model);
    openWith(ComboBoxAutoFilter::SingleEdit);
    box->setModelColumn(1);
    enter();
    typeText("ee");
    EXPECT_EQ(suggestions().model()->rowCount(), 2);
    press(Key::Down);
    EXPECT_EQ(line(), "Beetle");
    press(Key::Return);
    EXPECT_EQ(box->currentIndex(), 2);
    box->show();
    box->setModelColumn(0);
    enter();
    typeText("ar");
    click(suggestions(), suggestion("Car"));
    EXPECT_EQ(outcome, "Car");
}

TEST_F(FilterComboHands, suggestionsFollowAnotherModel)
{
    open({"Bar", "Car", "Dog"});
    QStandardItemModel model;
    model.appendRow(new QStandardItem("Jar"));
    model.appendRow(new QStandardItem("Star"));
    box->setModel(&model);
    enter();
    typeText("ar");
    EXPECT_EQ(suggestions().model()->rowCount(), 2);
    press(Key::Down);
    press(Key::Return);
    expectTaken("Star");
}

TEST_F(FilterComboHands, aDisabledEntryIsTakenByNoRoad)
{
    open({"Dog", "Car", "Bear"});
    qobject_cast<QStandardItemModel*>(box->model())->item(1)->setEnabled(false);
    typeText("Car");
    press(Key::Return);
    EXPECT_EQ(entry(), "Dog");
    expectOutcome(1, 0);

    box->show();
    enter();
    typeText("ar");
    EXPECT_EQ(marked(), "Bear");
    press({Key::Control}, Key::Home);
    EXPECT_NE(line(), "Car");
    click(suggestions(), suggestion("Car"));
    EXPECT_TRUE(box->isVisible());
    expectOutcome(1, 0);
    press(Key::Return);
    EXPECT_EQ(outcome, "Bear");

    box->setCurrentIndex(0);
    box->show();
    enter();
    openList();
    screen().move(onScreen(*box->view(), listIndex("Bear")));
    clickEntry("Car");
    EXPECT_EQ(entry(), "Dog");
    expectOutcome(2, 0);
    press(Key::Down);
    EXPECT_NE(entry(), "Car");
}

TEST_F(FilterComboHandsField, theTextOfADisabledEntryMatchesNothing)
{
    open({"Dog", "Car"});
    qobject_cast<QStandardItemModel*>(box->model())->item(1)->setEnabled(false);
    typeText("Car");
    press(Key::Tab);
    EXPECT_EQ(entry(), "Dog");
    EXPECT_EQ(line(), "Dog");
    expectOutcome(0, 1);
    box->setSelectedText("Car");
    EXPECT_EQ(entry(), "Car") << "the program can";
}

TEST_F(FilterComboHandsField, entriesThatGoWhileSuggestionsAreOpenAreNotTaken)
{
    open({"Bar", "Car", "Jar"});
    typeText("ar");
    press(Key::Down);
    EXPECT_EQ(line(), "Car");
    box->removeItem(1);
    settle();
    press(Key::Return);
    EXPECT_EQ(line(), entry());
    EXPECT_NE(entry(), "Car");
    expectOutcome(0, 1);
    EXPECT_EQ(accepted, 0);
}

} // namespace

} // namespace morvane::test
