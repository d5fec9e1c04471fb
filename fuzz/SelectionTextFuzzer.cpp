// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The text of a selection in a table or a tree, compared with sorting all selected indexes.
#include "support/FuzzInput.h"
#include "support/QuietApplication.h"
#include "support/Require.h"
#include "ui/qt/util/SelectionText_p.h"
#include "util/CellModel.h"
#include "util/LiteralSelectionText.h"

#include <QItemSelectionModel>
#include <QStandardItemModel>

#include <algorithm>

namespace {

using morvane::fuzz::FuzzInput;
using Selection = QItemSelectionModel;

QItemSelection rangeFrom(FuzzInput& input, const QAbstractItemModel& model, const QModelIndex& parent)
{
    const int rows = model.rowCount(parent);
    const int columns = model.columnCount(parent);
    if (rows == 0 || columns == 0) {
        return {};
    }
    const int top = input.below(rows);
    const int left = input.below(columns);
    const int bottom = std::min(rows - 1, top + input.below(8));
    const int right = std::min(columns - 1, left + input.below(8));
    return {model.index(top, left, parent), model.index(bottom, right, parent)};
}

Selection::SelectionFlags commandFrom(FuzzInput& input)
{
    static const Selection::SelectionFlags commands[] = {Selection::Select, Selection::Toggle, Selection::Deselect,
        Selection::SelectCurrent, Selection::ToggleCurrent, Selection::Select | Selection::Rows,
        Selection::Toggle | Selection::Columns, Selection::ClearAndSelect};
    return commands[input.below(8)];
}

void selectAndCompare(FuzzInput& input, const QAbstractItemModel& model, int parents)
{
    QItemSelectionModel selectionModel(const_cast<QAbstractItemModel*>(&model));
    for (int step = 0; step < 40 && !input.isEmpty(); ++step) {
        QItemSelection selection;
        for (int ranges = 1 + input.below(3); ranges > 0; --ranges) {
            const int chosen = input.below(parents + 1);
            selection += rangeFrom(input, model, chosen == 0 ? QModelIndex() : model.index(chosen - 1, 0));
        }
        selectionModel.select(selection, commandFrom(input));
    }
    morvane::fuzz::require(morvane::ui::selectionText(selectionModel.selection(), model) ==
                               morvane::test::textOfSortedIndexes(selectionModel.selectedIndexes(), model),
        "the text is that of the sorted indexes");
}

void checkTable(FuzzInput& input)
{
    morvane::test::CellModel model(input.below(20), input.below(20));
    const unsigned seed = input.byte();
    if (seed % 4 == 0) {
        model.cellFlags = [seed](int row, int column) {
            static const Qt::ItemFlags flags[] = {
                Qt::ItemIsEnabled | Qt::ItemIsSelectable, Qt::ItemIsEnabled, Qt::ItemIsSelectable, Qt::NoItemFlags};
            return flags[(static_cast<unsigned>(row * row + 3 * column) + seed / 4) % 4];
        };
    }
    selectAndCompare(input, model, 0);
}

void checkTree(FuzzInput& input)
{
    constexpr int parents = 3;
    QStandardItemModel model(parents, 4);
    for (int parent = 0; parent < parents; ++parent) {
        model.setItem(parent, new QStandardItem);
        for (int row = input.below(6); row > 0; --row) {
            QList<QStandardItem*> items;
            for (int column = input.below(5); column >= 0; --column) {
                items.append(new QStandardItem(QString::number(parent * 100 + row * 10 + column)));
            }
            model.item(parent)->appendRow(items);
        }
    }
    selectAndCompare(input, model, parents);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::startQuietApplication();
    FuzzInput input(data, size);
    if (input.below(4) == 0) {
        checkTree(input);
    } else {
        checkTable(input);
    }
    return 0;
}
