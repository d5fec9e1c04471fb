// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TablePasteFixture.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <new>

namespace {

using TablePasteTest = morvane::test::TablePasteFixture;
using morvane::ui::TablePasteHandler;

TEST_F(TablePasteTest, aBlockIsWrittenFromTheCurrentCellOn)
{
    click(1, 1);
    pressPaste("a\tb\nc\td\n");
    EXPECT_EQ(texts(), "00 01 02/10 a b/20 c d/30 31 32");
    EXPECT_EQ(pastes, 1);
    EXPECT_EQ(lastPaste, QSize(2, 2));
}

TEST_F(TablePasteTest, pastingTwiceWritesTheSameCells)
{
    click(1, 1);
    pressPaste("a\tb");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texts(), "00 01 02/10 a b/20 21 22/30 31 32");
    EXPECT_EQ(pastes, 2);
    press(Qt::Key_Down);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(texts(), "00 01 02/10 a b/20 a b/30 31 32");
}

TEST_F(TablePasteTest, everyPasteShortcutOfThePlatformWorks)
{
    click(0, 0);
    QGuiApplication::clipboard()->setText("x");
    const QList<QKeySequence> sequences = QKeySequence::keyBindings(QKeySequence::Paste);
    ASSERT_GE(sequences.size(), 1);
    for (int i = 0; i < sequences.size(); ++i) {
        QTest::keySequence(&view, sequences[i]);
        EXPECT_EQ(pastes, i + 1) << sequences[i].toString().toStdString();
    }
    press(Qt::Key_V);
    EXPECT_EQ(pastes, sequences.size());
}

TEST_F(TablePasteTest, cellsThatAShortRowDoesNotHaveStay)
{
    click(0, 0);
    pressPaste("a\tb\tc\nd\n\te");
    EXPECT_EQ(texts(), "a b c/d 11 12/ e 22/30 31 32");
}

TEST_F(TablePasteTest, quotedCellsAreOneCell)
{
    click(0, 0);
    pressPaste("\"two\nlines\"\t\"say \"\"hello\"\"\"\r\n");
    EXPECT_EQ(model.index(0, 0).data().toString(), "two\nlines");
    EXPECT_EQ(model.index(0, 1).data().toString(), "say \"hello\"");
}

TEST_F(TablePasteTest, hiddenCellsAreWrittenAndMovedColumnsDoNotMatter)
{
    view.hideRow(1);
    view.hideColumn(1);
    view.horizontalHeader()->moveSection(2, 0);
    click(0, 0);
    pressPaste("a\tb\tc\nd\te\tf");
    EXPECT_EQ(texts(), "a b c/d e f/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, columnsThatTheTableDoesNotHaveAreRefusedCellByCell)
{
    click(2, 1);
    pressPaste("a\tb\tc\nd\te\tf");
    EXPECT_EQ(refusals(), "2,3:outside:c 3,3:outside:f");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
    EXPECT_EQ(model.writes, 0);
    EXPECT_EQ(pastes, 0);
}

TEST_F(TablePasteTest, rowsThatTheTableDoesNotHaveAreRefused)
{
    click(3, 0);
    pressPaste("a\nb\tc");
    EXPECT_EQ(refusals(), "4,0:outside:b 4,1:outside:c");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, rowsAreAddedIfTheHostSaysSo)
{
    handler->setAddingRows(true);
    click(3, 1);
    pressPaste("a\tb\nc\td\ne");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 a b/ c d/ e ");
    EXPECT_EQ(refusals(), "");
}

TEST_F(TablePasteTest, rowsThatTheModelDoesNotAddAreRefused)
{
    handler->setAddingRows(true);
    model.mostRows = 5;
    click(3, 0);
    pressPaste("a\nb\nc\nd");
    EXPECT_EQ(refusals(), "5,0:outside:c 6,0:outside:d");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, cellsThatCannotBeEditedAreRefused)
{
    model.isReadOnly = [](const QModelIndex& index) { return index.column() == 1; };
    model.item(1, 2)->setEnabled(false);
    click(0, 0);
    pressPaste("a\tb\tc\nd\te\tf");
    EXPECT_EQ(refusals(), "0,1:readonly:b 1,1:readonly:e 1,2:readonly:f");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, addedCellsThatCannotBeEditedAreRefusedAndTheirRowsRemoved)
{
    handler->setAddingRows(true);
    model.isReadOnly = [](const QModelIndex& index) { return index.row() == 5; };
    click(3, 0);
    pressPaste("a\nb\nc");
    EXPECT_EQ(refusals(), "5,0:readonly:c");
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, whatTheModelRefusesIsToldByCellAndNothingStays)
{
    model.accepts = [](const QModelIndex&, const QVariant& value) { return !value.toString().startsWith('x'); };
    handler->setAddingRows(true);
    click(2, 0);
    pressPaste("a\tx1\nb\tc\nx2\td");
    EXPECT_EQ(refusals(), "2,1:model:x1 4,0:model:x2");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
    EXPECT_EQ(pastes, 0);
    pressPaste("a\ty1");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/a y1 22/30 31 32");
}

TEST_F(TablePasteTest, aModelThatReturnsFalseForTheValueThatItHasDoesNotRefuse)
{
    model.accepts = [](const QModelIndex& index, const QVariant& value) { return index.data() != value; };
    click(0, 0);
    pressPaste("00\ta\t02");
    EXPECT_EQ(texts(), "00 a 02/10 11 12/20 21 22/30 31 32");
    EXPECT_EQ(refusals(), "");
    EXPECT_EQ(pastes, 1);
}

TEST_F(TablePasteTest, aModelThatThrowsGetsItsOldValuesBack)
{
    model.accepts = [](const QModelIndex&, const QVariant& value) -> bool {
        return value == "bomb" ? throw std::bad_alloc() : true;
    };
    click(0, 0);
    EXPECT_THROW(handler->paste("a\tb\nc\tbomb"), std::bad_alloc);
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, withoutTextOrACurrentCellNothingHappens)
{
    click(0, 0);
    pressPaste("");
    view.setCurrentIndex(QModelIndex());
    pressPaste("a");
    EXPECT_FALSE(handler->paste("a"));
    view.setModel(nullptr);
    pressPaste("a");
    EXPECT_EQ(pastes, 0);
    EXPECT_EQ(refusals(), "");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, anOpenEditorPastesItself)
{
    click(0, 0);
    press(Qt::Key_F2);
    auto* const editor = view.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QGuiApplication::clipboard()->setText("a\tb");
    QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pastes, 0);
    EXPECT_EQ(editor->text().left(1), "a");
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/30 31 32");
    pressPaste("c\td");
    EXPECT_EQ(texts(), "c d 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, theActionPastesAndTakesNoShortcut)
{
    QAction* const action = handler->pasteAction();
    EXPECT_EQ(action, handler->pasteAction());
    EXPECT_TRUE(action->shortcuts().isEmpty());
    click(0, 2);
    QGuiApplication::clipboard()->setText("a\nb");
    action->trigger();
    EXPECT_EQ(texts(), "00 01 a/10 11 b/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, aSlotMayDeleteTheHandlerOrTheView)
{
    auto* const other = new QTableView;
    other->setModel(&model);
    const QPointer<TablePasteHandler> pasting = new TablePasteHandler(*other);
    other->setCurrentIndex(model.index(0, 0));
    QObject::connect(pasting.data(), &TablePasteHandler::refused, pasting.data(), [other] { delete other; });
    EXPECT_FALSE(pasting->paste("1\t2\t3\t4"));
    EXPECT_TRUE(pasting.isNull());

    QObject::connect(handler, &TablePasteHandler::pasted, handler, [this] { delete handler; });
    click(0, 0);
    pressPaste("a");
    EXPECT_EQ(model.index(0, 0).data(), "a");
    pressPaste("b");
    EXPECT_EQ(model.index(0, 0).data(), "a");
}

TEST_F(TablePasteTest, theViewMayBeDestroyedWhileTheModelIsWritten)
{
    auto* other = new QTableView;
    other->setModel(&model);
    auto* const pasting = new TablePasteHandler(*other);
    other->setCurrentIndex(model.index(0, 0));
    const auto connection = QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, [&other] {
        delete other;
        other = nullptr;
    });
    EXPECT_TRUE(pasting->paste("a\tb"));
    QObject::disconnect(connection);
    EXPECT_EQ(texts(), "a b 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteTest, theTextIsWrittenAsTextUnlessALocaleIsSet)
{
    model.setData(model.index(0, 0), 1.5, Qt::EditRole);
    click(0, 0);
    pressPaste("2,5");
    EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), QVariant("2,5"));
}

TEST_F(TablePasteTest, withALocaleNumbersAreReadInItAndKeepTheirType)
{
    handler->setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    model.setData(model.index(0, 0), 1.5, Qt::EditRole);
    model.setData(model.index(0, 1), 7, Qt::EditRole);
    click(0, 0);
    pressPaste("1.234,5\t1.000\t1,5");
    EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), QVariant(1234.5));
    EXPECT_EQ(model.index(0, 1).data(Qt::EditRole), QVariant(1000));
    EXPECT_EQ(model.index(0, 2).data(Qt::EditRole), QVariant("1,5"));
    pressPaste(" -3,25 \t");
    EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), QVariant(-3.25));
    EXPECT_FALSE(model.index(0, 1).data(Qt::EditRole).isValid());
}

TEST_F(TablePasteTest, withALocaleATextThatIsNoSuchNumberIsRefused)
{
    handler->setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    model.setData(model.index(0, 0), 1.5, Qt::EditRole);
    model.setData(model.index(0, 1), 7, Qt::EditRole);
    click(0, 0);
    pressPaste("1.5x\t2,5\ttext");
    EXPECT_EQ(refusals(), "0,0:nonumber:1.5x 0,1:nonumber:2,5");
    EXPECT_EQ(texts(), "1.5 7 02/10 11 12/20 21 22/30 31 32");
    pressPaste("0\t3000000000");
    EXPECT_EQ(refusals(), "0,1:nonumber:3000000000");
}

TEST_F(TablePasteTest, aSelectedBlockIsPastedFromItsFirstCellOn)
{
    for (const bool upwards : {false, true}) {
        click(upwards ? 2 : 1, upwards ? 2 : 1);
        const QModelIndex end = model.index(upwards ? 1 : 2, upwards ? 1 : 2);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, view.visualRect(end).center());
        ASSERT_EQ(view.currentIndex(), end);
        ASSERT_EQ(view.selectionModel()->selectedIndexes().size(), 4);
        pressPaste("a\tb\nc\td"); // and once more
        pressPaste("a\tb\nc\td");
        EXPECT_EQ(texts(), "00 01 02/10 a b/20 c d/30 31 32");
    }
    // The current cell alone counts outside of the selection, and where whole rows are selected.
    view.selectionModel()->setCurrentIndex(model.index(3, 2), QItemSelectionModel::NoUpdate);
    pressPaste("x");
    EXPECT_EQ(texts(), "00 01 02/10 a b/20 c d/30 31 x");
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    click(0, 1);
    pressPaste("y");
    EXPECT_EQ(texts(), "00 y 02/10 a b/20 c d/30 31 x");
}

TEST_F(TablePasteTest, addedRowsGetNumbersWhereTheLastRowHasThem)
{
    handler->setAddingRows(true);
    handler->setNumberLocale(QLocale(QLocale::German, QLocale::Germany));
    model.setData(model.index(3, 0), 1.5, Qt::EditRole);
    click(3, 0);
    pressPaste("2,5\tb\n1.234,5\t3,5\n\tc");
    EXPECT_EQ(model.rowCount(), 6);
    EXPECT_EQ(model.index(4, 0).data(Qt::EditRole), QVariant(1234.5));
    EXPECT_EQ(model.index(4, 1).data(Qt::EditRole), QVariant("3,5"));
    EXPECT_FALSE(model.index(5, 0).data(Qt::EditRole).isValid());

    click(5, 0); // the last row has no number now
    pressPaste("1,5\n2,5");
    EXPECT_EQ(model.index(6, 0).data(Qt::EditRole), QVariant("2,5"));

    model.setData(model.index(6, 0), 1.5, Qt::EditRole);
    click(6, 0);
    pressPaste("1,5\nhigh");
    EXPECT_EQ(refusals(), "7,0:nonumber:high");
    EXPECT_EQ(model.rowCount(), 7);
}

TEST_F(TablePasteTest, blanksBetweenGroupsOfDigitsMayBeAnyThatProgramsWrite)
{
    handler->setNumberLocale(QLocale(QLocale::French, QLocale::France));
    model.setData(model.index(0, 0), 1.5, Qt::EditRole);
    click(0, 0);
    for (const char16_t blank : {u' ', u'\u00A0', u'\u202F'}) {
        model.setData(model.index(0, 0), 1.5, Qt::EditRole);
        pressPaste("12" + QString(QChar(blank)) + "345,5");
        EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), QVariant(12345.5)) << refusals();
    }
}

} // namespace
