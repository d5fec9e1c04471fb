#pragma once

#include <QPersistentModelIndex>

#include <memory>

namespace morvane::ui {

/**
 * Tells whether a user has changed something in a ComboBoxAutoFilter since the last outcome, and keeps the entry that
 * was current before.
 */
class AutoFilterEdit
{
public:
    /**
     * While one lives, a user is at work: what changes is no doing of the program, and an edit that begins has begun at
     * the entry that was current when the outermost step was taken. Outlives the combo box when a slot deletes that.
     */
    class Step
    {
    public:
        Step(std::shared_ptr<AutoFilterEdit> edit, const QModelIndex& current);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        const std::shared_ptr<AutoFilterEdit> m_edit;
    };

    bool isInStep() const { return m_steps > 0; }
    bool isBegun() const { return m_isBegun; }

    /**
     * Begins an edit, unless one has begun.
     *
     * @param current the entry before it, unless a step was taken
     */
    void begin(const QModelIndex& current);
    void end() { m_isBegun = false; }
    /** Makes another entry the one from before the edit. */
    void setBefore(const QModelIndex& entry);

    /** The row of the entry before the edit; -1 for none, the other one when the entry is gone. */
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
