#include "ui/qt/controls/AutoFilterEntries_p.h"

#include <QAbstractProxyModel>
#include <QStringMatcher>

namespace morvane::ui {

int findEntry(const QAbstractItemModel& entries, int column, const QModelIndex& root, const QString& text,
    EntryPreference preference, int rows)
{
    // What findText(text, Qt::MatchContains) finds, with the text prepared once instead of for each entry.
    const QStringMatcher contained(text, Qt::CaseInsensitive);
    // A form field goes by what its line shows, which is the edit role.
    const int role = preference == EntryPreference::Equal ? Qt::EditRole : Qt::DisplayRole;
    const int last = qMin(entries.rowCount(root), rows);
    int equal = -1;
    int containing = -1;
    for (int row = 0; row < last; ++row) {
        const QModelIndex entry = entries.index(row, column, root);
        const QString candidate = entry.data(role).toString();
        if (contained.indexIn(candidate) < 0 || !isEnabledEntry(entry)) {
            continue;
        }
        if (preference == EntryPreference::First || candidate == text) {
            return row;
        }
        if (equal < 0 && candidate.compare(text, Qt::CaseInsensitive) == 0) {
            equal = row;
        }
        if (containing < 0 && !text.isEmpty()) {
            containing = row;
        }
    }
    return equal < 0 ? containing : equal;
}

bool isEnabledEntry(const QModelIndex& entry)
{
    return entry.flags() & Qt::ItemIsEnabled;
}

QModelIndex entryOfSuggestion(QModelIndex suggestion, const QAbstractItemModel& entries)
{
    while (suggestion.isValid() && suggestion.model() != &entries) {
        const auto* const proxy = qobject_cast<const QAbstractProxyModel*>(suggestion.model());
        suggestion = proxy ? proxy->mapToSource(suggestion) : QModelIndex();
    }
    return suggestion;
}

} // namespace morvane::ui
