// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/controls/AutoFilterSuggestions_p.h"

#include "ui/qt/controls/AutoFilterDelegate_p.h"
#include "ui/qt/controls/AutoFilterLineEdit_p.h"
#include "ui/qt/controls/AutoFilterOutcome_p.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QListView>

namespace morvane::ui {

namespace {

/** How many suggestions are searched on each key for the one to mark. */
constexpr int mostSuggestionsSearched = 10000;

bool endsEditing(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Escape;
}

bool movesMark(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        return event.modifiers() & Qt::ControlModifier;
    default:
        return false;
    }
}

bool leavesAtEnd(const QAbstractItemView& popup, int key)
{
    const int row = popup.currentIndex().row();
    const bool isLast = row >= 0 && row == popup.model()->rowCount() - 1;
    return (key == Qt::Key_Up && row == 0) || (key == Qt::Key_Down && isLast);
}

} // namespace

AutoFilterSuggestions::AutoFilterSuggestions(ComboBoxAutoFilter& box, AutoFilterOutcome& outcome)
    : m_box(box), m_outcome(outcome), m_resender(box)
{
}

AutoFilterSuggestions::~AutoFilterSuggestions() = default;

void AutoFilterSuggestions::setCompleter(AutoFilterCompleter& completer)
{
    if (m_completer) {
        // It is not used any more and need not follow the model.
        m_completer->setMatching({});
    }
    m_completer = &completer;
    m_followedModel = m_box.model();
    m_followedColumn = completer.completionColumn();
}

void AutoFilterSuggestions::setUpPopup(Qt::TextElideMode elide)
{
    QAbstractItemView* const popup = m_completer->popup();
    if (!popup) {
        return;
    }
    popup->setTextElideMode(elide);
    keepPopup();
    if (auto* const list = qobject_cast<QListView*>(popup)) {
        // Each key causes a new layout of the popup. Measuring each entry would take most of the time.
        list->setUniformItemSizes(true);
    }
}

void AutoFilterSuggestions::keepPopup()
{
    QAbstractItemView* const popup = m_completer->popup();
    if (!popup) {
        return;
    }
    // QCompleter installs its own filter and delegate with each model. Of the filters, the last one is called first.
    popup->installEventFilter(&m_box);
    popup->viewport()->installEventFilter(&m_box);
    updateDelegate(*popup);
}

void AutoFilterSuggestions::updateDelegate(QAbstractItemView& popup)
{
    const QPointer<QAbstractItemDelegate> old = m_delegate;
    if (popup.itemDelegate() != m_delegate) {
        m_stockDelegate = popup.itemDelegate();
    }
    m_delegate = m_showsMatch ? new AutoFilterDelegate(popup, *m_completer, m_outcome.matching()) : nullptr;
    popup.setItemDelegate(m_delegate ? m_delegate : m_stockDelegate);
    delete old;
}

void AutoFilterSuggestions::followMatching()
{
    if (m_completer) {
        m_completer->setMatching(m_outcome.matching());
        keepPopup();
    }
}

void AutoFilterSuggestions::setShowsMatch(bool on)
{
    m_showsMatch = on;
    if (m_completer) {
        keepPopup();
    }
}

void AutoFilterSuggestions::followModel()
{
    if (!m_completer) {
        return;
    }
    if (m_followedModel != m_box.model()) {
        m_followedModel = m_box.model();
        m_completer->setEntries(m_box.model());
        keepPopup();
    }
    if (m_followedColumn != m_box.modelColumn()) {
        m_followedColumn = m_box.modelColumn();
        m_completer->setCompletionColumn(m_box.modelColumn());
    }
}

void AutoFilterSuggestions::mark()
{
    AutoFilterLineEdit* const line = AutoFilterLineEdit::of(m_box);
    const QAbstractItemView* const popup = this->popup();
    if (!line || line->keepsMark() || !popup || !popup->isVisible()) {
        return;
    }
    const EntryPreference preference = m_outcome.preference();
    if (preference == EntryPreference::First && isEnabledEntry(popup->currentIndex())) {
        return;
    }
    const QAbstractItemModel& suggested = *popup->model();
    const int column = m_completer->completionColumn();
    const int row = findEntry(
        suggested, column, QModelIndex(), line->text(), preference, m_outcome.matching(), mostSuggestionsSearched);
    line->markSuggestion(suggested.index(row, column));
}

void AutoFilterSuggestions::hide()
{
    if (QAbstractItemView* const popup = m_completer ? m_completer->popup() : nullptr) {
        popup->hide();
    }
}

bool AutoFilterSuggestions::filter(QObject& watched, QEvent& event)
{
    const QAbstractItemView* const popup = this->popup();
    if (!popup || m_resender.isResent(event)) {
        return false;
    }
    if (&watched == popup && event.type() == QEvent::KeyPress) {
        return filterKey(watched, static_cast<QKeyEvent&>(event));
    }
    return &watched == popup->viewport() && filterViewport(watched, event);
}

QAbstractItemView* AutoFilterSuggestions::popup() const
{
    const QLineEdit* const line = m_box.lineEdit();
    return m_completer && line && line->completer() == m_completer ? m_completer->popup() : nullptr;
}

bool AutoFilterSuggestions::filterKey(QObject& popup, QKeyEvent& event)
{
    if (endsEditing(event.key())) {
        // The completer does not get the key: it would access itself after a slot has deleted it with the combo box.
        m_outcome.beginEdit();
        hide();
        QCoreApplication::sendEvent(&m_box, &event);
        return true;
    }
    if (movesMark(event) && m_box.lineEdit()) {
        moveMark(popup, event);
        return true;
    }
    return false;
}

void AutoFilterSuggestions::moveMark(QObject& popup, QKeyEvent& event)
{
    const bool staysInLine = !m_outcome.hasPick() && leavesAtEnd(*this->popup(), event.key());
    if (staysInLine || m_resender.resend(popup, event)) {
        followMark();
    }
}

bool AutoFilterSuggestions::filterViewport(QObject& viewport, QEvent& event)
{
    const QEvent::Type type = event.type();
    const bool isMouse =
        type == QEvent::MouseButtonPress || type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (!isMouse) {
        return false;
    }
    auto& mouse = static_cast<QMouseEvent&>(event);
    if (type == QEvent::MouseButtonRelease && mouse.button() == Qt::LeftButton) {
        return filterRelease(viewport, mouse);
    }
    if (type == QEvent::MouseMove && mouse.buttons() == Qt::NoButton) {
        return false;
    }
    if (m_resender.resend(viewport, event)) {
        followMark();
    }
    return true;
}

bool AutoFilterSuggestions::filterRelease(QObject& viewport, QMouseEvent& event)
{
    const AutoFilterUserEdit::Step step = m_outcome.step();
    const QPersistentModelIndex entry = entryOfSuggestion(popup()->indexAt(event.pos()), *m_box.model());
    event.accept();
    if (!isEnabledEntry(entry)) {
        // Otherwise the popup would close, although this entry cannot be picked.
        m_resender.resendOutside(viewport, event);
        return true;
    }
    if (m_resender.resend(viewport, event) && entry.isValid()) {
        pick(entry.row());
    }
    return true;
}

void AutoFilterSuggestions::pick(int row)
{
    // QCompleter makes the entry current only if the mouse was also pressed on it.
    const bool isTaken = m_box.currentIndex() == row;
    m_box.setCurrentIndex(row);
    m_outcome.setPick(m_outcome.currentEntry(), m_box.currentText());
    const QPointer<ComboBoxAutoFilter> box(&m_box);
    if (!isTaken) {
        m_outcome.announceActivation();
    }
    if (box) {
        Q_EMIT picked();
    }
}

void AutoFilterSuggestions::followMark()
{
    const QAbstractItemView* const popup = this->popup();
    AutoFilterLineEdit* const line = AutoFilterLineEdit::of(m_box);
    if (!popup || !line) {
        return;
    }
    line->keepMark();
    const QModelIndex entry = entryOfSuggestion(popup->currentIndex(), *m_box.model());
    if (!isEnabledEntry(entry) || !popup->selectionModel()->isSelected(popup->currentIndex())) {
        m_outcome.clearPick();
        return;
    }
    const QString text = m_box.itemText(entry.row());
    if (line->text() != text) {
        line->setText(text);
    }
    m_outcome.setPick(entry, line->text());
}

} // namespace morvane::ui
