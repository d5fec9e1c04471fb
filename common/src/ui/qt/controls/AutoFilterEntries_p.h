// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/EntryMatcher_p.h"

#include <QModelIndex>

#include <limits>

class QAbstractItemModel;

namespace morvane::ui {

/** Which entry findEntry() returns if several entries fit the text. */
enum class EntryPreference
{
    First, ///< the first one, also for an empty text
    Equal  ///< the one that fits best, or the first of these; for an empty text, only an equal one
};

/**
 * The row of the entry that a text stands for, -1 for none. Disabled entries do not count.
 *
 * @param entries,column,root where the entries are
 * @param matching            what "contains" means; of a text with words, blanks at the ends do not count
 * @param rows                how many of the entries are searched
 */
int findEntry(const QAbstractItemModel& entries, int column, const QModelIndex& root, const QString& text,
    EntryPreference preference, EntryMatching matching = {}, int rows = std::numeric_limits<int>::max());

/** Whether a user may pick this entry. */
bool isEnabledEntry(const QModelIndex& entry);

/** The entry of the model that a suggestion shows; invalid if the suggestion comes from another model. */
QModelIndex entryOfSuggestion(QModelIndex suggestion, const QAbstractItemModel& entries);

} // namespace morvane::ui
