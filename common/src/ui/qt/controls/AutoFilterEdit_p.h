#pragma once

#include <QPersistentModelIndex>

#include <memory>

namespace morvane::ui {

/**
 * Knows whether the user has changed something in a ComboBoxAutoFilter since the last outcome, and which entry was
 * current before that.
 */
class AutoFilterEdit
{
public:
    /**
     * As long as one lives, the user changes the combo box and not the program. An edit that begins meanwhile begins at
     * the entry that was current when the outermost step was made. May outlive the combo box.
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
     * @param current the current entry; the one before the edit, unless there is a step
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
