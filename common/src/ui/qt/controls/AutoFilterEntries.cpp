// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterEntries_p.h"

#include <QAbstractProxyModel>

namespace morvane::ui {

int findEntry(const QAbstractItemModel& entries, int column, const QModelIndex& root, const QString& text,
    EntryPreference preference, EntryMatching matching, int rows)
{
    const EntryMatcher matcher(text, matching);
    const bool isEmpty = matching.words ? text.trimmed().isEmpty() : text.isEmpty();
    // A form field compares what its line shows, which is the edit role.
    const int role = preference == EntryPreference::Equal ? Qt::EditRole : Qt::DisplayRole;
    const int last = qMin(entries.rowCount(root), rows);
    EntryFit best = preference == EntryPreference::Equal && isEmpty ? EntryFit::Contained : EntryFit::None;
    int bestRow = -1;
    for (int row = 0; row < last; ++row) {
        const QModelIndex entry = entries.index(row, column, root);
        const EntryFit fit = matcher.fit(entry.data(role).toString());
        if (fit <= best || !isEnabledEntry(entry)) {
            continue;
        }
        if (preference == EntryPreference::First || fit == EntryFit::Equal) {
            return row;
        }
        best = fit;
        bestRow = row;
    }
    return bestRow;
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
