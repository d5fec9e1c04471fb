// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

namespace morvane::ui {

/** A cell because of which a block was not pasted. */
struct TablePasteRefusal
{
    /** Why the cell cannot be written. */
    enum class Reason
    {
        OutsideTable,  ///< the table has no such column, or no such row and none may be added
        NotEditable,   ///< the cell is disabled or not editable
        NotANumber,    ///< the cell stores a number, and the text is none in the locale that was set
        RefusedByModel ///< `setData()` of the model returned false
    };

    int row = -1;    ///< of the view's model; a row that is to be added has the number that it would have
    int column = -1; ///< of the view's model
    QString text;    ///< the text that was to be pasted into the cell
    Reason reason = Reason::RefusedByModel; ///< why it cannot be pasted
};

} // namespace morvane::ui

Q_DECLARE_METATYPE(morvane::ui::TablePasteRefusal)
