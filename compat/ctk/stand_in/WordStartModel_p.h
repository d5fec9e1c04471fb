#pragma once

#include <QIdentityProxyModel>

class QCompleter;

namespace morvane::compat {

/**
 * All rows of the source model, of which only those can be selected in which the completer's prefix begins a word.
 *
 * QCompleter passes over rows that cannot be selected. So nothing is stored here that could go stale: prefix and case
 * sensitivity are read from the completer whenever it filters.
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
