// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

#include <cstddef>
#include <vector>

namespace morvane::ui {

/**
 * The cells of a model into which a block is written. They are found again after their rows or columns were moved. Rows
 * may be added at the end of the model.
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
    BlockTarget(const BlockTarget&) = delete;
    BlockTarget& operator=(const BlockTarget&) = delete;

    /**
     * While it exists, the rows are found again after the model was reset: by their numbers, if there are as many rows
     * and columns as before. Some models reset themselves in setData(). At other times a reset means other data.
     */
    class ResetGuard
    {
    public:
        explicit ResetGuard(BlockTarget& target);

    private:
        QObject m_watcher;
        std::vector<int> m_rows;
        int m_rowCount = 0;
        int m_columnCount = 0;
    };

    /** Null after the model was destroyed. */
    QAbstractItemModel* model() const { return m_model; }
    /** The rows that the target has by now; fewer than a block may need. */
    std::size_t rowCount() const { return m_rows.size(); }
    std::size_t columnCount() const { return m_columns.size(); }

    /** Invalid if the row or the column was removed, or the model was destroyed. */
    QModelIndex cell(std::size_t row, std::size_t column) const
    {
        const int place = m_rows[row].row();
        const bool exists = place >= 0 && m_columns[column] >= 0 && m_model;
        // Not with sibling(), which asks many models for the parent of each cell.
        return exists ? m_model->index(place, m_columns[column], m_parent) : QModelIndex();
    }

    /** Adds rows at the end of the model until there are `rows` of them. Returns false if the model adds too few. */
    bool addRows(std::size_t rows);
    /** Removes the rows that were added. */
    void removeAddedRows();

private:
    void followColumns();
    void leaveColumns(int first, int last);
    bool isParent(const QModelIndex& parent) const { return m_parent == parent && m_isNested == parent.isValid(); }

    QPointer<QAbstractItemModel> m_model;
    QPersistentModelIndex m_parent;
    bool m_isNested = false; // the rows have a parent, or had one
    std::vector<QPersistentModelIndex> m_rows;
    std::vector<int> m_columns;   // -1 for those that were removed
    bool m_isEndChanging = false; // rows are being added or removed at the end
    QObject m_watcher;
    std::size_t m_ownRows = 0; // those before the added ones
};

} // namespace morvane::ui
