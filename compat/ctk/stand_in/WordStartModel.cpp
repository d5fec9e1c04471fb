// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "WordStartModel_p.h"

#include <QCompleter>

namespace morvane::compat {

namespace {

bool isWordCharacterBefore(const QString& text, int position)
{
    const QChar last = text.at(position - 1);
    uint character = last.unicode();
    if (last.isLowSurrogate() && position > 1 && text.at(position - 2).isHighSurrogate()) {
        character = QChar::surrogateToUcs4(text.at(position - 2), last);
    }
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == '_';
}

bool beginsWord(const QString& text, const QString& prefix, Qt::CaseSensitivity sensitivity)
{
    int position = text.indexOf(prefix, 0, sensitivity);
    while (position > 0 && isWordCharacterBefore(text, position)) {
        position = text.indexOf(prefix, position + 1, sensitivity);
    }
    return position >= 0;
}

} // namespace

WordStartModel::WordStartModel(const QCompleter& completer) : m_completer(completer) {}

void WordStartModel::setSourceModel(QAbstractItemModel* model)
{
    if (sourceModel()) {
        disconnect(sourceModel(), &QObject::destroyed, this, nullptr);
    }
    QIdentityProxyModel::setSourceModel(model);
    if (model) {
        // The base class becomes empty, but emits no signal.
        connect(model, &QObject::destroyed, this, [this] {
            beginResetModel();
            endResetModel();
        });
    }
}

Qt::ItemFlags WordStartModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    const QString text = index.data(m_completer.completionRole()).toString();
    const bool fits = beginsWord(text, m_completer.completionPrefix(), m_completer.caseSensitivity());
    return fits ? flags : flags & ~Qt::ItemIsSelectable;
}

} // namespace morvane::compat
