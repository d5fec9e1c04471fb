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
    if (filters()) {
        m_model->setSourceModel(entries);
        setCompletionPrefix(completionPrefix());
    } else {
        setSourceModel(entries);
    }
}

void AutoFilterCompleter::setMatching(EntryMatching matching)
{
    m_matching = matching;
    const bool mustFilter = matching.isExtended() && completionMode() == PopupCompletion;
    if (mustFilter && !filters()) {
        m_model->setSourceModel(sourceModel());
        setSourceModel(m_model.get());
    } else if (!mustFilter && filters()) {
        QAbstractItemModel* const entries = m_model->sourceModel();
        setSourceModel(entries);
        m_model->setSourceModel(nullptr);
    }
    setCompletionPrefix(completionPrefix());
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
