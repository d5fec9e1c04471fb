// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterCompleter_p.h"

namespace morvane::ui {

AutoFilterCompleter::AutoFilterCompleter(QAbstractItemModel* entries, QObject* parent) : ctkCompleter(entries, parent)
{
}

AutoFilterCompleter::~AutoFilterCompleter()
{
    if (filters()) {
        setSourceModel(nullptr);
    }
}

void AutoFilterCompleter::setEntries(QAbstractItemModel* entries)
{
    // With Qt 6, QComboBox itself has given its completer the new model instead of this one.
    const bool mustFilter = m_matching.isExtended() && completionMode() == PopupCompletion;
    if (mustFilter) {
        m_model->setSourceModel(entries);
        setSourceModel(m_model.get());
        setCompletionPrefix(completionPrefix());
    } else {
        setSourceModel(entries);
        m_model->setSourceModel(nullptr);
    }
}

void AutoFilterCompleter::setMatching(EntryMatching matching)
{
    m_matching = matching;
    setEntries(filters() ? m_model->sourceModel() : sourceModel());
}

QStringList AutoFilterCompleter::splitPath(const QString& path) const
{
    if (!filters()) {
        return ctkCompleter::splitPath(path);
    }
    m_model->filter(path, {m_matching, completionColumn(), completionRole(), caseSensitivity()});
    // All entries of the filtered model.
    return {QString()};
}

bool AutoFilterCompleter::filters() const
{
    return sourceModel() == m_model.get();
}

} // namespace morvane::ui
