#pragma once

#include <QModelIndex>

#include <limits>

class QAbstractItemModel;
class QString;

namespace morvane::ui {

/** Which entry a text stands for, of those that contain it. */
enum class EntryPreference
{
    First, ///< the first one, also of an empty text
    Equal  ///< the one that equals the text, with case before without; then the first one, and none of an empty text
};

/**
 * The row of the entry that a text stands for, -1 for none. Case does not matter, and disabled entries do not count.
 *
 * @param entries,column,root where the entries are
 * @param rows                how many of them are looked at
 */
int findEntry(const QAbstractItemModel& entries, int column, const QModelIndex& root, const QString& text,
    EntryPreference preference, int rows = std::numeric_limits<int>::max());

/** Whether it is an entry that a user may take. */
bool isEnabledEntry(const QModelIndex& entry);

/** The same entry in the model that the suggested ones come from; invalid when it does not come from there. */
QModelIndex entryOfSuggestion(QModelIndex suggestion, const QAbstractItemModel& entries);

} // namespace morvane::ui
