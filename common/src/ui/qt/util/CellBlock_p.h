// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace morvane::ui {

/** The texts of a block of cells, row by row, as models take them. The rows may have different lengths. */
using CellBlock = std::vector<std::vector<QVariant>>;

/**
 * Reads the text form of cells that spreadsheet programs put on the clipboard.
 *
 * A tab separates two cells. A line feed, a carriage return or both end a row. A line end at the end of the text ends
 * the last row and begins no other one, so an empty text has no rows.
 *
 * A cell that begins with a quotation mark is quoted if the next single quotation mark is at the end of a cell: before
 * a tab, a line end or the end of the text. A quoted cell may contain tabs and line ends, and two quotation marks in it
 * stand for one. In all other cells quotation marks are characters like any other.
 *
 * Takes linear time.
 */
CellBlock readCellBlock(const QString& text);

/** Quotes a text if readCellBlock() would otherwise read something else than one cell with this text. */
QString quotedWhereNeeded(const QString& text);

} // namespace morvane::ui
