// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/BlockTarget_p.h"
#include "ui/qt/util/CellBlock_p.h"
#include "ui/qt/util/TablePasteRefusal.h"

#include <QLocale>
#include <QVariant>

#include <optional>

namespace morvane::ui {

class DelayedWaitCursor;

/** One block that is written into a model, as a whole or not at all, and can be taken back and written again. */
class BlockPaste
{
public:
    struct Rules
    {
        bool mayAddRows = false;
        std::optional<QLocale> numberLocale;
    };

    /**
     * @param first the cell for the first cell of the block; valid
     * @param block not empty
     */
    BlockPaste(const QModelIndex& first, CellBlock block, Rules rules);

    /** Writes the block. If a cell is refused, nothing changes, and refusals() has each cell that was refused. */
    bool paste();
    const QList<TablePasteRefusal>& refusals() const { return m_refusals; }

    int rowCount() const { return static_cast<int>(m_block.size()); }
    int columnCount() const { return static_cast<int>(m_width); }

    /** Writes the old values back and removes the rows that were added. */
    void takeBack();
    /** Writes the block again, as far as the model takes it. */
    void pasteAgain();

private:
    struct Place
    {
        std::size_t row;
        std::size_t column;
        bool operator==(const Place& other) const { return row == other.row && column == other.column; }
    };

    void check(DelayedWaitCursor& waitCursor);
    void checkCell(Place place, const QModelIndex& shown);
    /** @param example a cell that has a number if a number is wanted */
    void readNumber(Place place, const QModelIndex& example);
    void addRows();
    void write(DelayedWaitCursor& waitCursor);
    void refuseUnchanged();
    bool exchange(Place place);
    void refuse(Place place, TablePasteRefusal::Reason reason);

    const CellBlock m_texts; // only with a locale for numbers
    const std::size_t m_width;
    const Rules m_rules;
    const QModelIndex m_first;
    BlockTarget m_target;
    // Before the block is written, its values; afterwards, those that they have replaced.
    CellBlock m_block;
    // The cells that were not exchanged in the last run through the block, in the order of that run.
    std::vector<Place> m_unchanged;
    // Where the last run through the block has ended.
    Place m_end{0, 0};
    QList<TablePasteRefusal> m_refusals;
};

} // namespace morvane::ui
