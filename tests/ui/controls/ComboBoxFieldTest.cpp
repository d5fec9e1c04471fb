// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The combo box as a field of a form, as far as no events from the window system are needed.
#include "ComboBoxForm.h"

#include <QMetaEnum>
#include <QStringListModel>

using morvane::test::pressKey;
using morvane::test::type;
using morvane::ui::ComboBoxAutoFilter;

namespace {

class ComboBoxField : public morvane::test::ComboBoxForm
{
protected:
    ComboBoxField() { box->setEditMode(ComboBoxAutoFilter::FormField); }

    void typeAndKeep(const QString& text)
    {
        box->setFocus();
        box->lineEdit()->selectAll();
        type(text);
    }
};

/** Displays its texts with a unit; stores and edits them without it. */
class ModelWithUnit : public QStringListModel
{
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex& index, int role) const override
    {
        const QVariant text = QStringListModel::data(index, role);
        return role == Qt::DisplayRole ? text.toString() + QStringLiteral(" V") : text;
    }
};

} // namespace

TEST_F(ComboBoxField, goesByTheTextThatItsLineShows)
{
    ModelWithUnit model(QStringList{QStringLiteral("12"), QStringLiteral("2")});
    box->setListModel(
        &model, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
    box->setCurrentIndex(0);
    box->lineEdit()->setText(QStringLiteral("2"));
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 1);
    box->lineEdit()->setText(QStringLiteral("2 V"));
    EXPECT_FALSE(box->validateEntry()) << "no line shows this";
}

TEST_F(ComboBoxField, isAPropertyThatStartsAsASingleEdit)
{
    ComboBoxAutoFilter fresh(nullptr);
    EXPECT_EQ(fresh.editMode(), ComboBoxAutoFilter::SingleEdit);
    EXPECT_TRUE(fresh.setProperty("editMode", "FormField"));
    EXPECT_EQ(fresh.editMode(), ComboBoxAutoFilter::FormField);
    EXPECT_TRUE(fresh.setProperty("editMode", ComboBoxAutoFilter::SingleEdit));
    EXPECT_EQ(fresh.editMode(), ComboBoxAutoFilter::SingleEdit);
    EXPECT_EQ(QMetaEnum::fromType<ComboBoxAutoFilter::EditMode>().keyCount(), 2);
}

TEST_F(ComboBoxField, validatesAfterEscapeAsBefore)
{
    setUp({"Dog", "Bar", "Car"});
    typeAndKeep("xyz");
    pressKey(Qt::Key_Escape);
    expectOutcome(0, 1);
    box->lineEdit()->setText("nothing like it");
    EXPECT_FALSE(box->validateEntry());
    box->lineEdit()->setText("ca");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 2);
}

TEST_F(ComboBoxField, validatesAnEqualTextBeforeAContainingOne)
{
    setUp({"Scar", "CAR", "Car", "Carport"});
    const auto validated = [this](const QString& text) {
        box->setCurrentIndex(3);
        box->lineEdit()->setText(text);
        return box->validateEntry() ? box->currentIndex() : -1;
    };
    EXPECT_EQ(validated("car"), 1);
    EXPECT_EQ(validated("Car"), 2);
    EXPECT_EQ(validated("ar"), 0);
    EXPECT_EQ(validated("port"), 3);
    EXPECT_EQ(validated(""), -1);
    EXPECT_EQ(validated("x"), -1);
}

TEST_F(ComboBoxField, anEmptyTextTakesAnEmptyEntry)
{
    setUp({"Dog", "", "Car"});
    box->lineEdit()->clear();
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentIndex(), 1);
}

TEST_F(ComboBoxField, keepsTheCurrentOneOfEqualEntries)
{
    setUp({"Car", "Dog", "Car"});
    box->setCurrentIndex(2);
    typeAndKeep("Car");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxField, anEntryThatTheProgramMakesCurrentEndsTheEdit)
{
    setUp({"Dog", "Bar", "Car"});
    typeAndKeep("xyz");
    box->setCurrentIndex(2);
    pressKey(Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(0, 0);
}

TEST_F(ComboBoxField, validatingFromTheProgramLeavesTheOutcomeToBeAnnounced)
{
    setUp({"Dog", "Bar", "Car"});
    typeAndKeep("ca");
    EXPECT_TRUE(box->validateEntry());
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(0, 0);
    completerPopup()->hide();
    activate();
    pressKey(Qt::Key_Tab);
    expectOutcome(1, 0);
}

TEST_F(ComboBoxField, whatTheProgramHasValidatedIsNotCancelled)
{
    setUp({"Dog", "Bar", "Car"});
    typeAndKeep("ca");
    EXPECT_TRUE(box->validateEntry());
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(0, 1);
}

TEST_F(ComboBoxField, cancelsToNoEntryWhereNoneWasCurrent)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(-1);
    typeAndKeep("xyz");
    pressKey(Qt::Key_Return);
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->lineEdit()->text(), "");
    expectOutcome(0, 1);
    pressKey(Qt::Key_Return);
    expectOutcome(0, 1);
}

TEST_F(ComboBoxField, theEntryBeforeTheEditMoves)
{
    setUp({"Dog", "Bar", "Car"});
    box->setCurrentIndex(1);
    pressKey(Qt::Key_Down);
    ASSERT_EQ(box->currentText(), "Car");
    box->insertItem(0, "Ant");
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), "Bar");
    EXPECT_EQ(box->currentIndex(), 2);
    expectOutcome(0, 1);
}

TEST_F(ComboBoxField, theEntryBeforeTheEditIsRemoved)
{
    setUp({"Dog", "Bar", "Car"});
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Down);
    box->removeItem(0);
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(box->currentText(), "Car");
    expectOutcome(0, 1);
}

TEST_F(ComboBoxField, aModelThatIsResetDuringTheEditEndsIt)
{
    QStringListModel model({"Dog", "Bar", "Car"});
    box->setListModel(
        &model, true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideMiddle, Qt::MatchContains);
    show();
    typeAndKeep("ar");
    ASSERT_TRUE(completerPopup()->isVisible());
    model.setStringList({"Egg", "Jar"});
    completerPopup()->hide();
    activate();
    EXPECT_EQ(box->lineEdit()->text(), "Egg");
    pressKey(Qt::Key_Tab);
    expectOutcome(0, 0);
    EXPECT_EQ(box->currentText(), "Egg");
    delete box;
}

TEST_F(ComboBoxField, aTextTooLongForTheLineIsNoEdit)
{
    setUp({"Dog", "Barometer"});
    box->lineEdit()->setMaxLength(3);
    box->setCurrentIndex(1);
    EXPECT_EQ(box->lineEdit()->text(), "Bar");
    pressKey(Qt::Key_Tab);
    expectOutcome(0, 0);
}

TEST_F(ComboBoxField, losingTheFocusIsSeen)
{
    setUp({"Dog", "Bar", "Car"});
    box->lineEdit()->selectAll();
    pressKey(Qt::Key_Tab);
    EXPECT_FALSE(box->lineEdit()->hasSelectedText());
}

TEST_F(ComboBoxField, aHeldKeyGoesNoFurtherThanTheEdit)
{
    setUp({"Dog", "Bar", "Car"});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        held.ignore();
        QCoreApplication::sendEvent(box, &held);
        EXPECT_TRUE(held.isAccepted());
        QKeyEvent pressed(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(box, &pressed);
        EXPECT_FALSE(pressed.isAccepted());
    }
}

TEST_F(ComboBoxField, keepsEscapeFromShortcutsDuringAnEditOnly)
{
    setUp({"Dog", "Bar", "Car"});
    const auto isKept = [this] {
        QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
        shortcut.ignore();
        QCoreApplication::sendEvent(box, &shortcut);
        return shortcut.isAccepted();
    };
    EXPECT_FALSE(isKept());
    typeAndKeep("xyz");
    EXPECT_TRUE(isKept());
}

TEST_F(ComboBoxField, picksFromItsListBeforeItIsSetUp)
{
    box->setList({"Dog", "Bar"});
    show();
    openList();
    clickEntry(1);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->currentText(), "Bar");
    expectOutcome(1, 0);
}

namespace {

class ComboBoxFieldDeletion : public ComboBoxField
{
protected:
    void SetUp() override
    {
        setUp({"Dog", "Bar", "Car"});
        for (const auto outcome : {&ComboBoxAutoFilter::selectionComplete, &ComboBoxAutoFilter::editingCanceled}) {
            QObject::connect(box, outcome, [this] { delete box; });
        }
        typeAndKeep("ar");
        ASSERT_TRUE(completerPopup()->isVisible());
    }

    void TearDown() override { EXPECT_FALSE(box); }

    void closeSuggestions()
    {
        completerPopup()->hide();
        activate();
    }
};

} // namespace

TEST_F(ComboBoxFieldDeletion, onKeysInTheSuggestions)
{
    pressKey(Qt::Key_Tab);
}

TEST_F(ComboBoxFieldDeletion, onReturnInTheLine)
{
    closeSuggestions();
    pressKey(Qt::Key_Return);
}

TEST_F(ComboBoxFieldDeletion, onTabInTheLine)
{
    closeSuggestions();
    pressKey(Qt::Key_Tab);
}

TEST_F(ComboBoxFieldDeletion, onEscapeInTheLine)
{
    closeSuggestions();
    pressKey(Qt::Key_Escape);
}

TEST_F(ComboBoxFieldDeletion, onLosingTheFocus)
{
    closeSuggestions();
    after.setFocus();
}

TEST_F(ComboBoxFieldDeletion, onAClickedSuggestion)
{
    const QModelIndex car = box->completer()->completionModel()->index(1, 0);
    QTest::mouseClick(completerPopup()->viewport(), Qt::LeftButton, {}, completerPopup()->visualRect(car).center());
}

TEST_F(ComboBoxFieldDeletion, onTabInTheList)
{
    closeSuggestions();
    openList();
    pressKey(Qt::Key_Tab);
}
