#include "ui/qt/controls/AutoFilterEdit_p.h"

#include <utility>

namespace morvane::ui {

AutoFilterEdit::Step::Step(std::shared_ptr<AutoFilterEdit> edit, const QModelIndex& current) : m_edit(std::move(edit))
{
    if (m_edit->m_steps++ == 0) {
        m_edit->m_atStep = current;
        m_edit->m_hadEntryAtStep = current.isValid();
    }
}

AutoFilterEdit::Step::~Step()
{
    --m_edit->m_steps;
}

void AutoFilterEdit::begin(const QModelIndex& current)
{
    if (m_isBegun) {
        return;
    }
    m_isBegun = true;
    setBefore(current);
    if (isInStep()) {
        m_before = m_atStep;
        m_hadEntry = m_hadEntryAtStep;
    }
}

void AutoFilterEdit::setBefore(const QModelIndex& entry)
{
    m_before = entry;
    m_hadEntry = entry.isValid();
}

int AutoFilterEdit::rowBefore(int rowIfGone) const
{
    return m_hadEntry && !m_before.isValid() ? rowIfGone : m_before.row();
}

} // namespace morvane::ui
