// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TableCopyFixture.h"

#include <QSet>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <random>

namespace {

using morvane::test::CellModel;
using morvane::test::clipboardText;
using morvane::test::textOfSortedIndexes;
using Selection = QItemSelectionModel;

/** Selects cells at random, as a user and as a program do; the same seed gives the same selections. */
class RandomSelector
{
public:
    explicit RandomSelector(unsigned seed) : m_engine(seed) {}

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_engine); }

    QItemSelectionRange range(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
    {
        const int rows = model.rowCount(parent);
        const int columns = model.columnCount(parent);
        const int top = below(rows);
        const int left = below(columns);
        const int bottom = std::min(rows - 1, top + below(4));
        const int right = std::min(columns - 1, left + below(4));
        return {model.index(top, left, parent), model.index(bottom, right, parent)};
    }

    QItemSelection selection(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
    {
        QItemSelection result;
        for (int count = 1 + below(4); count > 0; --count) {
            result.append(range(model, parent));
        }
        return result;
    }

    Selection::SelectionFlags command()
    {
        static const Selection::SelectionFlags commands[] = {Selection::Select, Selection::Select, Selection::Toggle,
            Selection::Deselect, Selection::SelectCurrent, Selection::ToggleCurrent,
            Selection::Select | Selection::Rows, Selection::Toggle | Selection::Columns, Selection::ClearAndSelect};
        return commands[below(static_cast<int>(std::size(commands)))];
    }

private:
    std::mt19937 m_engine;
};

class TableCopyDifferentialTest : public ::testing::Test
{
protected:
    TableCopyDifferentialTest() { new morvane::ui::TableCopyHandler(view); }

    void copy() { view.findChild<morvane::ui::TableCopyHandler*>()->copyToClipboard(); }

    QTableView view;
};

TEST_F(TableCopyDifferentialTest, randomSelectionsGiveTheTextOfTheirSortedIndexes)
{
    int cellsTwice = 0;
    for (unsigned seed = 0; seed < 300; ++seed) {
        RandomSelector random(seed);
        CellModel model(1 + random.below(12), 1 + random.below(9));
        view.setModel(&model);
        for (int step = 0; step < 8; ++step) {
            view.selectionModel()->select(random.selection(model), random.command());
            copy();
            ASSERT_EQ(clipboardText(), textOfSortedIndexes(view)) << "seed " << seed << ", step " << step;
            const QModelIndexList indexes = view.selectionModel()->selectedIndexes();
            cellsTwice += QSet<QModelIndex>(indexes.begin(), indexes.end()).size() < indexes.size() ? 1 : 0;
        }
    }
    EXPECT_GT(cellsTwice, 100);
}

TEST_F(TableCopyDifferentialTest, disabledAndUnselectableCellsMakeNoDifference)
{
    for (unsigned seed = 0; seed < 100; ++seed) {
        RandomSelector random(seed);
        CellModel model(10, 6);
        model.cellFlags = [seed](int row, int column) {
            static const Qt::ItemFlags flags[] = {
                Qt::NoItemFlags, Qt::ItemIsEnabled, Qt::ItemIsSelectable, Qt::ItemIsEnabled | Qt::ItemIsSelectable};
            return flags[(static_cast<unsigned>(row * row + 3 * column) + seed) % 4];
        };
        view.setModel(&model);
        for (int step = 0; step < 4; ++step) {
            view.selectionModel()->select(random.selection(model), random.command());
            copy();
            ASSERT_EQ(clipboardText(), textOfSortedIndexes(view)) << "seed " << seed << ", step " << step;
        }
    }
}

TEST_F(TableCopyDifferentialTest, sortingFilteringAndRemovingBetweenSelectionsMakesNoDifference)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        RandomSelector random(seed);
        QStandardItemModel source(20, 4);
        for (int row = 0; row < 20; ++row) {
            for (int column = 0; column < 4; ++column) {
                source.setItem(row, column, new QStandardItem(QString::number(random.below(1000))));
            }
        }
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&source);
        view.setModel(&proxy);
        for (int step = 0; step < 6 && proxy.rowCount() > 0; ++step) {
            view.selectionModel()->select(random.selection(proxy), random.command());
            proxy.sort(random.below(4), random.below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            proxy.setFilterFixedString(step % 3 == 2 ? QString::number(random.below(10)) : QString());
            source.removeRow(random.below(source.rowCount()));
            copy();
            ASSERT_EQ(clipboardText(), textOfSortedIndexes(view)) << "seed " << seed << ", step " << step;
        }
    }
}

TEST_F(TableCopyDifferentialTest, selectionsBelowDifferentParentsAreMergedByRowAndColumn)
{
    QStandardItemModel tree(2, 3);
    for (int parent = 0; parent < 2; ++parent) {
        tree.setItem(parent, new QStandardItem("top"));
        for (int row = 0; row < 6; ++row) {
            QList<QStandardItem*> items;
            for (int column = 0; column < 5; ++column) {
                items.append(new QStandardItem(QStringLiteral("%1/%2/%3").arg(parent).arg(row).arg(column)));
            }
            tree.item(parent)->appendRow(items);
        }
    }
    view.setModel(&tree);
    for (unsigned seed = 0; seed < 100; ++seed) {
        RandomSelector random(seed);
        QItemSelection selection = random.selection(tree, tree.index(0, 0));
        selection += random.selection(tree, tree.index(1, 0));
        selection += random.selection(tree);
        view.selectionModel()->select(selection, Selection::ClearAndSelect);
        copy();
        ASSERT_EQ(clipboardText(), textOfSortedIndexes(view)) << "seed " << seed;
    }
}

TEST_F(TableCopyDifferentialTest, aMillionCellsComeWhole)
{
    CellModel model(1000, 1000, [](int row, int column) { return QString::number(row * 1000 + column); });
    view.setModel(&model);
    view.selectAll();
    copy();
    QString expected;
    for (int row = 0; row < 1000; ++row) {
        for (int column = 0; column < 1000; ++column) {
            expected += QString::number(row * 1000 + column) + (column < 999 ? "\t" : "\n");
        }
    }
    expected.chop(1);
    EXPECT_TRUE(clipboardText() == expected);
}

TEST_F(TableCopyDifferentialTest, fiveThousandScatteredCellsComeInOrder)
{
    RandomSelector random(1);
    CellModel model(100000, 8);
    view.setModel(&model);
    QItemSelection selection;
    for (int i = 0; i < 5000; ++i) {
        const QModelIndex cell = model.index(random.below(100000), random.below(8));
        selection.append(QItemSelectionRange(cell));
    }
    view.selectionModel()->select(selection, Selection::Select);
    copy();
    EXPECT_TRUE(clipboardText() == textOfSortedIndexes(view));
    EXPECT_EQ(clipboardText().count('\t') + clipboardText().count('\n'), 4999);
}

TEST_F(TableCopyDifferentialTest, thousandsOfStripesAcrossEachOtherComeInOrder)
{
    CellModel model(400, 400);
    view.setModel(&model);
    QItemSelection selection;
    for (int i = 0; i < 400; i += 3) {
        selection.append(QItemSelectionRange(model.index(0, i), model.index(399, i)));
        selection.append(QItemSelectionRange(model.index(i, 0), model.index(i, 399)));
    }
    view.selectionModel()->select(selection, Selection::Select);
    copy();
    EXPECT_TRUE(clipboardText() == textOfSortedIndexes(view));
}

} // namespace
