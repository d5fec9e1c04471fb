// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelection>

#include <vector>

namespace morvane::ui {

/** A selected range as plain numbers, because QItemSelectionRange reads them through persistent indexes. */
struct SelectionBlock
{
    int top;
    int bottom;
    int left;
    int right;
    QModelIndex topLeft;
};

/**
 * Iterates over a selection in bands from top to bottom. A band consists of rows that the same ranges cross.
 *
 * @code
 * SelectionBands bands(selectionModel.selection(), model);
 * while (bands.advance()) {
 *     for (int row = bands.firstRow(); row <= bands.lastRow(); ++row) { ... bands.blocks() ... }
 * }
 * @endcode
 *
 * Needs the time for sorting the ranges, and memory for them. Ranges may overlap. They may have different parents,
 * and rows with the same number then count as one row.
 */
class SelectionBands
{
public:
    /** @param selection must have valid ranges only; ranges of other models than @p model are ignored */
    SelectionBands(const QItemSelection& selection, const QAbstractItemModel& model);
    SelectionBands(const SelectionBands&) = delete;
    SelectionBands& operator=(const SelectionBands&) = delete;

    /** Goes to the next band, the first time to the topmost one. Returns false if there is none. */
    bool advance();

    int firstRow() const { return m_firstRow; }
    int lastRow() const { return m_lastRow; }
    /** The ranges that cross the band, ordered by first column. */
    const std::vector<const SelectionBlock*>& blocks() const { return m_current; }
    /** Whether two ranges of the band have a column in common. */
    bool hasOverlaps() const;

private:
    void dropBlocksAbove(int row);
    void takeBlocksStartingAt(int row);

    const std::vector<SelectionBlock> m_blocks;
    const std::vector<const SelectionBlock*> m_byFirstRow;
    std::vector<const SelectionBlock*>::const_iterator m_next = m_byFirstRow.begin();
    std::vector<const SelectionBlock*> m_current;
    int m_firstRow = 0;
    int m_lastRow = -1;
};

} // namespace morvane::ui
