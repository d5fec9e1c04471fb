// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/util/TablePasteFixture.h"

#include <QIdentityProxyModel>
#include <QSortFilterProxyModel>
#include <QTableWidget>
#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace {

using TablePasteModelTest = morvane::test::TablePasteFixture;

/** Texts in a table whose columns can be moved, and that is reset for each change if wanted. */
class OwnTable : public QAbstractTableModel
{
public:
    explicit OwnTable(const QList<QStringList>& texts) : m_rows(texts) {}

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_rows.size(); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_rows[0].size(); }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole || role == Qt::EditRole ? m_rows[index.row()][index.column()] : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
    }
    bool setData(const QModelIndex& index, const QVariant& value, int /*role*/) override
    {
        if (value.toString() == refused) {
            return false;
        }
        change([&] {
            m_rows[index.row()][index.column()] = value.toString();
            if (value.toString() == "longer") {
                m_rows.prepend(QStringList{"new", "new"});
            }
            if (value.toString() == "wider") {
                std::for_each(m_rows.begin(), m_rows.end(), [](QStringList& row) { row.prepend("new"); });
            }
        });
        return true;
    }
    bool insertRows(int row, int count, const QModelIndex& /*parent*/) override
    {
        change([&] {
            for (int i = 0; i < count; ++i) {
                m_rows.insert(row, QStringList{"", ""});
            }
        });
        return true;
    }
    bool removeRows(int row, int count, const QModelIndex& /*parent*/) override
    {
        change([&] { m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count); });
        return true;
    }
    bool moveColumns(const QModelIndex& from, int first, int count, const QModelIndex& target, int destination) override
    {
        beginMoveColumns(from, first, first + count - 1, target, destination);
        QStringList& row = m_rows[0];
        std::rotate(row.begin() + std::min(first, destination),
            row.begin() + (destination < first ? first : first + count),
            row.begin() + std::max(first + count, destination));
        endMoveColumns();
        return true;
    }
    template <typename Change>
    void change(Change change)
    {
        if (resets) {
            beginResetModel();
        }
        change();
        if (resets) {
            endResetModel();
        }
    }

    QString refused = "never";
    bool resets = false;

private:
    QList<QStringList> m_rows;
};

const char* const untouched = "00 01 02/10 11 12/20 21 22/30 31 32";

TEST_F(TablePasteModelTest, aPasteIsOneStepOfTheHostsUndoStack)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(1, 0);
    pressPaste("a\tb\nc\td");
    EXPECT_EQ(stack.count(), 1);
    EXPECT_FALSE(stack.undoText().isEmpty());
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(texts(), "00 01 02/a b 12/c d 22/30 31 32");
        stack.undo();
        EXPECT_EQ(texts(), untouched);
        stack.redo();
    }
}

TEST_F(TablePasteModelTest, severalPastesAreUndoneOneByOne)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(0, 0);
    pressPaste("a\tb");
    click(0, 1);
    pressPaste("c\td");
    EXPECT_EQ(texts(), "a c d/10 11 12/20 21 22/30 31 32");
    stack.undo();
    EXPECT_EQ(texts(), "a b 02/10 11 12/20 21 22/30 31 32");
    stack.undo();
    EXPECT_EQ(texts(), untouched);
}

TEST_F(TablePasteModelTest, anUndoThatTheModelRefusesIsRedoneWithoutAChange)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(0, 0);
    pressPaste("a\tb");
    model.accepts = [](const QModelIndex&, const QVariant& value) { return value != "00"; };
    stack.undo();
    EXPECT_EQ(texts(), "a 01 02/10 11 12/20 21 22/30 31 32");
    stack.redo();
    EXPECT_EQ(texts(), "a b 02/10 11 12/20 21 22/30 31 32");
    model.accepts = nullptr;
    stack.undo();
    EXPECT_EQ(texts(), untouched) << "the old value is not lost";
}

TEST_F(TablePasteModelTest, addedRowsAreUndoneAndRedone)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    handler->setAddingRows(true);
    click(3, 0);
    pressPaste("a\nb\nc");
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(texts(), "00 01 02/10 11 12/20 21 22/a 31 32/b  /c  ");
        stack.undo();
        EXPECT_EQ(texts(), untouched);
        stack.redo();
    }
}

TEST_F(TablePasteModelTest, aRefusedBlockIsNoStep)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(3, 0);
    pressPaste("a\nb");
    EXPECT_EQ(stack.count(), 0);
}

TEST_F(TablePasteModelTest, typesComeBackWithTheValues)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    model.setData(model.index(0, 0), 1.5, Qt::EditRole);
    model.setItem(0, 1, nullptr);
    click(0, 0);
    pressPaste("a\tb");
    stack.undo();
    EXPECT_EQ(model.index(0, 0).data(Qt::EditRole), QVariant(1.5));
    EXPECT_FALSE(model.index(0, 1).data(Qt::EditRole).isValid());
}

TEST_F(TablePasteModelTest, theStepFollowsRowsThatWereInsertedAndLeavesOutThoseThatWereRemoved)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(0, 0);
    pressPaste("a\nb\nc");
    model.insertRow(0);
    model.removeRow(2);
    EXPECT_EQ(texts(), "  /a 01 02/c 21 22/30 31 32");
    stack.undo();
    EXPECT_EQ(texts(), "  /00 01 02/20 21 22/30 31 32");
    stack.redo();
    EXPECT_EQ(texts(), "  /a 01 02/c 21 22/30 31 32");
}

TEST_F(TablePasteModelTest, theStackOrTheModelMayGoFirst)
{
    auto stack = std::make_unique<QUndoStack>();
    handler->setUndoStack(stack.get());
    auto items = std::make_unique<QStandardItemModel>(2, 2);
    show(*items);
    click(0, 0);
    pressPaste("a");
    EXPECT_EQ(stack->count(), 1);
    items.reset();
    stack->undo();
    stack->redo();
    stack.reset();
    EXPECT_EQ(handler->undoStack(), nullptr);
    show(model);
    click(0, 0);
    pressPaste("b");
    EXPECT_EQ(texts(), "b 01 02/10 11 12/20 21 22/30 31 32");
}

TEST_F(TablePasteModelTest, aSortedProxyGetsTheBlockWhereItShowedTheCells)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.sort(0, Qt::DescendingOrder);
    show(proxy);
    click(0, 0);
    pressPaste("05\tx\n95\ty");
    EXPECT_EQ(texts(), "00 01 02/10 11 12/95 y 22/05 x 32");
    EXPECT_EQ(texts(proxy), "95 y 22/10 11 12/05 x 32/00 01 02");
    stack.undo();
    EXPECT_EQ(texts(), untouched);
    view.setModel(nullptr);
}

TEST_F(TablePasteModelTest, rowsThatAFilterHidesAsSoonAsTheyChangeAreWrittenWhole)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    handler->setAddingRows(true);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setFilterRegularExpression("^[12]");
    show(proxy);
    click(0, 0);
    pressPaste("a\tb\nc\td\ne\tf");
    EXPECT_EQ(texts(), "00 01 02/a b 12/c d 22/30 31 32/e f ");
    EXPECT_EQ(texts(proxy), "");
    stack.undo();
    EXPECT_EQ(texts(), untouched);
    EXPECT_EQ(texts(proxy), "10 11 12/20 21 22");
    view.setModel(nullptr);
}

TEST_F(TablePasteModelTest, otherProxiesWriteThemselves)
{
    class Doubling : public QIdentityProxyModel
    {
    public:
        bool setData(const QModelIndex& index, const QVariant& value, int role) override
        {
            return QIdentityProxyModel::setData(index, value.toString() + value.toString(), role);
        }
    } proxy;
    proxy.setSourceModel(&model);
    show(proxy);
    click(0, 0);
    pressPaste("a\tb");
    EXPECT_EQ(texts(), "aa bb 02/10 11 12/20 21 22/30 31 32");
    view.setModel(nullptr);
}

TEST_F(TablePasteModelTest, aTableWidgetThatSortsItselfGetsEachCellInItsRow)
{
    QTableWidget table(3, 2);
    for (int row = 0; row < 3; ++row) {
        table.setItem(row, 0, new QTableWidgetItem(QString::number(row)));
        table.setItem(row, 1, new QTableWidgetItem("old" + QString::number(row)));
    }
    table.setSortingEnabled(true);
    table.sortByColumn(0, Qt::AscendingOrder);
    morvane::ui::TablePasteHandler pasting(table);
    QUndoStack stack;
    pasting.setUndoStack(&stack);
    table.setCurrentCell(0, 0);
    EXPECT_TRUE(pasting.paste("9\ta\n8\tb\n7\tc"));
    EXPECT_EQ(texts(*table.model()), "7 c/8 b/9 a");
    stack.undo();
    EXPECT_EQ(texts(*table.model()), "0 old0/1 old1/2 old2");
}

TEST_F(TablePasteModelTest, theStepFollowsColumnsAndLeavesOutThoseThatWereRemoved)
{
    QUndoStack stack;
    handler->setUndoStack(&stack);
    click(0, 0);
    pressPaste("a\tb\nc\td");
    model.insertColumn(0);
    model.insertColumn(2);
    stack.undo();
    EXPECT_EQ(texts(), " 00  01 02/ 10  11 12/ 20  21 22/ 30  31 32");
    stack.redo();
    EXPECT_EQ(texts(), " a  b 02/ c  d 12/ 20  21 22/ 30  31 32");
    model.removeColumn(3);
    EXPECT_EQ(texts(), " a  02/ c  12/ 20  22/ 30  32");
    stack.undo();
    EXPECT_EQ(texts(), " 00  02/ 10  12/ 20  22/ 30  32") << "the column that is left";
    model.removeColumns(0, 4);
    stack.redo();
    stack.undo();
    EXPECT_EQ(model.columnCount(), 0);
}

TEST_F(TablePasteModelTest, theStepFindsItsRowsAgainAfterTheColumnOfTheFirstCellWasRemoved)
{
    for (const int first : {0, 1}) {
        QUndoStack stack;
        QStandardItemModel fresh(1, 4);
        view.setModel(&fresh);
        handler->setUndoStack(&stack);
        view.setCurrentIndex(fresh.index(0, first));
        EXPECT_TRUE(handler->paste("a\tb"));
        fresh.removeColumn(first);
        fresh.setData(fresh.index(0, 2), "end");
        stack.undo();
        EXPECT_EQ(texts(fresh), "  end");
        view.setModel(&model);
    }
}

TEST_F(TablePasteModelTest, theStepFollowsColumnsThatTheModelMoves)
{
    for (int first = 0; first < 5; ++first) {
        for (int count = 1; count < 3 && first + count <= 5; ++count) {
            for (int to = 0; to <= 5; ++to) {
                if (to >= first && to <= first + count) {
                    continue;
                }
                OwnTable moving({{"a", "b", "c", "d", "e"}});
                OwnTable expected({{"a", "b", "c", "d", "e"}});
                expected.moveColumns(QModelIndex(), first, count, QModelIndex(), to);
                view.setModel(&moving);
                QUndoStack stack;
                handler->setUndoStack(&stack);
                view.setCurrentIndex(moving.index(0, 1));
                EXPECT_TRUE(handler->paste("x\ty\tz"));
                EXPECT_TRUE(moving.moveColumns(QModelIndex(), first, count, QModelIndex(), to));
                stack.undo();
                EXPECT_EQ(texts(moving), texts(expected)) << first << ' ' << count << ' ' << to;
                view.setModel(&model);
            }
        }
    }
}

TEST_F(TablePasteModelTest, aModelThatResetsItselfForEachChangeGetsTheWholeBlockOrNothing)
{
    OwnTable resetting({{"00", "01"}, {"10", "11"}});
    resetting.resets = true;
    view.setModel(&resetting);
    QUndoStack stack;
    handler->setUndoStack(&stack);
    handler->setAddingRows(true);
    view.setCurrentIndex(resetting.index(1, 0));
    EXPECT_TRUE(handler->paste("a\tb\nc\td"));
    EXPECT_EQ(texts(resetting), "00 01/a b/c d");
    stack.undo();
    EXPECT_EQ(texts(resetting), "00 01/10 11");
    stack.redo();
    EXPECT_EQ(texts(resetting), "00 01/a b/c d");
    stack.undo();
    EXPECT_EQ(texts(resetting), "00 01/10 11");
    resetting.refused = "d";
    view.setCurrentIndex(resetting.index(0, 0));
    EXPECT_FALSE(handler->paste("a\tb\nc\td"));
    EXPECT_EQ(refusals(), "1,1:model:d");
    EXPECT_EQ(texts(resetting), "00 01/10 11");
    view.setCurrentIndex(resetting.index(0, 0));
    EXPECT_TRUE(handler->paste("e"));
    resetting.change([] {});
    stack.undo();
    EXPECT_EQ(texts(resetting), "e 01/10 11") << "after any other reset, nobody knows what the rows are";
    view.setCurrentIndex(resetting.index(0, 0));
    EXPECT_FALSE(handler->paste("longer\tf"));
    EXPECT_EQ(texts(resetting), "new new/longer 01/10 11") << "nobody knows what the rows are";
    resetting.removeRows(0, 1, QModelIndex());
    view.setCurrentIndex(resetting.index(0, 0));
    EXPECT_FALSE(handler->paste("wider\tf"));
    EXPECT_EQ(texts(resetting), "new wider 01/new 10 11") << "nobody knows what the columns are";
    view.setModel(nullptr);
}

TEST_F(TablePasteModelTest, aModelThatIsResetMeanwhileRefusesTheRest)
{
    const auto connection =
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &model, [this] { model.setRowCount(0); });
    click(0, 0);
    pressPaste("a\nb");
    QObject::disconnect(connection);
    EXPECT_EQ(refusals(), "1,0:model:b");
    EXPECT_EQ(pastes, 0);
}

TEST_F(TablePasteModelTest, aThousandTimesAThousandCellsComeWhole)
{
    QStandardItemModel large(1000, 1000);
    view.setModel(&large);
    view.setCurrentIndex(large.index(0, 0));
    QString block;
    for (int row = 0; row < 1000; ++row) {
        for (int column = 0; column < 1000; ++column) {
            block += QString::number(row * 1000 + column) + (column < 999 ? '\t' : '\n');
        }
    }
    EXPECT_TRUE(handler->paste(block));
    int wrong = 0;
    for (int row = 0; row < 1000; ++row) {
        for (int column = 0; column < 1000; ++column) {
            wrong += large.index(row, column).data().toInt() != row * 1000 + column ? 1 : 0;
        }
    }
    EXPECT_EQ(wrong, 0);
    view.setModel(nullptr);
}

} // namespace
