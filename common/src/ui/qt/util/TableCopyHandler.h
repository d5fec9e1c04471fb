// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/util/CopyHandlerAbstract.h"

#include <QFlags>
#include <QLocale>

#include <optional>

class QAction;
class QTableView;

namespace morvane::ui {

class TableCopyExtras;

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
 *
 * So it is initially. Options add headers, the stored values, quotation marks, HTML and numbers in a locale:
 *
 * @snippet 06-table-copy/main.cpp options
 *
 * The options are not properties, because the meta-object of the class has only copyToClipboard().
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

    /** Headers that are copied with the cells. */
    enum Header
    {
        NoHeaders = 0,
        ColumnHeaders = 1,
        RowHeaders = 2
    };
    Q_DECLARE_FLAGS(Headers, Header)

    /** Which value of a cell is copied. */
    enum class Values
    {
        Shown, ///< Qt::DisplayRole
        Stored ///< Qt::EditRole
    };

    /** NoHeaders initially. */
    Headers copiedHeaders() const;
    /**
     * With headers, the first line has those of the columns, and each line begins with that of its row. So that each
     * text is below its header, all lines have the same columns: those in which a cell is selected. Cells that are not
     * selected are empty, and no cell is copied twice.
     */
    void setCopiedHeaders(Headers headers);

    /** Values::Shown initially. */
    Values copiedValues() const;
    /** With Values::Stored, the cells are copied as an editor would show them. */
    void setCopiedValues(Values values);

    /** False initially. */
    bool isQuoting() const;
    /**
     * True: a text with a tab or a line end, or with a quotation mark at its start, is copied in quotation marks, with
     * each quotation mark in it doubled. Spreadsheet programs and TablePasteHandler paste it as one cell.
     */
    void setQuoting(bool on);

    /** False initially. */
    bool isCopyingHtml() const;
    /**
     * True: the clipboard also has the cells as a table in HTML, for text documents and mails. Spreadsheet programs
     * often prefer it to the text.
     */
    void setCopyingHtml(bool on);

    /** None initially. */
    std::optional<QLocale> numberLocale() const;
    /**
     * With a locale, numbers are written in it, with all their digits and without separators between groups of digits.
     * Texts and other data do not change. Without a locale, numbers have the form of `QVariant::toString()`.
     */
    void setNumberLocale(const std::optional<QLocale>& locale);

    /** False initially. */
    bool isKeepingClipboard() const;
    /** True: the clipboard stays as it is if no cell is selected. False: it gets an empty text. */
    void setKeepingClipboard(bool on);

    /**
     * An action "Copy with Headers" for menus and tool bars that calls copyWithHeaders(). It belongs to the handler and
     * has no shortcut.
     */
    QAction* copyWithHeadersAction();
    /** Copies like copyToClipboard(), with the headers of columns in addition to copiedHeaders(). */
    void copyWithHeaders();

    /** False initially. */
    bool hasContextMenu() const;
    /**
     * True: the view has a context menu with "Copy", "Copy with Headers" and the actions of the view
     * (`QWidget::actions()`). Sets the context menu policy of the view; false, and the end of the handler, set the
     * previous one again.
     */
    void setContextMenu(bool on);

public Q_SLOTS:
    /**
     * Replaces the clipboard contents by the text of the current selection. The text is empty if nothing is selected,
     * or if there is no model or no selection model; see setKeepingClipboard() for another choice. If building the text
     * takes more than half a second, a wait cursor is shown; no events are processed meanwhile.
     * @throws std::bad_alloc when memory runs out. If this happens while the text is built, the clipboard does not
     * change.
     */
    void copyToClipboard() override;

private:
    TableCopyExtras& extras();
    void copy(const TableCopyExtras& extras, bool withHeaders);

    QTableView* m_tableView;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TableCopyHandler::Headers)

} // namespace morvane::ui
