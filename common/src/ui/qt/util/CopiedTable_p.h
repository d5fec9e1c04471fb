// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelection>
#include <QLocale>
#include <QString>

#include <optional>
#include <vector>

class QAbstractItemModel;

namespace morvane::ui {

/** The texts that are copied from a table, line by line. */
struct CopiedTable
{
    /** Which texts are read. */
    struct Rules
    {
        bool columnHeaders = false;
        bool rowHeaders = false;
        int role = Qt::DisplayRole;
        std::optional<QLocale> numberLocale; // none: numbers in the form of QVariant
    };

    std::vector<std::vector<QString>> lines;
    bool hasHeaderLine = false; // the first line
    bool hasRowHeaders = false; // the first text of each line
};

/**
 * Reads the selected cells. Without headers each line has the selected cells of one row, without gaps. With headers
 * each line has all columns in which a cell is selected, so that each text is below its header; cells that are not
 * selected are empty, and no cell is repeated. No lines if no cell is selected.
 */
CopiedTable copiedTable(
    const QItemSelection& selection, const QAbstractItemModel& model, const CopiedTable::Rules& rules);

/** The lines as text: with tabs between texts and line feeds between lines. */
QString plainText(const CopiedTable& table, bool isQuoted);

/** The lines as a table in HTML. */
QString htmlText(const CopiedTable& table);

} // namespace morvane::ui
