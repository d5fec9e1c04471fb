// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPersistentModelIndex>

#include <memory>

namespace morvane::ui {

/**
 * Knows whether the user has changed something in a ComboBoxAutoFilter since the last outcome, and which entry was
 * current before that.
 */
class AutoFilterUserEdit
{
public:
    /**
     * While a Step exists, changes of the combo box are the user's and not the program's. An edit that begins in this
     * time begins at the entry that was current when the outermost Step was created. May outlive the combo box.
     */
    class Step
    {
    public:
        Step(std::shared_ptr<AutoFilterUserEdit> edit, const QModelIndex& current);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        const std::shared_ptr<AutoFilterUserEdit> m_edit;
    };

    bool isInStep() const { return m_steps > 0; }
    bool isBegun() const { return m_isBegun; }

    /**
     * Begins an edit, unless one has begun.
     *
     * @param current the current entry; it is the entry before the edit, unless a Step exists
     */
    void begin(const QModelIndex& current);
    void end() { m_isBegun = false; }
    /** Changes the entry before the edit. */
    void setBefore(const QModelIndex& entry);

    /** The row of the entry before the edit, -1 for none. `rowIfGone` if the model has removed that entry. */
    int rowBefore(int rowIfGone) const;

private:
    int m_steps = 0;
    bool m_isBegun = false;
    QPersistentModelIndex m_atStep;
    QPersistentModelIndex m_before;
    bool m_hadEntry = false;
    bool m_hadEntryAtStep = false;
};

} // namespace morvane::ui
