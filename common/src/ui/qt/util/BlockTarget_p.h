// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QPersistentModelIndex>
#include <QPointer>

#include <cstddef>
#include <vector>

namespace morvane::ui {

/**
 * The cells of a model into which a block is written. They are found again after their rows were moved. Rows may be
 * added at the end of the model.
 */
class BlockTarget
{
public:
    /**
     * The cells to the right of `first` and below it, as many as there are. The cells below a QSortFilterProxyModel are
     * those of its source model.
     *
     * @param first valid
     */
    BlockTarget(const QModelIndex& first, std::size_t rows, std::size_t columns);

    /** Null after the model was destroyed. */
    QAbstractItemModel* model() const { return m_model; }
    /** The rows that the target has by now; fewer than a block may need. */
    std::size_t rowCount() const { return m_rows.size(); }
    std::size_t columnCount() const { return m_columns.size(); }

    /** Invalid if the row was removed or the model was destroyed. */
    QModelIndex cell(std::size_t row, std::size_t column) const
    {
        const int place = m_rows[row].row();
        // Not with sibling(), which asks many models for the parent of each cell.
        return place >= 0 && m_model ? m_model->index(place, m_columns[column], m_parent) : QModelIndex();
    }

    /** Adds rows at the end of the model until there are `rows` of them. Returns false if the model adds too few. */
    bool addRows(std::size_t rows);
    /** Removes the rows that were added. */
    void removeAddedRows();

private:
    QPointer<QAbstractItemModel> m_model;
    QPersistentModelIndex m_parent;
    bool m_isNested = false; // the rows have a parent, or had one
    std::vector<QPersistentModelIndex> m_rows;
    std::vector<int> m_columns;
    std::size_t m_ownRows = 0; // those before the added ones
};

} // namespace morvane::ui
