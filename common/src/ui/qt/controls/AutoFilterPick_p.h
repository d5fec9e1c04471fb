// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPersistentModelIndex>
#include <QString>

class QComboBox;

namespace morvane::ui {

/**
 * The entry that the user has picked or marked. Its text does not identify it, since other entries may have the same
 * text or contain it.
 */
class AutoFilterPick
{
public:
    /** @param lineText the text that the line shows for the entry */
    void set(const QModelIndex& entry, const QString& lineText);
    void clear();

    bool isSet() const { return m_entry.isValid(); }

    /** The entry has become current. From now on it counts only as long as it is current. */
    void setTaken() { m_isTaken = true; }

    /** The row of the entry. -1 if there is none or if the combo box shows another text now. */
    int row(const QComboBox& box) const;

private:
    QPersistentModelIndex m_entry;
    QString m_lineText;
    bool m_isTaken = false;
};

} // namespace morvane::ui
