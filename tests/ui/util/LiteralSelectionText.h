// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QString>

#include <algorithm>

namespace morvane::test {

/** Makes the text in the plainest way: sorts all selected indexes and compares each with the one before. */
inline QString textOfSortedIndexes(QModelIndexList indexes, const QAbstractItemModel& model)
{
    std::sort(indexes.begin(), indexes.end());
    QString text;
    QModelIndex previous;
    for (const QModelIndex& index : indexes) {
        const QString cell = model.data(index, Qt::DisplayRole).toString();
        if (!previous.isValid()) {
            text.append(cell);
        } else if (index.row() != previous.row()) {
            text.append(QLatin1Char('\n')).append(cell);
        } else {
            text.append(QLatin1Char('\t')).append(cell);
        }
        previous = index;
    }
    return text;
}

} // namespace morvane::test
