#include "ui/qt/controls/AutoFilterEdit.h"

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
    m_before = isInStep() ? m_atStep : QPersistentModelIndex(current);
    m_hadEntry = isInStep() ? m_hadEntryAtStep : current.isValid();
}

int AutoFilterEdit::rowBefore(int rowIfGone) const
{
    return m_hadEntry && !m_before.isValid() ? rowIfGone : m_before.row();
}

} // namespace morvane::ui
