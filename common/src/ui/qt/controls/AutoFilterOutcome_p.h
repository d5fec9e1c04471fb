// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/controls/AutoFilterEntries_p.h"
#include "ui/qt/controls/AutoFilterPick_p.h"
#include "ui/qt/controls/AutoFilterUserEdit_p.h"

#include <QPersistentModelIndex>

#include <memory>

namespace morvane::ui {

class ComboBoxAutoFilter;

/**
 * Decides which entry is current after an edit of a ComboBoxAutoFilter. Stores the edit and the entry that was picked.
 */
class AutoFilterOutcome
{
public:
    explicit AutoFilterOutcome(ComboBoxAutoFilter& box);
    AutoFilterOutcome(const AutoFilterOutcome&) = delete;
    AutoFilterOutcome& operator=(const AutoFilterOutcome&) = delete;

    QModelIndex currentEntry() const;

    /** Changes are the user's while the returned object exists. */
    AutoFilterUserEdit::Step step() const { return {m_edit, currentEntry()}; }
    /** Ends the edit when the program, and not the user, has made another entry current. */
    void onCurrentEntryChanged();

    /** Begins an edit at the current entry, unless one has begun. */
    void beginEdit() { m_edit->begin(currentEntry()); }
    void endEdit() { m_edit->end(); }
    /** Makes the current entry the one that is restored when the edit is cancelled. */
    void keepCurrent() { m_edit->setBefore(currentEntry()); }
    bool isEditBegun() const { return m_edit->isBegun(); }
    /** Whether an edit has begun, or the line shows a text that is not that of the current entry. */
    bool isEditUnfinished() const;
    /** The row that is current again when the edit is cancelled. */
    int rowBeforeEdit() const;

    /** Forgets the entry that was picked. */
    void clearPick() { m_pick.clear(); }
    bool hasPick() const { return m_pick.isSet(); }
    /** The entry was picked, and the line shows this text for it. It need not be current. */
    void setPick(const QModelIndex& entry, const QString& lineText) { m_pick.set(entry, lineText); }
    /** The current entry was picked. It counts as picked as long as it is current. */
    void pickCurrent();

    /** The row that the line stands for, -1 for none. */
    int findRow() const;
    /** Makes a row current. */
    void takeRow(int row);
    /** How a text without a picked entry is compared with the entries. */
    EntryPreference preference() const;
    EntryMatching matching() const { return m_matching; }
    void setMatching(EntryMatching matching) { m_matching = matching; }

    /** Emits the signals of QComboBox for an entry that the user has activated. A slot may delete the combo box. */
    void announceActivation();

private:
    ComboBoxAutoFilter& m_box;
    const std::shared_ptr<AutoFilterUserEdit> m_edit = std::make_shared<AutoFilterUserEdit>();
    AutoFilterPick m_pick;
    EntryMatching m_matching;
    QPersistentModelIndex m_current;
};

} // namespace morvane::ui
