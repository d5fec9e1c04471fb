// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIdentityProxyModel>

class QCompleter;

namespace morvane::compat {

/**
 * A proxy with all rows of the source model. A row can be selected only if the completer's prefix begins a word in it.
 *
 * QCompleter skips rows that cannot be selected. Nothing is cached here: the prefix and the case sensitivity are read
 * from the completer each time it filters.
 */
class WordStartModel : public QIdentityProxyModel
{
    Q_OBJECT

public:
    explicit WordStartModel(const QCompleter& completer);

    void setSourceModel(QAbstractItemModel* model) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const QCompleter& m_completer;
};

} // namespace morvane::compat
