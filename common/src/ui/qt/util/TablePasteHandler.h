// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"
#include "ui/qt/util/TablePasteRefusal.h"

#include <QLocale>
#include <QObject>

#include <memory>
#include <optional>

class QAction;
class QTableView;
class QUndoStack;

namespace morvane::ui {

/**
 * Adds the platform's paste shortcut to a table view: a block of cells from a spreadsheet program, or from
 * TableCopyHandler, is written into the model of the view, from the current cell on to the right and down. If the
 * current cell is in a selected block of cells, it is written from the first cell of this block on. A view that selects
 * whole rows or columns begins at the current cell.
 *
 * @snippet 31-paste-a-block/main.cpp paste
 *
 * The text on the clipboard is read as spreadsheet programs write it: a tab separates two cells, and a line end ends a
 * row. A cell in quotation marks may contain tabs and line ends, and two quotation marks in it stand for one. Rows may
 * have different lengths; cells that a row does not have stay unchanged in the table.
 *
 * All or nothing: if one cell cannot be written, all others get their old values back, added rows are removed, and
 * refused() tells each cell that was in the way. So the model must accept every value that its `data()` has returned
 * for Qt::EditRole. If `setData()` returns false, but the cell then shows the text, the cell is not refused: some
 * models return false for a value that they already have.
 *
 * - Cells are counted by their positions in the model, as TableCopyHandler does: hidden cells are written, too, and
 * moved columns do not matter.
 * - A cell must be enabled and editable in the model that the view shows. The edit triggers of the view do not matter.
 * - If the view shows a QSortFilterProxyModel, the cells are written into its source model, because the proxy may sort
 * or filter rows away as soon as they change. So `setData()` of the proxy is not called. New rows are added at the end
 * of the source model.
 * - Other roles than Qt::EditRole do not change.
 * - With an undo stack, a paste is one step. The step uses the model until the stack deletes it. It follows rows and
 *   columns that were moved, and leaves out those that were removed since. After the model is reset or destroyed it
 *   does nothing.
 * - The model may reset itself in `setData()`, if it keeps the number and the order of its rows.
 *
 * Like CopyHandlerAbstract, the handler filters the key presses that reach the view, and it is a child of the view. Key
 * presses in an open cell editor go to the editor. A handler may be deleted earlier, also in a slot of its signals. GUI
 * thread only.
 */
class MORVANE_UI_EXPORT TablePasteHandler : public QObject
{
    Q_OBJECT
    /** Whether a block may add rows at the end of the table; false initially. */
    Q_PROPERTY(bool addingRows READ isAddingRows WRITE setAddingRows)

public:
    /**
     * Installs the handler on @p tableView, which becomes the parent. The view may have no model, and its model may
     * change at any time.
     */
    explicit TablePasteHandler(QTableView& tableView);
    /** Removes the event filter. */
    ~TablePasteHandler() override;

    /** False initially. */
    bool isAddingRows() const;
    /** True: rows that the table does not have are added with `insertRows()` of the model. Columns are never added. */
    void setAddingRows(bool on);

    /** Null initially. */
    QUndoStack* undoStack() const;
    /**
     * Each paste is pushed as one step onto this stack; null for none. The caller keeps the ownership. The stack may be
     * destroyed at any time.
     */
    void setUndoStack(QUndoStack* stack);

    /** None initially. */
    std::optional<QLocale> numberLocale() const;
    /**
     * With a locale, the text for a cell that stores a number is read in this locale and written as a number of the
     * same type; an empty text is written as an invalid QVariant. A text that is no such number is refused. In rows
     * that are added, a number is wanted where the last row of the table stores one. Without a locale, and in all other
     * cells, the text is written as it is, and the model converts it.
     */
    void setNumberLocale(const std::optional<QLocale>& locale);

    /**
     * An action "Paste" for menus and tool bars that calls pasteFromClipboard(). It belongs to the handler. It has no
     * shortcut of its own, so it does not compete with the handler or with another action.
     */
    QAction* pasteAction();

    /** Pastes on the platform's paste shortcut and returns true; returns false for other events. */
    bool eventFilter(QObject* watched, QEvent* event) override;

    /**
     * Pastes a block in the form that is read from the clipboard. Shows a wait cursor if this takes more than half a
     * second; no events are processed meanwhile.
     *
     * @return whether the cells were written. False without a signal if the text is empty, or if there is no model or
     * no current cell.
     * @throws std::bad_alloc when memory runs out, and what the model throws. Cells that were written get their old
     * values back before.
     */
    bool paste(const QString& block);

public Q_SLOTS:
    /** Calls paste() with the text on the clipboard. */
    bool pasteFromClipboard();

Q_SIGNALS:
    /** Emitted when a block was written. The step is on the undo stack already. @p columns is the longest row. */
    void pasted(int rows, int columns);
    /** Emitted when a block was not written. Has each cell that was in the way, by row and column. */
    void refused(const QList<morvane::ui::TablePasteRefusal>& cells);

private:
    struct Impl;
    const std::unique_ptr<Impl> m_impl;
};

} // namespace morvane::ui
