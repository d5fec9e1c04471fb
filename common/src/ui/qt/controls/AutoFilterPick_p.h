#pragma once

#include <QPersistentModelIndex>
#include <QString>

class QComboBox;

namespace morvane::ui {

/**
 * The very entry that a user has picked or marked, which its text alone may not tell: other entries can have the same
 * text, or contain it.
 */
class AutoFilterPick
{
public:
    /** @param lineText what the line shows since */
    void set(const QModelIndex& entry, const QString& lineText);
    void clear();

    bool isSet() const { return m_entry.isValid(); }

    /** To be called when the entry has become current: from then on, it counts only as long as it is. */
    void setTaken() { m_isTaken = true; }

    /** The row of the entry; -1 when there is none, or when the combo box shows something else by now. */
    int row(const QComboBox& box) const;

private:
    QPersistentModelIndex m_entry;
    QString m_lineText;
    bool m_isTaken = false;
};

} // namespace morvane::ui
