#pragma once

#include <QItemSelection>

#include <vector>

namespace morvane::ui {

/** A selected range in plain numbers: reading them from a QItemSelectionRange goes through persistent indexes. */
struct SelectionBlock
{
    int top;
    int bottom;
    int left;
    int right;
    QModelIndex topLeft;
};

/**
 * Walks a selection downwards in bands: runs of rows that are crossed by the same ranges.
 *
 * @code
 * SelectionBands bands(selectionModel.selection(), model);
 * while (bands.advance()) {
 *     for (int row = bands.firstRow(); row <= bands.lastRow(); ++row) { ... bands.blocks() ... }
 * }
 * @endcode
 *
 * Takes the time of sorting, and memory for the ranges. Ranges may overlap and may have different parents; rows with
 * the same number are then one row.
 */
class SelectionBands
{
public:
    /** @param selection valid ranges only, as QItemSelectionModel::selection() gives; those of other models than @p
     * model are ignored */
    SelectionBands(const QItemSelection& selection, const QAbstractItemModel& model);
    SelectionBands(const SelectionBands&) = delete;
    SelectionBands& operator=(const SelectionBands&) = delete;

    /** Moves on to the next band, at first to the topmost; false when there is none. */
    bool advance();

    int firstRow() const { return m_firstRow; }
    int lastRow() const { return m_lastRow; }
    /** The ranges that cross the band, by first column. */
    const std::vector<const SelectionBlock*>& blocks() const { return m_current; }
    /** Whether ranges of the band share columns. */
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
