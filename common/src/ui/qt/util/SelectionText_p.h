// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelection>
#include <QString>

class QAbstractItemModel;

namespace morvane::ui {

/**
 * The display texts of the cells in @p selection by row and column, joined by tabs within a row and by line feeds
 * between rows. Parts of the selection that belong to another model than @p model are ignored.
 *
 * The time depends on the number of selected cells, and not on how many ranges they form. Needs memory for the ranges,
 * the text and one row. Shows a wait cursor if it takes long.
 */
QString selectionText(const QItemSelection& selection, const QAbstractItemModel& model);

} // namespace morvane::ui
