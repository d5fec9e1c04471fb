// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterOutcome_p.h"

#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>

namespace morvane::ui {

AutoFilterOutcome::AutoFilterOutcome(ComboBoxAutoFilter& box) : m_box(box) {}

void AutoFilterOutcome::onCurrentEntryChanged()
{
    const QModelIndex entry = currentEntry();
    const bool hasOnlyMoved = entry.isValid() && entry == m_current;
    m_current = entry;
    if (!hasOnlyMoved && !m_edit->isInStep()) {
        m_edit->end();
    }
}

bool AutoFilterOutcome::isEditUnfinished() const
{
    const QLineEdit* const line = m_box.lineEdit();
    return m_edit->isBegun() || (line && line->text() != m_box.itemText(m_box.currentIndex()).left(line->maxLength()));
}

int AutoFilterOutcome::rowBeforeEdit() const
{
    return m_edit->isBegun() ? m_edit->rowBefore(m_box.currentIndex()) : m_box.currentIndex();
}

void AutoFilterOutcome::pickCurrent()
{
    m_pick.set(currentEntry(), m_box.currentText());
    m_pick.setTaken();
}

int AutoFilterOutcome::findRow() const
{
    if (!m_box.lineEdit()) {
        return -1;
    }
    const int picked = m_pick.row(m_box);
    if (picked >= 0) {
        return picked;
    }
    const QString text = m_box.lineEdit()->text();
    const bool canStay = m_box.editMode() == ComboBoxAutoFilter::FormField && m_box.currentIndex() >= 0;
    if (canStay && m_box.itemText(m_box.currentIndex()) == text) {
        return m_box.currentIndex();
    }
    return findEntry(*m_box.model(), m_box.modelColumn(), m_box.rootModelIndex(), text, preference(), m_matching);
}

void AutoFilterOutcome::takeRow(int row)
{
    const AutoFilterUserEdit::Step userStep = step();
    const bool isPicked = row == m_pick.row(m_box);
    m_box.setCurrentIndex(row);
    if (isPicked) {
        m_pick.setTaken();
    }
}

EntryPreference AutoFilterOutcome::preference() const
{
    return m_box.editMode() == ComboBoxAutoFilter::FormField ? EntryPreference::Equal : EntryPreference::First;
}

void AutoFilterOutcome::announceActivation()
{
    ComboBoxAutoFilter* const box = &m_box;
    const QPointer<ComboBoxAutoFilter> alive(box);
    const QString text = box->itemText(box->currentIndex());
    Q_EMIT box->activated(box->currentIndex());
    if (alive) {
        Q_EMIT box->textActivated(text);
    }
    // By name: the signal is deprecated in Qt 5 and gone in Qt 6.
    const int named = alive ? box->metaObject()->indexOfSignal("activated(QString)") : -1;
    if (named >= 0) {
        box->metaObject()->method(named).invoke(box, Q_ARG(QString, text));
    }
}

QModelIndex AutoFilterOutcome::currentEntry() const
{
    return m_box.model()->index(m_box.currentIndex(), m_box.modelColumn(), m_box.rootModelIndex());
}

} // namespace morvane::ui
