// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterPick_p.h"

#include "ui/qt/controls/AutoFilterEntries_p.h"

#include <QComboBox>

namespace morvane::ui {

void AutoFilterPick::set(const QModelIndex& entry, const QString& lineText)
{
    m_entry = entry;
    m_lineText = lineText;
    m_isTaken = false;
}

void AutoFilterPick::clear()
{
    m_entry = QModelIndex();
}

int AutoFilterPick::row(const QComboBox& box) const
{
    const QModelIndex entry = m_entry;
    const bool isThere = entry.isValid() && entry.model() == box.model() && entry.parent() == box.rootModelIndex();
    if (!isThere || !isEnabledEntry(entry) || box.currentText() != m_lineText) {
        return -1;
    }
    return m_isTaken && entry.row() != box.currentIndex() ? -1 : entry.row();
}

} // namespace morvane::ui
