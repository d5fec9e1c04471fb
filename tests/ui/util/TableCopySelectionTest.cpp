// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

using TableCopySelectionTest = morvane::test::TableCopyFixture;
using morvane::test::clipboardText;

TEST_F(TableCopySelectionTest, oneClickedCellIsItsTextAlone)
{
    click(2, 1);
    EXPECT_EQ(copied(), "r2c1");
}

TEST_F(TableCopySelectionTest, aDraggedBlockHasTabsInRowsAndLineFeedsBetweenThem)
{
    drag(1, 1, 2, 3);
    EXPECT_EQ(copied(), "r1c1\tr1c2\tr1c3\nr2c1\tr2c2\tr2c3");
}

TEST_F(TableCopySelectionTest, aBlockDraggedUpwardsIsTheSame)
{
    drag(2, 3, 1, 1);
    EXPECT_EQ(copied(), "r1c1\tr1c2\tr1c3\nr2c1\tr2c2\tr2c3");
}

TEST_F(TableCopySelectionTest, shiftAndArrowKeysExtendTheBlock)
{
    click(0, 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "r0c0\tr0c1\nr1c0\tr1c1");
}

TEST_F(TableCopySelectionTest, shiftClickSelectsUpToTheCell)
{
    click(3, 2);
    click(4, 3, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "r3c2\tr3c3\nr4c2\tr4c3");
}

TEST_F(TableCopySelectionTest, pickedCellsComeInTableOrderWhateverTheOrderOfPicking)
{
    click(4, 0);
    click(0, 3, Qt::ControlModifier);
    click(2, 2, Qt::ControlModifier);
    click(0, 1, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c1\tr0c3\nr2c2\nr4c0");
}

TEST_F(TableCopySelectionTest, cellsThatAreNotSelectedLeaveNoGapInARow)
{
    click(0, 0);
    click(0, 2, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c0\tr0c2");
}

TEST_F(TableCopySelectionTest, rowsThatAreNotSelectedLeaveNoEmptyLines)
{
    clickRowHeader(0);
    clickRowHeader(4, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c0\tr0c1\tr0c2\tr0c3\nr4c0\tr4c1\tr4c2\tr4c3");
}

TEST_F(TableCopySelectionTest, aRaggedSelectionGivesLinesOfDifferentLength)
{
    drag(0, 0, 0, 2);
    click(1, 0, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c0\tr0c1\tr0c2\nr1c0");
}

TEST_F(TableCopySelectionTest, wholeColumnsComeWithoutHeaders)
{
    clickColumnHeader(1);
    clickColumnHeader(3, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c1\tr0c3\nr1c1\tr1c3\nr2c1\tr2c3\nr3c1\tr3c3\nr4c1\tr4c3");
}

TEST_F(TableCopySelectionTest, aRowCrossingAColumnDoesNotRepeatTheirCommonCell)
{
    clickColumnHeader(2);
    clickRowHeader(1, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c2\nr1c0\tr1c1\tr1c2\tr1c3\nr2c2\nr3c2\nr4c2");
}

TEST_F(TableCopySelectionTest, selectAllCopiesEveryCell)
{
    press(Qt::Key_A, Qt::ControlModifier);
    const QString text = copied();
    EXPECT_EQ(text, morvane::test::textOfSortedIndexes(view));
    EXPECT_EQ(text.count('\n'), 4);
    EXPECT_EQ(text.count('\t'), 15);
}

TEST_F(TableCopySelectionTest, tabAndShiftedEndKeysSelectAsUsual)
{
    click(1, 0);
    press(Qt::Key_Tab);
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "r1c1\tr1c2\tr1c3");
}

TEST_F(TableCopySelectionTest, unpickingACellInTheMiddleLeavesTheCellsAroundIt)
{
    drag(0, 0, 2, 2);
    click(1, 1, Qt::ControlModifier);
    EXPECT_EQ(copied(), "r0c0\tr0c1\tr0c2\nr1c0\tr1c2\nr2c0\tr2c1\tr2c2");
}

TEST_F(TableCopySelectionTest, togglingABlockThatHalfOverlapsSplitsTheRanges)
{
    select(0, 0, 2, 2);
    select(1, 1, 3, 3, QItemSelectionModel::Toggle);
    EXPECT_EQ(copied(), "r0c0\tr0c1\tr0c2\nr1c0\tr1c3\nr2c0\tr2c3\nr3c1\tr3c2\tr3c3");
}

TEST_F(TableCopySelectionTest, overlappingBlocksSelectedOneAfterTheOtherShareTheirCells)
{
    select(0, 0, 1, 1);
    select(1, 1, 2, 2);
    EXPECT_EQ(copied(), "r0c0\tr0c1\nr1c0\tr1c1\tr1c2\nr2c1\tr2c2");
}

TEST_F(TableCopySelectionTest, cellsThatOneSelectionHoldsTwiceStandTwice)
{
    QItemSelection selection(index(1, 0), index(1, 2));
    selection.append(QItemSelectionRange(index(1, 1), index(2, 3)));
    view.selectionModel()->select(selection, QItemSelectionModel::Select);
    EXPECT_EQ(copied(), "r1c0\tr1c1\tr1c1\tr1c2\tr1c2\tr1c3\nr2c1\tr2c2\tr2c3");
}

TEST_F(TableCopySelectionTest, touchingBlocksOfDifferentHeightKeepTheirOrder)
{
    select(1, 2, 4, 3);
    select(0, 0, 2, 1);
    EXPECT_EQ(copied(), "r0c0\tr0c1\nr1c0\tr1c1\tr1c2\tr1c3\nr2c0\tr2c1\tr2c2\tr2c3\nr3c2\tr3c3\nr4c2\tr4c3");
}

TEST_F(TableCopySelectionTest, cellsThatAreDisabledOrNotSelectableAreLeftOut)
{
    model.cellFlags = [](int row, int column) {
        const bool first = row == 0 && column == 0;
        const bool third = row == 0 && column == 2;
        return first ? Qt::ItemIsSelectable : third ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    };
    select(0, 0, 1, 2);
    EXPECT_EQ(copied(), "r0c1\nr1c0\tr1c1\tr1c2");
}

TEST_F(TableCopySelectionTest, aRowWhoseCellsAreAllDisabledLeavesNoLine)
{
    model.cellFlags = [](int row, int) {
        return row % 2 == 0 ? Qt::ItemIsSelectable : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    };
    select(0, 0, 4, 1);
    EXPECT_EQ(copied(), "r1c0\tr1c1\nr3c0\tr3c1");
}

TEST_F(TableCopySelectionTest, withNothingSelectedTheClipboardGetsTheEmptyText)
{
    click(1, 1);
    view.clearSelection();
    EXPECT_EQ(copied(), "");
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasText());
}

TEST_F(TableCopySelectionTest, otherFormatsOnTheClipboardAreReplaced)
{
    auto* const mime = new QMimeData;
    mime->setHtml(QStringLiteral("<b>old</b>"));
    QGuiApplication::clipboard()->setMimeData(mime);
    click(0, 0);
    handler->copyToClipboard();
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
    EXPECT_EQ(clipboardText(), "r0c0");
}

TEST_F(TableCopySelectionTest, copyingLeavesSelectionAndCurrentCellAsTheyWere)
{
    drag(1, 1, 2, 2);
    const QItemSelection selection = view.selectionModel()->selection();
    copied();
    EXPECT_EQ(view.selectionModel()->selection(), selection);
    EXPECT_EQ(view.currentIndex(), index(2, 2));
}

} // namespace
