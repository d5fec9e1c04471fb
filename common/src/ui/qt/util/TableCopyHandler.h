#pragma once

#include "ui/qt/util/CopyHandlerAbstract.h"

class QTableView;

namespace morvane::ui {

/**
 * Copies the selection of a table view as tab-separated text, which spreadsheet programs paste as cells.
 *
 * @snippet 06-table-copy/main.cpp copy
 *
 * The text has one line for each row with a selected cell, rows in ascending order of the model; in a line, the display
 * texts of the row's selected cells in ascending column order, joined by one tab. Lines are joined by one line feed,
 * and nothing stands before the first or after the last cell.
 *
 * - Cells that are not selected leave no gap: columns 0 and 2 are joined by one tab, rows 1 and 5 give two lines.
 * - Cells that are hidden, moved or covered by a span count as selected when the selection model says so, and stand
 *   where the model has them. Cells that are disabled or not selectable are left out, as
 *   `QItemSelectionModel::selectedIndexes()` does; a cell that a program selected twice stands there twice.
 * - Texts are taken as they are, tabs and line feeds included. Numbers, dates and other data appear as
 *   `QVariant::toString()` gives them; what has no such form is empty.
 * - Headers are not copied.
 */
class MORVANE_UI_EXPORT TableCopyHandler : public CopyHandlerAbstract
{
    Q_OBJECT

public:
    /** Starts watching @p tableView, which becomes the parent. Its model may change or be missing at any time. */
    explicit TableCopyHandler(QTableView& tableView);
    ~TableCopyHandler() override;

public Q_SLOTS:
    /**
     * Replaces what is on the clipboard by the text of the current selection. With nothing selected, and also without a
     * model or a selection model, that is the empty text. A wait cursor shows while the text is being made if that
     * takes more than half a second; no events are processed meanwhile.
     * @throws std::bad_alloc when memory runs out; while the text is being made, that leaves the clipboard as it was.
     */
    void copyToClipboard() override;

private:
    QTableView* m_tableView;
};

} // namespace morvane::ui
