// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/DelayedWaitCursor_p.h"
#include "ui/qt/util/SelectionBands_p.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <vector>

namespace morvane::ui {

/**
 * Visits the cells of a selection by row and column. Cells that are disabled or not selectable are left out. Shows a
 * wait cursor if it takes long.
 *
 * The visitor has `void row(int row)`, which is called before the cells of each row with selected cells, also if all of
 * them are left out, and `void cell(const QModelIndex& index)`.
 */
template <typename Visitor>
class SelectionWalk
{
public:
    SelectionWalk(const QAbstractItemModel& model, Visitor& visitor) : m_model(model), m_visitor(visitor) {}

    /** Parts of the selection that belong to another model are ignored. */
    void visit(const QItemSelection& selection)
    {
        SelectionBands bands(selection, m_model);
        while (bands.advance()) {
            const bool inOrder = !bands.hasOverlaps();
            for (int row = bands.firstRow(); row <= bands.lastRow(); ++row) {
                m_visitor.row(row);
                if (inOrder) {
                    visitRow(row, bands.blocks());
                } else {
                    visitOverlappingRow(row, bands.blocks());
                }
            }
        }
    }

private:
    template <typename Action>
    void forEachCell(const SelectionBlock& block, int row, Action action)
    {
        if (block.left == block.right && block.top == row) {
            action(block.topLeft); // faster than asking the model, and there may be thousands of single cells
            return;
        }
        const QModelIndex parent = block.topLeft.parent();
        for (int column = block.left; column <= block.right; ++column) {
            action(m_model.index(row, column, parent));
        }
    }

    void visitRow(int row, const std::vector<const SelectionBlock*>& blocks)
    {
        for (const SelectionBlock* const block : blocks) {
            forEachCell(*block, row, [this](const QModelIndex& index) { visitCell(index); });
        }
    }

    void visitOverlappingRow(int row, const std::vector<const SelectionBlock*>& blocks)
    {
        m_rowIndexes.clear();
        for (const SelectionBlock* const block : blocks) {
            forEachCell(*block, row, [this](const QModelIndex& index) { m_rowIndexes.push_back(index); });
        }
        std::sort(m_rowIndexes.begin(), m_rowIndexes.end());
        for (const QModelIndex& index : m_rowIndexes) {
            visitCell(index);
        }
    }

    void visitCell(const QModelIndex& index)
    {
        m_waitCursor.step();
        constexpr Qt::ItemFlags wanted = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        if ((m_model.flags(index) & wanted) == wanted) {
            m_visitor.cell(index);
        }
    }

    const QAbstractItemModel& m_model;
    Visitor& m_visitor;
    std::vector<QModelIndex> m_rowIndexes;
    DelayedWaitCursor m_waitCursor;
};

} // namespace morvane::ui
