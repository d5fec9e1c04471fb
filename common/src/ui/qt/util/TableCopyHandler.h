// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/CopyHandlerAbstract.h"

class QTableView;

namespace morvane::ui {

/**
 * Copies the selection of a table view as tab-separated text. Spreadsheet programs paste this text as cells.
 *
 * @snippet 06-table-copy/main.cpp copy
 *
 * The text has one line for each row that has a selected cell, in ascending row order of the model. A line has the
 * display texts of the selected cells of that row, in ascending column order, separated by one tab. Lines are separated
 * by one line feed. There is no tab or line feed before the first or after the last cell.
 *
 * - Cells that are not selected leave no gap: between columns 0 and 2 is one tab, and rows 1 and 5 give two lines.
 * - Cells that are hidden, moved or covered by a span are copied if the selection model contains them, at their
 *   position in the model. Cells that are disabled or not selectable are omitted, as in
 *   `QItemSelectionModel::selectedIndexes()`. A cell that a program selected twice is copied twice.
 * - Texts are copied unchanged, including tabs and line feeds. Numbers, dates and other data are converted with
 *   `QVariant::toString()`; data that cannot be converted gives an empty text.
 * - Headers are not copied.
 */
class MORVANE_UI_EXPORT TableCopyHandler : public CopyHandlerAbstract
{
    Q_OBJECT

public:
    /**
     * Installs the handler on @p tableView, which becomes the parent. The view may have no model, and its model may
     * change at any time.
     */
    explicit TableCopyHandler(QTableView& tableView);
    ~TableCopyHandler() override;

public Q_SLOTS:
    /**
     * Replaces the clipboard contents by the text of the current selection. The text is empty if nothing is selected,
     * or if there is no model or no selection model. If building the text takes more than half a second, a wait cursor
     * is shown; no events are processed meanwhile.
     * @throws std::bad_alloc when memory runs out. If this happens while the text is built, the clipboard does not
     * change.
     */
    void copyToClipboard() override;

private:
    QTableView* m_tableView;
};

} // namespace morvane::ui
