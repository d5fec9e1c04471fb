// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterUserEdit_p.h"

#include <utility>

namespace morvane::ui {

AutoFilterUserEdit::Step::Step(std::shared_ptr<AutoFilterUserEdit> edit, const QModelIndex& current)
    : m_edit(std::move(edit))
{
    if (m_edit->m_steps++ == 0) {
        m_edit->m_atStep = current;
        m_edit->m_hadEntryAtStep = current.isValid();
    }
}

AutoFilterUserEdit::Step::~Step()
{
    --m_edit->m_steps;
}

void AutoFilterUserEdit::begin(const QModelIndex& current)
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

void AutoFilterUserEdit::setBefore(const QModelIndex& entry)
{
    m_before = entry;
    m_hadEntry = entry.isValid();
}

int AutoFilterUserEdit::rowBefore(int rowIfGone) const
{
    return m_hadEntry && !m_before.isValid() ? rowIfGone : m_before.row();
}

} // namespace morvane::ui
